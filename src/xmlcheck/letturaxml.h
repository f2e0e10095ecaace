// A forgiving reader of XML for electronic invoices: notes what is not well formed or not in the declared
// encoding, repairs it in memory and goes on, so that the contents can be judged all the same.
#pragma once

#include "xmlcheck/rilievo.h"

#include <QByteArray>

#include <chrono>
#include <memory>

namespace bor {

struct Attributo {
    QString nome;
    QString spazio; ///< its namespace, most often none
    QString valore;
};

/// An element. It stays where it is as long as the tree lives: its children point to it.
struct Nodo {
    QString nome;   ///< without prefix
    QString spazio; ///< its namespace
    QString testo;  ///< own text as it stands, with its blanks, but for blanks between elements
    int riga = 0;
    int numero = 0; ///< place among its sisters of the same name, from 1; 0 for an only one
    const Nodo* padre = nullptr;
    std::vector<Attributo> attributi;
    std::vector<Nodo> figli;

    /// First child of that name; null when there is none.
    const Nodo* figlio(QStringView nomeFiglio) const;
    /// Text of the first child of that name, trimmed; empty when there is none.
    QString valore(QStringView nomeFiglio) const;
    /// Names from below the root down to here, with numbers: "FatturaElettronicaBody/DatiRiepilogo[2]".
    QString percorso() const;
};

struct LetturaXml {
    std::unique_ptr<Nodo> radice; ///< null when not even the first tag could be read, or nothing was
    std::vector<Rilievo> rilievi;
};

/// What reading may take of the processor: a whole invoice of five million bytes takes a third of it.
inline constexpr std::chrono::milliseconds tempoLettura{900};

/// A file of more than five million bytes, with more elements than an invoice can have or an element with
/// thousands of attributes, or one whose reading takes longer than `tempo`, is not read; the finding tells
/// it.
LetturaXml leggiXml(const QByteArray& contenuto, std::chrono::milliseconds tempo = tempoLettura);

} // namespace bor
