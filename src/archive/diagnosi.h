// What somebody who helps from afar has to know of a company and of the computer that works on it.
#pragma once

#include "archive/blocchi.h"
#include "archive/promemoria.h"

#include <QStringList>

namespace bor {

class Archivio;

struct Diagnosi {
    QString versione;
    QString cartella; ///< of the company, on this machine
    QString disco;    ///< its file system, and how much of it is free
    TenutaBlocchi blocchi = TenutaBlocchi::NonProvati;
    std::optional<UltimaVerifica> verifica; ///< the last one that this user made
    QStringList avvertenze;                 ///< of this run
};

Diagnosi diagnosi(const Archivio& archivio, double codiceazienda);

/// What the operator reads of it, as caption and value; the warnings are not among them.
QList<std::pair<QString, QString>> voci(const Diagnosi& diagnosi);

/// All of it as a text to be sent, without names and amounts: what a warning holds of names of the company's
/// customers, paths and amounts is left out.
QString testoAssistenza(const Diagnosi& diagnosi, const Archivio& archivio);

} // namespace bor
