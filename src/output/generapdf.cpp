#include "output/generapdf.h"

#include "archive/contesto.h"
#include "common/comandopdf.h"
#include "common/date.h"
#include "common/indirizzoposta.h"
#include "common/numeri.h"
#include "output/layout.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

const QString titoloAttenzione = u"Attenzione"_s;

QString programma(const Contesto& contesto) {
    return contesto.archivio.reale(radiceSuite.toString() + u"borxpdf"_s);
}

QString layoutStrumento(const Documento& documento, const Contesto& contesto) {
    return contesto.archivio.borlano(documento.parcella() ? u"lxp" : u"lxf");
}

QString nomePdf(const Documento& documento, const TestiPdf& testi) {
    const QString numero = testoDecimale(valore(documento.estremi.numero));
    return testi.cartella() + (documento.parcella() ? u"\\par"_s : u"\\ftr"_s) + numero + u".pdf"_s;
}

/// The other document that has this PDF; 0 for none.
int altroConPdf(const Documento& documento, const Archivio& archivio, const QString& pdf) {
    int trovato = 0;
    archivio.f2e.scorri(1, archivio.leggiTot(Conta::Fte).numero, [&](int n, const F2e& f2e) {
        if (n != documento.recordfattura && f2e.marca == F2e::marcaValida &&
            f2e.pdf.trimmed().compare(pdf, Qt::CaseInsensitive) == 0 && archivio.fte.leggi(n).annullata != 1)
            trovato = n;
        return trovato == 0;
    });
    return trovato;
}

/// A file that is another document's PDF, of the same number of another year, is replaced on request only.
bool pdfLibero(const Documento& documento, const Contesto& contesto, const QString& pdf) {
    const int altro = altroConPdf(documento, contesto.archivio, pdf);
    if (altro == 0)
        return true;
    const Fte fte = contesto.archivio.fte.leggi(altro);
    return contesto.operatore.chiedi(
        u"Il file \"%1\" è già il PDF del documento n. %2 del %3. Sostituirlo?"_s.arg(
            pdf, fte.numero.trimmed(), dataDaAnnoMeseGiorno(fte.datadoc.text())),
        titoloAttenzione, Icona::Esclamazione, Predefinita::No);
}

/// Refuses a name that the document's record would cut: it could never be opened again.
bool entraNelRecord(const QString& nome, const Contesto& contesto) {
    const bool entra = nome.size() <= qsizetype{sizeof(F2e::pdf)};
    if (!entra)
        contesto.operatore.messaggio(u"Il nome del file e della sua cartella superano i 60 caratteri"_s,
                                     titoloAttenzione, Icona::Stop);
    return entra;
}

bool avviaStrumento(const Contesto& contesto, const ComandoPdf& comando) {
    const bool avviato = contesto.sistema.avvia(programma(contesto), comando.argomenti());
    if (!avviato)
        contesto.operatore.messaggio(
            u"Non è possibile eseguire il programma invio del documento a mezzo internet."_s,
            titoloAttenzione, Icona::Stop);
    return avviato;
}

} // namespace

void generapdf(Documento& documento, const Contesto& contesto) {
    if (!contesto.impostazioni.generaPdf ||
        !contesto.operatore.chiedi(
            u"Generare il file PDF ed eventualmente inviarlo tramite posta elettronica?"_s, titoloAttenzione))
        return;
    const TestiPdf testi = caricaTestiPdf(contesto.archivio);
    const QString pdf = nomePdf(documento, testi);
    // Of an address only the places never written are taken away: with a line end in it, it is none.
    QString destinatario = documento.estremi.postael
                               ? documento.cliente.email.text().remove(QChar::Null).trimmed()
                               : senzaPosta.toString();
    if (documento.estremi.postael && !indirizzoValido(destinatario)) {
        contesto.operatore.messaggio(
            u"L'indirizzo di posta elettronica del cliente non è valido: \"%1\". Il documento non è stato inviato."_s
                .arg(destinatario),
            titoloAttenzione, Icona::Stop);
        destinatario = senzaPosta.toString();
    }
    if (pdf.contains(u',') || contesto.archivio.reale(pdf).isEmpty()) {
        contesto.operatore.messaggio(
            u"La cartella dei documenti PDF non è valida: \"%1\""_s.arg(testi.cartella()), titoloAttenzione,
            Icona::Stop);
        return;
    }
    if (!entraNelRecord(pdf, contesto) || !pdfLibero(documento, contesto, pdf) ||
        !avviaStrumento(contesto, {.layout = layoutStrumento(documento, contesto),
                                   .rapporto = contesto.rapporto,
                                   .pdf = pdf,
                                   .indirizzo = destinatario,
                                   .testo = testi.testo(documento.parcella())}))
        return;
    documento.estremi.pdf = pdf;
    if (destinatario != senzaPosta)
        contesto.operatore.messaggio(u"Il documento è stato affidato all'invio per posta elettronica a: "_s +
                                         destinatario,
                                     titoloAttenzione, Icona::Informazione);
}

void anteprima(const Documento& documento, const Contesto& contesto) {
    avviaStrumento(
        contesto,
        {.anteprima = true, .layout = layoutStrumento(documento, contesto), .rapporto = contesto.rapporto});
}

void scegliPdf(Documento& documento, const Contesto& contesto) {
    const QString scelto = contesto.operatore.scegliFile(u"Documento in formato PDF"_s, u"*.pdf"_s).trimmed();
    QString nome = contesto.archivio.percorsi().dos(scelto).value_or(QString());
    if (!scelto.isEmpty() && nome.isEmpty()) {
        contesto.operatore.messaggio(
            u"Il file \"%1\" non si trova in un'unità della procedura: copiatelo prima nella cartella dei PDF."_s
                .arg(scelto),
            titoloAttenzione, Icona::Stop);
        return;
    }
    if (!nome.toUpper().contains(u"PDF") || nome.contains(u'*'))
        return;
    if (nome.size() > 1 && nome[1] == u':')
        nome.remove(0, 2);
    if (entraNelRecord(nome, contesto))
        documento.estremi.pdf = nome;
}

} // namespace bor
