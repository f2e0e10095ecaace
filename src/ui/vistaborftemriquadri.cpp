// The frames of the head form: what the operator sees and types of the customer, transport and practice.
#include "common/posti.h"
#include "ui/vistaborftem.h"

#include "ui/campi.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString text2(int indice) {
    return indicizzato(u"Text2", indice);
}

/// Fields that share the field column of a form; the one at the place `larga` takes the room that is left.
void affianca(QGridLayout* griglia, int numero, const QString& testo, const std::vector<QWidget*>& campi,
              int larga = -1) {
    constexpr int distanza = 6;
    auto* insieme = new QHBoxLayout;
    insieme->setSpacing(distanza);
    for (int i = 0; i < std::ssize(campi); ++i) {
        QWidget* campo = elemento(campi, i);
        if (i != larga)
            campo->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
        insieme->addWidget(campo, i == larga ? 1 : 0);
    }
    if (larga < 0)
        insieme->addStretch();
    griglia->addWidget(didascalia(testo, campi.front()), numero, 0, Qt::AlignRight | Qt::AlignVCenter);
    griglia->addLayout(insieme, numero, 1);
}

QGridLayout* grigliaIn(QGroupBox* riquadro) {
    auto* griglia = new QGridLayout(riquadro);
    griglia->setVerticalSpacing(6);
    griglia->setColumnStretch(1, 1);
    return griglia;
}

} // namespace

template <class... Membri>
QLineEdit* VistaBorftem::campo(Percorso& percorso, const QString& nome, const QString& didascalia,
                               int caratteri, Membri... membri) {
    auto* casella = m_campi.testo(nome, didascalia.trimmed(), caratteri, legame(m_form, membri...));
    percorso.push_back(casella);
    return casella;
}

QComboBox* VistaBorftem::lista(Percorso& percorso, const QString& nome, const QString& didascalia,
                               const QStringList& voci, const Legame<int>& dato) {
    constexpr int caratteriLista = 20;
    auto* scelta = m_campi.lista(nome, didascalia, voci, dato);
    scelta->setMinimumContentsLength(caratteriLista);
    percorso.push_back(scelta);
    return scelta;
}

void VistaBorftem::conto(QGridLayout* griglia, int numero, Percorso& percorso, int indice,
                         const QString& didascalia, ContoTesti DatiCliente::*dato) {
    affianca(griglia, numero, didascalia,
             {campo(percorso, text2(indice), didascalia, 2, dato, &ContoTesti::mastro),
              campo(percorso, text2(indice + 1), didascalia, 2, dato, &ContoTesti::conto),
              campo(percorso, text2(indice + 2), didascalia, 4, dato, &ContoTesti::sottoconto)});
}

QWidget* VistaBorftem::creaSede(Percorso& percorso) {
    auto* gruppo = new QGroupBox(u"Sede legale e dati fiscali"_s);
    gruppo->setObjectName(u"Frame1"_s);
    auto* griglia = grigliaIn(gruppo);
    const QString intestazione = u"Intestazione "_s;
    riga(griglia, 0, intestazione,
         campo(percorso, text2(0), intestazione, 40, &DatiCliente::sede, &SedeTesti::ragione1));
    griglia->addWidget(campo(percorso, text2(1), intestazione, 40, &DatiCliente::sede, &SedeTesti::ragione2),
                       1, 1);
    riga(griglia, 2, u"Indirizzo"_s,
         campo(percorso, text2(2), u"Indirizzo"_s, 40, &DatiCliente::sede, &SedeTesti::indirizzo));
    affianca(griglia, 3, u"CAP Città"_s,
             {campo(percorso, text2(3), u"CAP"_s, 5, &DatiCliente::sede, &SedeTesti::cap),
              campo(percorso, text2(4), u"Città"_s, 40, &DatiCliente::sede, &SedeTesti::citta)},
             1);
    affianca(griglia, 4, u"Codice fiscale"_s,
             {campo(percorso, text2(5), u"Codice fiscale"_s, 16, &DatiCliente::codicefiscale)});
    auto* nazione = campo(percorso, text2(6), u"Partita iva: nazione"_s, 2, &DatiCliente::nazione);
    auto* partitaiva = campo(percorso, text2(7), u"Partita iva"_s, 11, &DatiCliente::partitaiva);
    affianca(griglia, 5, u"Partita iva"_s, {nazione, new QLabel(u"-"_s), partitaiva});
    auto* eliminato = new QLabel(u"Attenzione:questo cliente è stato eliminato!"_s);
    eliminato->setObjectName(u"Label2"_s);
    eliminato->setProperty("avviso", true);
    legami.visibile(eliminato, [this] { return m_form.clienteEliminato(); });
    griglia->addWidget(eliminato, 6, 0, 1, 2, Qt::AlignHCenter);
    return gruppo;
}

QWidget* VistaBorftem::creaDatiCommerciali(Percorso& percorso) {
    auto* gruppo = new QGroupBox(u"Sede ammistrativa e dati commerciali"_s);
    gruppo->setObjectName(u"Frame2"_s);
    auto* griglia = grigliaIn(gruppo);
    const auto sede = &DatiCliente::amministrazione;
    const QString intestazione = u"Intestazione "_s;
    riga(griglia, 0, intestazione, campo(percorso, text2(8), intestazione, 40, sede, &SedeTesti::ragione1));
    griglia->addWidget(campo(percorso, text2(9), intestazione, 40, sede, &SedeTesti::ragione2), 1, 1);
    riga(griglia, 2, u"Indirizzo"_s,
         campo(percorso, text2(10), u"Indirizzo"_s, 40, sede, &SedeTesti::indirizzo));
    affianca(griglia, 3, u"CAP Città"_s,
             {campo(percorso, text2(11), u"CAP"_s, 5, sede, &SedeTesti::cap),
              campo(percorso, text2(12), u"Città"_s, 40, sede, &SedeTesti::citta)},
             1);
    const QString recapiti = u"Recapiti telefonici"_s;
    affianca(griglia, 4, recapiti,
             {campo(percorso, text2(13), recapiti, 15, &DatiCliente::telefono, 0),
              campo(percorso, text2(14), recapiti, 15, &DatiCliente::telefono, 1),
              campo(percorso, text2(15), recapiti, 15, &DatiCliente::telefono, 2)});
    riga(griglia, 5, u"E Mail"_s, campo(percorso, text2(16), u"E Mail"_s, 36, &DatiCliente::email));
    riga(griglia, 6, u"Vettore"_s,
         lista(percorso, u"Combo4"_s, u"Vettore"_s, m_form.voci().vettori,
               {[this] { return m_form.vettore(); }, [this](int i) { m_form.cambiaVettore(i); }}));
    const QString usuale = u"Vettore usuale"_s;
    riga(griglia, 7, usuale, campo(percorso, text2(17), usuale, 40, &DatiCliente::vettore, 0));
    griglia->addWidget(campo(percorso, text2(18), usuale, 40, &DatiCliente::vettore, 1), 8, 1);
    griglia->addWidget(campo(percorso, text2(19), usuale, 32, &DatiCliente::vettore, 2), 9, 1);
    const QString note = u"Note da stampare sui documenti"_s;
    riga(griglia, 10, note, campo(percorso, text2(20), note, 37, &DatiCliente::nota, 0));
    griglia->addWidget(campo(percorso, text2(21), note, 37, &DatiCliente::nota, 1), 11, 1);
    return gruppo;
}

QGroupBox* VistaBorftem::riquadro(const QString& nome, const QString& titolo, RiquadroTestata quale) {
    auto* gruppo = new QGroupBox(titolo);
    gruppo->setObjectName(nome);
    legami.visibile(gruppo, [this, quale] { return m_form.riquadro() == quale; });
    return gruppo;
}

QWidget* VistaBorftem::creaContabili() {
    auto* gruppo = riquadro(u"Frame3"_s, u"Dati contabili"_s, RiquadroTestata::Contabili);
    auto* griglia = grigliaIn(gruppo);
    Percorso& passi = percorso(RiquadroTestata::Contabili);
    riga(griglia, 0, u"Tipo pagamento"_s,
         lista(passi, u"Combo1"_s, u"Tipo pagamento"_s, m_form.voci().pagamenti,
               legame(m_form, &DatiCliente::pagamento)));
    const QString banca = u"Banca appoggio"_s;
    constexpr int caratteriIban = 27; // one more than the customer's record holds
    riga(griglia, 1, banca, campo(passi, text2(25), banca, 36, &DatiCliente::banca));
    griglia->addWidget(
        campo(passi, u"Text"_s, banca + u": coordinate"_s, caratteriIban, &DatiCliente::coordinate), 2, 1);
    conto(griglia, 3, passi, 30, u"Conto cliente"_s, &DatiCliente::contocliente);
    conto(griglia, 4, passi, 33, u"Conto ricavi"_s, &DatiCliente::contoricavi);
    conto(griglia, 5, passi, 36, u"Conto iva"_s, &DatiCliente::contoiva);
    conto(griglia, 6, passi, 39, u"Conto esenti"_s, &DatiCliente::contoesenti);
    return gruppo;
}

QWidget* VistaBorftem::creaSpedizione() {
    auto* gruppo = riquadro(u"Frame4"_s, u"Dati inerenti la fatturazione e la spedizione"_s,
                            RiquadroTestata::Spedizione);
    auto* griglia = grigliaIn(gruppo);
    Percorso& passi = percorso(RiquadroTestata::Spedizione);
    riga(griglia, 0, u"Causale trasporto"_s,
         lista(passi, u"Combo3"_s, u"Causale trasporto"_s, m_form.voci().causali,
               legame(m_form, &Trasporto::causale)));
    riga(griglia, 1, u"Aspetto dei beni"_s,
         lista(passi, u"Combo2"_s, u"Aspetto dei beni"_s, m_form.voci().aspetti,
               legame(m_form, &Trasporto::aspetto)));
    riga(griglia, 2, u"DDT"_s, campo(passi, u"text3(0)"_s, u"DDT"_s, 120, &Trasporto::ddt));
    riga(griglia, 3, u"Ordine"_s, campo(passi, u"text3(1)"_s, u"Ordine"_s, 40, &Trasporto::ordine));
    auto* colli = campo(passi, u"text3(2)"_s, u"Numero colli"_s, 10, &Trasporto::colli);
    auto* peso = campo(passi, u"text3(3)"_s, u"Peso"_s, 10, &Trasporto::peso);
    affianca(griglia, 4, u"Numero colli"_s, {colli, didascalia(u"Peso"_s, peso), peso});
    auto* inizio =
        m_campi.data(u"text3(4)"_s, u"text5"_s, u"Inizio trasporto"_s, legame(m_form, &Trasporto::inizio));
    passi.push_back(inizio->campo());
    auto* ora = campo(passi, u"text3(5)"_s, u"Ora"_s, 10, &Trasporto::ora);
    affianca(griglia, 5, u"Inizio trasporto"_s, {inizio, didascalia(u"Ora"_s, ora), ora});
    creaMezzo(griglia, 6, passi);
    return gruppo;
}

void VistaBorftem::creaMezzo(QGridLayout* griglia, int numero, Percorso& passi) {
    const QString mezzo = u"Spedizione a mezzo:"_s;
    auto* gruppo = new QButtonGroup(this);
    std::vector<QWidget*> bottoni;
    for (const Mezzo quale : {Mezzo::Vettore, Mezzo::Destinatario, Mezzo::Mittente}) {
        const QString testo = nomeMezzo[quale].toString();
        auto* bottone = new QRadioButton(testo);
        bottone->setObjectName(indicizzato(u"sped", ordinale(quale)));
        bottone->setAccessibleName(mezzo + u' ' + testo);
        gruppo->addButton(bottone);
        legami.spunta(
            bottone, [this, quale] { return m_form.dato(&Trasporto::spedizione) == quale; },
            [this, quale](bool) { m_form.cambia(quale, &Trasporto::spedizione); });
        invio.passo(bottone, [this] { vaiA(m_nome); });
        m_mezzo[quale] = bottone;
        bottoni.push_back(bottone);
    }
    affianca(griglia, numero, mezzo, bottoni);
    // Enter comes to the option that is chosen, as the Tab key does.
    invio.passo(passi.back(), [this] { vaiA(m_mezzo[m_form.dato(&Trasporto::spedizione)]); });
}

QWidget* VistaBorftem::creaPratica() {
    auto* gruppo = riquadro(u"Frame5"_s, u"Dati inerenti la fatturazione"_s, RiquadroTestata::Pratica);
    auto* griglia = grigliaIn(gruppo);
    Percorso& passi = percorso(RiquadroTestata::Pratica);
    const QStringList regimi = m_form.voci().regimi;
    const auto regime = [&](int numero, const QString& nome, const QString& testo, int Pratica::*dato) {
        riga(griglia, numero, testo, lista(passi, nome, testo, regimi, legame(m_form, dato)));
    };
    regime(0, u"ivaant"_s, u"Regime iva anticipazioni"_s, &Pratica::ivaant);
    regime(1, u"ivaspe"_s, u"Regime iva spese"_s, &Pratica::ivaspe);
    regime(2, u"ivaono"_s, u"Regime iva onorari"_s, &Pratica::ivaono);
    const QString descrizione = u"Descrizione pratica"_s;
    for (int i = 0; i < std::ssize(m_form.dato(&Pratica::descrizione)); ++i) {
        auto* casella = campo(passi, indicizzato(u"Text4", i), descrizione, 150, &Pratica::descrizione, i);
        if (i == 0)
            riga(griglia, 3, descrizione, casella);
        else
            griglia->addWidget(casella, 3 + i, 1);
    }
    return gruppo;
}

} // namespace bor
