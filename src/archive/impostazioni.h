// The settings of a run: currency, switches, and the general settings record.
#pragma once

#include "archive/gnr.h"
#include "common/valuta.h"

#include <QString>
#include <QStringList>

namespace bor {

class Archivio;

struct Impostazioni {
    Valuta valuta;
    bool generaPdf = false; ///< a printed document is offered as PDF and by e-mail
    Gnr gnr = gnrPredefinito();
};

/// Reads all settings of the company. Where it has no `gnr` record of its own, one is taken from the suite's
/// root folder or made new, and saved; an older one is migrated and saved.
Impostazioni caricaimpostazioni(Archivio& archivio);

/// The currency of the books alone, for programs that only read: `caricaimpostazioni` may write a `gnr`.
Valuta leggiValuta(const Archivio& archivio);

/// Writes the `gnr` record into the company's folder. False when that failed.
bool salvagnr(Archivio& archivio, const Gnr& gnr);

/// All lines of `borlano.int`, at most twenty: the heading of printed documents.
QStringList leggiIntestazione(const Archivio& archivio);

/// The first of them; empty for a company without a heading.
QString nomeAzienda(const Archivio& archivio);

} // namespace bor
