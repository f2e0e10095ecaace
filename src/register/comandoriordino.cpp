#include "register/comandoriordino.h"

#include "document/avvisi.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString domandaRiordino(TipoRiordino tipo) {
    switch (tipo) {
    case TipoRiordino::PerNumero:
        return u"Confermi il riordino per numero di fattura?"_s;
    case TipoRiordino::PerData:
        return u"Confermi il riordino per data di registrazione?"_s;
    case TipoRiordino::PerProtocollo:
        break;
    }
    return u"Confermi il riordino per protocollo?"_s;
}

QString testoFase(FaseRiordino fase) {
    switch (fase) {
    case FaseRiordino::Caricamento:
        return u" durante la procedura di caricamento in memoria del dati da riordinare."_s;
    case FaseRiordino::Duplicazione:
        return u" durante la procedura di duplicazione del file indici."_s;
    case FaseRiordino::Apertura:
        return u" durante la procedura di apertura del file indici."_s;
    case FaseRiordino::Salvataggio:
    case FaseRiordino::Riuscito:
        break;
    }
    return u" durante la procedura di salvataggio dei dati riordinati."_s;
}

} // namespace

void ComandoRiordino::scegli() {
    if (!fermo())
        return;
    m_stato = Stato::Scelta;
    m_etichetta = u"Seleziona il tipo di riordino da eseguire"_s;
}

bool ComandoRiordino::esegui(TipoRiordino tipo, int& numero) {
    if (!scelta())
        return false;
    // The label comes back without its colon and stays so.
    m_etichetta = u"Inserisci"_s;
    m_stato = Stato::InCorso;
    m_massimo = 0;
    avanza(0);
    EsitoRiordino esito;
    if (m_contesto.operatore.chiedi(domandaRiordino(tipo), u"Riordino archivio"_s)) {
        const Attesa attesa(m_contesto.operatore);
        m_massimo = m_contesto.archivio.leggiTot(Conta::Fte).numero;
        avanza(1);
        esito = riordina(m_contesto.archivio, tipo, [this](int fatti) { avanza(fatti); });
        numero = esito.documenti;
    }
    m_stato = Stato::Fermo;
    avvisaRecuperi(m_contesto);
    if (esito.fase == FaseRiordino::Riuscito)
        return true;
    mostraErrore(esito);
    return false;
}

void ComandoRiordino::avanza(int fatti) {
    m_avanzamento = fatti;
    if (m_suAvanzamento)
        m_suAvanzamento();
    m_contesto.operatore.lasciaEventi();
}

void ComandoRiordino::mostraErrore(const EsitoRiordino& esito) {
    if (esito.occupato)
        return avvisaNonRegistrato(m_contesto, EsitoRaffica::Occupata);
    m_contesto.operatore.messaggio(
        u"Si è verificato l'errore "_s + QString::number(esito.errore) + testoFase(esito.fase) +
            u" Probabilmente qualche applicazione non è stata chiusa correttamente oppure "
            "qualche computer della rete sta utilizzando Borlano. Verificate ed "
            "eventualmente riavviate Windows."_s,
        u"Attenzione"_s, Icona::Stop);
}

} // namespace bor
