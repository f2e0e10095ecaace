#include "posting/borftec.h"

#include "common/numeri.h"
#include "document/avvisi.h"
#include "document/riscontromovimento.h"
#include "document/totali.h"
#include "document/totaliparcella.h"
#include "document/trovamovimento.h"
#include "posting/saldi.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Where the name of an account stands in a row of the list, behind the three groups of its code.
constexpr Tratto nomeInVoce{12};

QString voceConto(const Con& conto) {
    const QString codice = zeriDavanti(puliscitesto(conto.codice.text()), 8);
    return pezzo(codice, ContoTesti::postoMastro) + u' ' + pezzo(codice, ContoTesti::postoConto) + u' ' +
           pezzo(codice, ContoTesti::postoSottoconto) + u' ' + puliscitesto(conto.descrizione.text());
}

ContoTesti contoInVoce(const QString& voce) {
    return {pezzo(voce, 1, 2), pezzo(voce, 4, 2), pezzo(voce, 7, 4)};
}

QString& casella(RigaMovimento& riga, Borftec::Campo campo) {
    switch (campo) {
    case Borftec::Campo::Mastro:
        return riga.conto.mastro;
    case Borftec::Campo::Conto:
        return riga.conto.conto;
    case Borftec::Campo::Sottoconto:
        return riga.conto.sottoconto;
    case Borftec::Campo::Dare:
        return riga.dare;
    case Borftec::Campo::Avere:
        break;
    }
    return riga.avere;
}

} // namespace

Borftec::Borftec(Contesto& contesto, const Documento& documento)
    : m_contesto(contesto), m_documento(documento) {}

void Borftec::attiva() {
    m_conti.clear();
    m_contoScelto = -1;
    m_lineafuoco = 0;
    m_fuoco = Cella{};
    m_modificato = false;
    ++m_edizione;
    const Archivio& archivio = m_contesto.archivio;
    archivio.con.scorri(1, archivio.leggiTot(Conta::Con).numero, [this](int, const Con& conto) {
        m_conti.append(voceConto(conto));
        return true;
    });
    m_conti.sort();
    m_nomi.clear();
    // Of two accounts with one code the first in the list lends its name.
    for (const QString& voce : m_conti)
        m_nomi.try_emplace(valore(contoInVoce(voce).unito()), pezzo(voce, nomeInVoce));
}

QString Borftec::titolo() const {
    return m_contesto.sessione.modificamovimento ? u"Modifica movimento contabile"_s
                                                 : u"Estremi movimento contabile"_s;
}

QString Borftec::testo(Cella cella) const {
    RigaMovimento copia = riga(cella.linea);
    return casella(copia, cella.campo);
}

void Borftec::cambia(Cella cella, const QString& testo) {
    m_lineafuoco = cella.linea;
    m_modificato = true;
    const bool importo = cella.campo >= Campo::Dare;
    casella(riga(cella.linea), cella.campo) = importo ? QString(testo).replace(u',', u'.') : testo;
    if (importo)
        return;
    if (testo.size() == caratteri[cella.campo])
        invio(cella);
    const ContoTesti& conto = riga(cella.linea).conto;
    const QString inizio = QStringList{conto.mastro, conto.conto, conto.sottoconto}.join(u' ').trimmed();
    const auto trovato = std::ranges::lower_bound(std::as_const(m_conti), inizio);
    if (!inizio.isEmpty() && trovato != m_conti.cend() && trovato->startsWith(inizio))
        m_contoScelto = postoDi(m_conti, trovato);
}

QString Borftec::descrizioneConto(int linea) const {
    const double codice = valore(riga(linea).conto.unito());
    const auto trovato = codice > 0 ? m_nomi.find(codice) : m_nomi.end();
    return trovato == m_nomi.end() ? QString() : trovato->second;
}

void Borftec::cambia(const QString& valore, QString Movimento::*testo) {
    m_modificato = true;
    m_movimento.*testo = valore;
}

void Borftec::invio(Cella cella) {
    if (cella.campo != Campo::Avere)
        m_fuoco = Cella{prossimo(cella.campo), cella.linea};
    else
        m_fuoco = Cella{Campo::Mastro, (cella.linea + 1) % righe};
}

void Borftec::cerca(const QString& testo) {
    const QString cercato = maiuscolo(testo);
    const auto trovato = std::ranges::find_if(std::as_const(m_conti), [&](const QString& voce) {
        return maiuscolo(pezzo(voce, nomeInVoce.da, cercato.size())) == cercato;
    });
    if (!cercato.isEmpty() && trovato != m_conti.end())
        m_contoScelto = postoDi(m_conti, trovato);
}

void Borftec::prendiConto(int posizione) {
    if (posizione < 0 || posizione >= m_conti.size() || valore(m_conti[posizione].left(2)) <= 0)
        return;
    m_contoScelto = posizione;
    m_modificato = true;
    const QString& voce = m_conti[posizione];
    riga(m_lineafuoco).conto = contoInVoce(voce);
    m_fuoco = Cella{Campo::Dare, m_lineafuoco};
}

void Borftec::togliRiga() {
    if (m_lineafuoco < 0 || m_lineafuoco >= righe - 1)
        return;
    auto& r = m_movimento.righe;
    m_modificato = true;
    std::move(r.begin() + m_lineafuoco + 1, r.end(), r.begin() + m_lineafuoco);
    r.back() = {};
}

void Borftec::inserisciRiga() {
    if (m_lineafuoco < 0 || m_lineafuoco >= righe - 1)
        return;
    auto& r = m_movimento.righe;
    m_modificato = true;
    std::move_backward(r.begin() + m_lineafuoco + 1, r.end() - 1, r.end());
    riga(m_lineafuoco + 1) = {};
}

void Borftec::lascia() {
    if (m_modificato && !uscireSenzaRegistrare(m_contesto))
        return;
    if (!m_contesto.sessione.modificamovimento)
        m_contesto.operatore.messaggio(u"Il documento resta senza movimento contabile"_s, u"Attenzione"_s,
                                       Icona::Esclamazione);
    m_contesto.navigatore.mostra(Schermo::Borfte);
}

double Borftec::totale(Totale quale) const {
    switch (quale) {
    case Totale::Dare:
        return somma(&RigaMovimento::dare);
    case Totale::Avere:
        return somma(&RigaMovimento::avere);
    case Totale::Sbilancio:
        return scarto(totale(Totale::Dare), totale(Totale::Avere));
    case Totale::Documento:
        return totaleDocumento();
    case Totale::Differenza:
        break;
    }
    return differenza();
}

double Borftec::somma(QString RigaMovimento::*importo) const {
    double totale = 0;
    for (const RigaMovimento& r : m_movimento.righe)
        totale += valorevirgola(r.*importo);
    return totale;
}

double Borftec::totaleDocumento() const {
    if (m_documento.parcella())
        return totaliParcella(m_documento.dddp, m_documento.testata.pratica, m_contesto.tabelle,
                              m_contesto.valuta())
            .totaledocumento;
    return totali(m_documento).totaledoc;
}

double Borftec::differenza() const {
    // The seller's own invoice is posted apart: this movement then carries the tax alone.
    const double atteso =
        m_documento.integrata == Integrata::No ? totaleDocumento() : totali(m_documento).somma2;
    return scarto(totale(m_documento.notaCredito() ? Totale::Avere : Totale::Dare), atteso);
}

void Borftec::salva() {
    // The register fills itself again also after a movement that the checks refused: the document before it
    // is on file.
    m_contesto.sessione.listadaaggiornare = true;
    if (salvamovimento())
        m_contesto.navigatore.mostra(Schermo::Borfte);
}

bool Borftec::salvamovimento() {
    m_movimento.data = m_movimento.data.trimmed();
    if (!dataValida(m_movimento.data)) {
        m_contesto.operatore.messaggio(u"La data del movimento non è valida"_s, u"Attenzione"_s, Icona::Stop);
        return false;
    }
    bool contiTrovati = false;
    const EsitoRaffica esito = registra(contiTrovati);
    avvisaRecuperi(m_contesto);
    if (esito != EsitoRaffica::Riuscita)
        avvisaNonRegistrato(m_contesto, esito);
    else if (!contiTrovati)
        m_contesto.operatore.messaggio(u"Uno o più conti selezionati non esistono"_s, u"Attenzione"_s,
                                       Icona::Stop);
    return esito == EsitoRaffica::Riuscita && contiTrovati;
}

EsitoRaffica Borftec::registra(bool& contiTrovati) {
    const Attesa attesa(m_contesto.operatore);
    Raffica raffica(m_contesto.archivio, u"movimento contabile, "_s + nomeDocumento(m_documento));
    contiTrovati = trovaConti(raffica);
    if (!contiTrovati)
        return raffica.esito();
    const int vecchiomovimento =
        m_contesto.sessione.modificamovimento ? trovaMovimento(raffica, m_documento.coppia.fte.stamp) : 0;
    aggiornaConti(raffica, vecchiomovimento);
    scriviMovimento(raffica, vecchiomovimento);
    return raffica.esegui();
}

bool Borftec::trovaConti(Raffica& raffica) {
    bool tutti = true;
    for (int i = 0; i < righe; ++i) {
        int& trovato = elemento(m_contoriga, i);
        trovato = 0;
        // A line without amounts drops out of the movement, whatever account it names.
        if (riga(i).senzaImporti())
            riga(i).conto = {};
        const QString codice = riga(i).conto.unito().trimmed();
        if (!codice.isEmpty()) {
            trovato = trovaconto(raffica, codice);
            tutti = tutti && trovato > 0;
        }
    }
    return tutti;
}

void Borftec::aggiornaConti(Raffica& raffica, int vecchiomovimento) {
    if (vecchiomovimento > 0) {
        for (const VoceGio& voce : raffica.leggi(m_contesto.archivio.gio, vecchiomovimento).voce)
            applicaconto(raffica, voce);
    }
    for (int i = 0; i < righe; ++i) {
        const int n = elemento(m_contoriga, i);
        if (n > 0)
            aggiornaconto(raffica, n, valorevirgola(riga(i).dare), valorevirgola(riga(i).avere));
    }
}

void Borftec::scriviMovimento(Raffica& raffica, int vecchiomovimento) {
    RecordFile<Gio>& file = m_contesto.archivio.gio;
    Gio gio = raffica.leggi(file, vecchiomovimento);
    m_movimento.riempi(gio);
    gio.riferimentofattura = m_documento.coppia.fte.stamp;
    if (vecchiomovimento > 0)
        raffica.cambia(file, Conta::Gio, vecchiomovimento, gio);
    else
        raffica.aggiungi(file, Conta::Gio, gio);
}

} // namespace bor
