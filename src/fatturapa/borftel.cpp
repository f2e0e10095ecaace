#include "fatturapa/borftel.h"

#include "common/numeri.h"
#include "document/apridoc.h"
#include "document/avvisi.h"
#include "document/codiceiva.h"
#include "document/righeinsospeso.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

bool errore(const Rilievo& rilievo) {
    return rilievo.gravita == Gravita::Errore;
}

} // namespace

Borftel::Borftel(Contesto& contesto, Documento& documento, RigheInSospeso& sospese,
                 std::function<QString()> cartellaPdf)
    : m_contesto(contesto), m_documento(documento), m_sospese(sospese),
      m_cartellaPdf(std::move(cartellaPdf)) {}

void Borftel::attiva() {
    if (m_documento.recordfattura < 1)
        return esci(); // only a stored document has an invoice
    auto letto = documentoEsistente(m_contesto, m_documento.recordfattura, m_sospese);
    if (!letto) {
        avvisaNonRegistrato(m_contesto, EsitoRaffica::NonLetta);
        return esci();
    }
    m_registrato = *std::move(letto);
    // Opened from the register, the document is nobody's yet: the line at the top of the screen tells whose.
    if (!m_contesto.sessione.documentoletto)
        m_documento = m_registrato;
    m_generatore.emplace(GeneratoreFel::perAzienda(m_contesto, m_cartellaPdf()));
    m_prospetto = Prospetto::Documento;
    rileggi();
    m_fuoco = PostoFel::CodiceDestinatario;
}

void Borftel::rileggi() {
    m_letti = m_generatore->datiPropri(m_registrato);
    m_dati = m_letti;
    m_suDisco = m_generatore->suDisco(m_registrato);
    m_seguente = 0;
    componi();
}

void Borftel::componi() {
    // A date in focus is completed even as its screen is left.
    if (!m_generatore)
        return;
    m_prova = m_generatore->prova(m_registrato, m_dati);
    controllaCartella();
    m_uscita = bor::uscita(m_prova.fattura);
    m_rilievi = RilieviFel(m_prova.rilievi);
    ++m_edizione;
}

void Borftel::controllaCartella() {
    if (!m_generatore->cartellaPronta())
        m_prova.rilievi.push_back(
            {.elemento = {},
             .valore = m_generatore->cartella(),
             .motivo = u"La cartella dei file non c'è."_s,
             .rimedio =
                 u"Crearla, o indicarne un'altra nei quadri azienda del \"Kit Fatture elettroniche PA\"."_s});
}

void Borftel::esci() {
    m_generatore.reset();
    m_contesto.navigatore.mostra(m_contesto.sessione.documentoletto ? Schermo::Borftea : Schermo::Borfte);
}

void Borftel::lascia() {
    if (!modificato() || uscireSenzaRegistrare(m_contesto))
        esci();
}

bool Borftel::usato(int codice) const {
    const CodiceIva iva(codice);
    const auto conCodice = [&](const Riga& riga) { return riga.iva == iva; };
    if (std::ranges::any_of(m_registrato.ddd, conCodice))
        return true;
    const auto& [fte, f2e] = m_registrato.coppia;
    const auto riga = static_cast<std::size_t>(iva.riga() - 1);
    const std::size_t prime = fte.impon.size();
    if (iva.tassato())
        return riga < prime ? fte.impon[riga] != 0 : f2e.impon[riga - prime] != 0;
    return riga < prime ? fte.esen[riga] != 0 : f2e.esen[riga - prime] != 0;
}

bool Borftel::chiedeNatura(int codice) const {
    const CodiceIva iva(codice);
    const Tabelle& tabelle = m_contesto.tabelle;
    if (iva.tassato() && tabelle.aliquota(codice) != 0)
        return false;
    const RigaEsenzione* esenzione = iva.esente() ? &tabelle.esenzioni[iva.riga()] : nullptr;
    const bool inTabella =
        esenzione && !(esenzione->riferimento + esenzione->descrizione()).trimmed().isEmpty();
    return inTabella || !m_dati.nature[static_cast<std::size_t>(codice)].isEmpty() || usato(codice);
}

QString Borftel::codiceSenzaImposta(int codice) const {
    if (!chiedeNatura(codice))
        return {};
    const CodiceIva iva(codice);
    if (iva.tassato())
        return iva.testo() + u" aliquota 0"_s;
    const RigaEsenzione& riga = m_contesto.tabelle.esenzioni[iva.riga()];
    const QString riferimento = riga.riferimento.trimmed();
    return iva.testo() + u' ' + (riferimento.isEmpty() ? riga.descrizione() : riferimento);
}

QString Borftel::esito() const {
    const QString quanti = contoRilievi(m_prova.rilievi);
    const bool pronta = m_suDisco == FileDocumento::Attuale && !modificato();
    if (m_prova.rilievi.empty())
        return pronta ? u"Nessun rilievo: la fattura è pronta."_s
                      : u"Nessun rilievo: la fattura si può generare (F10)."_s;
    if (m_prova.xml.isEmpty())
        return u"Non si può ancora generare: %1 (F8)."_s.arg(quanti);
    if (std::ranges::any_of(m_prova.rilievi, errore))
        return u"Il sistema di interscambio la rifiuterebbe: %1 (F8)."_s.arg(quanti);
    return pronta ? u"La fattura è pronta; %1 (F8)."_s.arg(quanti)
                  : u"La fattura si può generare (F10); %1 (F8)."_s.arg(quanti);
}

QString Borftel::statoFile() const {
    if (modificato())
        return u"Dati cambiati, non ancora registrati."_s;
    switch (m_suDisco) {
    case FileDocumento::Attuale:
        return u"File generato: %1"_s.arg(percorso());
    case FileDocumento::Diverso:
        return u"Documento o dati sono cambiati dopo il file: generarlo di nuovo. %1"_s.arg(percorso());
    case FileDocumento::Assente:
        break;
    }
    return u"Il file non è ancora stato generato."_s;
}

void Borftel::vaiAlRilievo() {
    if (m_prova.rilievi.empty())
        return;
    m_fuoco = postoDi(m_prova.rilievi[m_seguente % m_prova.rilievi.size()]);
    m_seguente = (m_seguente + 1) % m_prova.rilievi.size();
}

} // namespace bor
