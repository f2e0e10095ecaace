#include "archive/impostazioni.h"

#include "archive/archivio.h"
#include "archive/filetesto.h"
#include "common/numeri.h"

#include <QDir>
#include <QFileInfo>

#include <optional>

namespace bor {

namespace {

QString nellaRadice(QStringView nome) {
    return radiceSuite.toString() + nome.toString();
}

void leggiEur(FileTesto file, std::array<QString, 21>& eur) {
    for (std::size_t i = 1; i <= 5; ++i)
        eur[i] = file.campo();
    if (!file.aperto() || file.finito()) {
        eur[1] = QStringLiteral("1");
        eur[2] = QStringLiteral("1936.27");
        eur[3] = QStringLiteral("ITL");
        eur[4] = QStringLiteral("EUR");
        eur[5] = QStringLiteral("2");
    }
    const auto lineaO = [&file](QStringView predefinito) {
        const QString linea = file.linea();
        return file.finito() || !file.aperto() ? predefinito.toString() : linea;
    };
    eur[6] = lineaO(u"0");
    eur[11] = lineaO(u"9");
    eur[1] = valore(eur[1]) != 0.0 ? QStringLiteral("1") : QStringLiteral("0");
}

/// The first rows of the print layout: their fonts, and the number of heading lines.
int leggiCaratteri(FileTesto& file, std::array<RigaStampa, 31>& righe) {
    int righeintestazione = 0;
    for (std::size_t r = 0; r < 6; ++r) {
        const int numero = valoreIntero(file.linea());
        if (r == 0)
            righeintestazione = numero;
        righe[r].carattere = file.linea().left(30);
        righe[r].dimensione = valore(file.linea());
        righe[r].stile1 = valoreIntero(file.linea());
        righe[r].stile2 = valoreIntero(file.linea());
        righe[r].valore = valore(file.linea());
    }
    if (!file.aperto() || file.finito()) {
        for (std::size_t r = 0; r < 6; ++r) {
            const auto misure = righe[r].misure;
            righe[r] = RigaStampa{};
            righe[r].misure = misure;
        }
        righe[1].dimensione = 14;
        righeintestazione = 4;
    }
    return righeintestazione;
}

void leggiTbl(FileTesto file, std::array<RigaStampa, 31>& righe) {
    for (int& misura : righe[0].misure)
        misura = valoreIntero(file.campo());
    if (!file.aperto() || file.finito())
        righe[0].misure = {30, 950, 30, 950, 2};
    const int righeintestazione = leggiCaratteri(file, righe);
    QString colore;
    for (int i = 0; i < 6; ++i)
        colore = file.linea();
    righe[0].colore = file.aperto() && !file.finito() ? valoreIntero(colore) : 16777215;
    righe[1].valore = valore(file.linea());
    righe[1].intero = valoreIntero(file.linea());
    righe[2].intero = valoreIntero(file.linea());
    righe[1].reale = valore(file.linea());
    righe[2].reale = valore(file.linea());
    righe[0].altezza = 140 + 25.0 * righeintestazione;
}

std::optional<Gnr> leggiGnr(Archivio& archivio, const QString& dos) {
    const QString percorso = archivio.reale(dos);
    if (!QFileInfo::exists(percorso))
        return std::nullopt;
    RecordFile<Gnr> file(archivio.disco());
    if (!file.apri(percorso))
        return std::nullopt;
    return file.leggi(1);
}

Gnr caricaGnr(Archivio& archivio) {
    if (auto gnr = leggiGnr(archivio, archivio.borlano(u"gnr"))) {
        const bool riparato = riparaRighemodulo(*gnr);
        const bool migrato = migraGnr(*gnr);
        if (riparato || migrato)
            salvagnr(archivio, *gnr);
        return *gnr;
    }
    auto gnr = leggiGnr(archivio, nellaRadice(u"borlano.gnr"));
    if (gnr) {
        migraGnr(*gnr);
    } else {
        gnr = gnrPredefinito();
        QDir().mkpath(archivio.reale(u"\\SUPROK\\PDF"));
    }
    salvagnr(archivio, *gnr);
    return *gnr;
}

} // namespace

Valuta Impostazioni::valuta() const {
    return {valore(eur[1]) != 0.0, valoreIntero(eur[5]), valore(eur[2])};
}

Valuta leggiValuta(const Archivio& archivio) {
    Impostazioni imp;
    leggiEur(FileTesto(archivio.reale(nellaRadice(u"borlano.eur"))), imp.eur);
    return imp.valuta();
}

Impostazioni caricaimpostazioni(Archivio& archivio) {
    Impostazioni imp;
    const QStringList intestazione = leggiIntestazione(archivio);
    for (qsizetype i = 0; i < 3; ++i)
        imp.datilinea[static_cast<std::size_t>(i) + 1] = intestazione.value(i);
    leggiEur(FileTesto(archivio.reale(nellaRadice(u"borlano.eur"))), imp.eur);
    leggiTbl(FileTesto(archivio.reale(nellaRadice(u"borlano.tbl"))), imp.tabellastampa);
    imp.gnr = caricaGnr(archivio);
    return imp;
}

bool salvagnr(Archivio& archivio, const Gnr& gnr) {
    RecordFile<Gnr> file(archivio.disco());
    return file.apri(archivio.reale(archivio.borlano(u"gnr"))) && file.scrivi(1, gnr);
}

QStringList leggiIntestazione(const Archivio& archivio) {
    constexpr int massimo = 20;
    FileTesto file(archivio.reale(archivio.borlano(u"int")));
    QStringList linee;
    while (file.aperto() && linee.size() < massimo) {
        const QString linea = file.linea();
        if (file.finito())
            break;
        linee.append(linea);
    }
    return linee;
}

} // namespace bor
