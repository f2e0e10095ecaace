#include "ui/vistaborftel.h"

#include "ui/barracomandi.h"
#include "ui/finestrafattura.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

VistaBorftel::VistaBorftel(Borftel& form, QWidget* parent)
    : Vista(parent), m_form(form), m_campi(legami, form.bordata()) {
    m_pila = new QStackedWidget;
    m_pila->addWidget(creaDocumento());
    m_pila->addWidget(creaRighe());
    m_pila->addWidget(creaAzienda());
    legami.altro([this] { m_pila->setCurrentIndex(static_cast<int>(m_form.prospetto())); });
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(6);
    layout->addWidget(creaStato());
    layout->addWidget(creaScelta());
    layout->addWidget(m_pila, 1);
    layout->addWidget(creaComandi());
    legami.altro([this] { seguiFuoco(); });
}

QWidget* VistaBorftel::creaStato() {
    auto* stato = new QWidget;
    auto* colonna = new QVBoxLayout(stato);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(2);
    auto* esito = new QLabel;
    esito->setObjectName(u"esito"_s);
    esito->setStyleSheet(u"font-weight: bold;"_s);
    legami.etichetta(esito, [this] { return m_form.esito(); });
    auto* file = new QLabel;
    file->setObjectName(u"statofile"_s);
    file->setTextFormat(Qt::PlainText);
    file->setWordWrap(true);
    legami.etichetta(file, [this] { return m_form.statoFile(); });
    colonna->addWidget(esito);
    colonna->addWidget(rilievi(PostoFel::File));
    colonna->addWidget(file);
    return stato;
}

QWidget* VistaBorftel::creaScelta() {
    auto* barra = new BarraProspetti(legami, u"Prospetti della fattura elettronica"_s);
    const auto aggiungi = [&](const QString& nome, const QString& testo, const QString& tasto,
                              Prospetto prospetto) {
        auto* bottone = barra->prospetto(
            nome, testo, tasto, [this, prospetto] { return m_form.prospetto() == prospetto; },
            [this, prospetto] { mostraProspetto(prospetto); });
        legami.altro(
            [this, bottone, prospetto] { segna(bottone, "avviso", m_form.rilievi().grave(prospetto)); });
    };
    aggiungi(u"prospetto(0)"_s, u"Destinatario e documento"_s, u"Ctrl+1"_s, Prospetto::Documento);
    aggiungi(u"prospetto(1)"_s, u"Righe e riepilogo"_s, u"Ctrl+2"_s, Prospetto::Righe);
    aggiungi(u"prospetto(2)"_s, u"Dati dell'azienda"_s, u"Ctrl+3"_s, Prospetto::Azienda);
    return barra;
}

QWidget* VistaBorftel::creaComandi() {
    auto* barra = new BarraComandi(legami);
    barra->comando(u"esci"_s, u"Esci"_s, u"esci"_s, u"Ctrl+Q"_s, [this] { m_form.lascia(); });
    m_genera =
        barra->comando(u"genera"_s, u"Genera fattura"_s, u"genera"_s, u"F10"_s, [this] { m_form.genera(); });
    auto* registra = barra->comando(u"registra"_s, u"Registra i dati"_s, u"salva"_s, u"F2"_s,
                                    [this] { m_form.registra(); });
    legami.abilitato(registra, [this] { return m_form.modificato(); });
    barra->spazio();
    barra->comando(u"rilievo"_s, u"Rilievo seguente"_s, u"controlla"_s, u"F8"_s,
                   [this] { m_form.vaiAlRilievo(); });
    barra->comando(u"leggi"_s, u"Leggi"_s, u"anteprima"_s, u"F7"_s, [this] { leggi(); });
    barra->spazio();
    auto* copia =
        barra->comando(u"copia"_s, u"Copia il percorso"_s, u"copia"_s, u"F5"_s, [this] { copiaPercorso(); });
    legami.abilitato(copia, [this] { return m_form.generato(); });
    barra->comando(u"cartella"_s, u"Apri la cartella"_s, u"cartella"_s, u"F6"_s,
                   [this] { m_form.apriCartella(); });
    barra->spazio();
    auto* scartata = barra->comando(u"scartata"_s, u"File scartato"_s, u"togli"_s, u"F11"_s,
                                    [this] { m_form.scartata(); });
    legami.abilitato(scartata, [this] { return m_form.generato(); });
    return barra;
}

void VistaBorftel::mostraProspetto(Prospetto prospetto) {
    legami.eseguiComando([&] { m_form.mostra(prospetto); });
    vaiAlPrimo(m_percorsi[static_cast<std::size_t>(prospetto)]);
}

void VistaBorftel::vaiAlPrimo(const std::vector<QWidget*>& campi) {
    const auto primo = std::ranges::find_if(campi, [](const QWidget* campo) { return campo->isVisible(); });
    vaiA(primo == campi.end() ? m_genera : *primo);
}

void VistaBorftel::leggi() {
    if (const auto xml = m_form.daLeggere())
        (new FinestraFattura(*xml, m_form.percorso(), this))->open();
}

void VistaBorftel::copiaPercorso() {
    QGuiApplication::clipboard()->setText(m_form.percorso());
}

void VistaBorftel::seguiFuoco() {
    const auto posto = m_form.prendiFuoco();
    if (!posto)
        return;
    const Prospetto prospetto = prospettoDi(*posto);
    m_form.mostra(prospetto);
    m_pila->setCurrentIndex(static_cast<int>(prospetto));
    if (*posto == PostoFel::Nature)
        vaiAlPrimo(m_nature);
    else if (QWidget* campo = m_posti[*posto])
        vaiA(campo);
}

void VistaBorftel::attiva() {
    m_form.attiva();
    legami.aggiorna();
}

void VistaBorftel::lascia() {
    m_form.lascia();
}

QString VistaBorftel::titolo() const {
    return u"Fattura elettronica"_s;
}

} // namespace bor
