// The layout that the receiving system asks of an electronic invoice to a public administration: which
// elements in which order, how many, and what each may hold. The check walks it beside the file.
#pragma once

#include <QRegularExpression>
#include <QString>
#include <vector>

namespace bor {

struct Forma {
    QRegularExpression regola; ///< matches the whole value
    QString attesa;            ///< what is wanted, in words
    bool (*cifreControllo)(QStringView) = nullptr;
};

enum class Volte { Una, AlPiuUna, UnaOPiu, Libere };

struct Elemento {
    QString nome;
    Volte volte = Volte::Una;
    Forma forma = {};                 ///< of an element that holds a value
    std::vector<Elemento> figli = {}; ///< of one that holds others, in their order
    QString dove = {};   ///< screen and field where its contents are entered; empty: as its parent's
    bool liberi = false; ///< contents are not looked at

    bool obbligatorio() const { return volte == Volte::Una || volte == Volte::UnaOPiu; }
};

/// The root element of an invoice.
const Elemento& tracciatoFattura();

/// Screen and field where the element of that path is entered.
QString doveSiCompila(const QString& percorso);

} // namespace bor
