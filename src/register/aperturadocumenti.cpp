#include "register/aperturadocumenti.h"

#include "document/apripdf.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

const QString titoloAttenzione = u"Attenzione"_s;

} // namespace

void AperturaDocumenti::nuovo(int tipo) {
    if (!m_riordino.fermo())
        return;
    Sessione& sessione = m_contesto.sessione;
    sessione.righelette = false;
    if (m_contesto.archivio.leggiTot(Conta::Cli).numero < 1) {
        m_contesto.operatore.messaggio(u"Nessuna anagrafica memorizzata"_s, titoloAttenzione,
                                       Icona::Esclamazione);
        return;
    }
    sessione.documentoletto = false;
    sessione.testataletta = false;
    m_documento = {};
    m_documento.coppia.fte.tipo = breve(tipo);
    m_contesto.navigatore.mostra(Schermo::Borftem);
}

void AperturaDocumenti::cella(int riga, Colonna colonna) {
    if (!m_riordino.fermo())
        return;
    if (colonna == Colonna::Pdf && m_elenco.haPdf(riga)) {
        ApriPDF(m_contesto, m_elenco.nomePdf(riga));
        return;
    }
    documento(riga);
}

void AperturaDocumenti::documento(int riga) {
    if (m_riordino.fermo() && m_elenco.record(riga) > 0)
        apri(m_elenco.record(riga), Schermo::Borftea);
}

void AperturaDocumenti::documento(const Identita& quale) {
    if (!m_riordino.fermo())
        return;
    if (stesso(quale, identitaDi(quale.record, m_contesto.archivio.fte.leggi(quale.record))))
        return apri(quale.record, Schermo::Borftea);
    m_contesto.operatore.messaggio(u"Il documento "_s + numeroEData(quale) +
                                       u" non è più dove era: aggiornate l'elenco (F5) e cercatelo."_s,
                                   titoloAttenzione, Icona::Esclamazione);
}

void AperturaDocumenti::avvisaInMano() const {
    m_contesto.operatore.messaggio(u"Tornate prima al registro: un documento si apre da lì."_s,
                                   titoloAttenzione, Icona::Informazione);
}

void AperturaDocumenti::prospetto(Schermo quale) {
    if (m_riordino.fermo())
        m_contesto.navigatore.mostra(quale);
}

void AperturaDocumenti::fatturaElettronica(int riga) {
    if (m_riordino.fermo() && m_elenco.record(riga) > 0)
        apri(m_elenco.record(riga), Schermo::Borftel);
}

void AperturaDocumenti::copia(int riga, Copia come) {
    m_contesto.sessione.copia = come;
    documento(riga);
    m_contesto.sessione.copia.reset(); // also where nothing opened
}

void AperturaDocumenti::ultimo() {
    if (!m_riordino.fermo())
        return;
    const int record = m_contesto.sessione.ultimosalvato;
    if (record > 0)
        apri(record, Schermo::Borftea);
    else
        m_contesto.operatore.messaggio(
            u"Nessun documento è stato ancora registrato da quando il programma è aperto"_s, titoloAttenzione,
            Icona::Informazione);
}

void AperturaDocumenti::apri(int record, Schermo schermo) {
    const Fte fte = m_contesto.archivio.fte.leggi(record);
    if (fte.annullata == 1) {
        m_contesto.operatore.messaggio(u"Fattura annullata"_s, titoloAttenzione, Icona::Esclamazione);
        return;
    }
    Sessione& sessione = m_contesto.sessione;
    sessione.documentoletto = false;
    sessione.testataletta = false;
    sessione.righelette = false;
    m_documento = {};
    m_documento.recordfattura = record;
    m_documento.recordcliente = fte.cliente;
    m_contesto.navigatore.mostra(schermo);
}

} // namespace bor
