// Customers, articles, accounts and agents from their tables.
#pragma once

#include "archive/archivio.h"
#include "borcrea/problemi.h"

#include <QHash>

#include <vector>

namespace bor::crea {

struct Anagrafiche {
    std::vector<Cli> clienti;
    std::vector<Art> articoli;
    std::vector<Prx> testi; ///< extra text of each article
    std::vector<Con> conti;
    std::vector<Age> agenti;
    QHash<QString, int> recordCliente; ///< `cli` record of a code used in the tables only
    QHash<QString, int> recordArticolo;
};

Anagrafiche leggiAnagrafiche(const QString& cartella, Problemi& problemi);

/// Writes the records, their counters and the three indexes. False when a file could not be written.
bool scriviAnagrafiche(Archivio& archivio, const Anagrafiche& anagrafiche);

} // namespace bor::crea
