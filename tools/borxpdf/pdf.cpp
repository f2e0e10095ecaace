#include "borxpdf/pdf.h"

#include "borxpdf/disegno.h"
#include "borxpdf/layoutpdf.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QStringEncoder>

using namespace Qt::StringLiterals;

namespace bor::pdf {
namespace {

constexpr auto kProgramma = "borxpdf";

/// A PDF string: UTF-16 in hexadecimal, so that no character of the text can end it.
QByteArray stringaPdf(const QString& testo) {
    QStringEncoder utf16(QStringEncoder::Utf16BE);
    const QByteArray byte = utf16(testo);
    return "<feff" + byte.toHex() + '>';
}

/// The number that follows the last `chiave` of the PDF's closing lines; -1 when there is none.
qint64 numeroDopo(const QByteArray& coda, const QByteArray& chiave) {
    const qsizetype inizio = coda.lastIndexOf(chiave);
    if (inizio < 0)
        return -1;
    const QByteArray numero = coda.mid(inizio + chiave.size(), 32).trimmed();
    qsizetype cifre = 0;
    while (cifre < numero.size() && numero[cifre] >= '0' && numero[cifre] <= '9')
        ++cifre;
    return cifre == 0 ? -1 : numero.first(cifre).toLongLong();
}

} // namespace

bool disegnaPagine(QPagedPaintDevice& fogli, std::span<const Pagina> pagine, const LayoutPdf& layout,
                   Disegnatore& disegnatore) {
    QPainter pittore;
    if (!pittore.begin(&fogli))
        return false;
    const double punti = static_cast<double>(fogli.logicalDpiX()) / kUnitaPollice;
    pittore.scale(punti, punti);
    pittore.translate(-unitaDaMillimetri(layout.taglioSinistra), -unitaDaMillimetri(layout.taglioAlto));
    for (std::size_t i = 0; i < pagine.size(); ++i) {
        if (i > 0)
            fogli.newPage();
        disegnatore.disegna(pittore, pagine[i]);
    }
    return pittore.end();
}

QByteArray componiPdf(const PagineStampate& stampa, const LayoutPdf& layout, const QString& titolo,
                      Disegnatore& disegnatore) {
    QByteArray pdf;
    {
        QBuffer uscita(&pdf);
        uscita.open(QIODevice::WriteOnly);
        QPdfWriter scrittore(&uscita);
        scrittore.setTitle(titolo);
        scrittore.setCreator(QString::fromLatin1(kProgramma));
        scrittore.setResolution(kUnitaPollice);
        scrittore.setPageSize(
            QPageSize(layout.pagina(), QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
        scrittore.setPageMargins({});
        if (!disegnaPagine(scrittore, stampa.pagine, layout, disegnatore))
            return {};
    }
    aggiungiAutore(pdf, titolo, layout.autore);
    return pdf;
}

void aggiungiAutore(QByteArray& pdf, const QString& titolo, const QString& autore) {
    if (autore.isEmpty())
        return;
    const QByteArray coda = pdf.last(std::min<qsizetype>(pdf.size(), 1024));
    const qint64 oggetti = numeroDopo(coda, "/Size ");
    const qint64 info = numeroDopo(coda, "/Info ");
    const qint64 radice = numeroDopo(coda, "/Root ");
    const qint64 tabella = numeroDopo(coda, "startxref");
    if (oggetti < 0 || info < 0 || radice < 0 || tabella < 0)
        return;

    const QByteArray numeroInfo = QByteArray::number(info);
    const qsizetype posizione = pdf.size();
    const QByteArray data = QDateTime::currentDateTimeUtc().toString(u"yyyyMMddHHmmss"_s).toLatin1();
    pdf += numeroInfo + " 0 obj\n<<\n/Title " + stringaPdf(titolo) + "\n/Author " + stringaPdf(autore) +
           "\n/Creator (" + kProgramma + ")\n/CreationDate (D:" + data + "Z)\n>>\nendobj\n";
    const qsizetype nuovaTabella = pdf.size();
    pdf += "xref\n" + numeroInfo + " 1\n" + QByteArray::number(posizione).rightJustified(10, '0') +
           " 00000 n \ntrailer\n<<\n/Size " + QByteArray::number(oggetti) + "\n/Info " + numeroInfo +
           " 0 R\n/Root " + QByteArray::number(radice) + " 0 R\n/Prev " + QByteArray::number(tabella) +
           "\n>>\nstartxref\n" + QByteArray::number(nuovaTabella) + "\n%%EOF\n";
}

bool scriviIntero(const QString& file, const QByteArray& dati) {
    if (!QDir().mkpath(QFileInfo(file).absolutePath()))
        return false;
    QSaveFile uscita(file);
    // Unbuffered: a commit does not tell of a buffer that could not be emptied.
    return uscita.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && uscita.write(dati) == dati.size() &&
           uscita.flush() && uscita.commit();
}

} // namespace bor::pdf
