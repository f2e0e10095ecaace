#include "ui/modelloclienti.h"

#include "register/borsel.h"
#include "ui/griglie.h"

#include <array>

namespace bor {

namespace {

constexpr std::array<QStringView, colonneCliente> intestazioni = {u"Nominativo", u"", u"Indirizzo", u"Città",
                                                                  u"Partita iva"};

} // namespace

ModelloClienti::ModelloClienti(const Borsel& form, QObject* parent)
    : QAbstractTableModel(parent), m_form(form) {}

void ModelloClienti::rinnova() {
    beginResetModel();
    m_righe = m_form.righeGriglia();
    endResetModel();
}

int ModelloClienti::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : m_righe;
}

int ModelloClienti::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : colonneCliente;
}

QVariant ModelloClienti::data(const QModelIndex& indice, int ruolo) const {
    if (!indice.isValid())
        return {};
    if (ruolo == Qt::DisplayRole)
        return m_form.testo(indice.row(), static_cast<ColonnaCliente>(indice.column()));
    if (ruolo == Qt::BackgroundRole) {
        if (const auto colore = m_form.colore(indice.row()))
            return coloreArchivio(*colore);
    }
    return {};
}

QVariant ModelloClienti::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
    if (orientamento != Qt::Horizontal || sezione < 0 || sezione >= colonneCliente)
        return {};
    if (ruolo == Qt::DisplayRole)
        return intestazioni[static_cast<std::size_t>(sezione)].toString();
    if (ruolo == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

} // namespace bor
