// The command bar of the document form.
#include "document/apripdf.h"
#include "document/avvisi.h"
#include "document/borftea.h"
#include "document/eliminadoc.h"
#include "document/identita.h"
#include "document/modifiche.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// A first invoice to an office has no number yet: the form behind the command gives it out. Of the lines of
/// fee bills that form knows nothing.
bool aUnUfficio(const Documento& documento) {
    constexpr qsizetype caratteriUfficio = 6;
    const bool conUfficio = documento.cliente.clix2.trimmed().size() == caratteriUfficio;
    return documento.fatturaPa() || (conUfficio && !documento.parcella());
}

} // namespace

bool Borftea::abilitato(Comando comando) const {
    switch (comando) {
    case Comando::Elimina:
    case Comando::Testata:
    case Comando::Duplica:
        return !nuovo();
    case Comando::NotaCredito:
        return !nuovo() && !m_documento.notaCredito();
    case Comando::Stampa:
        return m_comandi.stampa != nullptr;
    case Comando::Anteprima:
        return m_comandi.anteprima != nullptr;
    case Comando::FatturaPa:
        return !nuovo() && aUnUfficio(m_documento) && m_comandi.fatturaPa;
    case Comando::FatturaElettronica:
        return !nuovo() && m_comandi.fatturaElettronica;
    case Comando::ScegliPdf:
        return m_comandi.scegliPdf != nullptr;
    case Comando::ApriPdf:
        return !m_documento.estremi.pdf.trimmed().isEmpty();
    default:
        return true;
    }
}

void Borftea::esegui(Comando comando) {
    if (!abilitato(comando))
        return;
    switch (comando) {
    case Comando::Esci:
        return esci();
    case Comando::Salva:
        return salva();
    case Comando::Righe:
        return righe();
    case Comando::Pdf:
        m_pdfVisibile = !m_pdfVisibile;
        return;
    case Comando::Elimina:
        return elimina();
    case Comando::Duplica:
        return copia(Copia::Duplicato);
    case Comando::NotaCredito:
        return copia(Copia::NotaDiCredito);
    case Comando::Stampa:
        return stampa();
    case Comando::Anteprima:
        return m_comandi.anteprima();
    case Comando::Testata:
        return testata();
    case Comando::FatturaPa:
        return m_comandi.fatturaPa();
    case Comando::FatturaElettronica:
        return fatturaElettronica();
    case Comando::ScegliPdf:
        return m_comandi.scegliPdf();
    case Comando::ApriPdf:
        return ApriPDF(m_contesto, m_documento.estremi.pdf);
    }
}

std::vector<VocePosta> Borftea::posta() const {
    return RegistroPosta(m_contesto.archivio.percorsi(), m_contesto.sessione.codiceazienda)
        .voci(perPosta(m_documento));
}

void Borftea::chiudi() {
    m_contesto.sessione.documentoletto = false;
    m_contesto.sessione.righelette = false;
}

bool Borftea::modificato() const {
    return bor::modificato(m_documento, m_aperto);
}

void Borftea::lascia() {
    chiudi();
    m_contesto.navigatore.mostra(Schermo::Borfte);
}

void Borftea::esci() {
    if (!modificato() || uscireSenzaRegistrare(m_contesto))
        lascia();
}

void Borftea::stampa() {
    const bool daRegistrare = nuovo() || modificato();
    if (m_comandi.stampa() && daRegistrare)
        m_contesto.operatore.messaggio(
            u"Il documento è stato stampato come si vede sullo schermo, ma non è ancora registrato così: "
            "salvatelo prima di uscire."_s,
            u"Attenzione"_s, Icona::Esclamazione);
}

void Borftea::salva() {
    // The register shows what is on file, also where a save got only half the way.
    m_contesto.sessione.listadaaggiornare = true;
    const EsitoSalva esito = salvadoc(m_documento, m_contesto, m_registrazioni, m_sospese);
    m_fuoco = esito.fuoco;
    if (esito.dopo == DopoSalva::Resta)
        return;
    m_contesto.sessione.ultimosalvato = m_documento.recordfattura;
    registraCollegata();
    if (esito.dopo == DopoSalva::Movimento)
        m_contesto.sessione.modificamovimento = esito.modificamovimento;
    chiudi();
    m_contesto.navigatore.mostra(esito.dopo == DopoSalva::Movimento ? Schermo::Borftec : Schermo::Borfte);
}

void Borftea::registraCollegata() {
    const Collegata collegata = std::exchange(m_documento.collegata, {});
    if (collegata.numero.isEmpty() || !m_comandi.registraCollegata || m_comandi.registraCollegata(collegata))
        return;
    m_contesto.operatore.messaggio(
        u"La nota di credito è registrata, ma il file borlano.fel dell'azienda non si è potuto scrivere: "
        u"nella fattura "
        u"elettronica (F9) la fattura collegata, n. %1 del %2, va scritta a mano."_s.arg(collegata.numero,
                                                                                         collegata.data),
        u"Attenzione"_s, Icona::Esclamazione);
}

/// The document on file is the model: what was typed over it is asked about, as it is before leaving.
void Borftea::copia(Copia come) {
    if ((modificato() && !uscireSenzaRegistrare(m_contesto)) || !prendiCopia(come))
        return;
    m_prospetto = Prospetto::RigheIva;
    m_pdfVisibile = false;
    m_importiIva.scorri(1);
    m_fuoco = PostoTea{CampoTea::Numero};
    m_contesto.navigatore.mostra(Schermo::Borftea);
}

void Borftea::elimina() {
    // The register shows what is on file, also where a delete got only half the way.
    m_contesto.sessione.listadaaggiornare = true;
    if (eliminadoc(m_documento, m_contesto, m_registrazioni, m_sospese))
        lascia();
}

void Borftea::righe() {
    Sessione& sessione = m_contesto.sessione;
    sessione.documentoletto = true;
    sessione.righelette = false;
    Fte& fte = m_documento.coppia.fte;
    if (fte.nfile == 0.0F)
        fte.nfile = -1.0F;
    m_contesto.navigatore.mostra(m_documento.parcella() ? Schermo::Borftek : Schermo::Borftex);
}

void Borftea::testata() {
    m_contesto.navigatore.mostra(Schermo::Borftem);
}

void Borftea::fatturaElettronica() {
    if (!modificato())
        return m_comandi.fatturaElettronica();
    m_contesto.operatore.messaggio(
        u"Il documento ha modifiche non ancora registrate, e la fattura elettronica esce dal documento "
        "registrato. Salvatelo (F10): nel registro F9 apre la fattura elettronica del documento scelto."_s,
        u"Attenzione"_s, Icona::Esclamazione);
}

} // namespace bor
