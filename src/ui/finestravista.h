// The window in which the operator chooses what the register lists: days, kind of document, columns.
#pragma once

#include "common/bordata.h"
#include "register/vistaregistro.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QSpinBox;
class QStackedWidget;

namespace bor {

class FinestraVista : public QDialog {
public:
    FinestraVista(const VistaRegistro& vista, const Bordata& bordata, QDate oggi, QWidget* parent);

    /// What is chosen, once the window was accepted.
    const VistaRegistro& vista() const { return m_vista; }

    void accept() override;

private:
    QGroupBox* creaDocumenti(const Bordata& bordata);
    /// Puts the choice of the days into a grid, from a row on.
    void creaPeriodo(QGridLayout* griglia, int prima, const Bordata& bordata);
    QGroupBox* creaColonne();
    QWidget* creaMossa();
    /// A part of the year that is not chosen stands at that of `oggi`.
    void mostraVista(const VistaRegistro& vista, QDate oggi);
    void riempiColonne(const std::vector<ColonnaScelta>& mostrate);
    void sposta(int verso);
    void comePrima();
    /// Why the choice cannot be taken; empty for nothing. `dove` becomes the field that is wrong.
    QString difetto(QWidget*& dove) const;
    DocumentiScelti documenti() const;
    std::vector<ColonnaScelta> colonne() const;

    VistaRegistro m_vista;
    QComboBox* m_genere = nullptr;
    QComboBox* m_data = nullptr;
    QCheckBox* m_eliminati = nullptr;
    QComboBox* m_periodo = nullptr;
    QStackedWidget* m_quale = nullptr; ///< month, quarter, or nothing to choose
    QComboBox* m_mese = nullptr;
    QComboBox* m_trimestre = nullptr;
    QSpinBox* m_anno = nullptr;
    QLineEdit* m_dal = nullptr;
    QLineEdit* m_al = nullptr;
    QListWidget* m_colonne = nullptr;
    QSpinBox* m_larghezza = nullptr;
    QLabel* m_avviso = nullptr;
};

} // namespace bor
