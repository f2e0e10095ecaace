// The frames of the head form: what the operator sees and types of the customer, transport and practice.
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

QString indicizzato(QStringView nome, int indice) {
    return u"%1(%2)"_s.arg(nome).arg(indice);
}

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
        QWidget* campo = campi[static_cast<std::size_t>(i)];
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

QLineEdit* VistaBorftem::campo(Percorso& percorso, const QString& nome, const QString& didascalia,
                               int caratteri, QString& dove) {
    auto* casella = new CampoTesto(nome, didascalia.trimmed(), caratteri);
    legami.testo(
        casella, [&dove] { return dove; }, [&dove](const QString& testo) { dove = testo; });
    percorso.push_back(casella);
    return casella;
}

QComboBox* VistaBorftem::lista(Percorso& percorso, const QString& nome, const QString& didascalia,
                               const QStringList& voci, std::function<int()> leggi,
                               std::function<void(int)> scrivi) {
    auto* scelta = new QComboBox;
    scelta->setObjectName(nome);
    scelta->setAccessibleName(didascalia);
    scelta->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    scelta->setMinimumContentsLength(20);
    scelta->setMaxVisibleItems(20);
    scelta->addItems(voci);
    legami.lista(scelta, std::move(leggi), std::move(scrivi));
    percorso.push_back(scelta);
    return scelta;
}

QComboBox* VistaBorftem::lista(Percorso& percorso, const QString& nome, const QString& didascalia,
                               const QStringList& voci, int& dove) {
    return lista(
        percorso, nome, didascalia, voci, [&dove] { return dove; }, [&dove](int i) { dove = i; });
}

void VistaBorftem::conto(QGridLayout* griglia, int numero, Percorso& percorso, int indice,
                         const QString& didascalia, ContoTesti& dove) {
    affianca(griglia, numero, didascalia,
             {campo(percorso, text2(indice), didascalia, 2, dove.mastro),
              campo(percorso, text2(indice + 1), didascalia, 2, dove.conto),
              campo(percorso, text2(indice + 2), didascalia, 4, dove.sottoconto)});
}

QWidget* VistaBorftem::creaSede(Percorso& percorso) {
    auto* gruppo = new QGroupBox(u"Sede legale e dati fiscali"_s);
    gruppo->setObjectName(u"Frame1"_s);
    auto* griglia = grigliaIn(gruppo);
    DatiCliente& dati = m_form.testata().cliente;
    const QString intestazione = u"Intestazione "_s;
    riga(griglia, 0, intestazione, campo(percorso, text2(0), intestazione, 40, dati.sede.ragione1));
    griglia->addWidget(campo(percorso, text2(1), intestazione, 40, dati.sede.ragione2), 1, 1);
    riga(griglia, 2, u"Indirizzo"_s, campo(percorso, text2(2), u"Indirizzo"_s, 40, dati.sede.indirizzo));
    affianca(griglia, 3, u"CAP Città"_s,
             {campo(percorso, text2(3), u"CAP"_s, 5, dati.sede.cap),
              campo(percorso, text2(4), u"Città"_s, 40, dati.sede.citta)},
             1);
    affianca(griglia, 4, u"Codice fiscale"_s,
             {campo(percorso, text2(5), u"Codice fiscale"_s, 16, dati.codicefiscale)});
    auto* nazione = campo(percorso, text2(6), u"Partita iva: nazione"_s, 2, dati.nazione);
    auto* partitaiva = campo(percorso, text2(7), u"Partita iva"_s, 11, dati.partitaiva);
    affianca(griglia, 5, u"Partita iva"_s, {nazione, new QLabel(u"-"_s), partitaiva});
    auto* eliminato = new QLabel(u"Attenzione:questo cliente è stato eliminato!"_s);
    eliminato->setObjectName(u"Label2"_s);
    eliminato->setStyleSheet(u"color: #B00020; font-weight: 600;"_s);
    legami.visibile(eliminato, [this] { return m_form.clienteEliminato(); });
    griglia->addWidget(eliminato, 6, 0, 1, 2, Qt::AlignHCenter);
    return gruppo;
}

QWidget* VistaBorftem::creaDatiCommerciali(Percorso& percorso) {
    auto* gruppo = new QGroupBox(u"Sede ammistrativa e dati commerciali"_s);
    gruppo->setObjectName(u"Frame2"_s);
    auto* griglia = grigliaIn(gruppo);
    DatiCliente& dati = m_form.testata().cliente;
    SedeTesti& sede = dati.amministrazione;
    const QString intestazione = u"Intestazione "_s;
    riga(griglia, 0, intestazione, campo(percorso, text2(8), intestazione, 40, sede.ragione1));
    griglia->addWidget(campo(percorso, text2(9), intestazione, 40, sede.ragione2), 1, 1);
    riga(griglia, 2, u"Indirizzo"_s, campo(percorso, text2(10), u"Indirizzo"_s, 40, sede.indirizzo));
    affianca(griglia, 3, u"CAP Città"_s,
             {campo(percorso, text2(11), u"CAP"_s, 5, sede.cap),
              campo(percorso, text2(12), u"Città"_s, 40, sede.citta)},
             1);
    const QString recapiti = u"Recapiti telefonici"_s;
    affianca(griglia, 4, recapiti,
             {campo(percorso, text2(13), recapiti, 15, dati.telefono[0]),
              campo(percorso, text2(14), recapiti, 15, dati.telefono[1]),
              campo(percorso, text2(15), recapiti, 15, dati.telefono[2])});
    riga(griglia, 5, u"E Mail"_s, campo(percorso, text2(16), u"E Mail"_s, 36, dati.email));
    riga(griglia, 6, u"Vettore"_s,
         lista(
             percorso, u"Combo4"_s, u"Vettore"_s, m_form.vettori(), [this] { return m_form.vettore(); },
             [this](int i) { m_form.cambiaVettore(i); }));
    const QString usuale = u"Vettore usuale"_s;
    riga(griglia, 7, usuale, campo(percorso, text2(17), usuale, 40, dati.vettore[0]));
    griglia->addWidget(campo(percorso, text2(18), usuale, 40, dati.vettore[1]), 8, 1);
    griglia->addWidget(campo(percorso, text2(19), usuale, 32, dati.vettore[2]), 9, 1);
    const QString note = u"Note da stampare sui documenti"_s;
    riga(griglia, 10, note, campo(percorso, text2(20), note, 37, dati.nota[0]));
    griglia->addWidget(campo(percorso, text2(21), note, 37, dati.nota[1]), 11, 1);
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
    DatiCliente& dati = m_form.testata().cliente;
    riga(griglia, 0, u"Tipo pagamento"_s,
         lista(passi, u"Combo1"_s, u"Tipo pagamento"_s, m_form.pagamenti(), dati.pagamento));
    const QString banca = u"Banca appoggio"_s;
    constexpr int caratteriIban = 27; // one more than the customer's record holds
    riga(griglia, 1, banca, campo(passi, text2(25), banca, 36, dati.banca));
    griglia->addWidget(campo(passi, u"Text"_s, banca + u": coordinate"_s, caratteriIban, dati.coordinate), 2,
                       1);
    conto(griglia, 3, passi, 30, u"Conto cliente"_s, dati.contocliente);
    conto(griglia, 4, passi, 33, u"Conto ricavi"_s, dati.contoricavi);
    conto(griglia, 5, passi, 36, u"Conto iva"_s, dati.contoiva);
    conto(griglia, 6, passi, 39, u"Conto esenti"_s, dati.contoesenti);
    return gruppo;
}

QWidget* VistaBorftem::creaSpedizione() {
    auto* gruppo = riquadro(u"Frame4"_s, u"Dati inerenti la fatturazione e la spedizione"_s,
                            RiquadroTestata::Spedizione);
    auto* griglia = grigliaIn(gruppo);
    Percorso& passi = percorso(RiquadroTestata::Spedizione);
    Trasporto& dati = m_form.testata().trasporto;
    riga(griglia, 0, u"Causale trasporto"_s,
         lista(passi, u"Combo3"_s, u"Causale trasporto"_s, m_form.causali(), dati.causale));
    riga(griglia, 1, u"Aspetto dei beni"_s,
         lista(passi, u"Combo2"_s, u"Aspetto dei beni"_s, m_form.aspetti(), dati.aspetto));
    riga(griglia, 2, u"DDT"_s, campo(passi, u"text3(0)"_s, u"DDT"_s, 120, dati.ddt));
    riga(griglia, 3, u"Ordine"_s, campo(passi, u"text3(1)"_s, u"Ordine"_s, 40, dati.ordine));
    auto* colli = campo(passi, u"text3(2)"_s, u"Numero colli"_s, 10, dati.colli);
    auto* peso = campo(passi, u"text3(3)"_s, u"Peso"_s, 10, dati.peso);
    affianca(griglia, 4, u"Numero colli"_s, {colli, didascalia(u"Peso"_s, peso), peso});
    auto* inizio = new CampoData(u"text3(4)"_s, u"text5"_s, u"Inizio trasporto"_s);
    legami.testo(
        inizio->campo(), [&dati] { return dati.inizio; },
        [&dati](const QString& testo) { dati.inizio = testo; });
    passi.push_back(inizio->campo());
    auto* ora = campo(passi, u"text3(5)"_s, u"Ora"_s, 10, dati.ora);
    affianca(griglia, 5, u"Inizio trasporto"_s, {inizio, didascalia(u"Ora"_s, ora), ora});
    creaMezzo(griglia, 6, passi);
    return gruppo;
}

void VistaBorftem::creaMezzo(QGridLayout* griglia, int numero, Percorso& passi) {
    const QString mezzo = u"Spedizione a mezzo:"_s;
    constexpr std::array<QStringView, 3> didascalie = {u"Vettore", u"Destinatario", u"Mittente"};
    Trasporto& dati = m_form.testata().trasporto;
    auto* gruppo = new QButtonGroup(this);
    std::vector<QWidget*> bottoni;
    for (int i = 0; i < std::ssize(didascalie); ++i) {
        const QString testo = didascalie[static_cast<std::size_t>(i)].toString();
        auto* bottone = new QRadioButton(testo);
        bottone->setObjectName(indicizzato(u"sped", i));
        bottone->setAccessibleName(mezzo + u' ' + testo);
        gruppo->addButton(bottone);
        legami.spunta(
            bottone, [&dati, i] { return dati.spedizione == i; }, [&dati, i](bool) { dati.spedizione = i; });
        invio.passo(bottone, [this] { vaiA(m_nome); });
        m_mezzo[static_cast<std::size_t>(i)] = bottone;
        bottoni.push_back(bottone);
    }
    affianca(griglia, numero, mezzo, bottoni);
    // Enter comes to the option that is chosen, as the Tab key does.
    invio.passo(passi.back(), [this, &dati] {
        vaiA(m_mezzo[static_cast<std::size_t>(std::clamp(dati.spedizione, 0, 2))]);
    });
}

QWidget* VistaBorftem::creaPratica() {
    auto* gruppo = riquadro(u"Frame5"_s, u"Dati inerenti la fatturazione"_s, RiquadroTestata::Pratica);
    auto* griglia = grigliaIn(gruppo);
    Percorso& passi = percorso(RiquadroTestata::Pratica);
    Pratica& dati = m_form.testata().pratica;
    const auto regime = [&](int numero, const QString& nome, const QString& testo, int& dove) {
        riga(griglia, numero, testo, lista(passi, nome, testo, m_form.regimi(), dove));
    };
    regime(0, u"ivaant"_s, u"Regime iva anticipazioni"_s, dati.ivaant);
    regime(1, u"ivaspe"_s, u"Regime iva spese"_s, dati.ivaspe);
    regime(2, u"ivaono"_s, u"Regime iva onorari"_s, dati.ivaono);
    const QString descrizione = u"Descrizione pratica"_s;
    for (int i = 0; i < std::ssize(dati.descrizione); ++i) {
        auto* casella = campo(passi, indicizzato(u"Text4", i), descrizione, 150,
                              dati.descrizione[static_cast<std::size_t>(i)]);
        if (i == 0)
            riga(griglia, 3, descrizione, casella);
        else
            griglia->addWidget(casella, 3 + i, 1);
    }
    return gruppo;
}

} // namespace bor
