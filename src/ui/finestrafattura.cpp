#include "ui/finestrafattura.h"

#include "ui/campi.h"
#include "ui/tinte.h"
#include "ui/vista.h"
#include "xmlcheck/vistafattura.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPageLayout>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextOption>

#include <functional>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Shows the page and nothing beyond it: no link leads anywhere, no picture or style sheet is fetched.
class Pagina : public QTextBrowser {
public:
    Pagina() {
        setObjectName(u"pagina"_s);
        setAccessibleName(u"Fattura elettronica"_s);
        // A sheet of paper, also on a dark desktop.
        setPalette(tavolozza(Tono::Chiaro));
        // A word of any length stays within the width of the page.
        setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setOpenLinks(false);
        setOpenExternalLinks(false);
    }
    QVariant loadResource(int, const QUrl&) override { return {}; }
};

const QString nomeFinestra = u"Fattura elettronica"_s;

} // namespace

FinestraFattura::FinestraFattura(const QByteArray& xml, QString percorso, QWidget* parent)
    : QDialog(parent), m_pagina(new Pagina), m_percorso(std::move(percorso)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"lettura"_s);
    const QString nome = QFileInfo(m_percorso).fileName();
    setWindowTitle(nome.isEmpty() ? nomeFinestra : nomeFinestra + u" - "_s + nome);
    offriGuida(this, u"fattura-elettronica"_s);
    m_pagina->setHtml(vistaFattura(xml));
    auto* barra = new QHBoxLayout;
    const auto comando = [&](const QString& nomeComando, const QString& testo, const QString& icona,
                             const QString& tasto, const std::function<void()>& azione) {
        auto* bottone = new BottoneComando(nomeComando, testo, icona, QKeySequence(tasto));
        connect(bottone, &QToolButton::clicked, this, azione);
        barra->addWidget(bottone);
    };
    comando(u"chiudi"_s, u"Chiudi"_s, u"esci"_s, u"Ctrl+Q"_s, [this] { reject(); });
    comando(u"stampa"_s, u"Stampa"_s, u"stampa"_s, u"Ctrl+P"_s, [this] { stampa(); });
    comando(u"pdf"_s, u"PDF"_s, u"pdf"_s, u"Ctrl+S"_s, [this] { salvaPdf(); });
    barra->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_pagina, 1);
    layout->addLayout(barra);
    const QSize cornice(16, 64);
    resize(QSize(900, 760).boundedTo(screen()->availableSize() - cornice));
    m_pagina->setFocus();
}

bool FinestraFattura::scriviPdf(const QString& percorso) const {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setOutputFileName(percorso);
    stampante.setPageSize(QPageSize(QPageSize::A4));
    m_pagina->document()->print(&stampante);
    return stampante.printerState() != QPrinter::Error && QFileInfo(percorso).size() > 0;
}

void FinestraFattura::stampa() {
    QPrinter stampante(QPrinter::HighResolution);
    if (QPrintDialog(&stampante, this).exec() == QDialog::Accepted)
        m_pagina->document()->print(&stampante);
}

void FinestraFattura::salvaPdf() {
    const QFileInfo file(m_percorso);
    const QString proposto =
        m_percorso.isEmpty() ? QString() : file.path() + u'/' + file.completeBaseName() + u".pdf"_s;
    const QString scelto = QFileDialog::getSaveFileName(this, u"PDF della fattura"_s, proposto, u"*.pdf"_s);
    if (!scelto.isEmpty() && !scriviPdf(scelto))
        QMessageBox::warning(this, nomeFinestra, u"Il file %1 non si è potuto scrivere."_s.arg(scelto));
}

} // namespace bor
