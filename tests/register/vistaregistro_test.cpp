// The list as an operator wants it: its documents, its columns, its sums, and what leaves the program of it.
#include "register/registrodiprova.h"

#include <QBuffer>
#include <QFile>
#include <QSettings>

#include <limits>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class VistaElencoTest : public RegistroDiProva {
protected:
    VistaElencoTest() {
        const int rossi = azienda.cliente(u"Rossi Forniture Srl"_s);
        const int formula = azienda.cliente(u"=1+1; \"SpA\""_s);
        CoppiaFte fattura = documentoDi(rossi, u"1"_s, 1000, 220);
        fattura.fte.esen[2] = 10.5;
        fattura.f2e.raimp[1] = 200;
        fattura.fte.scad[1].set(u"30062015");
        fattura.fte.scad[0].set(u"31072015");
        fattura.f2e.scad[0].set(u"15062016");
        fattura.fte.pagamento.set(u"2");
        azienda.documento(fattura);
        CoppiaFte nota = documentoDi(formula, u"2"_s, 100.1, 22.02);
        nota.fte.tipo = 1;
        nota.fte.pagamento.set(u"  2"); // as another program may have written it
        nota.fte.datadoc.set(u"20150401");
        azienda.documento(nota);
        CoppiaFte parcella = documentoDi(rossi, u"-3"_s, 50, 11);
        parcella.fte.parcella = 1;
        parcella.fte.pagamento.set(u"2 30");
        parcella.fte.datadoc.set(u"20141231");
        azienda.documento(parcella);
        CoppiaFte eliminata = documentoDi(rossi, u"4"_s, 9999, 1);
        eliminata.fte.annullata = 1;
        eliminata.f2e.fpa = 3;
        eliminata.fte.datadoc.set(u"  /  /  ");
        azienda.documento(eliminata);
        apri();
    }

    void apri() {
        RegistroDiProva::apri();
        prova().tabelle.tipopagamenti[2].descrizione = u"Rimessa diretta"_s;
    }

    /// The numbers of the documents that a choice leaves in the list.
    QString numeri(const DocumentiScelti& scelti) {
        form().opzioni().cambiaVista({scelti, form().opzioni().vista().colonne});
        QStringList numeri;
        for (int r = 0; r < form().elenco().quante(); ++r)
            numeri.append(form().testo(r, Colonna::Numero));
        return numeri.join(u' ');
    }
    QString riga(int riga, std::initializer_list<Colonna> colonne) {
        QStringList testi;
        for (const Colonna colonna : colonne)
            testi.append(form().testo(riga, colonna));
        return testi.join(u'|');
    }
};

TEST_F(VistaElencoTest, RestanoIDocumentiDelPeriodoEDelGenere) {
    using enum Periodo::Genere;
    EXPECT_EQ(numeri({}), u"1 2 -3 4");
    EXPECT_EQ(numeri({.periodo = {Mese, 2015, 3}}), u"1");
    EXPECT_EQ(numeri({.periodo = {Trimestre, 2015, 2}}), u"2");
    EXPECT_EQ(numeri({.periodo = {Anno, 2014}}), u"-3");
    EXPECT_EQ(numeri({.periodo = {Anno, 2015}, .data = DataPeriodo::Registrazione}), u"1 2 -3 4");
    EXPECT_EQ(numeri({.periodo = {DalAl, 0, 1, {QDate(2014, 12, 31), QDate(2015, 3, 15)}}}), u"1 -3");
    EXPECT_EQ(numeri({.periodo = {DalAl, 0, 1, {QDate(), QDate(2015, 3, 14)}}}), u"-3") << "no day is no day";
    EXPECT_EQ(numeri({.periodo = {DalAl, 0, 1, {QDate(2015, 3, 16), QDate()}}}), u"2");
    EXPECT_EQ(numeri({.genere = GenereDocumento::Fatture}), u"1 4");
    EXPECT_EQ(numeri({.genere = GenereDocumento::NoteDiCredito}), u"2");
    EXPECT_EQ(numeri({.genere = GenereDocumento::Parcelle}), u"-3");
    EXPECT_EQ(numeri({.genere = GenereDocumento::Pa}), u"4");
    EXPECT_EQ(numeri({.genere = GenereDocumento::Pa, .eliminati = false}), u"");
    EXPECT_EQ(numeri({.eliminati = false}), u"1 2 -3");
    form().opzioni().cambiaFiltro(FiltroFatture::SoloPa);
    EXPECT_EQ(form().elenco().quante(), 0) << "the filter and the view both count";
}

TEST_F(VistaElencoTest, LeColonneInPiuDiconoImportiScadenzaEPagamento) {
    const auto altre = {Colonna::Imponibile, Colonna::Imposta,       Colonna::Esente,
                        Colonna::Ritenuta,   Colonna::PrimaScadenza, Colonna::Pagamento};
    EXPECT_EQ(riga(0, altre), u"1.000,00|220,00|10,50|200,00|30/06/2015|Rimessa diretta");
    EXPECT_EQ(riga(1, altre), u"-100,10|-22,02||||Rimessa diretta");
    EXPECT_EQ(riga(2, altre), u"50,00|11,00||||") << "no number of a payment type";
}

TEST_F(VistaElencoTest, LaVistaRestaPerLaziendaESiRimette) {
    const QByteArray gnr = azienda.leggi(u"borlano.gnr"_s);
    const VistaRegistro scelta{{{Periodo::Genere::DalAl, 0, 1, {QDate(2015, 1, 1), QDate()}},
                                DataPeriodo::Registrazione,
                                GenereDocumento::Fatture,
                                false},
                               {{Colonna::Importo, 0}, {Colonna::Cliente, 25}, {Colonna::Ritenuta, 0}}};
    form().opzioni().cambiaVista(scelta);
    apri();
    EXPECT_EQ(form().opzioni().vista(), scelta);
    EXPECT_EQ(form().elenco().quante(), 1);
    EXPECT_EQ(azienda.leggi(u"borlano.gnr"_s), gnr);
    EXPECT_EQ(MemoriaVista(azienda.percorsi(), 8).leggi(), VistaRegistro()) << "another company";

    const QString memoria = azienda.percorsi().promemoria(7);
    QSettings(memoria, QSettings::IniFormat).setValue(u"copie/cartella", u"/mnt/copie"_s);
    form().opzioni().cambiaVista({});
    EXPECT_EQ(form().elenco().quante(), 4);
    EXPECT_EQ(QSettings(memoria, QSettings::IniFormat).allKeys(), QStringList(u"copie/cartella"_s));
}

TEST_F(VistaElencoTest, UnaMemoriaGuastaNonSceglieNulla) {
    QSettings memoria(azienda.percorsi().promemoria(7), QSettings::IniFormat);
    memoria.setValue(u"registro/periodo", 77);
    memoria.setValue(u"registro/genere", u"boh"_s);
    memoria.setValue(u"registro/data", -1);
    memoria.setValue(u"registro/colonne",
                     QStringList{u"cliente:9999"_s, u"boh:3"_s, u"cliente:2"_s, u"pa"_s});
    memoria.sync();
    apri();
    EXPECT_EQ(form().opzioni().vista().documenti, DocumentiScelti());
    EXPECT_EQ(form().opzioni().vista().colonne,
              (std::vector<ColonnaScelta>{{Colonna::Cliente, massimaLarghezzaColonna}, {Colonna::Pa, 0}}));
    EXPECT_EQ(form().elenco().quante(), 4);
}

TEST_F(VistaElencoTest, LeSommeTolgonoLeNoteELascianoFuoriGliEliminati) {
    const ElencoFatture& elenco = form().elenco();
    EXPECT_EQ(form().totali(elenco.somma()),
              u"4 documenti (1 eliminato)   Imponibile 949,90   Imposta 208,98   "
              u"Esente 10,50   Totale 1.169,38   Ritenuta 200,00");
    EXPECT_EQ(form().totali(elenco.somma({{1, 1}})),
              u"1 documento   Imponibile -100,10   Imposta -22,02   Totale -122,12");
    EXPECT_EQ(elenco.somma({{-5, 0}, {2, 99}}).documenti, 3) << "rows that do not exist";
    EXPECT_EQ(form().totali(elenco.somma({{3, 3}})), u"1 documento (1 eliminato)");
    CoppiaFte rovinata = documentoDi(1, u"5"_s, std::numeric_limits<double>::quiet_NaN(), 0);
    azienda.documento(rovinata);
    form().rileggi();
    EXPECT_DOUBLE_EQ(form().elenco().somma().totale, 1169.38);
}

TEST_F(VistaElencoTest, LaTabellaEQuellaCheSiVede) {
    form().opzioni().cambiaVista({{.periodo = {Periodo::Genere::Anno, 2015}},
                                  {{Colonna::Numero, 0},
                                   {Colonna::DataDocumento, 0},
                                   {Colonna::Cliente, 0},
                                   {Colonna::Imponibile, 0},
                                   {Colonna::Importo, 0}}});
    azienda.scrivi(u"borlano.int"_s, "  Officine Borlano Snc\r\nVia Po 1\r\n");
    form().ordina(Colonna::Cliente);
    const Tabella tabella = form().tabella();
    EXPECT_EQ(tabella.titolo, u"Registro delle fatture emesse - Officine Borlano Snc");
    EXPECT_EQ(tabella.filtro, u"Anno 2015");
    QBuffer csv;
    csv.open(QIODevice::WriteOnly);
    ASSERT_TRUE(scriviCsv(tabella, csv));
    EXPECT_EQ(csv.data().toStdString(), "\xEF\xBB\xBF"
                                        "Fattura;Data;Cliente;Imponibile;Importo\r\n"
                                        "2;01/04/2015;\"'=1+1; \"\"SpA\"\"\";-100,10;-122,12\r\n"
                                        "1;15/03/2015;Rossi Forniture Srl;1000,00;1230,50\r\n");
    QBuffer json;
    json.open(QIODevice::WriteOnly);
    ASSERT_TRUE(scriviJson(tabella, json));
    EXPECT_TRUE(json.data().contains("\"totali\":{\"numero\":null,\"data\":null,\"cliente\":\"Totale di 2 "
                                     "documenti\",\"imponibile\":899.90,\"importo\":1108.38}"))
        << json.data().toStdString();
    form().opzioni().cambiaVista({});
    form().opzioni().cambiaSelvis(Selvis::Ultime1000);
    form().opzioni().cerca(u"rossi"_s);
    EXPECT_EQ(form().tabella().filtro, u"Ultime 1000 registrazioni, cercando \"rossi\"");
    EXPECT_EQ(form().tabella().righe, 2);
}

} // namespace
} // namespace bor
