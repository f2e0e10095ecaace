#include "ui/grigliaborftex.h"

#include "ui/campi.h"
#include "ui/cursorerighe.h"
#include "ui/finestraincolla.h"
#include "ui/invio.h"
#include "ui/legami.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

using Campo = Borftex::Campo;
using Cella = Borftex::Cella;

struct Colonna {
    QStringView nome;
    QStringView didascalia;
    int caratteri;
    bool numero;
};

constexpr Serie<Colonna, Campo::Artic, Campo::Civ> disposizione({{{u"artic", u"Articolo", 15, false},
                                                                  {u"ds", u"Descrizione", 60, false},
                                                                  {u"um", u"UM", 2, false},
                                                                  {u"quantita", u"Quantità", 10, true},
                                                                  {u"sc1", u"Primo sconto", 3, true},
                                                                  {u"sc2", u"Secondo sconto", 3, true},
                                                                  {u"prezzo", u"Prezzo", 12, true},
                                                                  {u"civ", u"Iva", 2, false}}});

/// Those of the window that tells what would be pasted.
constexpr std::array<ColonnaGriglia, 10> colonneIncolla = {{
    {u"Riga", 500, Qt::AlignRight},
    {u"Articolo", 1300},
    {u"Descrizione", 3000},
    {u"UM", 400},
    {u"Quantità", 900, Qt::AlignRight},
    {u"Sc. 1", 500, Qt::AlignRight},
    {u"Sc. 2", 500, Qt::AlignRight},
    {u"Prezzo", 1000, Qt::AlignRight},
    {u"Iva", 400},
    {u"Rilievi", 3000},
}};

/// Columns of the layout: the row's number, the boxes, the row's rate and amount.
constexpr int colonnaDi(Campo campo) {
    return 1 + ordinale(campo);
}
constexpr int colonnaAliquota = colonnaDi(Campo::Civ) + 1;
constexpr int colonnaImporto = colonnaAliquota + 1;

/// The keys of the boxes that move through the rows or look for an article.
std::optional<Borftex::Comando> comandoDi(QKeyCombination tasti) {
    using Comando = Borftex::Comando;
    // The arrows of some keyboards count as keys of their number pad.
    const Qt::KeyboardModifiers modi = tasti.keyboardModifiers() & ~Qt::KeypadModifier;
    if (modi == Qt::ControlModifier && tasti.key() == Qt::Key_End)
        return Comando::PrimaLibera;
    if (modi != Qt::NoModifier)
        return std::nullopt;
    switch (tasti.key()) {
    case Qt::Key_F1:
        return Comando::CercaDescrizione;
    case Qt::Key_Up:
        return Comando::RigaSu;
    case Qt::Key_Down:
        return Comando::RigaGiu;
    case Qt::Key_PageUp:
        return Comando::PaginaSu;
    case Qt::Key_PageDown:
        return Comando::PaginaGiu;
    default:
        return std::nullopt;
    }
}

} // namespace

GrigliaBorftex::GrigliaBorftex(Borftex& form, Legami& legami, PercorsoInvio& invio, QWidget* parent)
    : QWidget(parent), m_form(form), m_legami(legami), m_invio(invio),
      m_cursore(cursoreRighe(legami, form, u"Righe del documento"_s)), m_listaIva(new QListWidget(this)) {
    auto* griglia = new QGridLayout(this);
    griglia->setContentsMargins(0, 0, 0, 0);
    griglia->setHorizontalSpacing(3);
    griglia->setVerticalSpacing(3);
    creaTestate(griglia);
    for (int linea = 0; linea < Borftex::linee; ++linea)
        creaLinea(griglia, linea);
    griglia->setColumnStretch(colonnaDi(Campo::Ds), 1);
    constexpr int molto = 100;
    for (int linea = 0; linea < Borftex::linee; ++linea)
        griglia->setRowStretch(linea + 1, molto);
    griglia->setRowStretch(Borftex::linee + 1, 1);
    m_cursore->setFocusPolicy(Qt::StrongFocus);
    griglia->addWidget(m_cursore, 1, colonnaImporto + 1, Borftex::linee, 1);
    creaListaIva();
}

void GrigliaBorftex::creaTestate(QGridLayout* griglia) {
    constexpr int doppia = 2;
    const auto testata = [&](const QString& testo, int colonna, bool numero, int larghezza = 1) {
        griglia->addWidget(new QLabel(testo), 0, colonna, 1, larghezza,
                           numero ? Qt::AlignRight : Qt::Alignment(Qt::AlignLeft));
    };
    const auto diCampo = [&](const QString& testo, Campo campo) {
        testata(testo, colonnaDi(campo), disposizione[campo].numero);
    };
    diCampo(u"Articolo"_s, Campo::Artic);
    diCampo(u"Descrizione"_s, Campo::Ds);
    diCampo(u"UM"_s, Campo::Um);
    diCampo(u"Quantità"_s, Campo::Quantita);
    testata(u"Sconti"_s, colonnaDi(Campo::Sc1), false, doppia);
    diCampo(u"Prezzo"_s, Campo::Prezzo);
    diCampo(u"Iva"_s, Campo::Civ);
    testata(u"Importo"_s, colonnaImporto, true);
}

void GrigliaBorftex::creaLinea(QGridLayout* griglia, int linea) {
    const auto mostra = [&](QStringView nome, QStringView didascalia, int colonna, int caratteri,
                            const Legami::Leggi& leggi) {
        auto* etichetta = new QLabel;
        etichetta->setObjectName(u"%1(%2)"_s.arg(nome).arg(linea));
        etichetta->setAccessibleName(u"%1, riga %2"_s.arg(didascalia).arg(linea + 1));
        etichetta->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        etichetta->setMinimumWidth(fontMetrics().horizontalAdvance(u'0') * caratteri);
        m_legami.etichetta(etichetta, leggi);
        griglia->addWidget(etichetta, linea + 1, colonna);
    };
    mostra(u"numero", u"Numero della riga", 0, 3,
           [this, linea] { return QString::number(m_form.finestra().riga(linea)); });
    for (Campo campo = Campo::Artic; campo <= Campo::Civ; campo = prossimo(campo))
        griglia->addWidget(creaCampo({campo, linea}), linea + 1, colonnaDi(campo));
    mostra(u"aliquota", u"Aliquota iva", colonnaAliquota, 4,
           [this, linea] { return m_form.righe().aliquota(m_form.finestra().riga(linea)); });
    mostra(u"importo", u"Importo", colonnaImporto, 9,
           [this, linea] { return m_form.righe().importo(m_form.finestra().riga(linea)); });
}

QLineEdit* GrigliaBorftex::creaCampo(Cella cella) {
    const Colonna& modello = disposizione[cella.campo];
    const QString nome = u"%1(%2)"_s.arg(modello.nome).arg(cella.linea);
    const QString didascalia = u"%1, riga %2"_s.arg(modello.didascalia).arg(cella.linea + 1);
    CampoTesto* nuovo = modello.numero ? new CampoImporto(nome, didascalia)
                                       : new CampoTesto(nome, didascalia, modello.caratteri);
    constexpr int minimaDescrizione = 22;
    const int lettera = fontMetrics().horizontalAdvance(u'0');
    if (cella.campo == Campo::Ds)
        nuovo->setMinimumWidth(lettera * minimaDescrizione);
    else
        nuovo->setFixedWidth(lettera * (modello.caratteri + 2));
    // The rows share the height that the window has to give.
    nuovo->setSizePolicy(nuovo->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    nuovo->setMaximumHeight(fontMetrics().height() * 5 / 2);
    m_campi[cella.linea][cella.campo] = nuovo;

    const auto leggi = [this, cella] { return m_form.testo(cella); };
    if (cella.campo == Campo::Civ) {
        m_legami.testo(nuovo, leggi);
        nuovo->setFocusPolicy(Qt::StrongFocus);
    } else {
        m_legami.testo(nuovo, leggi, [this, cella](const QString& testo) { m_form.cambia(cella, testo); });
    }
    m_legami.altro([this, nuovo, cella] { segnaScelta(nuovo, m_form, cella.linea); });
    m_legami.segnala(nuovo, [this, cella] { return m_form.avviso(cella); });
    m_legami.entrato(nuovo, [this, cella] { m_form.entra(cella); });
    m_legami.lasciato(nuovo, [this, cella] { m_form.lascia(cella); });
    nuovo->installEventFilter(this);
    m_invio.passo(nuovo, [this, cella] {
        m_legami.esegui([&] {
            if (cella.campo == Campo::Civ && m_form.listaIva())
                m_form.scegliIva(m_listaIva->currentRow());
            else
                m_form.invio(cella);
        });
    });
    return nuovo;
}

void GrigliaBorftex::creaListaIva() {
    m_listaIva->setObjectName(u"Combo1"_s);
    m_listaIva->setAccessibleName(u"Codici iva"_s);
    // The keys stay in the box of the row, which hands them on.
    m_listaIva->setFocusPolicy(Qt::NoFocus);
    m_listaIva->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_listaIva->hide();
    connect(m_listaIva, &QListWidget::itemClicked, this,
            [this] { m_legami.esegui([this] { m_form.scegliIva(m_listaIva->currentRow()); }); });
    m_legami.altro([this] { aggiornaListaIva(); });
}

void GrigliaBorftex::caricaVociIva() {
    m_listaIva->clear();
    m_listaIva->addItems(m_form.testi().vociIva());
}

void GrigliaBorftex::aggiornaListaIva() {
    const std::optional<int> posizione = m_form.listaIva();
    if (posizione.has_value() == m_listaIva->isVisibleTo(this))
        return;
    m_listaIva->setVisible(posizione.has_value());
    const auto* in = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    if (!posizione || !in)
        return;
    constexpr int vociInVista = 10;
    constexpr int margine = 30;
    const int larghezza = m_listaIva->sizeHintForColumn(0) + margine;
    const int altezza = m_listaIva->sizeHintForRow(0) * vociInVista + 2 * m_listaIva->frameWidth();
    const QRect cella = in->geometry();
    const int sopra = cella.top() - altezza;
    const int sotto = cella.bottom() + 1;
    m_listaIva->setGeometry(cella.right() + 1 - larghezza, sotto + altezza > height() ? sopra : sotto,
                            larghezza, altezza);
    m_listaIva->raise();
    m_listaIva->setCurrentRow(*posizione);
    m_listaIva->scrollToItem(m_listaIva->currentItem(), QAbstractItemView::PositionAtCenter);
}

QLineEdit* GrigliaBorftex::campo(Cella cella) const {
    return m_campi[cella.linea][cella.campo];
}

void GrigliaBorftex::vaiA(Cella cella) {
    bor::vaiA(campo(cella));
}

bool GrigliaBorftex::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress)
        return false;
    const auto* tasto = static_cast<QKeyEvent*>(evento);
    const QString nome = oggetto->objectName();
    if (nome.startsWith(u"civ(") && m_form.listaIva() && tastoIva(tasto->key(), tasto->text()))
        return true;
    if (tastoRighe(*tasto, static_cast<QLineEdit&>(*oggetto), m_legami, m_form.appunti(), colonneIncolla,
                   window()))
        return true;
    const auto comando = comandoDi(tasto->keyCombination());
    if (!comando)
        return false;
    m_legami.esegui([&] { m_form.esegui(*comando); });
    return true;
}

bool GrigliaBorftex::tastoIva(int tasto, const QString& testo) {
    const int voce = m_listaIva->currentRow();
    const int ultima = m_listaIva->count() - 1;
    switch (tasto) {
    case Qt::Key_Up:
        m_listaIva->setCurrentRow(std::max(voce - 1, 0));
        return true;
    case Qt::Key_Down:
        m_listaIva->setCurrentRow(std::min(voce + 1, ultima));
        return true;
    case Qt::Key_Home:
        m_listaIva->setCurrentRow(0);
        return true;
    case Qt::Key_End:
        m_listaIva->setCurrentRow(ultima);
        return true;
    case Qt::Key_Escape:
        m_legami.esegui([this] { m_form.esegui(Borftex::Comando::ChiudiIva); });
        return true;
    default:
        if (testo.isEmpty() || !testo.front().isPrint())
            return false;
        m_listaIva->keyboardSearch(testo);
        return true;
    }
}

void GrigliaBorftex::wheelEvent(QWheelEvent* evento) {
    gira(m_cursore, evento);
}

} // namespace bor
