#include "ui/vistaborftec.h"

#include "ui/affiancati.h"
#include "ui/barracomandi.h"
#include "ui/campodata.h"
#include "ui/flusso.h"
#include "ui/legame.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

using Campo = Borftec::Campo;
using Totale = Borftec::Totale;

struct Colonna {
    Campo campo;
    QStringView nome;
    QStringView descrizione;
};

constexpr std::array<Colonna, 5> colonne = {{
    {Campo::Mastro, u"cn1", u"Mastro"},
    {Campo::Conto, u"cn2", u"Conto"},
    {Campo::Sottoconto, u"cn3", u"Sottoconto"},
    {Campo::Dare, u"dare", u"Dare"},
    {Campo::Avere, u"avere", u"Avere"},
}};

/// The account's name stands between its groups and the amounts.
int colonnaGriglia(Campo campo) {
    return campo < Campo::Dare ? ordinale(campo) : ordinale(campo) + 1;
}

} // namespace

VistaBorftec::VistaBorftec(Borftec& form, QWidget* parent) : Vista(parent), m_form(form) {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(creaTestata());
    auto* centro = new Affiancati;
    centro->aggiungi(creaRighe(), 3);
    centro->aggiungi(creaConti(), 2);
    layout->addWidget(centro, 1);
    layout->addWidget(creaTotali());
    layout->addWidget(creaComandi());
    legami.altro([this] {
        if (const auto cella = m_form.prendiFuoco())
            vai(*cella);
    });
}

QWidget* VistaBorftec::creaTestata() {
    auto* riquadro = new QGroupBox(u"Estremi"_s);
    riquadro->setObjectName(u"Frame1"_s);
    auto* riga = new QHBoxLayout(riquadro);
    auto* giorno = new CampoData(u"Text2"_s, u"calendario"_s, u"Data del movimento"_s, m_form.bordata());
    auto* descrizione = new CampoTesto(u"Text1(0)"_s, u"Descrizione"_s, 40);
    auto* riferimento = new CampoTesto(u"Text1(1)"_s, u"Riferimento"_s, 20);
    const auto aggiungi = [&](const QString& nome, QWidget* widget, QLineEdit* campo,
                              QString Movimento::*dato) {
        riga->addWidget(didascalia(nome, campo));
        riga->addWidget(widget);
        const auto testo = legame(m_form, dato);
        legami.testo(campo, testo.leggi, testo.scrivi);
    };
    aggiungi(u"Data"_s, giorno, giorno->campo(), &Movimento::data);
    legami.segnala(giorno->campo(), [giorno] { return avvisoData(giorno->campo()->text()); });
    aggiungi(u"Descrizione"_s, descrizione, descrizione, &Movimento::descrizione);
    aggiungi(u"Riferimento"_s, riferimento, riferimento, &Movimento::riferimento);
    riga->addStretch();
    invio.catena({giorno->campo(), descrizione, riferimento});
    invio.passo(riferimento, [this] { vai({}); });
    return riquadro;
}

QWidget* VistaBorftec::creaRighe() {
    auto* riquadro = new QGroupBox(u"Righe del movimento"_s);
    riquadro->setObjectName(u"Frame2"_s);
    auto* griglia = new QGridLayout(riquadro);
    griglia->setVerticalSpacing(8);
    griglia->addWidget(new QLabel(u"Conto"_s), 0, 0, 1, 3);
    griglia->addWidget(new QLabel(u"Descrizione del conto"_s), 0, 3);
    griglia->addWidget(new QLabel(u"Dare"_s), 0, 4, Qt::AlignRight);
    griglia->addWidget(new QLabel(u"Avere"_s), 0, 5, Qt::AlignRight);
    for (int linea = 0; linea < Borftec::righe; ++linea)
        creaLinea(griglia, linea);
    griglia->setRowStretch(Borftec::righe + 1, 1);
    griglia->setColumnStretch(3, 1);
    return riquadro;
}

void VistaBorftec::creaLinea(QGridLayout* griglia, int linea) {
    for (const auto& [campo, radice, descrizione] : colonne) {
        const int caratteri = Borftec::caratteri[campo];
        const Borftec::Cella cella{campo, linea};
        const QString nome = u"%1(%2)"_s.arg(radice).arg(linea);
        const QString letto = u"%1, riga %2"_s.arg(descrizione).arg(linea + 1);
        CampoTesto* casella =
            caratteri > 0 ? new CampoTesto(nome, letto, caratteri) : new CampoImporto(nome, letto);
        m_campi[linea][campo] = casella;
        griglia->addWidget(casella, linea + 1, colonnaGriglia(campo));
        legami.testo(
            casella, [this, cella] { return m_form.testo(cella); },
            [this, cella](const QString& t) { m_form.cambia(cella, t); });
        legami.entrato(casella, [this, cella] { m_form.entra(cella); });
        invio.passo(casella, [this, cella] { legami.esegui([&] { m_form.invio(cella); }); });
    }
    auto* conto =
        new CampoTesto(u"ds(%1)"_s.arg(linea), u"Descrizione del conto, riga %1"_s.arg(linea + 1), 40);
    legami.testo(conto, [this, linea] { return m_form.descrizioneConto(linea); });
    griglia->addWidget(conto, linea + 1, 3);
}

QWidget* VistaBorftec::creaConti() {
    auto* riquadro = new QGroupBox(u"Piano dei conti"_s);
    riquadro->setObjectName(u"Frame3"_s);
    auto* colonna = new QVBoxLayout(riquadro);
    m_cerca = new CampoTesto(u"ccerca"_s, u"Cerca un conto per nome"_s, 40);
    m_cerca->setPlaceholderText(m_cerca->accessibleName());
    connect(m_cerca, &QLineEdit::textEdited, this,
            [this](const QString& testo) { legami.esegui([&] { m_form.cerca(testo); }); });
    m_conti = new QListWidget;
    m_conti->setObjectName(u"List1"_s);
    m_conti->setAccessibleName(u"Piano dei conti"_s);
    m_conti->setUniformItemSizes(true);
    legami.altro([this] { aggiornaConti(); });
    connect(m_conti, &QListWidget::itemClicked, this, [this] { prendiConto(); });
    invio.passo(m_cerca, m_conti);
    invio.passo(m_conti, [this] { prendiConto(); });
    colonna->addWidget(m_cerca);
    colonna->addWidget(m_conti);
    return riquadro;
}

QWidget* VistaBorftec::creaTotali() {
    auto* riquadro = new QGroupBox(u"Totali"_s);
    auto* riga = new Flusso(riquadro);
    const auto mostra = [&](const QString& testo, Totale quale) {
        auto* casella = new CampoTesto(u"Label1(%1)"_s.arg(ordinale(quale)), testo, 16);
        casella->setAlignment(Qt::AlignRight);
        legami.testo(casella, [this, quale] { return m_form.importo(m_form.totale(quale)); });
        riga->addWidget(conDidascalia(testo, casella));
        riga->spazio(8);
        return casella;
    };
    const auto mostraScarto = [&](const QString& testo, Totale quale) {
        auto* casella = mostra(testo, quale);
        legami.altro([this, casella, quale] { segna(casella, "scarto", m_form.totale(quale) != 0.0); });
    };
    mostra(u"Totale dare"_s, Totale::Dare);
    mostra(u"Totale avere"_s, Totale::Avere);
    mostraScarto(u"Sbilancio"_s, Totale::Sbilancio);
    mostra(u"Totale documento"_s, Totale::Documento);
    mostraScarto(u"Differenza"_s, Totale::Differenza);
    return riquadro;
}

QWidget* VistaBorftec::creaComandi() {
    auto* barra = new BarraComandi(legami);
    barra->comando(u"bottone(0)"_s, u"Esci senza registrare"_s, u"esci"_s, u"Ctrl+Q"_s,
                   [this] { m_form.lascia(); });
    barra->comando(u"bottone(1)"_s, u"Registra"_s, u"salva"_s, u"F10"_s, [this] { m_form.salva(); });
    barra->spazio();
    barra->comando(u"bottone(4)"_s, u"Inserisci riga"_s, u"inserisci"_s, u"F7"_s,
                   [this] { m_form.inserisciRiga(); });
    barra->comando(u"bottone(3)"_s, u"Elimina riga"_s, u"togli"_s, u"F8"_s, [this] { m_form.togliRiga(); });
    return barra;
}

void VistaBorftec::prendiConto() {
    legami.esegui([this] { m_form.prendiConto(m_conti->currentRow()); });
}

void VistaBorftec::aggiornaConti() {
    if (std::exchange(m_edizione, m_form.edizione()) != m_form.edizione()) {
        m_conti->clear();
        m_conti->addItems(m_form.conti());
    }
    if (m_form.contoScelto() >= 0)
        m_conti->setCurrentRow(m_form.contoScelto());
}

void VistaBorftec::vai(Borftec::Cella cella) {
    vaiA(m_campi[cella.linea][cella.campo]);
}

void VistaBorftec::attiva() {
    m_form.attiva();
    m_cerca->clear();
    legami.aggiorna();
}

void VistaBorftec::lascia() {
    m_form.lascia();
}

QString VistaBorftec::titolo() const {
    return m_form.titolo();
}

} // namespace bor
