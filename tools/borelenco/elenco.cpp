#include "borelenco/elenco.h"

#include "archive/impostazioni.h"
#include "common/posti.h"
#include "register/tabellaregistro.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor::elenca {

namespace {

/// The files that the list is made of and that this program cannot open though they are there.
QStringList chiusi(const Archivio& archivio) {
    QStringList file;
    for (const FileCasuale* f : std::initializer_list<const FileCasuale*>{&archivio.tot, &archivio.cli,
                                                                          &archivio.fte, &archivio.f2e}) {
        if (!f->aperto() && QFileInfo::exists(f->percorso()))
            file.append(f->percorso());
    }
    return file;
}

/// Record numbers with those that follow each other taken together: "12, 40-45".
QString tratti(const std::vector<int>& record) {
    QStringList testi;
    for (std::size_t i = 0; i < record.size();) {
        const std::size_t primo = i;
        while (++i < record.size() && record[i] == record[i - 1] + 1) {
        }
        const QString numero = QString::number(record[primo]);
        testi.append(i - primo == 1 ? numero : numero + u'-' + QString::number(record[i - 1]));
    }
    return testi.join(u", "_s);
}

QStringList mancanze(const LetturaElenco& lettura) {
    QStringList avvisi;
    if (!lettura.nonLetti.empty())
        avvisi.append(
            u"Nell'elenco mancano i documenti che non si possono leggere, o che sono contati ma non "
            "sono nel file: record %1."_s.arg(tratti(lettura.nonLetti)));
    if (lettura.oltre > 0)
        avvisi.append(u"Nell'elenco mancano gli ultimi %1 documenti: ne tiene %2. Con --dal e --al se ne "
                      "chiede una parte."_s.arg(lettura.oltre)
                          .arg(ElencoFatture::massimoRighe));
    return avvisi;
}

/// Why the archive cannot be read; empty when it can. `documenti` becomes their count.
QString apri(Archivio& archivio, int azienda, int& documenti) {
    if (const QString tot = archivio.reale(archivio.borlano(u"tot")); !QFileInfo::exists(tot))
        return u"%1 non c'è: qui non c'è l'archivio dell'azienda %2."_s.arg(tot).arg(azienda);
    archivio.apri(Apertura::SolaLettura);
    if (const QStringList file = chiusi(archivio); !file.isEmpty())
        return u"Non si può leggere %1: manca il permesso, o un altro programma lo tiene per sé."_s.arg(
            file.join(u", "_s));
    Tot contatore;
    if (archivio.leggiTot(Conta::Fte, contatore) == EsitoLettura::Guasta)
        return u"Il contatore dei documenti non si può leggere."_s;
    documenti = std::max<int>(contatore.numero, 0);
    return {};
}

} // namespace

Esito elenca(const Richiesta& richiesta, QIODevice& uscita) {
    const Percorsi percorsi(QDir(richiesta.unita).absolutePath(), QString());
    Disco disco;
    Archivio archivio(percorsi, disco, richiesta.azienda);
    int documenti = 0;
    if (const QString errore = apri(archivio, richiesta.azienda, documenti); !errore.isEmpty())
        return {errore, {}};
    const Tabelle tabelle = leggiTabelle(archivio);
    ElencoFatture elenco(tabelle);
    const DocumentiScelti& scelti = richiesta.vista.documenti;
    const LetturaElenco lettura =
        elenco.leggi(archivio, 1, documenti, [vaglio = Vaglio(scelti)](int, const Fte& fte, const F2e& f2e) {
            return vaglio.passa(fte, f2e);
        });
    if (lettura.occupato)
        return {u"Un altro programma sta scrivendo da più di cinque secondi: riprovate fra poco."_s, {}};
    Tabella tabella = tabellaRegistro(elenco, richiesta.vista.mostrate(), leggiValuta(archivio));
    tabella.titolo = titoloRegistro(archivio);
    const QString limiti = scelti.descrizione();
    tabella.filtro = filtroRegistro(limiti.isEmpty() ? QStringList() : QStringList(limiti));
    const bool scritta =
        richiesta.formato == Formato::Json ? scriviJson(tabella, uscita) : scriviCsv(tabella, uscita);
    return {scritta ? QString()
                    : u"L'elenco non si è potuto scrivere per intero: %1."_s.arg(uscita.errorString()),
            mancanze(lettura)};
}

} // namespace bor::elenca
