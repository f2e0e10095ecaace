#include "ui/vistaborftea.h"

#include "ui/affiancati.h"
#include "ui/barracomandi.h"
#include "ui/cursorerighe.h"
#include "ui/finestraposta.h"
#include "ui/flusso.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int caratteriPdf = 60;

using Comando = Borftea::Comando;

} // namespace

VistaBorftea::VistaBorftea(Borftea& form, QWidget* parent) : Vista(parent), m_form(form) {
    const BancoTea banco{form, legami, invio};
    const RiquadroTea estremi = creaEstremi(banco);
    const RiquadroTea scadenze = creaScadenze(banco);
    const RiquadroTea ricavi = creaRicavi(banco);
    auto* sinistra = new QVBoxLayout;
    sinistra->addWidget(estremi.gruppo);
    sinistra->addWidget(creaScelta());
    sinistra->addWidget(creaProspetti(banco), 1);
    auto* destra = new QVBoxLayout;
    destra->addWidget(scadenze.gruppo);
    destra->addWidget(ricavi.gruppo);
    destra->addWidget(creaTotali());
    destra->addStretch();
    auto* centro = new Affiancati;
    centro->aggiungi(sinistra, 13);
    centro->aggiungi(destra, 10);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(6);
    layout->addWidget(centro, 1);
    layout->addWidget(creaPdf(banco));
    layout->addWidget(creaComandi());
    collegaPercorso(estremi, scadenze, ricavi);
    legami.altro([this] { seguiFuoco(); });
    auto* posta = new QShortcut(QKeySequence(u"Ctrl+Shift+M"_s), this);
    posta->setAutoRepeat(false);
    posta->setWhatsThis(u"Messaggi di posta spediti"_s);
    connect(posta, &QShortcut::activated, this,
            [this] { (new FinestraPosta(titolo(), m_form.posta(), this))->open(); });
    altriTasti = {{u"PagSu, PagGiù"_s, u"Le prime righe iva, le ultime"_s}};
}

QWidget* VistaBorftea::creaProspetti(const BancoTea& banco) {
    m_prospetti[Prospetto::RigheIva] = creaRigheIva(banco);
    m_prospetti[Prospetto::IvaDifferita] = creaIvaDifferita(banco);
    m_prospetti[Prospetto::Ritenute] = creaRitenute(banco);
    m_prospetti[Prospetto::Spesometro] = creaSpesometro(banco);
    m_pila = new QStackedWidget;
    for (const RiquadroTea& prospetto : m_prospetti)
        m_pila->addWidget(prospetto.gruppo);
    legami.altro([this] { m_pila->setCurrentIndex(ordinale(m_form.prospetto())); });
    return m_pila;
}

QWidget* VistaBorftea::creaScelta() {
    auto* barra = new BarraProspetti(legami, u"Prospetti del documento"_s);
    const auto aggiungi = [&](const QString& nome, const QString& testo, const QString& tasto,
                              Prospetto prospetto) {
        barra->prospetto(
            nome, testo, tasto, [this, prospetto] { return m_form.prospetto() == prospetto; },
            [this, prospetto] { mostraProspetto(prospetto); });
    };
    aggiungi(u"comando2"_s, u"Dettaglio imponibili"_s, u"Ctrl+1"_s, Prospetto::RigheIva);
    aggiungi(u"comando4"_s, u"Ritenute d'acconto"_s, u"Ctrl+2"_s, Prospetto::Ritenute);
    aggiungi(u"comando1"_s, u"Iva differita"_s, u"Ctrl+3"_s, Prospetto::IvaDifferita);
    aggiungi(u"comando5"_s, u"Spesometro"_s, u"Ctrl+4"_s, Prospetto::Spesometro);
    return barra;
}

QWidget* VistaBorftea::creaTotali() {
    auto* riquadro = new QGroupBox(u"Totali"_s);
    auto* griglia = new QGridLayout(riquadro);
    // In the order of `ImportiIva::Totale`.
    const QStringList testi = {u"Imponibile"_s, u"Imposta"_s, u"Importi in esenzione iva"_s,
                               u"Importo complessivo documento"_s};
    for (int i = 0; i < testi.size(); ++i) {
        auto* casella = new CampoTesto(indicizzato(u"total", i), testi[i], 24);
        casella->setAlignment(Qt::AlignRight);
        legami.testo(casella,
                     [this, i] { return m_form.importiIva().totale(enumeratore<ImportiIva::Totale>(i)); });
        riga(griglia, i, testi[i], casella);
        if (i + 1 == testi.size()) {
            griglia->itemAtPosition(i, 0)->widget()->setObjectName(u"Label1(14)"_s);
            casella->setStyleSheet(u"font-weight: bold;"_s);
        }
    }
    griglia->setColumnStretch(0, 1);
    return riquadro;
}

QWidget* VistaBorftea::creaPdf(const BancoTea& banco) {
    auto* barra = new QWidget;
    auto* linea = new Flusso(barra);
    linea->setContentsMargins(0, 0, 0, 0);
    const QString documento = u"Documento in formato PDF"_s;
    auto* pdf = banco.campi.testo(u"pdf"_s, documento, caratteriPdf, legame(m_form, &Estremi::pdf));
    auto* etichetta = didascalia(documento, pdf);
    etichetta->setObjectName(u"Label2"_s);
    linea->addWidget(etichetta);
    linea->addWidget(pdf);

    auto* scelta = new QWidget;
    scelta->setObjectName(u"Picture1"_s);
    scelta->setAccessibleName(u"File PDF del documento"_s);
    auto* bottoni = new QHBoxLayout(scelta);
    bottoni->setContentsMargins(0, 0, 0, 0);
    const auto bottone = [&](int i, const QString& testo, const QString& tasto, Comando quale) {
        auto* b = new BottoneComando(indicizzato(u"command3d2", i), testo, {}, QKeySequence(tasto));
        legami.comando(b, [this, quale] { m_form.esegui(quale); });
        legami.abilitato(b, [this, quale] { return m_form.abilitato(quale); });
        bottoni->addWidget(b);
    };
    bottone(0, u"Scegli il file PDF"_s, u"Ctrl+O"_s, Comando::ScegliPdf);
    bottone(1, u"Apri"_s, u"Ctrl+P"_s, Comando::ApriPdf);
    legami.visibile(scelta, [this] { return m_form.pdfVisibile(); });
    linea->addWidget(scelta);
    linea->spazio(16);
    linea->addWidget(banco.campi.spunta(u"postael"_s, u"Invia il documento per posta elettronica"_s,
                                        legame(m_form, &Estremi::postael)));
    return barra;
}

void VistaBorftea::comando(Flusso* barra, int indice, Comando quale, const QString& testo,
                           const QString& icona, const QString& tasto) {
    auto* bottone = new BottoneComando(indicizzato(u"bottone", indice), testo, icona, QKeySequence(tasto));
    connect(bottone, &QToolButton::clicked, this, [this, quale] { esegui(quale); });
    legami.abilitato(bottone, [this, quale] { return m_form.abilitato(quale); });
    barra->addWidget(bottone);
}

QWidget* VistaBorftea::creaComandi() {
    auto* barra = new QWidget;
    barra->setAccessibleName(u"Comandi"_s);
    auto* linea = new Flusso(barra);
    linea->setContentsMargins(0, 0, 0, 0);
    comando(linea, 0, Comando::Esci, u"Esci senza salvare"_s, u"esci"_s, u"Ctrl+Q"_s);
    comando(linea, 1, Comando::Salva, u"Salva"_s, u"salva"_s, u"F10"_s);
    linea->spazio(6);
    comando(linea, 6, Comando::Testata, u"Testata"_s, u"testata"_s, u"F2"_s);
    comando(linea, 2, Comando::Righe, u"Righe"_s, u"righe"_s, u"F3"_s);
    linea->spazio(6);
    comando(linea, 5, Comando::Stampa, u"Stampa"_s, u"stampa"_s, u"F7"_s);
    comando(linea, 7, Comando::Anteprima, u"Anteprima"_s, u"anteprima"_s, u"Ctrl+F7"_s);
    comando(linea, 3, Comando::Pdf, u"PDF"_s, u"pdf"_s, u"F6"_s);
    comando(linea, 10, Comando::FatturaPa, u"Fattura PA"_s, u"fatturapa"_s, u"F8"_s);
    comando(linea, 11, Comando::FatturaElettronica, u"Elettronica"_s, u"elettronica"_s, u"F9"_s);
    linea->spazio(6);
    comando(linea, 12, Comando::Duplica, u"Duplica"_s, u"copia"_s, u"Ctrl+F2"_s);
    offriNotaCredito(*barra->findChild<QToolButton*>(u"bottone(12)"_s));
    comando(linea, 4, Comando::Elimina, u"Elimina"_s, u"elimina"_s, u"Ctrl+F9"_s);
    linea->molla();
    auto* regimi = new QLabel(u"Regimi cambiati: confermare le righe"_s);
    regimi->setObjectName(u"regimicambiati"_s);
    regimi->setProperty("avviso", true);
    legami.visibile(regimi, [this] { return m_form.regimiCambiati(); });
    linea->addWidget(regimi);
    auto* integrata = new QLabel;
    integrata->setObjectName(u"Label3"_s);
    integrata->setProperty("avviso", true);
    legami.etichetta(integrata, [this] { return m_form.integrata(); });
    legami.visibile(integrata, [this] { return !m_form.integrata().isEmpty(); });
    linea->addWidget(integrata);
    return barra;
}

/// The arrow beside the button: the bar has neither the room nor the letter for one more.
void VistaBorftea::offriNotaCredito(QToolButton& duplica) {
    const QString testo = u"Nota di credito da questo documento"_s;
    const QKeySequence tasto(u"Ctrl+F3"_s);
    const auto esegui = [this] { this->esegui(Comando::NotaCredito); };
    auto* menu = new QMenu(&duplica);
    QAction* voce = menu->addAction(testo + u'\t' + tasto.toString(QKeySequence::NativeText), this, esegui);
    voce->setObjectName(u"notacredito"_s);
    duplica.setMenu(menu);
    duplica.setPopupMode(QToolButton::MenuButtonPopup);
    legami.altro([this, voce] { voce->setEnabled(m_form.abilitato(Comando::NotaCredito)); });
    auto* scorciatoia = new QShortcut(tasto, this);
    scorciatoia->setAutoRepeat(false);
    scorciatoia->setWhatsThis(testo);
    connect(scorciatoia, &QShortcut::activated, this, esegui);
}

void VistaBorftea::collegaPercorso(const RiquadroTea& estremi, const RiquadroTea& scadenze,
                                   const RiquadroTea& ricavi) {
    invio.passo(estremi.ultimo, [this] { vaiA(m_prospetti[m_form.prospetto()].primo); });
    for (const RiquadroTea& prospetto : m_prospetti)
        invio.passo(prospetto.ultimo, scadenze.primo);
    invio.passo(scadenze.ultimo, ricavi.primo);
    invio.passo(ricavi.ultimo, controllo(u"bottone(1)"_s));
}

void VistaBorftea::mostraProspetto(Prospetto prospetto) {
    bool mostrato = false;
    legami.eseguiComando([&] { mostrato = m_form.mostraProspetto(prospetto); });
    if (mostrato)
        vaiA(m_prospetti[prospetto].primo);
}

void VistaBorftea::esegui(Comando comando) {
    legami.eseguiComando([&] { m_form.esegui(comando); });
}

void VistaBorftea::seguiFuoco() {
    const auto posto = m_form.prendiFuoco();
    if (!posto)
        return;
    QString nome;
    switch (posto->campo) {
    case CampoTea::Numero:
        nome = u"Text2(0)"_s;
        break;
    case CampoTea::Data:
        nome = u"text3(1)"_s;
        break;
    case CampoTea::DataReg:
        nome = u"text3(2)"_s;
        break;
    case CampoTea::Scadenza:
        nome = indicizzato(u"dsca", posto->indice);
        break;
    }
    vaiA(controllo(nome));
}

QWidget* VistaBorftea::controllo(const QString& nome) const {
    return findChild<QWidget*>(nome);
}

void VistaBorftea::attiva() {
    m_form.attiva();
    legami.aggiorna();
}

void VistaBorftea::lascia() {
    esegui(Comando::Esci);
}

QString VistaBorftea::titolo() const {
    return m_form.titolo();
}

void VistaBorftea::keyPressEvent(QKeyEvent* evento) {
    if (!sfoglia(evento, legami, m_form.importiIva()))
        Vista::keyPressEvent(evento);
}

void VistaBorftea::wheelEvent(QWheelEvent* evento) {
    if (m_form.prospetto() == Prospetto::RigheIva && m_pila->underMouse())
        gira(controllo(u"VScroll1"_s), evento);
}

} // namespace bor
