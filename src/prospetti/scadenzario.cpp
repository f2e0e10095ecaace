#include "prospetti/scadenzario.h"

#include "archive/giornidifile.h"
#include "common/posti.h"
#include "prospetti/totaletesto.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString genere(const DocumentoARate& documento) {
    if (documento.nota)
        return u"Nota di credito"_s;
    return documento.parcella ? u"Parcella"_s : u"Fattura"_s;
}

QString quanteRate(const ContoRate& conto) {
    return QString::number(conto.rate) + (conto.rate == 1 ? u" rata"_s : u" rate"_s);
}

/// "2 di 3"; a document without instalments is due as a whole.
QString qualeRata(const RataDovuta& rata, const DocumentoARate& documento) {
    return rata.numero == 0 ? u"senza rate"_s : u"%1 di %2"_s.arg(rata.numero).arg(documento.rate);
}

} // namespace

Scadenzario::Scadenzario(Contesto& c, std::function<void(const Identita&)> apri)
    : Prospetto(c), m_apri(std::move(apri)), m_limiti(c.orologio, [this] { mostra(); }),
      m_memoria(c.archivio.percorsi(), c.sessione.codiceazienda), m_ricordate(m_memoria.scadenzario()) {
    m_scelta.gruppi = m_ricordate.gruppi;
    m_scelta.riba = m_ricordate.riba;
    if (m_ricordate.periodo)
        m_limiti.riprendi(*m_ricordate.periodo, m_ricordate.giorni);
}

void Scadenzario::completa() {
    m_elenco.completa(contesto.archivio);
    if (!m_elenco.pagamenti().contains(m_scelta.pagamento))
        m_scelta.pagamento = -1;
    m_limiti.proponi(m_elenco.dovute(contesto.orologio.oggi()));
}

void Scadenzario::scegli() {
    m_scelta.dal = m_limiti.primo();
    m_scelta.al = m_limiti.ultimo();
    m_elenco.mostra(m_scelta);
    ricorda();
}

/// Half a date that is being typed is no choice yet.
void Scadenzario::ricorda() {
    ScelteScadenzario scelte{.periodo = m_limiti.scelto(), .gruppi = m_scelta.gruppi, .riba = m_scelta.riba};
    if (scelte.periodo == PeriodoScadenze::DalAl)
        scelte.giorni = {m_scelta.dal.value_or(QDate()), m_scelta.al.value_or(QDate())};
    if (scelte == m_ricordate || !m_limiti.errati().isEmpty())
        return;
    m_ricordate = scelte;
    m_memoria.segna(scelte);
}

void Scadenzario::cambiaCliente(const QString& testo) {
    m_scelta.cliente = testo;
    mostra();
}

void Scadenzario::cambiaPagamento(int posto) {
    m_scelta.pagamento = m_elenco.pagamenti().value(posto - 1, -1);
    mostra();
}

int Scadenzario::postoPagamento() const {
    return static_cast<int>(m_elenco.pagamenti().indexOf(m_scelta.pagamento)) + 1;
}

QStringList Scadenzario::pagamenti() const {
    QStringList elenco{u"Tutte"_s};
    for (const int tipo : m_elenco.pagamenti())
        elenco.append(modalita(tipo));
    return elenco;
}

void Scadenzario::cambiaRiba(SceltaRiba riba) {
    m_scelta.riba = riba;
    mostra();
}

void Scadenzario::cambiaGruppi(GruppiScadenze gruppi) {
    m_scelta.gruppi = gruppi;
    mostra();
}

QString Scadenzario::giorno(const RataDovuta& rata) const {
    return rata.giorno > 0 ? testoData(QDate::fromJulianDay(rata.giorno))
                           : dataDaGiornoMeseAnno(rata.scadenza.text());
}

QString Scadenzario::modalita(int pagamento) const {
    const QString descrizione = contesto.tabelle.tipopagamenti[pagamento].descrizione.trimmed();
    if (pagamento == 0)
        return u"Senza modalità"_s;
    return descrizione.isEmpty() ? u"Modalità %1"_s.arg(pagamento) : descrizione;
}

QString Scadenzario::nome(int cliente) const {
    const QString& nome = m_elenco.nome(cliente);
    return nome.isEmpty() ? u"Senza nome"_s : nome;
}

QString Scadenzario::nomeGruppo(const ElencoScadenze::Riga& riga) const {
    switch (m_scelta.gruppi) {
    case GruppiScadenze::PerGiorno:
        return m_elenco.rata(riga).giorno > 0 ? giorno(m_elenco.rata(riga)) : u"senza data"_s;
    case GruppiScadenze::PerCliente:
        return nome(m_elenco.documento(riga).cliente());
    case GruppiScadenze::PerPagamento:
        return modalita(m_elenco.documento(riga).pagamento);
    }
    return {};
}

QString Scadenzario::testoTotale(const ElencoScadenze::Riga& riga, ColonnaScadenze colonna) const {
    const ContoRate& totale = m_elenco.totale(riga);
    switch (colonna) {
    case ColonnaScadenze::Cliente:
        return u"Totale "_s + nomeGruppo(riga);
    case ColonnaScadenze::Rata:
        return quanteRate(totale);
    case ColonnaScadenze::Importo:
        return totaletesto(contesto.valuta(), totale.importo);
    default:
        return {};
    }
}

QString Scadenzario::testo(int quale, ColonnaScadenze colonna) const {
    if (quale < 0 || quale >= righe())
        return {};
    const ElencoScadenze::Riga& riga = elemento(m_elenco.righe(), quale);
    if (riga.totale())
        return testoTotale(riga, colonna);
    const RataDovuta& rata = m_elenco.rata(riga);
    const DocumentoARate& documento = m_elenco.documento(riga);
    switch (colonna) {
    case ColonnaScadenze::Scadenza:
        return giorno(rata);
    case ColonnaScadenze::Cliente:
        return nome(documento.cliente());
    case ColonnaScadenze::Documento:
        return puliscitesto(documento.identita.numero.text());
    case ColonnaScadenze::Data:
        return dataDaAnnoMeseGiorno(documento.identita.datadoc.text());
    case ColonnaScadenze::Genere:
        return genere(documento);
    case ColonnaScadenze::Rata:
        return qualeRata(rata, documento);
    case ColonnaScadenze::Pagamento:
        return modalita(documento.pagamento);
    case ColonnaScadenze::Riba:
        return documento.riba ? u"Ri.Ba."_s : QString();
    case ColonnaScadenze::Importo:
        return totaletesto(contesto.valuta(), rata.importo);
    }
    return {};
}

bool Scadenzario::totale(int riga) const {
    return riga >= 0 && riga < righe() && elemento(m_elenco.righe(), riga).totale();
}

int Scadenzario::rigaCorrente() const {
    const int stessa =
        postoDi(m_elenco.righe(), std::ranges::find_if(m_elenco.righe(), [this](const auto& riga) {
                    return !riga.totale() && m_elenco.chi(riga) == m_corrente;
                }));
    return stessa >= 0 ? stessa : std::max(m_elenco.primaDal(contesto.orologio.oggi()), 0);
}

void Scadenzario::cambiaRiga(int riga) {
    if (riga >= 0 && riga < righe() && !totale(riga))
        m_corrente = m_elenco.chi(elemento(m_elenco.righe(), riga));
}

void Scadenzario::apri(int riga) {
    if (riga >= 0 && riga < righe() && !totale(riga))
        m_apri(m_elenco.documento(elemento(m_elenco.righe(), riga)).identita);
}

QString Scadenzario::conta(const ContoRate& conto) const {
    return quanteRate(conto) + u", "_s + totaletesto(contesto.valuta(), conto.importo);
}

QString Scadenzario::riepilogo() const {
    QString testo = u"In scadenza: "_s + conta(m_elenco.conData());
    if (m_elenco.senzaData().rate > 0)
        testo += u" - Senza data: "_s + conta(m_elenco.senzaData()) + u" - In tutto: "_s +
                 conta(m_elenco.inTutto());
    for (const QString& casella : m_limiti.errati())
        testo += u" - «%1» non è una data: non limita l'elenco"_s.arg(casella);
    return testo;
}

QString Scadenzario::filtro() const {
    QStringList parti;
    if (m_scelta.dal)
        parti.append(u"dal "_s + testoData(*m_scelta.dal));
    if (m_scelta.al)
        parti.append(u"al "_s + testoData(*m_scelta.al));
    if (!m_scelta.cliente.trimmed().isEmpty())
        parti.append(u"cliente \""_s + m_scelta.cliente.trimmed() + u'"');
    if (m_scelta.pagamento >= 0)
        parti.append(modalita(m_scelta.pagamento));
    if (m_scelta.riba != SceltaRiba::Tutte)
        parti.append(m_scelta.riba == SceltaRiba::SoloRiba ? u"solo Ri.Ba."_s : u"senza Ri.Ba."_s);
    const QString scelte = parti.isEmpty() ? u"tutte le scadenze"_s : parti.join(u", "_s);
    const ContoRate& senza = m_elenco.senzaData();
    return u"In scadenza: "_s + scelte + u". Le note di credito sono in meno."_s +
           (senza.rate > 0 ? u" Senza data: "_s + conta(senza) + u'.' : QString());
}

void Scadenzario::celle(const ElencoScadenze::Riga& riga, CelleRiga& celle) const {
    if (riga.totale()) {
        celle.vuota();
        celle.testo(testoTotale(riga, ColonnaScadenze::Cliente));
        for (int i = 0; i < 3; ++i)
            celle.vuota();
        celle.testo(testoTotale(riga, ColonnaScadenze::Rata));
        celle.vuota();
        celle.vuota();
        celle.importo(m_elenco.totale(riga).importo);
        return;
    }
    const RataDovuta& rata = m_elenco.rata(riga);
    const DocumentoARate& documento = m_elenco.documento(riga);
    if (rata.giorno > 0)
        celle.data(QDate::fromJulianDay(rata.giorno));
    else
        celle.testo(giorno(rata));
    celle.testo(nome(documento.cliente()));
    celle.testo(puliscitesto(documento.identita.numero.text()));
    celle.data(daAnnoMeseGiorno(documento.identita.datadoc));
    celle.testo(genere(documento));
    celle.testo(qualeRata(rata, documento));
    celle.testo(modalita(documento.pagamento));
    celle.testo(documento.riba ? u"Ri.Ba."_s : QString());
    celle.importo(rata.importo);
}

Tabella Scadenzario::tabella() const {
    Tabella tabella{.titolo = u"Scadenzario"_s,
                    .filtro = filtro(),
                    .colonne = {{u"Scadenza"_s, GenereColonna::Data, 10},
                                {u"Cliente"_s, GenereColonna::Testo, 30},
                                {u"Documento"_s, GenereColonna::Testo, 10},
                                {u"Data"_s, GenereColonna::Data, 10},
                                {u"Genere"_s, GenereColonna::Testo, 14},
                                {u"Rata"_s, GenereColonna::Testo, 9},
                                {u"Pagamento"_s, GenereColonna::Testo, 22},
                                {u"Ri.Ba."_s, GenereColonna::Testo, 6},
                                {u"Importo"_s, GenereColonna::Importo, 14}},
                    .decimali = contesto.valuta().euro ? 2 : 0};
    tabella.righe = righe();
    tabella.riga = [this](int i, CelleRiga& uscita) { celle(elemento(m_elenco.righe(), i), uscita); };
    tabella.subtotale = [this](int i) { return totale(i); };
    tabella.totali = [this](CelleRiga& uscita) {
        const ContoRate tutte = m_elenco.inTutto();
        uscita.vuota();
        uscita.testo(u"Totale"_s);
        for (int i = 0; i < 3; ++i)
            uscita.vuota();
        uscita.testo(quanteRate(tutte));
        uscita.vuota();
        uscita.vuota();
        uscita.importo(tutte.importo);
    };
    return tabella;
}

} // namespace bor
