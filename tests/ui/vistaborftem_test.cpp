#include "document/borftem.h"
#include "register/borsel.h"
#include "ui/schermodiprova.h"
#include "ui/vistaborftem.h"
#include "ui/vistaborsel.h"

#include <QComboBox>
#include <QScrollBar>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class VistaTestata : public SchermoDiProva<Borftem, VistaBorftem> {
protected:
    VistaTestata() {
        rossi = azienda.cliente(completo());
        Cli tolto = clienteDi(u"*Alfa (cessata)"_s);
        tolto.eliminato = 1;
        azienda.cliente(tolto);
        azienda.cliente(u"Bianchi Édith & Figli"_s);
        apriForm();
        prova->tabelle.aliquote[1] = {u"22"_s, u"20"_s, {}, u"4"_s};
        prova->tabelle.vettori[1] = {
            u"Vendita"_s, u"Scatole"_s, {u"Corriere Espresso"_s, u"Via Emilia 3"_s, u"*"_s}, {}};
        prova->tabelle.tipopagamenti[2].descrizione = u"Rimessa diretta 30 giorni fine mese"_s;
        apriVista();
    }
    static Cli completo() {
        Cli cli = clienteDi(u"Rossi Forniture Industriali Srl"_s);
        cli.sede.indirizzo.set(u"Via Giuseppe Garibaldi 128/A");
        cli.sede.cap.set(u"10121");
        cli.sede.citta.set(u"Torino");
        cli.amministrazione = cli.sede;
        cli.telefono[0].set(u"011/5551234");
        cli.partitaiva.set(u"01234567890");
        cli.codicefiscale.set(u"01234567890");
        cli.nazione.set(u"IT");
        cli.vettore1.set(u"Trasporti Po Snc");
        cli.email.set(u"amministrazione@rossi.esempio.it");
        cli.contocliente.set(u"14010023");
        cli.banca.set(u"Banca Popolare di Torino");
        cli.banca1.set(u"IT60");
        cli.pagamento = 2;
        return cli;
    }
    void apri(int tipoparcella) {
        documento.recordfattura = 1;
        documento.recordcliente = rossi;
        prova->sessione.testataletta = true;
        documento.coppia.fte.parcella = static_cast<std::int16_t>(tipoparcella);
        mostra(*vista);
    }
    /// The fields that a key comes to, from one to another.
    QStringList giro(const QString& da, const QString& a, Qt::Key quale = Qt::Key_Return) {
        QStringList passi;
        controllo(*vista, da)->setFocus();
        while (passi.size() < 60 && fuoco(*vista) != a) {
            tasto(*vista, quale);
            passi.append(fuoco(*vista));
        }
        return passi;
    }

    int rossi = 0;
};

TEST_F(VistaTestata, NuovaFattura_ClienteTrovatoDallaTastiera) {
    mostra(*vista);
    foto(*vista, u"testata-eliminato"_s);
    EXPECT_EQ(fuoco(*vista), u"nome");
    EXPECT_EQ(testoDi(*vista, u"Text2(0)"_s), u"Alfa (cessata)");
    EXPECT_TRUE(controllo(*vista, u"Label2"_s)->isVisible());
    tasto(*vista, Qt::Key_F10);
    EXPECT_TRUE(prova->navigatore.mostrati.isEmpty());

    scrivi(*vista, u"rossi"_s);
    tasto(*vista, Qt::Key_Return);
    EXPECT_EQ(fuoco(*vista), u"nome");
    EXPECT_EQ(testoDi(*vista, u"nome"_s), u"");
    EXPECT_EQ(testoDi(*vista, u"Text2(31)"_s), u"01");
    EXPECT_EQ(controllo<QScrollBar>(*vista, u"HScroll1"_s)->value(), 3);
    EXPECT_EQ(controllo<QComboBox>(*vista, u"Combo1"_s)->currentIndex(), 1);
    EXPECT_FALSE(controllo(*vista, u"Label2"_s)->isVisible());
    foto(*vista, u"testata-nuova"_s);
    tasto(*vista, Qt::Key_Up);
    EXPECT_EQ(testoDi(*vista, u"Text2(0)"_s), u"Bianchi Édith & Figli");
    tasto(*vista, Qt::Key_Escape);
    EXPECT_EQ(prova->navigatore.mostrati, QList{Schermo::Borftea});
}

TEST_F(VistaTestata, InvioPercorreICampiInVista) {
    mostra(*vista);
    const QStringList passi = giro(u"Text2(0)"_s, u"nome"_s);
    EXPECT_EQ(giro(u"Text2(0)"_s, u"Text2(41)"_s, Qt::Key_Tab), passi.mid(0, 37));
    EXPECT_EQ(giro(u"Text2(41)"_s, u"Text2(0)"_s, Qt::Key_Tab),
              (QStringList{u"nome"_s, u"b_cerca"_s, u"b_lista"_s, u"bottone"_s, u"Text2(0)"_s}));
    EXPECT_EQ(passi.size(), 38);
    EXPECT_EQ(passi.mid(15, 3), (QStringList{u"Text2(16)"_s, u"Combo4"_s, u"Text2(17)"_s}));
    EXPECT_EQ(passi.mid(21, 4), (QStringList{u"Text2(21)"_s, u"Combo1"_s, u"Text2(25)"_s, u"Text"_s}));
    EXPECT_EQ(passi.mid(36), (QStringList{u"Text2(41)"_s, u"nome"_s}));
    apri(0);
    EXPECT_EQ(giro(u"Text2(21)"_s, u"nome"_s),
              (QStringList{u"Combo3"_s, u"Combo2"_s, u"text3(0)"_s, u"text3(1)"_s, u"text3(2)"_s,
                           u"text3(3)"_s, u"text3(4)"_s, u"text3(5)"_s, u"sped(0)"_s, u"nome"_s}));
    EXPECT_EQ(giro(u"text3(5)"_s, u"nome"_s, Qt::Key_Tab), (QStringList{u"sped(0)"_s, u"nome"_s}));
    apri(1);
    EXPECT_EQ(giro(u"Text2(21)"_s, u"nome"_s),
              (QStringList{u"ivaant"_s, u"ivaspe"_s, u"ivaono"_s, u"Text4(0)"_s, u"Text4(1)"_s, u"Text4(2)"_s,
                           u"Text4(3)"_s, u"nome"_s}));
}

TEST_F(VistaTestata, SpedizioneDallaTastiera) {
    apri(0);
    EXPECT_FALSE(controllo(*vista, u"Frame3"_s)->isVisible());
    EXPECT_FALSE(controllo(*vista, u"Frame5"_s)->isVisible());
    controllo(*vista, u"Combo3"_s)->setFocus();
    scrivi(*vista, u"v"_s);
    controllo(*vista, u"Combo4"_s)->setFocus();
    tasto(*vista, Qt::Key_Down);
    tasto(*vista, Qt::Key_Return);
    EXPECT_EQ(testoDi(*vista, u"Text2(17)"_s), u"Corriere Espresso");
    controllo(*vista, u"text3(4)"_s)->setFocus();
    scrivi(*vista, u"150315"_s);
    tasto(*vista, Qt::Key_Return);
    tasto(*vista, Qt::Key_Return);
    tasto(*vista, Qt::Key_Right);
    foto(*vista, u"testata-spedizione"_s);
    const Trasporto& dati = documento.testata.trasporto;
    EXPECT_EQ(dati.inizio, u"15/03/2015");
    EXPECT_EQ(dati.causale, 0);
    EXPECT_EQ(documento.testata.cliente.vettore[1], u"Via Emilia 3");
}

TEST_F(VistaTestata, PraticaDellaParcella) {
    apri(1);
    foto(*vista, u"testata-pratica"_s);
    EXPECT_TRUE(controllo(*vista, u"Frame5"_s)->isVisible());
    EXPECT_EQ(controllo<QComboBox>(*vista, u"ivaono"_s)->currentText(), u"Iva22% - R.A.20% - C.P.4%");
    controllo(*vista, u"Text4(1)"_s)->setFocus();
    scrivi(*vista, u"Causa civile"_s);
    EXPECT_EQ(documento.testata.pratica.descrizione[1], u"Causa civile");
}

TEST_F(VistaTestata, ListaDeiClienti) {
    Borsel selezione(prova->contesto, *form);
    VistaBorsel lista(selezione);
    mostra(*vista);
    tasto(*vista, Qt::Key_F6);
    EXPECT_EQ(prova->navigatore.mostrati, QList{Schermo::Borsel});
    mostra(lista);
    foto(lista, u"selezione"_s);
    EXPECT_EQ(fuoco(lista), u"elenco");
    const auto* griglia = controllo<QTableView>(lista, u"elenco"_s);
    EXPECT_EQ(griglia->model()->rowCount(), 25);
    EXPECT_EQ(griglia->model()->index(1, 3).data().toString(), u"Torino");
    scrivi(lista, u"dit"_s);
    EXPECT_EQ(fuoco(lista), u"selnome") << "typed in the list, it goes to the search";
    EXPECT_EQ(testoDi(lista, u"selnome"_s), u"dit");
    EXPECT_EQ(griglia->model()->index(1, 0).data().toString(), u"");
    tasto(lista, Qt::Key_Down);
    for (int volta = 0; volta < 3; ++volta)
        tasto(lista, Qt::Key_Backspace);
    EXPECT_EQ(testoDi(lista, u"selnome"_s), u"");
    tasto(lista, Qt::Key_Down);
    tasto(lista, Qt::Key_4, Qt::ControlModifier);
    EXPECT_EQ(griglia->model()->index(0, 0).data().toString(), u"Bianchi Édith & Figli");
    controllo(lista, u"selnome"_s)->setFocus();
    EXPECT_FALSE(controllo(lista, u"nessuno"_s)->isVisible());
    scrivi(lista, u"nobody"_s);
    tasto(lista, Qt::Key_Return);
    EXPECT_TRUE(controllo(lista, u"nessuno"_s)->isVisible()) << "an empty list says so";
    controllo(lista, u"selnome"_s)->setFocus();
    controllo<QLineEdit>(lista, u"selnome"_s)->selectAll();
    scrivi(lista, u"forniture"_s);
    tasto(lista, Qt::Key_Return);
    EXPECT_EQ(griglia->model()->index(1, 0).data().toString(), u"");
    tasto(lista, Qt::Key_Return);
    EXPECT_EQ(prova->navigatore.mostrati.last(), Schermo::Borftem);
    vista->attiva();
    EXPECT_EQ(testoDi(*vista, u"Text2(4)"_s), u"Torino");
    EXPECT_EQ(fuoco(*vista), u"nome");
}

} // namespace
} // namespace bor
