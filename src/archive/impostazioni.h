// The settings of a run: company heading, currency, and the general settings record.
#pragma once

#include "archive/gnr.h"
#include "common/valuta.h"

#include <QString>
#include <QStringList>

#include <array>

namespace bor {

class Archivio;

/// A font and further values of one row of `borlano.tbl`.
struct RigaStampa {
    std::array<int, 5> misure{};
    QString carattere = QStringLiteral("Arial");
    double dimensione = 9;
    int stile1 = 0;
    int stile2 = 0;
    double valore = 0;
    int colore = 0;
    double altezza = 0;
    int intero = 0;
    double reale = 0;
};

struct Impostazioni {
    std::array<QString, 4> datilinea; ///< 1 to 3: first lines of `borlano.int`, the company's name first
    std::array<QString, 21> eur;      ///< 1 to 20: currency and document switches
    std::array<RigaStampa, 31>
        tabellastampa; ///< `borlano.tbl`, held complete for the suite; no screen here uses it
    Gnr gnr = gnrPredefinito();

    /// The currency switch as the rounding and text rules need it.
    Valuta valuta() const;
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

} // namespace bor
