#include "register/borfte.h"

#include "common/posti.h"
#include "document/riscontromovimento.h"
#include "register/righeelenco.h"
#include "register/tabellaregistro.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int righeSotto = 22; ///< a list that opens at its end shows this many rows below the first

int primoRecord(std::optional<Selvis> selvis, int numero) {
    switch (selvis.value_or(Selvis::Tutte)) {
    case Selvis::Tutte:
        return 1;
    case Selvis::Ultime1000:
        return std::max(numero - 999, 1);
    case Selvis::Ultime5000:
        return std::max(numero - 4999, 1);
    }
    return 1;
}

} // namespace

Borfte::Borfte(Contesto& contesto, Documento& documento)
    : m_contesto(contesto), m_documento(documento), m_riordino(contesto), m_elenco(contesto.tabelle),
      m_opzioni(
          contesto, [this] { return !m_riordino.inCorso(); },
          [this](OpzioniRegistro::Effetto effetto) { opzioniCambiate(effetto); }),
      m_apertura(contesto, documento, m_elenco, m_riordino), m_scelta(m_elenco) {}

void Borfte::carica() {
    prepara();
    riempi();
}

void Borfte::prepara() {
    m_opzioni.ripristina();
    leggiConteggio();
}

void Borfte::attiva() {
    const bool daRiempire =
        m_contesto.sessione.listadaaggiornare && m_contesto.impostazioni.gnr.riempiDopoSalvataggio();
    const int aperto = m_documento.recordfattura;
    if (!daRiempire && (aperto <= 0 || aperto == m_recordCorrente))
        return;
    if (aperto > 0)
        m_recordCorrente = aperto;
    if (daRiempire) {
        leggiConteggio();
        caricalista();
        m_contesto.sessione.listadaaggiornare = false;
        // A search that leaves out what was just stored would put the cursor on another document.
        if (aperto > 0 && m_elenco.rigaDi(aperto) < 0 && !m_opzioni.scelte().cercato.isEmpty())
            m_opzioni.cerca({});
    }
    m_primaRiga.reset();
    ++m_edizione;
}

void Borfte::esci() {
    if (m_riordino.inCorso())
        return;
    m_contesto.archivio.chiudi();
    m_contesto.navigatore.termina();
}

Diagnosi Borfte::informazioni() const {
    return diagnosi(m_contesto.archivio, m_contesto.sessione.codiceazienda);
}

QString Borfte::testoInformazioni(const Diagnosi& diagnosi) const {
    return testoAssistenza(diagnosi, m_contesto.archivio);
}

void Borfte::rileggi() {
    if (m_riordino.inCorso())
        return;
    leggiConteggio();
    caricalista();
}

void Borfte::riordino(TipoRiordino tipo) {
    if (!m_riordino.esegui(tipo, m_numero))
        return;
    // The documents have other numbers now.
    m_recordCorrente = 0;
    m_contesto.sessione.ultimosalvato = 0;
    m_scelta.dimentica();
    caricalista();
}

void Borfte::opzioniCambiate(OpzioniRegistro::Effetto effetto) {
    switch (effetto) {
    case OpzioniRegistro::Effetto::Posizione:
        m_recordCorrente = 0;
        [[fallthrough]];
    case OpzioniRegistro::Effetto::Riempimento:
        caricalista();
        return;
    case OpzioniRegistro::Effetto::Ricerca:
        m_elenco.cerca(m_opzioni.scelte().cercato);
        m_primaRiga.reset();
        ++m_edizione;
        return;
    case OpzioniRegistro::Effetto::Colonne:
        return;
    }
}

void Borfte::ordina(Colonna colonna) {
    if (m_riordino.inCorso())
        return;
    switch (colonna) {
    case Colonna::Registrazione:
    case Colonna::Cliente:
        m_elenco.ordina(colonna);
        break;
    case Colonna::DataRegistrazione:
        m_elenco.ordina(Colonna::Chiave);
        break;
    default:
        return;
    }
    if (colorata())
        m_cellaColorata.reset();
    m_primaRiga.reset();
    ++m_edizione;
}

void Borfte::cellaCorrente(int riga, Colonna colonna) {
    m_cellaCorrente = {riga, colonna};
    m_recordCorrente = m_elenco.record(riga);
}

int Borfte::rigaCorrente() const {
    const int riga = m_elenco.rigaDi(m_recordCorrente);
    if (riga >= 0)
        return riga;
    return m_opzioni.scelte().visua == Visua::DallUltima ? std::max(m_elenco.quante() - 1, 0) : 0;
}

void Borfte::leggiConteggio() {
    m_numero = m_contesto.archivio.leggiTot(Conta::Fte).numero;
}

void Borfte::caricalista() {
    const Attesa attesa(m_contesto.operatore);
    riempi();
}

void Borfte::riempi() {
    m_difetti.clear();
    m_senzaRighe.clear();
    m_elenco.carica(m_contesto.archivio, primoRecord(m_opzioni.scelte().selvis, m_numero), m_numero,
                    [filtro = filtroScelto(), vaglio = Vaglio(m_opzioni.vista().documenti)](
                        int record, const Fte& fte, const F2e& f2e) {
                        return vaglio.passa(fte, f2e) && filtro(record, fte, f2e);
                    });
    const int righelista = m_elenco.quante() + 1;
    m_primaRiga = 0;
    if (m_opzioni.scelte().visua == Visua::DallUltima && righelista > righeSotto + 1)
        m_primaRiga = std::max(righelista, righePiene + 1) - righeSotto - 1;
    // A fill colours only the cell that has the cursor, by the last document it took in; the rows get their
    // colours apart from that.
    m_cellaColorata.reset();
    if (!colorata() && m_elenco.quante() > 0)
        m_cellaColorata = {m_cellaCorrente, m_elenco.ultimaPdf() ? 0xC0C0FF : 0xFCFAF3};
    ++m_edizione;
}

ElencoFatture::Passa Borfte::filtroScelto() {
    switch (m_opzioni.scelte().filtro) {
    case FiltroFatture::Tutte:
        break;
    case FiltroFatture::Normali:
        return [](int, const Fte&, const F2e& f2e) { return !f2e.fatturaPa(); };
    case FiltroFatture::SoloPa:
        return [](int, const Fte&, const F2e& f2e) { return f2e.fatturaPa(); };
    case FiltroFatture::MovimentoDaControllare:
        return [this, movimenti = MovimentiDocumenti(m_contesto.archivio)](int record, const Fte& fte,
                                                                           const F2e& f2e) {
            const QString difetto = movimenti.difetto({fte, f2e}, m_contesto.tabelle);
            return !difetto.isEmpty() && m_difetti.try_emplace(record, difetto).second;
        };
    }
    return [](int, const Fte&, const F2e&) { return true; };
}

bool Borfte::colorata() const {
    return m_contesto.impostazioni.gnr.colora();
}

QString Borfte::testo(int riga, Colonna colonna) const {
    return m_elenco.testo(riga, colonna, m_contesto.valuta());
}

QString Borfte::nota(int riga) const {
    const int record = m_elenco.record(riga);
    if (record == 0)
        return {};
    // A fill looks at no file of lines, of which there is one a document: only a row that is shown asks.
    const auto [senza, nuova] = m_senzaRighe.try_emplace(record, false);
    if (nuova)
        senza->second = m_elenco.senzaRighe(riga, m_contesto.archivio);
    QStringList note;
    if (const auto difetto = m_difetti.find(record); difetto != m_difetti.end())
        note.append(difetto->second);
    if (senza->second)
        note.append(u"Le righe non sono su file: aprite il documento e salvatelo"_s);
    return note.join(u". "_s);
}

std::optional<int> Borfte::colore(int riga, Colonna colonna) const {
    if (colorata())
        return coloreRiga(m_contesto.impostazioni.gnr, riga);
    if (m_cellaColorata && m_cellaColorata->cella == Cella{riga, colonna})
        return m_cellaColorata->colore;
    return std::nullopt;
}

QString Borfte::totali(const SommeElenco& somme) const {
    QString testo = somme.documenti == 1 ? u"1 documento"_s : u"%1 documenti"_s.arg(somme.documenti);
    if (somme.eliminati > 0)
        testo += (somme.eliminati == 1 ? u" (%1 eliminato)"_s : u" (%1 eliminati)"_s).arg(somme.eliminati);
    const auto aggiungi = [&](QStringView nome, double importo) {
        if (const QString scritto = m_contesto.valuta().importotesto(importo); !scritto.isEmpty())
            testo += u"   %1 %2"_s.arg(nome, scritto);
    };
    aggiungi(u"Imponibile", somme.imponibile);
    aggiungi(u"Imposta", somme.imposta);
    aggiungi(u"Esente", somme.esente);
    aggiungi(u"Totale", somme.totale);
    aggiungi(u"Ritenuta", somme.ritenuta);
    return testo;
}

Tabella Borfte::tabella() const {
    Tabella tabella = tabellaRegistro(m_elenco, m_opzioni.vista().mostrate(), m_contesto.valuta());
    tabella.titolo = titoloRegistro(m_contesto.archivio);
    tabella.filtro = m_opzioni.descrizione();
    return tabella;
}

int Borfte::righeGriglia() const {
    return std::max(m_elenco.quante(), righePiene);
}

} // namespace bor
