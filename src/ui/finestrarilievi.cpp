#include "ui/finestrarilievi.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace bor {

FinestraRilievi::FinestraRilievi(const std::vector<Rilievo>& rilievi, QWidget* parent) : QDialog(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"rilievi"_s);
    setWindowTitle(u"Controllo della fattura elettronica"_s);
    auto* esito =
        new QLabel(rilievi.empty()
                       ? u"Nessun rilievo: il file si può spedire."_s
                       : u"Il sistema che riceve il file lo rifiuterebbe. Rilievi: %1"_s.arg(rilievi.size()));
    esito->setObjectName(u"esito"_s);
    auto* lista = new QListWidget;
    lista->setObjectName(u"listaRilievi"_s);
    lista->setAccessibleName(u"Rilievi"_s);
    lista->setWordWrap(true);
    lista->setSpacing(4);
    lista->setAlternatingRowColors(true);
    for (const Rilievo& rilievo : rilievi)
        lista->addItem(testoRilievo(rilievo));
    lista->setVisible(!rilievi.empty());
    auto* chiudi = new QDialogButtonBox;
    chiudi->addButton(u"Chiudi"_s, QDialogButtonBox::RejectRole);
    connect(chiudi, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(esito);
    layout->addWidget(lista, 1);
    layout->addWidget(chiudi);
    if (!rilievi.empty())
        resize(760, 480);
}

} // namespace bor
