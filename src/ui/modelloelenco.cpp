#include "ui/modelloelenco.h"

#include "register/borfte.h"
#include "ui/griglie.h"

#include <array>

namespace bor {

namespace {

struct Intestazione {
    QStringView testo;
    Qt::Alignment allineamento;
};

constexpr std::array<Intestazione, colonneElenco> intestazioni = {{
    {u"Registr.", Qt::AlignRight},
    {u"Data", Qt::AlignLeft},
    {u"Fattura", Qt::AlignLeft},
    {u"Data", Qt::AlignLeft},
    {u"Cliente", Qt::AlignLeft},
    {u"Importo", Qt::AlignRight},
    {u"PA", Qt::AlignHCenter},
    {u"PDF", Qt::AlignHCenter},
    {u"", Qt::AlignLeft},
    {u"", Qt::AlignLeft},
}};

const Intestazione& intestazione(int colonna) {
    return intestazioni[static_cast<std::size_t>(colonna)];
}

} // namespace

ModelloElenco::ModelloElenco(const Borfte& form, QObject* parent)
    : QAbstractTableModel(parent), m_form(form) {}

void ModelloElenco::rinnova() {
    beginResetModel();
    m_righe = m_form.righeGriglia();
    endResetModel();
}

int ModelloElenco::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : m_righe;
}

int ModelloElenco::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : colonneElenco;
}

QVariant ModelloElenco::data(const QModelIndex& indice, int ruolo) const {
    if (!indice.isValid())
        return {};
    const int riga = indice.row();
    const int colonna = indice.column();
    switch (ruolo) {
    case Qt::DisplayRole:
        return m_form.testo(riga, static_cast<Colonna>(colonna));
    case Qt::TextAlignmentRole:
        return QVariant(intestazione(colonna).allineamento | Qt::AlignVCenter);
    case Qt::BackgroundRole:
        if (const auto colore = m_form.colore(riga, colonna))
            return coloreArchivio(*colore);
        return {};
    default:
        return {};
    }
}

QVariant ModelloElenco::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
    if (orientamento != Qt::Horizontal || sezione < 0 || sezione >= colonneElenco)
        return {};
    if (ruolo == Qt::DisplayRole)
        return intestazione(sezione).testo.toString();
    if (ruolo == Qt::TextAlignmentRole)
        return QVariant(intestazione(sezione).allineamento | Qt::AlignVCenter);
    return {};
}

} // namespace bor
