#include "ui/vistaborftex.h"

#include "document/borftex.h"
#include "ui/affiancati.h"
#include "ui/barracomandi.h"
#include "ui/campi.h"
#include "ui/finestraincolla.h"
#include "ui/finestrastorico.h"
#include "ui/flusso.h"
#include "ui/grigliaborftex.h"

#include <QAbstractListModel>
#include <QCheckBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QRadioButton>

#include <utility>

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

using Comando = Borftex::Comando;
using Opzione = Borftex::Opzione;

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
      m_modello(new ModelloArticoli(form.articoli().lista(), this)) {
    // The model follows the list before anything else looks at it.
    legami.altro([this] { aggiornaLista(); });
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(6);
    auto* corpo = new Affiancati;
    auto* sinistra = new QVBoxLayout;
    sinistra->addWidget(m_griglia, 1);
    sinistra->addWidget(creaTotali());
    corpo->aggiungi(sinistra, 3);
    corpo->aggiungi(creaLista(), 1);
    layout->addWidget(creaOpzioni());
    layout->addWidget(corpo, 1);
    altriTasti = {{u"F1"_s, u"In una descrizione: cerca l'articolo che comincia così; ancora: il seguente"_s},
                  {u"Su, Giù"_s, u"Lo stesso campo della riga sopra, di quella sotto"_s},
                  {u"PagSu, PagGiù"_s, u"Le righe precedenti, le seguenti"_s},
                  {u"Ctrl+Fine"_s, u"La prima riga libera"_s}};
    altriTasti += tastiRighe();
    auto* stato = new QLabel;
    stato->setObjectName(u"listx"_s);
    stato->setAccessibleName(u"Articolo della riga"_s);
    stato->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    stato->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    stato->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    legami.altro([this, stato] {
        stato->setText(m_form.listx());
        stato->setToolTip(m_form.listx());
    });
    layout->addWidget(stato);
    layout->addWidget(creaComandi());
    legami.altro([this] {
        if (const auto cella = m_form.prendiFuoco())
            m_griglia->vaiA(*cella);
    });
}

QWidget* VistaBorftex::creaOpzioni() {
    auto* barra = new QWidget;
    auto* layout = new Flusso(barra);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(14);
    const auto numfat = valoreInVista(u"numfat"_s, u"Documento numero"_s);
    legami.etichetta(numfat, [this] { return m_form.testi().numfat(); });
    layout->addWidget(conDidascalia(u"Documento numero"_s, numfat));
    auto* link = new QLabel;
    link->setObjectName(u"link"_s);
    legami.etichetta(link, [this] { return m_form.testi().link(); });
    layout->addWidget(link);
    layout->molla();
    const auto opzione = [&](QAbstractButton* bottone, const QString& nome, Opzione quale) {
        bottone->setObjectName(nome);
        bottone->setAccessibleName(bottone->text());
        legami.spunta(
            bottone, [this, quale] { return m_form.opzione(quale); },
            [this, quale](bool accesa) { m_form.cambiaOpzione(quale, accesa); });
        layout->addWidget(bottone);
    };
    for (int i = 0; i < 2; ++i)
        opzione(new QRadioButton(u"Utilizza prezzo di listino %1"_s.arg(i + 1)), u"prezz(%1)"_s.arg(i),
                i == 0 ? Opzione::Listino1 : Opzione::Listino2);
    opzione(new QCheckBox(u"Utilizza prezzi comprensivi di iva (scorporo)"_s), u"scorporo"_s,
            Opzione::Scorporo);
    opzione(new QCheckBox(u"Utilizza lettore di codici a barre"_s), u"barcode"_s, Opzione::Barcode);
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
    legami.visibile(guida, [this] { return m_form.articoli().visibile(); });
    legami.visibile(m_lista, [this] { return m_form.articoli().visibile(); });
    return riquadro;
}

QWidget* VistaBorftex::creaTotali() {
    auto* barra = new QWidget;
    auto* layout = new Flusso(barra);
    layout->setContentsMargins(0, 0, 0, 0);
    using Totale = TestiMerce::Totale;
    const auto voce = [&](const QString& testo, const QString& nome, Totale quale) {
        auto* etichetta = valoreInVista(nome, testo);
        legami.etichetta(etichetta, [this, quale] { return m_form.testi().totale(quale); });
        layout->addWidget(conDidascalia(testo, etichetta));
        layout->spazio(18);
    };
    voce(u"Numero pezzi"_s, u"tota(2)"_s, Totale::Pezzi);
    voce(u"Totale imponibile"_s, u"tota(0)"_s, Totale::Imponibile);
    voce(u"Totale complessivo"_s, u"tota(1)"_s, Totale::Complessivo);
    layout->molla();
    voce(u"Rit.Acconto %"_s, u"alr"_s, Totale::AliquotaRitenuta);
    voce(u"Importo"_s, u"imr"_s, Totale::Ritenuta);
    return barra;
}

QWidget* VistaBorftex::creaComandi() {
    auto* barra = new BarraComandi(legami);
    const auto comando = [&](const QString& nome, const QString& testo, const QString& icona,
                             const QString& tasto, Comando quale) {
        return barra->comando(nome, testo, icona, tasto, [this, quale] { m_form.esegui(quale); });
    };
    comando(u"comando(0)"_s, u"Indietro"_s, u"indietro"_s, {}, Comando::Indietro)
        ->setToolTip(u"Indietro (Esc)"_s);
    comando(u"comando(1)"_s, u"Conferma"_s, u"conferma"_s, u"F10"_s, Comando::Conferma);
    barra->spazio();
    comando(u"comando(2)"_s, u"Inserisci riga"_s, u"inserisci"_s, u"F7"_s, Comando::InserisciRiga);
    comando(u"comando(3)"_s, u"Elimina riga"_s, u"togli"_s, u"F8"_s, Comando::EliminaRiga);
    comando(u"riordina"_s, u"Riordina"_s, u"riordina"_s, u"F6"_s, Comando::Riordina);
    comando(u"command3d3"_s, u"Articoli"_s, u"lista"_s, u"F3"_s, Comando::ApriLista);
    barra->comando(u"storico"_s, u"Storico"_s, u"storico"_s, u"Ctrl+H"_s, [this] { apriStorico(); });
    return barra;
}

void VistaBorftex::apriStorico() {
    if (!m_storico)
        return;
    const auto prendi = [this](const VenditaStorica& vendita) {
        legami.esegui([&] { m_form.prendi(vendita); });
    };
    (new FinestraStorico(*m_storico, m_form.storico(), prendi, this))->open();
}

void VistaBorftex::attiva() {
    m_griglia->caricaVociIva();
    legami.esegui([this] { m_form.attiva(); });
}

void VistaBorftex::lascia() {
    m_form.esegui(Comando::Indietro);
}

QString VistaBorftex::titolo() const {
    return m_form.testi().titolo();
}

void VistaBorftex::aggiornaLista() {
    const ElencoArticoli& articoli = m_form.articoli();
    if (std::exchange(m_edizione, articoli.edizione()) != articoli.edizione())
        m_modello->rinnova();
    const QModelIndex corrente = m_modello->index(articoli.posizione());
    if (m_lista->hasFocus() || m_lista->currentIndex() == corrente)
        return;
    m_lista->setCurrentIndex(corrente);
    m_lista->scrollTo(corrente, QAbstractItemView::PositionAtTop);
}

void VistaBorftex::scegliArticolo() {
    legami.esegui([this] { m_form.scegliArticolo(m_lista->currentIndex().row()); });
}

} // namespace bor
