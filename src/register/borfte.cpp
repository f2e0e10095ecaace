#include "register/borfte.h"

#include "document/apripdf.h"
#include "register/righeelenco.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

const QString titoloAttenzione = u"Attenzione"_s;
constexpr int righeSotto = 22; ///< a list that opens at its end shows this many rows below the first

int primoRecord(int selvis, int numero) {
    switch (selvis) {
    case 1:
        return std::max(numero - 999, 1);
    case 2:
        return std::max(numero - 4999, 1);
    default:
        return 1;
    }
}

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

Borfte::Borfte(Contesto& contesto, Documento& documento, std::function<bool()> righeInSospeso)
    : m_contesto(contesto), m_documento(documento), m_righeInSospeso(std::move(righeInSospeso)) {}

void Borfte::carica() {
    ripristinavista();
    leggiConteggio();
    caricalista();
}

void Borfte::attiva() {
    if (m_contesto.sessione.listadaaggiornare && m_contesto.impostazioni.gnr.aggiornalista.text() == u"1") {
        leggiConteggio();
        caricalista();
        m_contesto.sessione.listadaaggiornare = false;
    }
}

void Borfte::esci() {
    if (occupato())
        return;
    if (m_righeInSospeso && m_righeInSospeso() &&
        !m_contesto.operatore.chiedi(
            u"Alcuni documenti nuovi hanno righe non ancora registrate. Uscire comunque?"_s,
            titoloAttenzione))
        return;
    m_contesto.archivio.chiudi();
    m_contesto.navigatore.termina();
}

void Borfte::rileggi() {
    if (occupato())
        return;
    leggiConteggio();
    caricalista();
}

void Borfte::scegliRiordino() {
    if (m_stato != Stato::Normale)
        return;
    m_stato = Stato::SceltaRiordino;
    m_etichetta = u"Seleziona il tipo di riordino da eseguire"_s;
}

void Borfte::riordino(TipoRiordino tipo) {
    if (m_stato != Stato::SceltaRiordino)
        return;
    // The label comes back without its colon and stays so.
    m_etichetta = u"Inserisci"_s;
    m_stato = Stato::Riordino;
    Tot contatore = m_contesto.archivio.leggiTot(Conta::Fte);
    m_avanzamento = 0;
    m_massimoAvanzamento = 0;
    avanza(0);
    EsitoRiordino esito;
    if (m_contesto.operatore.chiedi(domandaRiordino(tipo), u"Riordino archivio"_s)) {
        const Attesa attesa(m_contesto.operatore);
        m_massimoAvanzamento = contatore.numero;
        avanza(1);
        esito = riordina(m_contesto.archivio, tipo, contatore, [this](int fatti) { avanza(fatti); });
    }
    m_stato = Stato::Normale;
    m_numero = contatore.numero;
    if (esito.fase == FaseRiordino::Riuscito)
        caricalista();
    else
        mostraErroreRiordino(esito);
}

void Borfte::avanza(int fatti) {
    m_avanzamento = fatti;
    if (m_suAvanzamento)
        m_suAvanzamento();
    m_contesto.operatore.lasciaEventi();
}

void Borfte::mostraErroreRiordino(const EsitoRiordino& esito) {
    m_contesto.operatore.messaggio(
        u"Si è verificato l'errore "_s + QString::number(esito.errore) + testoFase(esito.fase) +
            u" Probabilmente qualche applicazione non è stata chiusa correttamente oppure "
            "qualche computer della rete sta utilizzando Borlano. Verificate ed "
            "eventualmente riavviate Windows."_s,
        titoloAttenzione, Icona::Stop);
}

void Borfte::nuovoDocumento(int tipo) {
    if (m_stato != Stato::Normale)
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
    m_documento.coppia.fte.tipo = static_cast<std::int16_t>(tipo);
    m_contesto.navigatore.mostra(Schermo::Borftem);
}

void Borfte::cambiaFiltro(FiltroFatture filtro) {
    if (occupato())
        return;
    m_filtro = filtro;
    caricalista();
}

void Borfte::cambiaSelvis(int indice) {
    if (occupato())
        return;
    m_selvis = indice;
    salvaVista();
    caricalista();
}

void Borfte::cambiaVisua(int indice) {
    if (occupato())
        return;
    m_visua = indice;
    salvaVista();
    caricalista();
}

void Borfte::salvaVista() {
    Gnr& gnr = m_contesto.impostazioni.gnr;
    gnr.vistalista = static_cast<std::int16_t>(10 * std::max(m_visua, 0) + std::max(m_selvis, 0));
    salvagnr(m_contesto.archivio, gnr);
}

void Borfte::ripristinavista() {
    const int vista = m_contesto.impostazioni.gnr.vistalista;
    const int selvis = vista % 10;
    const int visua = vista / 10;
    if (vista < 0 || selvis > 2 || visua > 1)
        return;
    m_selvis = selvis;
    m_visua = visua;
}

void Borfte::ordina(int colonna) {
    if (occupato())
        return;
    switch (colonna) {
    case 0:
        m_elenco.ordina(Colonna::Registrazione);
        break;
    case 1:
        m_elenco.ordina(Colonna::Chiave);
        break;
    case 4:
        m_elenco.ordina(Colonna::Cliente);
        break;
    default:
        return;
    }
    if (colorata())
        m_cellaColorata.reset();
    ++m_ordinamenti;
}

void Borfte::cellaCorrente(int riga, int colonna) {
    m_cellaCorrente = {riga, colonna};
}

void Borfte::apri(int riga, int colonna) {
    if (m_stato != Stato::Normale)
        return;
    if (colonna == static_cast<int>(Colonna::Pdf) && m_elenco.haPdf(riga)) {
        ApriPDF(m_contesto, testo(riga, Colonna::NomePdf));
        return;
    }
    const int record = m_elenco.record(riga);
    if (record <= 0)
        return;
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
    m_contesto.navigatore.mostra(Schermo::Borftea);
}

void Borfte::leggiConteggio() {
    m_numero = m_contesto.archivio.leggiTot(Conta::Fte).numero;
}

void Borfte::caricalista() {
    const Attesa attesa(m_contesto.operatore);
    m_elenco.carica(m_contesto.archivio, primoRecord(m_selvis, m_numero), m_numero, m_filtro);
    const int righelista = m_elenco.quante() + 1;
    m_primaRiga = 0;
    if (m_visua == 1 && righelista > righeSotto + 1)
        m_primaRiga = std::max(righelista, righePiene + 1) - righeSotto - 1;
    // A fill colours only the cell that has the cursor, by the last document it took in; the rows get their
    // colours apart from that.
    m_cellaColorata.reset();
    if (!colorata() && m_elenco.quante() > 0)
        m_cellaColorata = {m_cellaCorrente, m_elenco.ultimaPdf() ? 0xC0C0FF : 0xFCFAF3};
    ++m_riempimenti;
}

bool Borfte::colorata() const {
    return listaColorata(m_contesto.impostazioni.gnr);
}

QString Borfte::testo(int riga, Colonna colonna) const {
    return m_elenco.testo(riga, colonna, m_contesto.valuta());
}

std::optional<int> Borfte::colore(int riga, int colonna) const {
    if (colorata())
        return coloreRiga(m_contesto.impostazioni.gnr, riga);
    if (m_cellaColorata && m_cellaColorata->cella == std::array{riga, colonna})
        return m_cellaColorata->colore;
    return std::nullopt;
}

int Borfte::righeGriglia() const {
    return std::max(m_elenco.quante(), righePiene);
}

} // namespace bor
