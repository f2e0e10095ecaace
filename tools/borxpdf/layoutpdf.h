// The layout of the PDF (borlano.lxf, borlano.lxp): size of the sheet, margins to cut, title and author,
// subject and text of the mail. Used by the PDF, the preview and the mail.
#pragma once

#include "borxpdf/fileini.h"

#include <QSizeF>
#include <QString>
#include <QStringList>

namespace bor::pdf {

/// Lengths are millimetres.
struct LayoutPdf {
    QSizeF foglio{210, 297};
    double taglioSinistra = 0, taglioAlto = 0, taglioDestra = 0, taglioBasso = 0;
    QString titolo; // empty: the name of the PDF
    QString autore;
    QString oggetto;
    QString testo;

    LayoutPdf() = default;
    /// Values that leave no usable page (a size or a cut out of reason) give way to A4 without cuts.
    explicit LayoutPdf(const FileIni& ini);

    /// The page that remains after the cut.
    QSizeF pagina() const;
};

/// Puts the document's number, the digits of the PDF's name ("\pdf\ftr12.pdf" gives 12), in place of
/// "{numero}", and line ends in place of "\n".
QString conNumero(QString testo, const QString& nomePdf);
/// The same for several documents: "12, 13".
QString conNumeri(QString testo, const QStringList& nomiPdf);

/// The PDF's name without folder and extension.
QString nomeBreve(const QString& percorsoPdf);

} // namespace bor::pdf
