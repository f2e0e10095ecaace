// The rows of the customer picker as a grid shows them; nothing is copied.
#pragma once

#include <QAbstractTableModel>

namespace bor {

class Borsel;

class ModelloClienti : public QAbstractTableModel {
public:
    explicit ModelloClienti(const Borsel& form, QObject* parent = nullptr);

    /// The list was filled or sorted.
    void rinnova();

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int ruolo) const override;
    QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo) const override;

private:
    const Borsel& m_form;
    int m_righe = 0;
};

} // namespace bor
