// The window that shows the pages of a printed document before it is sent. Opened by main.
#pragma once

#include "borxpdf/comando.h"

#include <QMainWindow>

#include <functional>

class QLabel;
class QPrinter;
class QScrollArea;

namespace bor::pdf {

class Anteprima : public QMainWindow {
public:
    /// `apriGuida` is called by F1.
    explicit Anteprima(
        DocumentoPdf documento, std::function<void()> apriGuida = [] {});
    ~Anteprima() override;

    /// Page from 0; outside the document nothing happens.
    void mostraPagina(qsizetype pagina);
    /// Onto paper, the pages that the printer was asked for. False when the printer takes none.
    bool stampa(QPrinter& stampante);

protected:
    void resizeEvent(QResizeEvent* evento) override;

private:
    class Foglio;

    void preparaComandi();
    void siAffianca();
    void scorri(int verso);
    void chiediStampa();
    void ingrandisci(double fattore);
    void adattaLarghezza();

    DocumentoPdf m_documento;
    std::function<void()> m_apriGuida;
    Foglio* m_foglio;
    QScrollArea* m_area;
    QLabel* m_didascalia;
    bool m_aLarghezza = true; // the sheet follows the width of the window
};

} // namespace bor::pdf
