#include "archive/impostazioni.h"

#include "archive/archivio.h"
#include "archive/filetesto.h"
#include "common/numeri.h"
#include "common/testo.h"

#include <QDir>
#include <QFileInfo>

#include <optional>

namespace bor {

namespace {

QString nellaRadice(QStringView nome) {
    return radiceSuite.toString() + nome.toString();
}

/// Currency and switches, from `borlano.eur`. The first five values fail together; the line behind them has
/// its own default, and the last one is of other modules.
void leggiEur(const Archivio& archivio, Impostazioni& imp) {
    FileTesto file(archivio.reale(nellaRadice(u"borlano.eur")));
    Valuta valuta;
    valuta.euro = valore(file.campo()) != 0.0;
    valuta.lirePerEuro = valore(file.campo());
    file.campo(); // the codes of the two currencies are of other modules
    file.campo();
    valuta.decimaliprezzo = valoreIntero(file.campo());
    if (file.aperto() && !file.finito())
        imp.valuta = valuta;
    imp.generaPdf = valore(file.linea()) != 0.0;
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

Valuta leggiValuta(const Archivio& archivio) {
    Impostazioni imp;
    leggiEur(archivio, imp);
    return imp.valuta;
}

Impostazioni caricaimpostazioni(Archivio& archivio) {
    Impostazioni imp;
    leggiEur(archivio, imp);
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

QString nomeAzienda(const Archivio& archivio) {
    return puliscitesto(leggiIntestazione(archivio).value(0));
}

} // namespace bor
