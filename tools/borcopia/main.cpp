// Copies of a company: makes one while others work, checks one, puts one back, lists them. Ends with 0 when
// all is well, 1 when a copy is whole but the checker finds errors in the company, 2 when what was asked for
// was not done.
#include "archive/promemoria.h"
#include "borcopia/copiatore.h"
#include "borcopia/elencocopie.h"
#include "borcopia/ripristino.h"
#include "common/percorsi.h"
#include "common/rigacomando.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <QTextStream>

#include <atomic>
#include <csignal>

using namespace Qt::StringLiterals;

namespace {

enum Esito { Fatto = 0, ConErrori = 1, NonFatto = 2 };

std::atomic<bool> fermato = false;

void ferma(int) {
    fermato = true;
}

int rifiuta(const QString& motivo) {
    QTextStream(stderr) << motivo << '\n';
    return NonFatto;
}

void racconta(const QString& testo) {
    QTextStream(stdout) << testo << '\n';
}

/// Where a copy is made and checked, each is half of the work.
bor::copia::Avanzamento avanzamento(bool raccontato, int da, int a) {
    return [=, ultimo = -1](int percento) mutable {
        const int ora = da + percento * (a - da) / 100;
        if (raccontato && ora != std::exchange(ultimo, ora))
            racconta(u"avanzamento %1"_s.arg(ora));
        return !fermato;
    };
}

void raccontaErrori(const bor::copia::EsitoVerifica& esito) {
    for (const bor::verifica::Discordanza& d : esito.discordanze) {
        if (d.gravita == bor::verifica::Gravita::Errore)
            racconta(d.testo());
    }
    racconta(
        u"Nella copia dell'azienda %1: %2 file, %3 errori, %4 avvisi."_s.arg(esito.lettura.appunti.azienda)
            .arg(esito.lettura.file)
            .arg(esito.errori())
            .arg(esito.avvisi()));
}

class Comando {
public:
    explicit Comando(const QCommandLineParser& parser)
        : m_parser(parser), m_unita(QDir(parser.value(u"unita"_s)).absolutePath()),
          m_cartella(parser.value(u"in"_s)), m_percorsi(bor::Percorsi::predefiniti(m_unita)),
          m_raccontato(parser.isSet(u"avanzamento"_s)) {}

    int esegui();

private:
    QString controlla();
    int crea();
    int verifica(const QString& copia);
    int ripristina(const QString& copia);
    int elenca();
    void concludi(const bor::copia::EsitoCopia& copia, const bor::copia::EsitoVerifica& verifica);

    const QCommandLineParser& m_parser;
    const QString m_unita;
    const QString m_cartella;
    const bor::Percorsi m_percorsi;
    const bool m_raccontato;
    int m_codice = -1;
    int m_conserva = 0;
};

/// What is wrong with the options; empty when nothing is.
QString Comando::controlla() {
    bool numero = false;
    m_codice = m_parser.value(u"azienda"_s).toInt(&numero);
    if (!numero || m_codice < 0 || m_codice > 999)
        return u"--azienda: serve un numero da 0 a 999."_s;
    if (m_parser.isSet(u"conserva"_s)) {
        m_conserva = m_parser.value(u"conserva"_s).toInt(&numero);
        if (!numero || m_conserva < 1)
            return u"--conserva: serve un numero da 1 in su."_s;
    }
    const int cose = int(m_parser.isSet(u"verifica"_s)) + int(m_parser.isSet(u"ripristina"_s)) +
                     int(m_parser.isSet(u"elenca"_s));
    if (cose > 1)
        return u"--verifica, --ripristina, --elenca: una alla volta."_s;
    if (m_cartella.isEmpty() && !m_parser.isSet(u"verifica"_s))
        return u"--in: serve una cartella."_s;
    return {};
}

int Comando::esegui() {
    if (const QString motivo = controlla(); !motivo.isEmpty())
        return rifiuta(motivo);
    if (m_parser.isSet(u"verifica"_s))
        return verifica(m_parser.value(u"verifica"_s));
    if (m_parser.isSet(u"ripristina"_s))
        return ripristina(m_parser.value(u"ripristina"_s));
    return m_parser.isSet(u"elenca"_s) ? elenca() : crea();
}

int Comando::crea() {
    const bor::copia::EsitoCopia copia =
        bor::copia::creaCopia(m_percorsi, m_codice, m_cartella, avanzamento(m_raccontato, 0, 50));
    for (const QString& avviso : copia.avvisi)
        racconta(avviso);
    if (!copia.errore.isEmpty())
        return rifiuta(copia.errore);
    const bor::copia::EsitoVerifica letta =
        bor::copia::verificaCopia(copia.percorso, avanzamento(m_raccontato, 50, 100));
    if (!letta.lettura.errore.isEmpty()) {
        QFile::remove(copia.percorso);
        return rifiuta(u"La copia non è stata verificata, e non è rimasta. "_s + letta.lettura.errore);
    }
    raccontaErrori(letta);
    racconta(copia.percorso);
    concludi(copia, letta);
    return letta.errori() > 0 ? ConErrori : Fatto;
}

/// A copy with errors takes the place of none without.
void Comando::concludi(const bor::copia::EsitoCopia& copia, const bor::copia::EsitoVerifica& verifica) {
    bor::copia::Appunti appunti = verifica.lettura.appunti;
    appunti.file = copia.percorso;
    appunti.errori = verifica.errori();
    const QString cartella = m_percorsi.reale(bor::cartellaAzienda(m_codice)).value_or(QString());
    if (!bor::copia::segnaUltimaCopia(cartella, appunti))
        rifiuta(u"La data della copia non si può scrivere in %1."_s.arg(cartella));
    bor::Promemoria(m_percorsi, m_codice)
        .segnaVerifica({appunti.quando, verifica.errori(), verifica.avvisi()});
    if (m_conserva == 0 || verifica.errori() > 0)
        return;
    const QString nuova = QFileInfo(copia.percorso).fileName();
    for (const QString& nome : bor::copia::sfoltisci(m_cartella, m_codice, m_unita, m_conserva, nuova))
        racconta(u"Eliminata la copia più vecchia %1"_s.arg(nome));
}

int Comando::verifica(const QString& copia) {
    const bor::copia::EsitoVerifica esito =
        bor::copia::verificaCopia(copia, avanzamento(m_raccontato, 0, 100));
    if (!esito.lettura.errore.isEmpty())
        return rifiuta(esito.lettura.errore);
    raccontaErrori(esito);
    return esito.errori() > 0 ? ConErrori : Fatto;
}

int Comando::ripristina(const QString& copia) {
    const bor::copia::EsitoLetturaCopia esito =
        bor::copia::ripristina(copia, bor::Percorsi::predefiniti(QDir(m_cartella).absolutePath()),
                               avanzamento(m_raccontato, 0, 100));
    if (!esito.errore.isEmpty())
        return rifiuta(esito.errore);
    racconta(u"L'azienda %1 del %2 è in %3: %4 file."_s.arg(esito.appunti.azienda)
                 .arg(esito.appunti.quando.toLocalTime().toString(u"dd/MM/yyyy HH:mm"), m_cartella)
                 .arg(esito.file));
    return Fatto;
}

int Comando::elenca() {
    if (!QFileInfo(m_cartella).isDir())
        return rifiuta(u"La cartella %1 non c'è."_s.arg(m_cartella));
    const int codice = m_parser.isSet(u"azienda"_s) ? m_codice : -1;
    for (const bor::copia::CopiaInElenco& copia : bor::copia::elencaCopie(m_cartella, codice)) {
        const auto appunti = bor::copia::leggiAppunti(copia.percorso);
        racconta(u"%1  %2  %3"_s.arg(copia.quando.toString(u"dd/MM/yyyy HH:mm:ss"),
                                     QFileInfo(copia.percorso).fileName(),
                                     appunti ? appunti->nome : u"(non si legge)"_s));
    }
    return Fatto;
}

void descriviOpzioni(QCommandLineParser& parser) {
    parser.setApplicationDescription(u"Copia un'azienda in un file datato mentre altri ci lavorano, e "
                                     u"verifica la copia; ripristina una copia in "
                                     u"una cartella vuota. Finisce con 0 se tutto è in ordine, con 1 se la "
                                     u"copia è intera ma nell'azienda la "
                                     u"verifica trova errori, con 2 se non ha fatto quanto chiesto."_s);
    parser.addOptions(
        {{u"unita"_s, u"Cartella che fa da radice dell'unità."_s, u"cartella"_s, u"."_s},
         {u"azienda"_s, u"Codice dell'azienda, da 0 a 999."_s, u"codice"_s, u"1"_s},
         {u"in"_s,
          u"Cartella delle copie; con --ripristina, la cartella vuota che farà da radice dell'unità."_s,
          u"cartella"_s},
         {u"conserva"_s,
          u"Dopo una copia senza errori elimina le più vecchie della stessa azienda oltre queste."_s,
          u"numero"_s},
         {u"verifica"_s, u"Confronta una copia con le sue impronte e ne verifica l'archivio."_s, u"copia"_s},
         {u"ripristina"_s, u"Ripristina una copia nella cartella di --in, che dev'essere vuota."_s,
          u"copia"_s},
         {u"elenca"_s, u"Elenca le copie che sono nella cartella di --in."_s},
         {u"avanzamento"_s, u"Per altri programmi: dice a che punto è, da 0 a 100, una riga alla volta."_s}});
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication programma(argc, argv);
    QCommandLineParser parser;
    descriviOpzioni(parser);
    if (const auto esito = bor::leggiRigaComando(parser, NonFatto))
        return *esito;
    for (const int segnale : {SIGINT, SIGTERM, SIGHUP})
        std::signal(segnale, ferma);
    return Comando(parser).esegui();
}
