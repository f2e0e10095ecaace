// The window that shows the pages of a printed document before it is sent. Opened by main.
#pragma once

#include "borxpdf/comando.h"

#include <QMainWindow>

class QLabel;
class QScrollArea;

namespace bor::pdf {

class Anteprima : public QMainWindow {
public:
    explicit Anteprima(DocumentoPdf documento);
    ~Anteprima() override;

    /// Page from 0; outside the document nothing happens.
    void mostraPagina(qsizetype pagina);

protected:
    void resizeEvent(QResizeEvent* evento) override;

private:
    class Foglio;

    void preparaComandi();
    void ingrandisci(double fattore);
    void adattaLarghezza();

    DocumentoPdf m_documento;
    Foglio* m_foglio;
    QScrollArea* m_area;
    QLabel* m_didascalia;
    bool m_aLarghezza = true; // the sheet follows the width of the window
};

} // namespace bor::pdf
