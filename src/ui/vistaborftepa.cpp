#include "ui/vistaborftepa.h"

#include "common/posti.h"
#include "ui/barracomandi.h"
#include "ui/campodata.h"
#include "ui/finestrarilievi.h"
#include "ui/flusso.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHideEvent>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace bor {

VistaBorftepa::VistaBorftepa(Borftepa& form, QWidget* parent) : Vista(parent), m_form(form) {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(creaCliente());
    layout->addWidget(creaEstremi(), 1);
    layout->addWidget(creaComandi());
    legami.altro([this] {
        if (const auto posto = m_form.prendiFuoco())
            vaiA(m_caselle[indiceFpa(*posto)]);
    });
}

QWidget* VistaBorftepa::creaCliente() {
    using enum CasellaCliente;
    auto* riquadro = new QGroupBox(u"Sede legale e dati fiscali"_s);
    auto* griglia = new QGridLayout(riquadro);
    const auto etichetta = [&](int linea, int colonna, const QString& testo) {
        griglia->addWidget(new QLabel(testo), linea, colonna, Qt::AlignRight | Qt::AlignVCenter);
    };
    etichetta(0, 0, u"Intestazione "_s);
    mostraCliente(griglia, 0, 1, Ragione1, u"Intestazione"_s, 40,
                  [](const Cli& c) { return c.sede.ragione1.trimmed(); });
    mostraCliente(griglia, 0, 2, Ragione2, u"Intestazione, seguito"_s, 40,
                  [](const Cli& c) { return c.sede.ragione2.trimmed(); });
    etichetta(0, 4, u"Codice fiscale"_s);
    mostraCliente(griglia, 0, 5, CodiceFiscale, u"Codice fiscale"_s, 16,
                  [](const Cli& c) { return c.codicefiscale.trimmed(); });
    etichetta(1, 0, u"Indirizzo"_s);
    mostraCliente(griglia, 1, 1, Indirizzo, u"Indirizzo"_s, 40,
                  [](const Cli& c) { return c.sede.indirizzo.trimmed(); });
    auto* citta = new QGridLayout;
    mostraCliente(citta, 0, 1, Cap, u"CAP"_s, 5, [](const Cli& c) { return c.sede.cap.trimmed(); });
    mostraCliente(citta, 0, 2, Citta, u"Città"_s, 40, [](const Cli& c) { return c.sede.citta.trimmed(); });
    citta->addWidget(new QLabel(u"CAP Città"_s), 0, 0);
    citta->setColumnStretch(2, 1);
    griglia->addLayout(citta, 1, 2);
    etichetta(1, 4, u"Partita iva"_s);
    auto* iva = new QGridLayout;
    mostraCliente(iva, 0, 0, Nazione, u"Paese della partita iva"_s, 2,
                  [](const Cli& c) { return c.nazione.trimmed(); });
    mostraCliente(iva, 0, 1, PartitaIva, u"Partita iva"_s, 11,
                  [](const Cli& c) { return c.partitaiva.trimmed(); });
    iva->setColumnStretch(1, 1);
    griglia->addLayout(iva, 1, 5);
    griglia->setColumnStretch(1, 3);
    griglia->setColumnStretch(2, 3);
    griglia->setColumnMinimumWidth(3, 16);
    return riquadro;
}

void VistaBorftepa::mostraCliente(QGridLayout* griglia, int riga, int colonna, CasellaCliente quale,
                                  const QString& descrizione, int caratteri,
                                  const std::function<QString(const Cli&)>& leggi) {
    auto* campo = new CampoTesto(u"Text2(%1)"_s.arg(ordinale(quale)), descrizione, caratteri);
    legami.testo(campo, [this, leggi] { return leggi(m_form.cliente()); });
    legami.entrato(campo, [this] { m_form.entraCliente(); });
    griglia->addWidget(campo, riga, colonna);
}

QWidget* VistaBorftepa::creaEstremi() {
    auto* riquadro = new QGroupBox(u"Estremi della fattura elettronica PA"_s);
    auto* colonna = new QVBoxLayout(riquadro);
    colonna->addLayout(creaDocumento());
    colonna->addSpacing(8);
    auto* centro = new QHBoxLayout;
    centro->addLayout(creaRiferimenti());
    centro->addSpacing(24);
    centro->addLayout(creaPagamento(), 1);
    colonna->addLayout(centro);
    colonna->addStretch();
    return riquadro;
}

QLayout* VistaBorftepa::creaDocumento() {
    auto* colonna = new QVBoxLayout;
    auto* insieme = new QWidget;
    auto* linea = new Flusso(insieme);
    linea->setContentsMargins(0, 0, 0, 0);
    const auto aggiungi = [&](const QString& testo, QWidget* campo) {
        linea->addWidget(conDidascalia(testo, campo));
        linea->spazio(16);
    };
    aggiungi(u"Tipo documento"_s, creaLista(ListaFpa::TipoDocumento, u"Tipo documento"_s));
    aggiungi(u"Numero"_s, creaTesto(TestoFpa::Numero, u"Numero del documento"_s, 20));
    aggiungi(u"Data"_s, creaData(DataFpa::Documento, u"Data del documento"_s));
    aggiungi(u"Numero progressivo invio"_s,
             creaTesto(TestoFpa::Progressivo, u"Numero progressivo invio"_s, 6));
    auto* spunte = new QHBoxLayout;
    spunte->addWidget(
        creaSpunta(u"art73"_s, u"Documento emesso ai sensi art.73 DPR 633/72"_s, &Borftepa::art73));
    spunte->addSpacing(24);
    spunte->addWidget(
        creaSpunta(u"esig"_s, u"Documento con iva ad esigibilità differita"_s, &Borftepa::esig));
    spunte->addStretch();
    colonna->addWidget(insieme);
    colonna->addLayout(spunte);
    return colonna;
}

QLayout* VistaBorftepa::creaRiferimenti() {
    using enum TestoFpa;
    auto* griglia = new QGridLayout;
    griglia->setVerticalSpacing(8);
    int colonna = 1;
    for (const QString& testo : {u"Numero"_s, u"Data"_s, u"Numero Item"_s, u"Commessa"_s})
        griglia->addWidget(new QLabel(testo), 0, colonna++);
    riga(griglia, 1, u"Documento"_s, creaTesto(TestoFpa::NumeroDdt, u"Documento di trasporto, numero"_s, 20));
    griglia->addWidget(creaData(DataFpa::Ddt, u"Documento di trasporto, data"_s), 1, 2);
    creaRiferimento(griglia, 2, u"Ordine"_s, {OrdineNumero, DataFpa::Ordine, OrdineItem, OrdineCommessa});
    creaRiferimento(griglia, 3, u"Contratto"_s,
                    {ContrattoNumero, DataFpa::Contratto, ContrattoItem, ContrattoCommessa});
    creaRiferimento(griglia, 4, u"Convenzione"_s,
                    {ConvenzioneNumero, DataFpa::Convenzione, ConvenzioneItem, ConvenzioneCommessa});
    creaRiferimento(griglia, 5, u"Ricezione"_s,
                    {RicezioneNumero, DataFpa::Ricezione, RicezioneItem, RicezioneCommessa});
    griglia->addWidget(new QLabel(u"Codici progetto investimento pubblico / gara"_s), 6, 1, 1, 4);
    auto* codici = new QHBoxLayout;
    codici->setSpacing(6);
    for (const auto& [casella, testo] :
         {std::pair{CodiceCup, u"Codice CUP"_s}, std::pair{CodiceCig, u"Codice CIG"_s}}) {
        QLineEdit* campo = creaTesto(casella, testo, 15);
        codici->addWidget(didascalia(testo, campo));
        codici->addWidget(campo);
        codici->addSpacing(8);
    }
    codici->addStretch();
    griglia->addLayout(codici, 7, 1, 1, 4);
    griglia->setRowStretch(8, 1);
    return griglia;
}

void VistaBorftepa::creaRiferimento(QGridLayout* griglia, int linea, const QString& nome,
                                    const CaselleRiferimento& caselle) {
    riga(griglia, linea, nome, creaTesto(caselle.numero, nome + u", numero"_s, 20));
    griglia->addWidget(creaData(caselle.data, nome + u", data"_s), linea, 2);
    griglia->addWidget(creaTesto(caselle.item, nome + u", numero item"_s, 10), linea, 3);
    griglia->addWidget(creaTesto(caselle.commessa, nome + u", commessa"_s, 10), linea, 4);
}

QLayout* VistaBorftepa::creaPagamento() {
    auto* griglia = new QGridLayout;
    griglia->setVerticalSpacing(8);
    riga(griglia, 0, u"Vettore"_s, creaVettori());
    griglia->addWidget(new QLabel(u"Ritenuta d'acconto"_s), 1, 1);
    riga(griglia, 2, u"Tipo ritenuta"_s, creaLista(ListaFpa::TipoRitenuta, u"Tipo ritenuta"_s));
    riga(griglia, 3, u"Causale pagamanto"_s, creaLista(ListaFpa::Causale, u"Causale pagamanto"_s));
    griglia->addWidget(new QLabel(u"(come da modello 770S)"_s), 4, 1);
    riga(griglia, 5, u"Condizioni pagamento"_s, creaLista(ListaFpa::Condizioni, u"Condizioni pagamento"_s));
    riga(griglia, 6, u"Modalità pagamento"_s, creaLista(ListaFpa::Modalita, u"Modalità pagamento"_s));
    griglia->setRowStretch(7, 1);
    griglia->setColumnStretch(1, 1);
    return griglia;
}

QLineEdit* VistaBorftepa::creaTesto(TestoFpa quale, const QString& descrizione, int caratteri) {
    auto* campo = new CampoTesto(u"Text2(%1)"_s.arg(ordinale(quale)), descrizione, caratteri);
    lega(campo, quale);
    return campo;
}

QWidget* VistaBorftepa::creaData(DataFpa quale, const QString& descrizione) {
    const int indice = ordinale(quale);
    auto* casella =
        new CampoData(u"dsca(%1)"_s.arg(indice), u"ddsca(%1)"_s.arg(indice), descrizione, m_form.bordata());
    QLineEdit* campo = casella->campo();
    lega(campo, quale);
    legami.segnala(campo, [this, quale] { return avvisoData(m_form.testo(quale)); });
    legami.lasciato(campo, [this, quale] { m_form.lasciaData(quale); });
    connect(campo, &QLineEdit::textEdited, this, [this, campo, quale] {
        if (campo->hasFocus() && m_form.dataCompleta(quale))
            legami.esegui([&] { m_form.invio(quale); });
    });
    return casella;
}

void VistaBorftepa::lega(QLineEdit* campo, PostoFpa posto) {
    m_caselle[indiceFpa(posto)] = campo;
    legami.testo(
        campo, [this, posto] { return m_form.testo(posto); },
        [this, posto](const QString& t) { m_form.cambia(posto, t); });
    invio.passo(campo, [this, posto] { legami.esegui([&] { m_form.invio(posto); }); });
}

QComboBox* VistaBorftepa::creaLista(ListaFpa lista, const QString& descrizione) {
    auto* scelta = new QComboBox;
    scelta->setObjectName(u"Combo7(%1)"_s.arg(ordinale(lista)));
    scelta->setAccessibleName(descrizione);
    scelta->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    scelta->setMinimumContentsLength(20);
    scelta->addItems(vociFpa(lista));
    legami.lista(
        scelta, [this, lista] { return m_form.scelta(lista); },
        [this, lista](int i) { m_form.scegli(lista, i); });
    return scelta;
}

/// The carrier entered before is no row of the list: it shows where none is chosen.
QComboBox* VistaBorftepa::creaVettori() {
    m_vettori = new QComboBox;
    m_vettori->setObjectName(u"Combo1"_s);
    m_vettori->setAccessibleName(u"Vettore"_s);
    m_vettori->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_vettori->setMinimumContentsLength(20);
    legami.altro([this] { m_vettori->setPlaceholderText(m_form.nomeVettore()); });
    legami.lista(
        m_vettori, [this] { return m_form.vettore(); }, [this](int i) { m_form.scegliVettore(i); });
    return m_vettori;
}

QWidget* VistaBorftepa::creaSpunta(const QString& nome, const QString& testo, bool Borftepa::*dato) {
    auto* spunta = new QCheckBox(testo);
    spunta->setObjectName(nome);
    legami.spunta(
        spunta, [this, dato] { return m_form.*dato; }, [this, dato](bool acceso) { m_form.*dato = acceso; });
    return spunta;
}

QWidget* VistaBorftepa::creaComandi() {
    auto* barra = new BarraComandi(legami);
    barra->comando(u"comando(4)"_s, u"Esci"_s, u"esci"_s, u"Ctrl+Q"_s, [this] { m_form.lascia(); });
    barra->comando(u"comando(1)"_s, u"Genera fattura"_s, u"genera"_s, u"F10"_s, [this] { genera(); });
    auto* controllo =
        barra->comando(u"controlla"_s, u"Controlla"_s, u"controlla"_s, u"F8"_s, [this] { controlla(); });
    legami.abilitato(controllo, [this] { return m_form.generato(); });
    legami.altro([this, controllo, solito = controllo->toolTip()] {
        controllo->setToolTip(m_form.generato()
                                  ? solito
                                  : u"Controlla il file che \"Genera fattura\" (F10) scrive: da quando "
                                    u"lo schermo è aperto non è ancora stato generato"_s);
    });
    return barra;
}

void VistaBorftepa::genera() {
    m_form.genera();
    if (m_rilievi && m_rilievi->isVisible())
        controlla();
}

void VistaBorftepa::controlla() {
    const auto rilievi = m_form.controlla();
    if (!rilievi) {
        chiudiRilievi();
        return;
    }
    if (!m_rilievi)
        m_rilievi = new FinestraRilievi(this);
    m_rilievi->mostra(*rilievi);
}

void VistaBorftepa::chiudiRilievi() {
    if (m_rilievi)
        m_rilievi->close();
}

void VistaBorftepa::hideEvent(QHideEvent* evento) {
    Vista::hideEvent(evento);
    if (!evento->spontaneous())
        chiudiRilievi();
}

void VistaBorftepa::attiva() {
    m_form.attiva();
    m_vettori->clear();
    m_vettori->addItems(m_form.vettori());
    legami.aggiorna();
}

void VistaBorftepa::lascia() {
    m_form.lascia();
}

QString VistaBorftepa::titolo() const {
    return u"Fattura elettronica PA"_s;
}

} // namespace bor
