// A forgiving reader of XML for the check of electronic invoices: notes what is not well formed or not in the
// declared encoding, repairs it in memory and goes on, so that the contents can be judged all the same.
#pragma once

#include "einvoice/controlloxml.h"

#include <optional>

namespace bor {

struct Nodo {
    QString nome; ///< without prefix
    QString percorso;
    QString testo; ///< own text, trimmed
    int riga = 0;
    std::vector<Nodo> figli;

    /// First child of that name; null when there is none.
    const Nodo* figlio(QStringView nomeFiglio) const;
    /// Text of the first child of that name; empty when there is none.
    QString valore(QStringView nomeFiglio) const;
};

struct LetturaXml {
    std::optional<Nodo> radice; ///< nothing when not even the first tag could be read
    QString spazioNomi;         ///< namespace of the root
    std::vector<Rilievo> rilievi;
};

LetturaXml leggiXml(const QByteArray& contenuto);

} // namespace bor
