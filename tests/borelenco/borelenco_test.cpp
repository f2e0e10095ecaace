// The program as a script starts it: what it writes, what it leaves alone, and what it says when it cannot.
#include "register/borfte.h"
#include "support/salvatore.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDateTime>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <limits>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class BorelencoTest : public testing::Test {
protected:
    BorelencoTest() {
        azienda.cliente(u"Rossi Forniture Srl"_s);
        azienda.cliente(u"@SOMMA(A1); \"SpA\""_s);
        CoppiaFte rotta = documentoDi(1, u"1"_s, 1000, 220);
        rotta.f2e.fpa = std::numeric_limits<double>::quiet_NaN();
        azienda.documento(rotta);
        CoppiaFte nota = documentoDi(2, u"-2"_s, 100.1, 22.02);
        nota.fte.tipo = 1;
        nota.fte.datadoc.set(u"20150401"_s);
        azienda.documento(nota);
        CoppiaFte eliminata = documentoDi(1, u"3"_s, 7, 1);
        eliminata.fte.annullata = 1;
        azienda.documento(eliminata);
        azienda.scrivi(u"borlano.int"_s, "Officine Borlano Snc\r\n");
    }

    /// Runs the program; what it wrote is in `uscita` and `errori`.
    int borelenco(const QStringList& opzioni, const QString& codice = u"7"_s) {
        QProcess processo;
        processo.start(QStringLiteral(BOR_BIN_DIR "/borelenco"),
                       QStringList{u"--unita"_s, unita(), u"--azienda"_s, codice} + opzioni);
        EXPECT_TRUE(processo.waitForFinished());
        uscita = processo.readAllStandardOutput();
        errori = QString::fromUtf8(processo.readAllStandardError());
        return processo.exitCode();
    }
    QString unita() const { return azienda.percorsi().radiceCorrente(); }

    /// What the screen exports of the same company.
    QByteArray esportata() {
        ContestoDiProva prova(azienda);
        Documento documento;
        Borfte form(prova.contesto, documento);
        form.carica();
        QBuffer csv;
        csv.open(QIODevice::WriteOnly);
        EXPECT_TRUE(scriviCsv(form.tabella(), csv));
        return csv.data();
    }

    /// Every file of the drive with its bytes and the time of its last change.
    QMap<QString, std::pair<QByteArray, QDateTime>> tutto() const {
        QMap<QString, std::pair<QByteArray, QDateTime>> tutto;
        QDirIterator voci(unita(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        while (voci.hasNext()) {
            QFile file(voci.next());
            tutto[file.fileName()] = {file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(),
                                      voci.fileInfo().lastModified()};
        }
        return tutto;
    }

    AziendaDiProva azienda;
    QByteArray uscita;
    QString errori;
};

TEST_F(BorelencoTest, ScriveLaTabellaDelRegistroENonToccaNulla) {
    const auto prima = tutto();
    ASSERT_EQ(borelenco({}), 0) << errori.toStdString();
    EXPECT_EQ(borelenco({u"--formato"_s, u"json"_s}), 0);
    EXPECT_EQ(borelenco({}, u"8"_s), 2) << "a company that is not there is not made";
    EXPECT_TRUE(errori.contains(u"qui non c'è l'archivio dell'azienda 8"_s)) << errori.toStdString();
    EXPECT_EQ(tutto(), prima);

    ASSERT_EQ(borelenco({}), 0);
    EXPECT_EQ(errori, QString());
    const QByteArray delRegistro = esportata();
    EXPECT_GT(delRegistro.count('\n'), 3);
    EXPECT_EQ(uscita.toStdString(), delRegistro.toStdString());
    EXPECT_NE(tutto(), prima) << "the register repairs the broken reference, which the program must not";
}

TEST_F(BorelencoTest, IlPeriodoEDellaDataDelDocumentoELeColonneSiScelgono) {
    const QStringList colonne{u"--colonne"_s, u"numero,cliente,importo"_s};
    ASSERT_EQ(borelenco(QStringList{u"--dal"_s, u"2015-03-16"_s, u"--al"_s, u"010415"_s} + colonne), 0)
        << errori.toStdString();
    EXPECT_EQ(uscita.toStdString(), "\xEF\xBB\xBF"
                                    "Fattura;Cliente;Importo\r\n"
                                    "-2;\"'@SOMMA(A1); \"\"SpA\"\"\";-122,12\r\n");
    ASSERT_EQ(borelenco(QStringList{u"--al"_s, u"15/03/2015"_s, u"--formato"_s, u"json"_s} + colonne), 0);
    const QJsonObject json = QJsonDocument::fromJson(uscita).object();
    EXPECT_EQ(json[u"titolo"].toString(), u"Registro delle fatture emesse - Officine Borlano Snc");
    EXPECT_EQ(json[u"filtro"].toString(), u"Fino al 15/03/2015");
    EXPECT_EQ(json[u"righe"].toArray().size(), 2);
    EXPECT_EQ(json[u"totali"].toObject()[u"importo"].toDouble(), 1220);
}

TEST_F(BorelencoTest, UnOpzioneSbagliataEDettaENonScriveNulla) {
    const auto rifiutata = [this](const QStringList& opzioni, const QString& motivo) {
        EXPECT_EQ(borelenco(opzioni), 2);
        EXPECT_EQ(errori, motivo + u'\n');
        EXPECT_EQ(uscita, QByteArray());
    };
    rifiutata({u"--dal"_s, u"31/02/2015"_s},
              u"--dal: «31/02/2015» non è una data; si scrive 31/12/2015 o 2015-12-31."_s);
    rifiutata({u"--al"_s, QString()}, u"--al: «» non è una data; si scrive 31/12/2015 o 2015-12-31."_s);
    rifiutata({u"--dal"_s, u"2015-04-01"_s, u"--al"_s, u"2015-03-31"_s},
              u"--al: il periodo finisce prima di cominciare."_s);
    rifiutata({u"--formato"_s, u"xls"_s}, u"--formato: csv o json, non «xls»."_s);
    rifiutata({u"--colonne"_s, u"numero,numero"_s}, u"--colonne: «numero» c'è due volte."_s);
    EXPECT_EQ(borelenco({u"--colonne"_s, u"numero,boh"_s}), 2);
    EXPECT_TRUE(errori.startsWith(u"--colonne: «boh» non è una colonna; ci sono registrazione, "_s));
    EXPECT_EQ(borelenco({}, u"mille"_s), 2);
    EXPECT_EQ(borelenco({u"--boh"_s}), 2);
    EXPECT_NE(errori, QString());
}

TEST_F(BorelencoTest, QuelCheMancaEDetto) {
    const QByteArray fte = azienda.leggi(u"borlano.fte"_s);
    azienda.scrivi(u"borlano.fte"_s, fte.first(fte.size() * 2 / 3 - 1));
    EXPECT_EQ(borelenco({}), 1);
    EXPECT_EQ(uscita.count('\n'), 2);
    EXPECT_TRUE(errori.contains(u"record 2-3."_s)) << errori.toStdString();
    azienda.scrivi(u"borlano.fte"_s, fte);

    Disco disco;
    FileCasuale riordino(disco);
    ASSERT_TRUE(riordino.apri(azienda.percorso(u"borlano.fte"_s), Apertura::Esclusiva));
    EXPECT_EQ(borelenco({}), 2);
    EXPECT_TRUE(errori.contains(u"un altro programma lo tiene per sé"_s)) << errori.toStdString();
    EXPECT_EQ(uscita, QByteArray());
    riordino.chiudi();

    ContestoDiProva altro(azienda);
    const Raffica raffica(altro.archivio, {});
    EXPECT_EQ(borelenco({}), 2);
    EXPECT_TRUE(errori.contains(u"Un altro programma sta scrivendo"_s)) << errori.toStdString();
}

TEST_F(BorelencoTest, UnUscitaPienaEUnErrore) {
    QProcess processo;
    processo.setStandardOutputFile(u"/dev/full"_s);
    processo.start(QStringLiteral(BOR_BIN_DIR "/borelenco"), {u"--unita"_s, unita(), u"--azienda"_s, u"7"_s});
    ASSERT_TRUE(processo.waitForFinished());
    EXPECT_EQ(processo.exitCode(), 2);
    EXPECT_TRUE(processo.readAllStandardError().contains("non si è potuto scrivere"));
}

TEST(ElencoDuranteIlSalvataggio, OgniRigaEDiUnSoloMomento) {
    const AziendaDiProva azienda;
    const Salvatore altro(azienda);
    ContestoDiProva prova(azienda);
    ElencoFatture elenco(prova.tabelle);
    int misti = 0;
    int cambiati = 0;
    QElapsedTimer orologio;
    orologio.start();
    while (orologio.elapsed() < 1000) {
        const LetturaElenco lettura =
            elenco.leggi(prova.archivio, 1, Salvatore::documenti, [&](int n, const Fte& fte, const F2e& f2e) {
                misti += Salvatore::mista(fte, f2e);
                cambiati += fte.rata[0] != n;
                return true;
            });
        EXPECT_FALSE(lettura.occupato);
        EXPECT_TRUE(lettura.nonLetti.empty());
    }
    EXPECT_EQ(misti, 0);
    EXPECT_GT(cambiati, 0) << "nobody saved meanwhile";
    EXPECT_EQ(elenco.quante(), Salvatore::documenti);
}

} // namespace
} // namespace bor
