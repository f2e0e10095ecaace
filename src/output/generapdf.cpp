#include "output/generapdf.h"

#include "archive/contesto.h"
#include "common/comandopdf.h"
#include "common/date.h"
#include "common/indirizzoposta.h"
#include "common/registroposta.h"
#include "document/identita.h"
#include "output/destinazionepdf.h"
#include "output/layout.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

const QString titoloAttenzione = u"Attenzione"_s;

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
            contesto.archivio.reale(pdf), fte.numero.trimmed(), dataDaAnnoMeseGiorno(fte.datadoc.text())),
        titoloAttenzione, Icona::Esclamazione, Predefinita::No);
}

/// Tells why a name was refused, where it was.
bool accettato(const QString& motivo, const Contesto& contesto) {
    if (!motivo.isEmpty())
        contesto.operatore.messaggio(motivo, titoloAttenzione, Icona::Stop);
    return motivo.isEmpty();
}

bool avviaStrumento(const Contesto& contesto, const ComandoPdf& comando) {
    const bool avviato = contesto.sistema.avvia(strumentoPdf(contesto.archivio), comando.argomenti());
    if (!avviato)
        contesto.operatore.messaggio(
            u"Non è possibile eseguire il programma invio del documento a mezzo internet."_s,
            titoloAttenzione, Icona::Stop);
    return avviato;
}

/// Starts the tool, and notes a mail with which it is charged.
bool affida(const Documento& documento, const Contesto& contesto, const ComandoPdf& comando) {
    const RegistroPosta registro(contesto.archivio.percorsi(), contesto.sessione.codiceazienda);
    VocePosta voce{.quando = contesto.orologio.adesso(),
                   .documento = perPosta(documento),
                   .pdf = comando.pdf,
                   .indirizzo = comando.indirizzo};
    const bool conPosta = comando.indirizzo != senzaPosta;
    if (conPosta)
        registro.aggiungi(voce);
    const bool avviato = avviaStrumento(contesto, comando);
    if (conPosta && !avviato) {
        voce.stato = StatoPosta::NonSpedita;
        voce.motivo = u"borxpdf non si è avviato"_s;
        registro.aggiungi(voce);
    }
    return avviato;
}

} // namespace

void generapdf(Documento& documento, const Contesto& contesto) {
    if (!contesto.impostazioni.generaPdf ||
        !contesto.operatore.chiedi(
            u"Generare il file PDF ed eventualmente inviarlo tramite posta elettronica?"_s, titoloAttenzione))
        return;
    const TestiPdf testi = caricaTestiPdf(contesto.archivio);
    const QString pdf = nomePdf(documento.estremi.numero, documento.parcella(), testi);
    QString destinatario =
        documento.estremi.postael ? indirizzoPosta(documento.cliente) : senzaPosta.toString();
    if (documento.estremi.postael && !indirizzoValido(destinatario)) {
        contesto.operatore.messaggio(
            u"L'indirizzo di posta elettronica del cliente non è valido: \"%1\". Il documento non è stato inviato."_s
                .arg(destinatario),
            titoloAttenzione, Icona::Stop);
        destinatario = senzaPosta.toString();
    }
    if (!accettato(nomeRifiutato(pdf, contesto.archivio, testi), contesto) ||
        !pdfLibero(documento, contesto, pdf) ||
        !affida(documento, contesto,
                {.layout = layoutStrumento(documento.parcella(), contesto.archivio),
                 .rapporto = contesto.rapporto,
                 .pdf = pdf,
                 .indirizzo = destinatario,
                 .testo = testi.testo(documento.parcella())}))
        return;
    documento.estremi.pdf = pdf;
}

void anteprima(const Documento& documento, const Contesto& contesto) {
    avviaStrumento(contesto, {.anteprima = true,
                              .layout = layoutStrumento(documento.parcella(), contesto.archivio),
                              .rapporto = contesto.rapporto});
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
    if (accettato(lunghezzaRifiutata(nome), contesto))
        documento.estremi.pdf = nome;
}

} // namespace bor
