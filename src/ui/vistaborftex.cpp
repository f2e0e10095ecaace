#include "ui/vistaborftex.h"

#include "document/borftex.h"
#include "ui/barracomandi.h"
#include "ui/campi.h"
#include "ui/grigliaborftex.h"

#include <QAbstractListModel>
#include <QCheckBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace bor {

/// The items of the article list, made as they come into view.
class ModelloArticoli : public QAbstractListModel {
public:
    ModelloArticoli(const ListaArticoli& lista, QObject* parent)
        : QAbstractListModel(parent), m_lista(lista) {}

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : m_lista.quanti();
    }
    QVariant data(const QModelIndex& cella, int ruolo) const override {
        if (ruolo != Qt::DisplayRole && ruolo != Qt::ToolTipRole)
            return {};
        return m_lista.testo(cella.row());
    }
    void rinnova() {
        beginResetModel();
        endResetModel();
    }

private:
    const ListaArticoli& m_lista;
};

namespace {

QLabel* valoreInVista(const QString& nome, const QString& didascalia) {
    auto* etichetta = new QLabel;
    etichetta->setObjectName(nome);
    etichetta->setAccessibleName(didascalia);
    QFont carattere = etichetta->font();
    carattere.setBold(true);
    etichetta->setFont(carattere);
    etichetta->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return etichetta;
}

} // namespace

VistaBorftex::VistaBorftex(Borftex& form, QWidget* parent)
    : Vista(parent), m_form(form), m_griglia(new GrigliaBorftex(form, legami, invio)),
      m_modello(new ModelloArticoli(form.lista(), this)) {
    // The model follows the list before anything else looks at it.
    legami.altro([this] { aggiornaLista(); });
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(6);
    auto* corpo = new QHBoxLayout;
    corpo->setSpacing(10);
    auto* sinistra = new QVBoxLayout;
    sinistra->addWidget(m_griglia, 1);
    sinistra->addWidget(creaTotali());
    corpo->addLayout(sinistra, 5);
    corpo->addWidget(creaLista(), 2);
    layout->addWidget(creaOpzioni());
    layout->addLayout(corpo, 1);
    auto* stato = new QLabel;
    stato->setObjectName(u"listx"_s);
    stato->setAccessibleName(u"Articolo della riga"_s);
    stato->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    stato->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    stato->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    legami.etichetta(stato, [this] { return m_form.listx(); });
    layout->addWidget(stato);
    layout->addWidget(creaComandi());
    legami.altro([this] {
        if (const auto cella = m_form.prendiFuoco())
            m_griglia->vaiA(*cella);
    });
}

QWidget* VistaBorftex::creaOpzioni() {
    auto* barra = new QWidget;
    auto* layout = new QHBoxLayout(barra);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(16);
    const auto numfat = valoreInVista(u"numfat"_s, u"Documento numero"_s);
    legami.etichetta(numfat, [this] { return m_form.numfat(); });
    layout->addWidget(didascalia(u"Documento numero"_s, numfat));
    layout->addWidget(numfat);
    auto* link = new QLabel;
    link->setObjectName(u"link"_s);
    legami.etichetta(link, [this] { return m_form.link(); });
    layout->addWidget(link);
    layout->addStretch();
    const auto opzione = [&](QAbstractButton* bottone, const QString& nome, std::function<bool()> leggi,
                             std::function<void(bool)> scrivi) {
        bottone->setObjectName(nome);
        bottone->setAccessibleName(bottone->text());
        legami.spunta(bottone, std::move(leggi), std::move(scrivi));
        layout->addWidget(bottone);
    };
    for (int i = 0; i < 2; ++i)
        opzione(
            new QRadioButton(u"Utilizza prezzo di listino %1"_s.arg(i + 1)), u"prezz(%1)"_s.arg(i),
            [this, i] { return m_form.listino() == i + 1; },
            [this, i](bool) { m_form.cambiaListino(i + 1); });
    opzione(
        new QCheckBox(u"Utilizza prezzi comprensivi di iva (scorporo)"_s), u"scorporo"_s,
        [this] { return m_form.scorporo(); }, [this](bool acceso) { m_form.cambiaScorporo(acceso); });
    opzione(
        new QCheckBox(u"Utilizza lettore di codici a barre"_s), u"barcode"_s,
        [this] { return m_form.barcode(); }, [this](bool acceso) { m_form.cambiaBarcode(acceso); });
    return barra;
}

QWidget* VistaBorftex::creaLista() {
    auto* riquadro = new QWidget;
    auto* layout = new QVBoxLayout(riquadro);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* guida = new QLabel(u"Per cercare un articolo tramite la descrizione, inserirla e premere F1)"_s);
    guida->setObjectName(u"Label1(10)"_s);
    guida->setWordWrap(true);
    m_lista = new QListView;
    m_lista->setObjectName(u"List1"_s);
    m_lista->setAccessibleName(u"Articoli"_s);
    m_lista->setModel(m_modello);
    m_lista->setUniformItemSizes(true);
    m_lista->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_lista->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(m_lista, &QListView::clicked, this, [this] { scegliArticolo(); });
    invio.passo(m_lista, [this] { scegliArticolo(); });
    layout->addWidget(guida);
    layout->addWidget(m_lista, 1);
    legami.visibile(guida, [this] { return m_form.listaVisibile(); });
    legami.visibile(m_lista, [this] { return m_form.listaVisibile(); });
    return riquadro;
}

QWidget* VistaBorftex::creaTotali() {
    auto* barra = new QWidget;
    auto* layout = new QHBoxLayout(barra);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto voce = [&](const QString& testo, const QString& nome, std::function<QString()> leggi) {
        auto* etichetta = valoreInVista(nome, testo);
        legami.etichetta(etichetta, std::move(leggi));
        layout->addWidget(didascalia(testo, etichetta));
        layout->addWidget(etichetta);
        layout->addSpacing(18);
    };
    voce(u"Numero pezzi"_s, u"tota(2)"_s, [this] { return m_form.tota(2); });
    voce(u"Totale imponibile"_s, u"tota(0)"_s, [this] { return m_form.tota(0); });
    voce(u"Totale complessivo"_s, u"tota(1)"_s, [this] { return m_form.tota(1); });
    layout->addStretch();
    voce(u"Rit.Acconto %"_s, u"alr"_s, [this] { return m_form.alr(); });
    voce(u"Importo"_s, u"imr"_s, [this] { return m_form.imr(); });
    return barra;
}

QWidget* VistaBorftex::creaComandi() {
    auto* barra = new BarraComandi(legami);
    barra->comando(u"comando(0)"_s, u"Indietro"_s, u"indietro"_s, {}, [this] { m_form.indietro(); })
        ->setToolTip(u"Indietro (Esc)"_s);
    barra->comando(u"comando(1)"_s, u"Conferma"_s, u"conferma"_s, u"F10"_s, [this] { m_form.conferma(); });
    barra->spazio();
    barra->comando(u"comando(2)"_s, u"Inserisci riga"_s, u"inserisci"_s, u"F7"_s,
                   [this] { m_form.inserisciRiga(); });
    barra->comando(u"comando(3)"_s, u"Elimina riga"_s, u"togli"_s, u"F8"_s, [this] { m_form.eliminaRiga(); });
    barra->comando(u"riordina"_s, u"Riordina"_s, u"riordina"_s, u"F6"_s, [this] { m_form.riordina(); });
    barra->comando(u"command3d3"_s, u"Articoli"_s, u"lista"_s, u"F3"_s, [this] { m_form.apriLista(); });
    return barra;
}

void VistaBorftex::attiva() {
    m_griglia->caricaVociIva();
    legami.esegui([this] { m_form.attiva(); });
}

void VistaBorftex::lascia() {
    m_form.indietro();
}

QString VistaBorftex::titolo() const {
    return m_form.titolo();
}

void VistaBorftex::aggiornaLista() {
    if (m_edizione != m_form.edizioneLista()) {
        m_edizione = m_form.edizioneLista();
        m_modello->rinnova();
    }
    const QModelIndex corrente = m_modello->index(m_form.posizioneLista());
    if (m_lista->hasFocus() || m_lista->currentIndex() == corrente)
        return;
    m_lista->setCurrentIndex(corrente);
    m_lista->scrollTo(corrente, QAbstractItemView::PositionAtTop);
}

void VistaBorftex::scegliArticolo() {
    legami.esegui([this] { m_form.scegliArticolo(m_lista->currentIndex().row()); });
}

} // namespace bor
