// The files in attesi/ were written by hand; no byte of them comes from the program.
#include "einvoice/fatturadiprova.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

QByteArray atteso(const QString& nome) {
    QFile file(QStringLiteral(BOR_SOURCE_DIR "/tests/einvoice/attesi/") + nome + u".xml"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

/// Line by line, so that a failure shows the line.
void confronta(const FatturaDiProva& f, const QString& nome) {
    const QList<QByteArray> avuto = f.xml().split('\n');
    const QList<QByteArray> voluto = atteso(nome).split('\n');
    for (qsizetype i = 0; i < qMin(avuto.size(), voluto.size()); ++i)
        ASSERT_EQ(avuto[i].toStdString(), voluto[i].toStdString()) << "line " << i + 1;
    EXPECT_EQ(avuto.size(), voluto.size());
}

TEST(FatturaXml, RigheScontiECommenti) {
    FatturaDiProva f;
    f.documento.ddd[0] = {.descrizione = u"Toner nero <XL>"_s,
                          .sconto1 = 10,
                          .sconto2 = 5,
                          .iva = 1,
                          .quantita = 2,
                          .prezzo = 80.125};
    f.documento.ddd[3].descrizione = u"Consegna entro 10 giorni"_s;
    f.documento.ddd[499] = {.um = u"kg"_s, .iva = 3, .quantita = 1.5, .prezzo = 4};
    f.rata(0, u"30/04/2015"_s, u"173.75"_s);
    f.form.attiva();
    f.form.genera();
    confronta(f, u"semplice"_s);
}

TEST(FatturaXml, RitenutaEArticolo73) {
    FatturaDiProva f;
    f.documento.ddd[0] = {.descrizione = u"Consulenza"_s, .iva = 2, .quantita = 1, .prezzo = 500.5};
    f.rata(0, u"30/04/2015"_s, u"510.51"_s);
    f.form.attiva();
    f.form.scegli(ListaFpa::TipoDocumento, 5);
    f.form.scegli(ListaFpa::TipoRitenuta, 1);
    f.form.art73 = true;
    f.form.genera();
    confronta(f, u"ritenuta"_s);
}

TEST(FatturaXml, OrdineContrattoCodiciEVettore) {
    FatturaDiProva f;
    f.form.attiva();
    f.form.cambia(TestoFpa::OrdineNumero, u"ODA 77"_s);
    f.form.cambia(DataFpa::Ordine, u"01/02/2015"_s);
    f.form.cambia(TestoFpa::OrdineItem, u"3"_s);
    f.form.cambia(TestoFpa::OrdineCommessa, u"COMM1"_s);
    f.form.cambia(TestoFpa::ContrattoNumero, u"C-2014/9"_s);
    f.form.cambia(TestoFpa::CodiceCup, u"J81H14000210001"_s);
    f.form.cambia(TestoFpa::CodiceCig, u"Z0512F7A3B"_s);
    f.form.cambia(TestoFpa::NumeroDdt, u"senza numero"_s);
    f.form.scegliVettore(3);
    f.form.genera();
    confronta(f, u"ordine"_s);
}

TEST(FatturaXml, IlDdtEscludeIlVettore) {
    FatturaDiProva f;
    f.documento.testata.trasporto.ddt = u"45/B"_s;
    f.form.attiva();
    f.form.cambia(DataFpa::Ddt, u"10/03/2015"_s);
    f.form.scegliVettore(3);
    f.form.genera();
    confronta(f, u"ddt"_s);
}

TEST(FatturaXml, RigheEsentiConESenzaNatura) {
    FatturaDiProva f;
    f.documento.estremi.esig = true;
    f.documento.ddd[0] = {
        .descrizione = u"Cessione intracomunitaria"_s, .iva = 14, .quantita = 1, .prezzo = 30};
    f.documento.ddd[1] = {
        .descrizione = u"Corso di formazione"_s, .iva = 20, .quantita = Riga::soloPrezzo, .prezzo = 70};
    f.rata(0, u"30/04/2015"_s, u"100"_s);
    f.form.attiva();
    f.form.genera();
    confronta(f, u"esenti"_s);
}

TEST(FatturaXml, CodiciOltreLeRigheDelDocumento) {
    FatturaDiProva f;
    f.tabelle.esenzioni[14] = {u"Art. 74"_s, u"Regime del margine"_s.leftJustified(100) + u'4'};
    f.documento.ddd[0].iva = 26;
    f.documento.ddd[1] = f.documento.ddd[2] = f.documento.ddd[0];
    f.documento.ddd[1].iva = 27; // a row of the table without a nature of its own
    f.documento.ddd[2].iva = 29; // no row
    f.form.attiva();
    f.form.genera();
    QStringList linee;
    for (const QString& linea : QString::fromLatin1(f.xml()).split(u"</DettaglioLinee>"_s).first(3))
        linee << linea.section(u"</PrezzoTotale>"_s, 1).simplified();
    EXPECT_EQ(linee, (QStringList{u"<AliquotaIVA>00.00</AliquotaIVA> <Natura>N5</Natura>"_s,
                                  u"<AliquotaIVA>00.00</AliquotaIVA> <Natura>N1</Natura>"_s,
                                  u"<AliquotaIVA>00.00</AliquotaIVA>"_s}));
    EXPECT_TRUE(f.xml().contains("<ImponibileImporto>300.00</ImponibileImporto>")) << "all under code 1";
}

TEST(FatturaXml, RateConBonificoEIban) {
    FatturaDiProva f;
    f.tipoPagamento(u'1');
    f.documento.testata.cliente.coordinate = u" IT60X0542811101000000123456 "_s;
    f.rata(0, u"30/04/2015"_s, u"40.68"_s);
    f.rata(1, u"31/05/2015"_s, u"40.66"_s);
    f.rata(2, u"30/06/2015"_s, u"0"_s);
    f.rata(3, u"31/07/2015"_s, u"40.6"_s);
    f.rata(4, u"31/08/2015"_s, u"0.06"_s);
    f.form.attiva();
    f.form.genera();
    confronta(f, u"rate"_s);
    f.documento.testata.cliente.coordinate = u"IT60X05428111010000001234"_s;
    f.form.genera();
    EXPECT_FALSE(f.xml().contains("IBAN"));
}

TEST(FatturaXml, NotaDiCreditoConIvaNeiPrezzi) {
    FatturaDiProva f;
    f.tipoPagamento(u'2');
    f.documento.coppia.fte.tipo = 1;
    f.documento.scorporo = true;
    f.documento.ddd[0].prezzo = 12.2;
    f.form.attiva();
    f.form.genera();
    confronta(f, u"nota"_s);
}

TEST(FatturaXml, PersonaSenzaProvinciaEClienteSenzaPartitaIva) {
    Fpa societa = fpaSocieta();
    societa.denominazione.blank();
    societa.nome.set(u"Niccolò");
    societa.cognome.set(u"D'Amico");
    societa.regimefiscale.set(u"18");
    societa.formasocieta.set(u"1");
    societa.sede.provincia.blank();
    societa.stabile.comune.set(u"Lugano");
    societa.stabile.nazione.set(u"ch");
    societa.fax.blank();
    Cli cliente = clienteComune();
    cliente.partitaiva.blank();
    FatturaDiProva f(societa, cliente);
    f.form.attiva();
    f.form.genera();
    confronta(f, u"persona"_s);
}

TEST(FatturaXml, UnNumeroCheNonFaUnNomeDiFileNonScriveNulla) {
    FatturaDiProva f;
    f.form.attiva();
    for (const QString& numero : {u"1/2"_s, u"..\\1"_s, u"a\\b"_s, u"1..2"_s, u"c:1"_s, u"1?"_s, u"1\t2"_s}) {
        f.form.cambia(TestoFpa::Numero, numero);
        f.form.genera();
        EXPECT_EQ(f.form.controlla(), std::nullopt) << qPrintable(numero);
    }
    EXPECT_TRUE(QDir(f.percorsoXml({})).isEmpty());
    EXPECT_EQ(QDir(f.azienda.percorsi().radiceCorrente()).entryList(QDir::Files), QStringList());
}

} // namespace
} // namespace bor
