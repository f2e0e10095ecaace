// The window of a command on many documents: its question, then its progress with the button that stops it.
#pragma once

#include "lotto/lotto.h"

#include <QDialog>
#include <QTimer>

#include <functional>
#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;
class QStackedWidget;

namespace bor {

class FinestraLotto : public QDialog {
public:
    using Finito = std::function<void(const RapportoLotto&)>;

    /// `finito` gets the report when all is through; it is not called where the operator gave up before the
    /// beginning.
    FinestraLotto(std::unique_ptr<Lotto> lotto, Finito finito, QWidget* parent);

    /// Before the beginning gives up; then stops after the document in hand.
    void reject() override;

private:
    QWidget* creaDomanda();
    QWidget* creaAvanzamento();
    void procedi();
    void lavora();
    void mostraAvanzamento();

    std::unique_ptr<Lotto> m_lotto;
    Finito m_finito;
    QStackedWidget* m_pagine;
    QLabel* m_inMano = nullptr;
    QProgressBar* m_barra = nullptr;
    QPushButton* m_interrompi = nullptr;
    QTimer m_passo;
    bool m_iniziato = false;
};

} // namespace bor
