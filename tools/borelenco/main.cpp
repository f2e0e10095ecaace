// Writes the register of a company to standard output, as a spreadsheet or as JSON; writes nothing into the
// archive. Ends with 0 when the list is whole, 1 when it lacks documents, 2 when there is none.
#include "borelenco/elenco.h"
#include "common/date.h"
#include "common/posti.h"
#include "common/rigacomando.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

enum Uscita { Intero = 0, Incompleto = 1, NonFatto = 2 };

/// Reads the options, and remembers the first one that is wrong.
class Opzioni {
public:
    explicit Opzioni(const QCommandLineParser& riga) : m_riga(riga) {}

    bor::VistaRegistro vista() {
        bor::VistaRegistro vista;
        const bor::Giorni giorni{giorno(u"dal"_s), giorno(u"al"_s)};
        if (giorni.dal.isValid() && giorni.al.isValid() && giorni.dal > giorni.al)
            rifiuta(u"--al: il periodo finisce prima di cominciare."_s);
        if (!giorni.tutti())
            vista.documenti.periodo = {.genere = bor::Periodo::Genere::DalAl, .dalAl = giorni};
        vista.colonne = colonne();
        return vista;
    }
    bor::elenca::Formato formato() {
        const QString testo = m_riga.value(u"formato"_s);
        if (testo != u"csv" && testo != u"json")
            rifiuta(u"--formato: csv o json, non «%1»."_s.arg(testo));
        return testo == u"json" ? bor::elenca::Formato::Json : bor::elenca::Formato::Csv;
    }
    /// Empty when all are right.
    const QString& difetto() const { return m_difetto; }

private:
    void rifiuta(const QString& difetto) {
        if (m_difetto.isEmpty())
            m_difetto = difetto;
    }
    /// An open end where the option is not given.
    QDate giorno(const QString& opzione) {
        if (!m_riga.isSet(opzione))
            return {};
        const QString testo = m_riga.value(opzione);
        const QDate iso = QDate::fromString(testo, Qt::ISODate);
        const QDate giorno =
            iso.isValid() ? iso : bor::dataValida(bor::completaData(testo)).value_or(QDate());
        if (!giorno.isValid())
            rifiuta(u"--%1: «%2» non è una data; si scrive 31/12/2015 o 2015-12-31."_s.arg(opzione, testo));
        return giorno;
    }
    std::vector<bor::ColonnaScelta> colonne() {
        std::vector<bor::ColonnaScelta> colonne;
        if (!m_riga.isSet(u"colonne"_s))
            return colonne;
        QStringList viste;
        for (const QString& chiave : m_riga.value(u"colonne"_s).split(u',')) {
            const auto colonna = bor::colonnaDi(chiave);
            if (!colonna)
                rifiuta(u"--colonne: «%1» non è una colonna; ci sono %2."_s.arg(chiave, tutte()));
            else if (viste.contains(chiave))
                rifiuta(u"--colonne: «%1» c'è due volte."_s.arg(chiave));
            else
                colonne.push_back({*colonna, 0});
            viste.append(chiave);
        }
        return colonne;
    }
    static QString tutte() {
        QStringList chiavi;
        for (int i = 0; i < bor::colonneElenco; ++i)
            chiavi.append(bor::datiColonna(bor::enumeratore<bor::Colonna>(i)).chiave.toString());
        return chiavi.join(u", "_s);
    }

    const QCommandLineParser& m_riga;
    QString m_difetto;
};

void racconta(const QString& testo) {
    QTextStream(stderr) << testo << '\n';
}

int rifiuta(const QString& motivo) {
    racconta(motivo);
    return NonFatto;
}

void descriviOpzioni(QCommandLineParser& riga) {
    riga.setApplicationDescription(
        u"Scrive l'elenco dei documenti di un'azienda, come lo esporta il registro, per un foglio di calcolo "
        u"o per un altro programma. Non scrive nulla nell'archivio. Finisce con 0 se l'elenco è intero, con "
        u"1 "
        u"se mancano documenti, con 2 se l'elenco non c'è."_s);
    riga.addOptions({{u"unita"_s, u"Cartella che fa da radice dell'unità."_s, u"cartella"_s, u"."_s},
                     {u"azienda"_s, u"Codice dell'azienda, da 0 a 999."_s, u"codice"_s, u"1"_s},
                     {u"dal"_s, u"Solo i documenti con questa data o una più tarda."_s, u"data"_s},
                     {u"al"_s, u"Solo i documenti con questa data o una più vecchia."_s, u"data"_s},
                     {u"formato"_s, u"csv, per un foglio di calcolo, o json."_s, u"formato"_s, u"csv"_s},
                     {u"colonne"_s,
                      u"Le colonne da sinistra a destra, coi nomi che hanno in JSON, separati da virgole."_s,
                      u"nomi"_s}});
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication programma(argc, argv);
    QCommandLineParser riga;
    descriviOpzioni(riga);
    if (const auto esito = bor::leggiRigaComando(riga, NonFatto))
        return *esito;
    const auto azienda = bor::numeroOpzione(riga, u"azienda"_s, 0, 999);
    if (!azienda)
        return NonFatto;
    Opzioni opzioni(riga);
    const bor::elenca::Richiesta richiesta{riga.value(u"unita"_s), *azienda, opzioni.vista(),
                                           opzioni.formato()};
    if (!opzioni.difetto().isEmpty())
        return rifiuta(opzioni.difetto());
    QFile uscita;
    if (!uscita.open(STDOUT_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return rifiuta(u"L'elenco non si è potuto scrivere."_s);
    const bor::elenca::Esito esito = bor::elenca::elenca(richiesta, uscita);
    for (const QString& avviso : esito.avvisi)
        racconta(avviso);
    if (!esito.errore.isEmpty())
        return rifiuta(esito.errore);
    return esito.avvisi.isEmpty() ? Intero : Incompleto;
}
