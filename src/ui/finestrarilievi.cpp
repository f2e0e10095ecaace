#include "ui/finestrarilievi.h"

#include "ui/vista.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// "3 rilievi, 1 avviso: ...". Hints alone keep nobody from sending the file.
QString esitoDi(const std::vector<Rilievo>& rilievi) {
    const bool errori = std::ranges::count(rilievi, Gravita::Errore, &Rilievo::gravita) > 0;
    if (errori)
        return contoRilievi(rilievi) + u": il file così non si può spedire."_s;
    const QString avvisi = rilievi.empty() ? QString() : u", "_s + contoRilievi(rilievi);
    return u"Nessun rilievo"_s + avvisi + u": il file si può spedire."_s;
}

} // namespace

FinestraRilievi::FinestraRilievi(QWidget* parent)
    : QDialog(parent), m_esito(new QLabel), m_lista(new QListWidget) {
    setObjectName(u"rilievi"_s);
    setWindowTitle(u"Controllo della fattura elettronica"_s);
    offriGuida(this, u"fattura-pa"_s);
    m_esito->setObjectName(u"esito"_s);
    m_lista->setObjectName(u"listaRilievi"_s);
    m_lista->setAccessibleName(u"Rilievi"_s);
    m_lista->setWordWrap(true);
    m_lista->setSpacing(4);
    m_lista->setAlternatingRowColors(true);
    auto* chiudi = new QDialogButtonBox;
    chiudi->addButton(u"Chiudi"_s, QDialogButtonBox::RejectRole);
    connect(chiudi, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_esito);
    layout->addWidget(m_lista, 1);
    layout->addWidget(chiudi);
    m_lista->hide();
}

void FinestraRilievi::mostra(const std::vector<Rilievo>& rilievi) {
    m_esito->setText(esitoDi(rilievi));
    m_lista->clear();
    for (const Rilievo& rilievo : rilievi)
        m_lista->addItem(testoRilievo(rilievo));
    if (m_lista->isHidden() != rilievi.empty()) {
        m_lista->setVisible(!rilievi.empty());
        resize(rilievi.empty() ? sizeHint() : QSize(760, 480));
    }
    show();
    raise();
}

} // namespace bor
