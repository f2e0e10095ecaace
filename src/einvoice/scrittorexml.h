// Puts an XML file together line by line, in the archive's code page. Nothing is escaped and nothing is
// closed by itself: the receiving side knows these files exactly as they are written here.
#pragma once

#include "common/testo.h"

#include <QByteArray>
#include <QString>

#include <initializer_list>

namespace bor {

class ScrittoreXml {
public:
    ScrittoreXml() { m_bytes.reserve(64 * 1024); }

    /// A whole line after `rientro` blanks.
    void riga(int rientro, std::initializer_list<QByteArrayView> pezzi) {
        m_bytes.append(rientro, ' ');
        for (const QByteArrayView p : pezzi)
            m_bytes.append(p);
        m_bytes.append("\r\n");
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
