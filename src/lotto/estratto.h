// Takes the chosen documents out as a table, from their records as they are on file by then.
#pragma once

#include "common/tabella.h"
#include "lotto/rapportolotto.h"

#include <QDate>

#include <vector>

namespace bor {

class Archivio;

/// One document of the table. Amounts of a credit note are negative.
struct RigaEstratto {
    int record = 0;
    QDate registrazione;
    QString genere;
    QString numero;
    QDate data;
    QString cliente;
    QString partitaiva;
    double imponibile = 0;
    double imposta = 0;
    double esente = 0;
    double ritenuta = 0;
    bool pa = false;
    QString pdf;
};

struct Estratto {
    std::vector<RigaEstratto> righe;
    RapportoLotto fuori; ///< documents that are not in the table, and why

    Tabella tabella(int decimali) const;
};

/// Each row is of one moment. Deleted documents and those that are gone or another one by now are told.
Estratto estrai(const Archivio& archivio, const std::vector<Identita>& scelti);

} // namespace bor
