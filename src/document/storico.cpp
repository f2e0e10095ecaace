#include "document/storico.h"

#include "archive/contesto.h"
#include "common/date.h"
#include "document/articoli.h"
#include "document/filerighe.h"
#include "document/righeinsospeso.h"
#include "document/righeiva.h"
#include "document/testata.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QDate dataDi(const Fte& fte) {
    return dataValida(dataDaAnnoMeseGiorno(fte.datadoc.text())).value_or(QDate());
}

VenditeFile venditeDelleRighe(const Documento& documento) {
    VenditeFile vendite;
    vendite.conIva = documento.scorporo;
    for (const Riga& riga : documento.ddd) {
        if (riga.recart > 0 && riga.prezzo != 0)
            vendite.righe.push_back({riga.recart, riga.sconto1, riga.sconto2, riga.quantita, riga.prezzo});
    }
    return vendite;
}

} // namespace

void Storico::apri(const DomandaStorico& domanda) {
    m_domanda = domanda;
    m_documenti.clear();
    m_vendite.clear();
    m_conRighe.clear();
    m_prossimo = 0;
    const Archivio& archivio = m_contesto.archivio;
    archivio.fte.scorri(1, archivio.leggiTot(Conta::Fte).numero, [&](int record, const Fte& fte) {
        if (fte.cliente == domanda.cliente && fte.annullata != 1)
            aggiungi(record, fte);
        return true;
    });
    const auto prima = [](const auto& a, const auto& b) { return a > b; };
    std::ranges::sort(m_documenti, prima,
                      [](const DocumentoStorico& d) { return std::pair(d.data, d.record); });
    std::ranges::sort(m_conRighe, prima,
                      [](const ConRighe& d) { return std::pair(dataDi(d.fte), d.record); });
    if (domanda.recart == 0)
        m_conRighe.clear();
}

void Storico::aggiungi(int record, const Fte& fte) {
    const CoppiaFte coppia{fte, m_contesto.archivio.leggi(record).f2e};
    const double segno = fte.tipo == 1 ? -1 : 1;
    DocumentoStorico d{.record = record,
                       .data = dataDi(fte),
                       .numero = puliscitesto(fte.numero.text()),
                       .notaCredito = fte.tipo == 1,
                       .parcella = fte.parcella != 0};
    d.imponibile = segno * (sommaIva(coppia, VoceIva::Imponibile) + sommaIva(coppia, VoceIva::Esente));
    d.imposta = segno * sommaIva(coppia, VoceIva::Imposta);
    d.totale = d.imponibile + d.imposta;
    m_documenti.push_back(d);
    if (!d.notaCredito && !d.parcella && record != m_domanda.documento)
        m_conRighe.push_back({record, fte});
}

bool Storico::avanza(int millisecondi) {
    QElapsedTimer tempo;
    tempo.start();
    while (m_prossimo < m_conRighe.size()) {
        prendiVendite(m_conRighe[m_prossimo++]);
        if (tempo.hasExpired(millisecondi) && m_prossimo < m_conRighe.size())
            return false;
    }
    conservaSeMolto();
    return true;
}

void Storico::interrompi() {
    m_conRighe.resize(m_prossimo);
    conservaSeMolto();
}

void Storico::prendiVendite(const ConRighe& documento) {
    const VenditeFile* vendite = venditeDi(documento.fte);
    if (!vendite)
        return;
    for (const RigaVenduta& riga : vendite->righe) {
        if (riga.recart == m_domanda.recart)
            m_vendite.push_back(
                {dataDi(documento.fte), puliscitesto(documento.fte.numero.text()), riga, vendite->conIva});
    }
}

const VenditeFile* Storico::venditeDi(const Fte& fte) {
    // A file that was written just now may be written once more within the grain of its time.
    constexpr qint64 assestato = 3000;
    const FileRighe file = trovaFileRighe(m_contesto.archivio, fte);
    if (file.percorso.isEmpty())
        return venditeInSospeso(fte);
    if (!m_indice)
        m_indice = leggiIndice(m_percorso);
    const QFileInfo info(file.percorso);
    const TempiFile tempi{info.lastModified().toMSecsSinceEpoch(), info.size()};
    const QByteArray nome = info.fileName().toUtf8();
    const auto noto = m_indice->constFind(nome);
    if (noto != m_indice->cend() && noto->tempi == tempi)
        return &*noto;
    Documento documento;
    if (!leggiRighe(file, documento))
        return nullptr;
    VenditeFile vendite = venditeDelleRighe(documento);
    if (m_contesto.orologio.adesso().toMSecsSinceEpoch() - tempi.scritto > assestato)
        vendite.tempi = tempi;
    m_nuovi += vendite.tempi == tempi ? 1 : 0;
    return &*m_indice->emplace(nome, std::move(vendite));
}

/// A document that was registered once has its lines in the user's folder until it is registered again.
const VenditeFile* Storico::venditeInSospeso(const Fte& fte) {
    Documento documento;
    documento.coppia.fte = fte;
    if (!m_sospese.riprendi(documento))
        return nullptr;
    m_sospeso = venditeDelleRighe(documento);
    return &m_sospeso;
}

/// The index is written as a whole: a few files are sooner read again than written, should the run not end
/// well.
void Storico::conservaSeMolto() {
    constexpr int molti = 200;
    if (m_nuovi >= molti)
        conserva();
}

void Storico::conserva() {
    if (m_nuovi > 0 && !m_percorso.isEmpty())
        scriviIndice(m_percorso, *m_indice);
    m_nuovi = 0;
}

double Storico::totale(int anno) const {
    double somma = 0;
    for (const DocumentoStorico& d : m_documenti)
        somma += anno == 0 || d.data.year() == anno ? d.totale : 0;
    return somma;
}

const Valuta& Storico::valuta() const {
    return m_contesto.valuta();
}

QString Storico::nomeCliente() const {
    const SedeTesti sede = DatiCliente::da(m_contesto.archivio.cli.leggi(m_domanda.cliente)).sede;
    return u"%1 %2"_s.arg(sede.ragione1, sede.ragione2).trimmed();
}

QString Storico::nomeArticolo() const {
    Art articolo;
    if (m_domanda.recart == 0 || !leggiarticolo(m_contesto.archivio, m_domanda.recart, articolo))
        return {};
    return puliscitesto(articolo.codice.text()) + u" - "_s + puliscitesto(articolo.descrizione.text());
}

} // namespace bor
