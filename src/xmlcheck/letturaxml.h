// A forgiving reader of XML for electronic invoices: notes what is not well formed or not in the declared
// encoding, repairs it in memory and goes on, so that the contents can be judged all the same.
#pragma once

#include "xmlcheck/rilievo.h"

#include <QByteArray>

#include <optional>

namespace bor {

struct Attributo {
    QString nome;
    QString spazio; ///< its namespace, most often none
    QString valore;
};

struct Nodo {
    QString nome;   ///< without prefix
    QString spazio; ///< its namespace
    QString percorso;
    QString testo; ///< own text as it stands, with its blanks
    int riga = 0;
    std::vector<Attributo> attributi;
    std::vector<Nodo> figli;

    /// First child of that name; null when there is none.
    const Nodo* figlio(QStringView nomeFiglio) const;
    /// Text of the first child of that name, trimmed; empty when there is none.
    QString valore(QStringView nomeFiglio) const;
};

struct LetturaXml {
    std::optional<Nodo> radice; ///< nothing when not even the first tag could be read
    std::vector<Rilievo> rilievi;
};

/// A file of more than five million bytes, or of more elements than an invoice can have, is not read; the
/// finding tells it.
LetturaXml leggiXml(const QByteArray& contenuto);

} // namespace bor
