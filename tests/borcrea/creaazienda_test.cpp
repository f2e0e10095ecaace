#include "borcrea/creaazienda.h"

#include "archive/archivio.h"
#include "archive/impostazioni.h"
#include "common/numeri.h"
#include "document/righeiva.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

#include <cstring>

using namespace bor;
using namespace bor::crea;
using namespace Qt::StringLiterals;

namespace {

const QString demo = QStringLiteral(BOR_SOURCE_DIR "/demo");

QByteArray leggiFile(const QString& percorso) {
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList elenco(const QString& cartella) {
    QStringList file;
    QDirIterator giro(cartella, QDir::Files, QDirIterator::Subdirectories);
    while (giro.hasNext())
        file.append(giro.next().mid(cartella.size()));
    file.sort();
    return file;
}

double reale(const QByteArray& bytes, qsizetype posto) {
    double x;
    std::memcpy(&x, bytes.constData() + posto, sizeof x);
    return x;
}

/// The texts of a small company of the test's own, and a drive to make it on.
class CreaAzienda : public testing::Test {
protected:
    CreaAzienda() {
        scrivi("borlano.int", "Prova S.r.l.\n");
        QDir().mkpath(testi());
        QFile::copy(demo + u"/borlano.tab"_s, testi() + u"/borlano.tab"_s);
        scrivi("conti.csv", "codice;descrizione\n01010001;Rossi\n05010001;Ricavi\n01040001;Ritenute\n"
                            "03010003;Iva differita\n");
        scrivi("clienti.csv", "codice;ragione1;citta;partitaiva;pagamento;sconto1;contocliente;eliminato\n"
                              "R;Zucchi & Perché S.r.l.;Forlì;12345678903;9;10;01010001;\n"
                              "B;Bianchi;;;1;;;1\n");
        scrivi("articoli.csv", "codice;descrizione;barcode;iva;listino1\n"
                               "A1;Penna;4006381333931;1;10,00\n");
        scrivi("documenti.csv", "documento;tipo;numero;data;cliente;ivaonorari;ivaspese\n"
                                "1;fattura;1;15/03/2015;R;;\n"
                                "2;parcella;2;16/03/2015;B;4;1\n");
        scrivi("righe.csv", "documento;articolo;descrizione;quantita;prezzo;iva\n1;A1;;10;;\n"
                            "1;;Spese bolli;;2,5;17\n");
        scrivi("prestazioni.csv",
               "documento;data;descrizione;onorari;spese\n2;01/03/2015;Progetto;1000;50\n");
    }

    QString testi() const { return m_cartella.path() + u"/testi"_s; }
    QString unita() const { return m_cartella.path() + u"/unita"_s; }
    QString azienda(const QString& nome) const { return unita() + u"/suprok/suprok/boraz0.007/"_s + nome; }

    void scrivi(const char* nome, const char* testo) const {
        QDir().mkpath(testi());
        QFile file(testi() + u'/' + QString::fromLatin1(nome));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(testo);
    }

    /// What is wrong, a line each; empty when the company was made.
    std::string crea() const {
        std::string esito;
        for (const Problema& p : creaAzienda({testi(), unita(), 7, 0}))
            esito += p.testo().toStdString() + '\n';
        return esito;
    }

    QTemporaryDir m_cartella;
};

} // namespace

TEST_F(CreaAzienda, ScriveClientiIndiciEContatoriAlLoroPosto) {
    ASSERT_EQ(crea(), "");
    const QByteArray cli = leggiFile(azienda(u"borlano.cli"_s));
    ASSERT_EQ(cli.size(), 2 * 752);
    EXPECT_EQ(cli.left(26), QByteArray("Zucchi & Perch\xE9 S.r.l.").leftJustified(26));
    EXPECT_EQ(cli.mid(120, 6), QByteArray("Forl\xEC "));
    EXPECT_EQ(cli.mid(375, 11), "12345678903");
    EXPECT_EQ(cli.mid(584, 2), QByteArray("\x09\0", 2));
    EXPECT_EQ(cli.mid(588, 2), QByteArray("\x0A\0", 2));
    EXPECT_EQ(cli.mid(594, 8), "01010001");
    EXPECT_EQ(cli.mid(752, 9), "*Bianchi ");
    EXPECT_EQ(cli.mid(752 + 750, 2), QByteArray("\x01\0", 2));
    const QByteArray src = leggiFile(azienda(u"borlano.src"_s));
    EXPECT_EQ(src.left(8), "Bianchi ");
    EXPECT_EQ(src.mid(40, 2), QByteArray("\x02\0", 2));
    EXPECT_EQ(src.mid(82, 2), QByteArray("\x01\0", 2));
    const QByteArray tot = leggiFile(azienda(u"borlano.tot"_s));
    EXPECT_EQ(tot.mid(0, 2), QByteArray("\x02\0", 2));
    EXPECT_EQ(tot.mid(2 * 12, 2), QByteArray("\x01\0", 2));
    EXPECT_EQ(tot.mid(6 * 12, 12), QByteArray("\x02\0\0\0\0\0\x02\0\0\0\0\x40", 12));
}

TEST_F(CreaAzienda, CalcolaTotaliRitenutaERateDalleRighe) {
    ASSERT_EQ(crea(), "");
    const QByteArray fte = leggiFile(azienda(u"borlano.fte"_s));
    const QByteArray f2e = leggiFile(azienda(u"borlano.f2e"_s));
    ASSERT_EQ(fte.size(), 2 * 522);
    ASSERT_EQ(f2e.size(), 2 * 838);
    EXPECT_EQ(fte.mid(14, 16), "2015031520150315");
    // 10 x 10,00 less 10% = 90,00, tax 19,80; 2,50 exempt in row 5; three instalments of 112,30.
    EXPECT_EQ(reale(fte, 94), 90.0);
    EXPECT_EQ(reale(fte, 158), 19.8);
    EXPECT_EQ(reale(fte, 222 + 4 * 8), 2.5);
    EXPECT_NEAR(reale(fte, 286), 37.44, 1e-9);
    EXPECT_EQ(reale(fte, 294), 37.43);
    EXPECT_EQ(fte.mid(30, 24), "300420153105201530062015");
    // Fees 1000 + 4% = 1040, tax 228,80, withholding 208,00; expenses 50 taxed in row 1.
    EXPECT_EQ(fte.mid(522 + 396, 2), QByteArray("\x01\0", 2));
    EXPECT_EQ(reale(fte, 522 + 94), 50.0);
    EXPECT_EQ(reale(fte, 522 + 94 + 3 * 8), 1040.0);
    EXPECT_EQ(reale(fte, 522 + 158 + 3 * 8), 228.8);
    EXPECT_EQ(reale(f2e, 838 + 398), 208.0);
    EXPECT_EQ(reale(f2e, 838 + 494), 1040.0);
    EXPECT_NEAR(reale(fte, 522 + 286), 1121.8, 1e-9);
}

TEST_F(CreaAzienda, LeRigheStannoNelFileDelDocumento) {
    ASSERT_EQ(crea(), "");
    const QList<QByteArray> f = leggiFile(azienda(u"f1"_s)).split('\n');
    ASSERT_EQ(f.size(), 14 + 5000 + 1);
    EXPECT_EQ(f[11], "1\r");
    EXPECT_EQ(f[12], "15/03/2015\r");
    EXPECT_EQ(f[16], "A1\r");
    EXPECT_EQ(valore(QString::fromLatin1(f[22])), 10.0);
    EXPECT_EQ(f[27], "Spese bolli\r");
    EXPECT_EQ(leggiFile(azienda(u"p2"_s)).count('\n'), 12 + 1000);
}

TEST_F(CreaAzienda, ElencaOgniErroreENonScriveNulla) {
    scrivi("clienti.csv",
           "codice;ragione1;partitaiva;pagamento\nR;Rossi;12345678904;61\nR;Verdi \xE2\x98\xBA;;;;\n"
           "B;;\"x\n");
    scrivi("righe.csv", "documento;articolo;quantita;colore\n1;ZZ;dieci\n9;A1;1\n");
    EXPECT_EQ(crea(), "clienti.csv, riga 3: il carattere \"☺\" non esiste nell'archivio.\n"
                      "clienti.csv, riga 3: ci sono 6 valori per 4 colonne.\n"
                      "clienti.csv, riga 4: le virgolette non sono chiuse.\n"
                      "clienti.csv, riga 2: partitaiva: \"12345678904\" è errata, la cifra di controllo "
                      "non torna.\n"
                      "clienti.csv, riga 2: pagamento: \"61\" non è un numero intero da 0 a 60.\n"
                      "documenti.csv, riga 3: cliente: \"B\" non è in clienti.csv.\n"
                      "righe.csv, riga 1: la colonna \"colore\" non esiste; le colonne sono: documento, "
                      "articolo, descrizione, um, quantita, prezzo, sconto1, sconto2, iva.\n"
                      "righe.csv, riga 2: articolo: \"ZZ\" non è in articoli.csv.\n"
                      "righe.csv, riga 2: quantita: \"dieci\" non è un numero (per esempio 1250,50).\n"
                      "righe.csv, riga 2: serve un articolo o una descrizione.\n"
                      "righe.csv, riga 3: documento: \"9\" non è in documenti.csv.\n");
    EXPECT_EQ(elenco(unita()), QStringList());
}

TEST_F(CreaAzienda, RifiutaDatiFpaSenzaDocumentoECampiDellAziendaSconosciuti) {
    scrivi("fpa.csv", "documento;tipodocpa\n1;TD01\n");
    scrivi("fpa_azienda.csv", "campo;valore\nidpaese;ITA\ncolore;blu\n");
    EXPECT_EQ(crea(), "fpa_azienda.csv, riga 2: valore: \"ITA\" ha 3 caratteri, ne sono ammessi 2.\n"
                      "fpa_azienda.csv, riga 3: campo: \"colore\" non esiste.\n"
                      "fpa.csv, riga 2: documento: \"1\" non ha un numero fpa in documenti.csv.\n");
}

TEST_F(CreaAzienda, LasciaLeImpostazioniComuniCheCiSono) {
    QDir().mkpath(unita() + u"/SUPROK/suprok"_s);
    QFile eur(unita() + u"/SUPROK/suprok/BORLANO.EUR"_s);
    ASSERT_TRUE(eur.open(QIODevice::WriteOnly));
    eur.write("0,1936.27,ITL,EUR,2\r\n");
    eur.close();
    scrivi("borlano.eur", "1,1936.27,ITL,EUR,2\n");
    ASSERT_EQ(crea(), "");
    EXPECT_EQ(leggiFile(eur.fileName()), "0,1936.27,ITL,EUR,2\r\n");
    EXPECT_EQ(leggiFile(unita() + u"/SUPROK/suprok/boraz0.007/borlano.int"_s), "Prova S.r.l.\r\n");
}

TEST_F(CreaAzienda, NonToccaUnAziendaCheEsiste) {
    ASSERT_EQ(crea(), "");
    const QStringList prima = elenco(unita());
    scrivi("borlano.int", "Altra S.r.l.\n");
    EXPECT_NE(crea().find("l'azienda 7 esiste già"), std::string::npos);
    EXPECT_EQ(elenco(unita()), prima);
    EXPECT_EQ(leggiFile(azienda(u"borlano.int"_s)), "Prova S.r.l.\r\n");
}

TEST(Dimostrativa, DaSempreGliStessiBytesConTotaliERateCheTornano) {
    QTemporaryDir una;
    QTemporaryDir altra;
    ASSERT_TRUE(creaAzienda({demo, una.path(), 1, 0}).isEmpty());
    ASSERT_TRUE(creaAzienda({demo, altra.path(), 1, 0}).isEmpty());
    const QStringList file = elenco(una.path());
    ASSERT_EQ(file, elenco(altra.path()));
    for (const QString& nome : file)
        EXPECT_EQ(leggiFile(una.path() + nome), leggiFile(altra.path() + nome)) << qPrintable(nome);

    const QByteArray fpa = leggiFile(una.path() + u"/suprok/suprok/boraz0.001/fpa3"_s);
    ASSERT_EQ(fpa.size(), 2421);
    EXPECT_EQ(fpa.mid(33, 6), "UFM3XD");
    EXPECT_EQ(fpa.mid(709, 16), "TD0118/05/201557");
    EXPECT_EQ(fpa.mid(1055, 25), "B19H15000120004Z5413A7F20");
    EXPECT_EQ(leggiFile(una.path() + u"/suprok/suprok/boraz0.001/borlano.fpa"_s).left(5), "999IT");

    const Percorsi percorsi(una.path(), QString());
    Disco disco;
    Archivio archivio(percorsi, disco, 1);
    archivio.apri();
    EXPECT_TRUE(caricaimpostazioni(archivio).generaPdf);
    const QByteArray posta = leggiFile(una.path() + u"/suprok/suprok/boraz0.001/borlano.pdf"_s);
    EXPECT_EQ(posta.count("{numero}"), 2) << "the subjects of a mail name the document";
    const int documenti = archivio.leggiTot(Conta::Fte).numero;
    EXPECT_EQ(documenti, 300);
    for (int n = 1; n <= documenti; ++n) {
        const CoppiaFte c = archivio.leggi(n);
        double daPagare = sommaIva(c, VoceIva::Imponibile) + sommaIva(c, VoceIva::Imposta) +
                          sommaIva(c, VoceIva::Esente) - c.f2e.raimp[0];
        for (const Reale& rata : c.fte.rata)
            daPagare -= rata;
        EXPECT_NEAR(daPagare - c.f2e.rata[0] - c.f2e.rata[1], 0, 0.001) << n;
    }
}

TEST(Dimostrativa, SiRipeteFinoAiDocumentiPerMisurare) {
    QTemporaryDir unita;
    ASSERT_TRUE(creaAzienda({demo, unita.path(), 1, 700}).isEmpty());
    const Percorsi percorsi(unita.path(), QString());
    Disco disco;
    Archivio archivio(percorsi, disco, 1);
    archivio.apri();
    EXPECT_EQ(archivio.leggiTot(Conta::Fte).numero, 700);
    EXPECT_EQ(archivio.leggiTot(Conta::Cli).numero, 1000);
    EXPECT_EQ(archivio.leggi(700).fte.numero.trimmed(), u"700");
    EXPECT_EQ(archivio.leggi(700).fte.nfile, 0.0F);
    EXPECT_GT(archivio.leggi(700).fte.stamp, archivio.leggi(100).fte.stamp);
}
