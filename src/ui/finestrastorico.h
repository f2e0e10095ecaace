// The window with what a customer has had: his documents and, where it was asked for, the last sales of an
// article, one of which the operator can take over.
#pragma once

#include "document/storico.h"

#include <QDialog>
#include <QTimer>

#include <functional>

class QLabel;
class QProgressBar;
class QPushButton;
class QTableView;

namespace bor {

class ModelloGriglia;
class Vista;

class FinestraStorico : public QDialog {
public:
    using Prendi = std::function<void(const VenditaStorica&)>;

    /// The sales come in while the window is open; closing it leaves the rest unread. Without `prendi` there
    /// is nothing to take over.
    FinestraStorico(Storico& storico, const DomandaStorico& domanda, Prendi prendi, QWidget* parent);
    ~FinestraStorico() override;

private:
    QWidget* creaDocumenti();
    QWidget* creaVendite();
    QWidget* creaBottoni();
    QString testoDocumento(int riga, int colonna) const;
    QString testoVendita(int riga, int colonna) const;
    void avanza();
    void prendiScelta();

    Storico& m_storico;
    Prendi m_prendi;
    ModelloGriglia* m_modelloVendite = nullptr;
    QTableView* m_documenti = nullptr;
    QTableView* m_vendite = nullptr;
    QLabel* m_stato = nullptr;
    QProgressBar* m_avanzamento = nullptr;
    QPushButton* m_bottone = nullptr;
    QTimer m_timer;
};

/// The key Ctrl+H on a screen that has no button for it.
void offriStorico(Vista& vista, const std::function<void()>& apri);

} // namespace bor
