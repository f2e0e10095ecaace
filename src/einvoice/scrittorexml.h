// Puts an XML file together line by line, in the archive's code page. Nothing is escaped and nothing is
// closed by itself: the receiving side knows these files exactly as they are written here.
#pragma once

#include "common/testo.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <initializer_list>

namespace bor {

class ScrittoreXml {
public:
    /// An invoice of 500 lines fits without growing.
    ScrittoreXml() { m_bytes.reserve(512 * 1024); }

    /// A whole line after `rientro` blanks.
    void riga(int rientro, std::initializer_list<QByteArrayView> pezzi) {
        qsizetype lunghezza = rientro + 2;
        for (const QByteArrayView p : pezzi)
            lunghezza += p.size();
        const qsizetype inizio = m_bytes.size();
        m_bytes.resize(inizio + lunghezza);
        char* scritto = std::fill_n(m_bytes.data() + inizio, rientro, ' ');
        for (const QByteArrayView p : pezzi)
            scritto = std::copy(p.begin(), p.end(), scritto);
        *scritto++ = '\r';
        *scritto = '\n';
    }
    void apri(int rientro, QByteArrayView nome) { riga(rientro, {"<", nome, ">"}); }
    void chiudi(int rientro, QByteArrayView nome) { riga(rientro, {"</", nome, ">"}); }
    void elemento(int rientro, QByteArrayView nome, QStringView valore) {
        elemento(rientro, nome, valore, nome);
    }
    /// With a closing tag of its own.
    void elemento(int rientro, QByteArrayView nome, QStringView valore, QByteArrayView chiusura) {
        riga(rientro, {"<", nome, ">", inCp1252(valore.trimmed()), "</", chiusura, ">"});
    }
    /// Only when the value, trimmed, is not empty.
    void sePresente(int rientro, QByteArrayView nome, QStringView valore) {
        if (!valore.trimmed().isEmpty())
            elemento(rientro, nome, valore);
    }

    const QByteArray& bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

} // namespace bor
