#include "output/destinazionepdf.h"

#include "common/numeri.h"
#include "output/layout.h"

using namespace Qt::StringLiterals;

namespace bor {

QString strumentoPdf(const Archivio& archivio) {
    return archivio.reale(radiceSuite.toString() + u"borxpdf"_s);
}

QString layoutStrumento(bool parcella, const Archivio& archivio) {
    return archivio.borlano(parcella ? u"lxp" : u"lxf");
}

QString nomePdf(QStringView numero, bool parcella, const TestiPdf& testi) {
    return testi.cartella() + (parcella ? u"\\par"_s : u"\\ftr"_s) + testoDecimale(valore(numero)) +
           u".pdf"_s;
}

QString nomeRifiutato(const QString& pdf, const Archivio& archivio, const TestiPdf& testi) {
    // The parts of the tool's command line are joined with commas.
    if (pdf.contains(u',') || archivio.reale(pdf).isEmpty())
        return u"La cartella dei documenti PDF non è valida: \"%1\""_s.arg(testi.cartella());
    return lunghezzaRifiutata(pdf);
}

QString lunghezzaRifiutata(const QString& nome) {
    return nome.size() > qsizetype{sizeof(F2e::pdf)}
               ? u"Il nome del file e della sua cartella superano i 60 caratteri"_s
               : QString();
}

QString indirizzoPosta(const Cli& cliente) {
    // With a line end in it, it is none.
    return cliente.email.text().remove(QChar::Null).trimmed();
}

} // namespace bor
