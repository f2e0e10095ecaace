#include "ui/finestrainformazioni.h"

#include "archive/disco.h"
#include "ui/vista.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QLabel* daLeggere(const QString& testo) {
    auto* etichetta = new QLabel(testo);
    etichetta->setTextFormat(Qt::PlainText);
    etichetta->setTextInteractionFlags(Qt::TextSelectableByMouse);
    etichetta->setWordWrap(true);
    return etichetta;
}

} // namespace

FinestraInformazioni::FinestraInformazioni(const Diagnosi& diagnosi, const QString& testo,
                                           const QString& cartella, QWidget* parent)
    : QDialog(parent), m_esito(daLeggere({})) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"finestraInformazioni"_s);
    setWindowTitle(u"Informazioni"_s);
    offriGuida(this, u"registro"_s);
    auto* layout = new QVBoxLayout(this);
    auto* righe = new QFormLayout;
    for (const auto& [didascalia, valore] : voci(diagnosi))
        righe->addRow(didascalia + u':', daLeggere(valore));
    layout->addLayout(righe);
    const QString avvertimenti = u"Avvertimenti di questa esecuzione: %1"_s.arg(diagnosi.avvertenze.size());
    layout->addWidget(new QLabel(avvertimenti));
    auto* elenco = new QPlainTextEdit(diagnosi.avvertenze.join(u'\n'));
    elenco->setObjectName(u"avvertenze"_s);
    elenco->setAccessibleName(avvertimenti);
    elenco->setReadOnly(true);
    elenco->setTabChangesFocus(true);
    layout->addWidget(elenco, 1);
    m_esito->setObjectName(u"esitoAssistenza"_s);
    m_esito->setText(u"Il testo per l'assistenza non contiene nomi di clienti né importi."_s);
    layout->addWidget(m_esito);
    auto* bottoni = new QDialogButtonBox;
    QPushButton* assistenza = bottoni->addButton(u"&Testo per l'assistenza"_s, QDialogButtonBox::ActionRole);
    assistenza->setObjectName(u"assistenza"_s);
    assistenza->setToolTip(u"Lo mette negli appunti e in un file (Alt+T)"_s);
    assistenza->setDefault(true);
    connect(assistenza, &QPushButton::clicked, this,
            [=, this] { dai(testo, cartella + u"/assistenza-borlano.txt"_s); });
    connect(bottoni->addButton(u"&Chiudi"_s, QDialogButtonBox::RejectRole), &QPushButton::clicked, this,
            &QDialog::reject);
    layout->addWidget(bottoni);
    resize(640, 440);
}

void FinestraInformazioni::dai(const QString& testo, const QString& percorso) {
    QGuiApplication::clipboard()->setText(testo);
    const bool scritto = Disco().scriviFile(percorso, testo.toUtf8());
    m_esito->setText(scritto ? u"Il testo è negli appunti, e nel file "_s + QDir::toNativeSeparators(percorso)
                             : u"Il testo è negli appunti; il file %1 non si può scrivere."_s.arg(percorso));
}

} // namespace bor
