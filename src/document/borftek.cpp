#include "document/borftek.h"

#include "common/numeri.h"
#include "document/totali.h"
#include "document/totaliparcella.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr qsizetype caratteriData = 10;
constexpr qsizetype caratteriDescrizione = 50;

/// Takes from the text what goes on one line: up to the last blank before the 51st character. A text without
/// a blank there is cut by the width of the line.
QString staccaLinea(QString& testo) {
    QString linea = testo;
    QString resto;
    if (testo.size() > caratteriDescrizione) {
        qsizetype spazio = -1;
        for (qsizetype i = 0; i < testo.size(); ++i) {
            if (testo[i] == u' ')
                spazio = i;
            if (testo.left(i + 1).trimmed().size() > caratteriDescrizione) {
                if (spazio >= 0) {
                    resto = testo.mid(spazio + 1);
                    linea = testo.left(spazio);
                }
                break;
            }
        }
    }
    testo = resto.trimmed();
    return linea.left(caratteriDescrizione);
}

double* importo(Rigap& riga, Borftek::Campo campo) {
    switch (campo) {
    case Borftek::Campo::Anticipazioni:
        return &riga.anticipazioni;
    case Borftek::Campo::Spese:
        return &riga.spese;
    case Borftek::Campo::Onorari:
        return &riga.onorari;
    case Borftek::Campo::Data:
    case Borftek::Campo::Descrizione:
        break;
    }
    return nullptr;
}

} // namespace

Borftek::Borftek(Contesto& contesto, Documento& documento) : m_contesto(contesto), m_documento(documento) {}

bool Borftek::attiva() {
    Sessione& sessione = m_contesto.sessione;
    if (sessione.righelette)
        return false;
    sessione.righelette = true;
    m_righe = m_documento.dddp;
    m_prestazioni = leggiPrestazioni(m_contesto.archivio);
    m_primariga = 1;
    m_rigafocus = 0;
    return true;
}

QString Borftek::titolo() const {
    return m_documento.notaCredito() ? u"Ristampa nota credito"_s : u"Ristampa parcella"_s;
}

QString Borftek::testo(int riga, Campo campo) const {
    Rigap copia = linea(riga);
    if (const double* x = importo(copia, campo))
        return testoCasella(*x);
    return campo == Campo::Data ? copia.data : copia.descrizione;
}

void Borftek::cambia(int riga, Campo campo, const QString& testo) {
    m_rigafocus = riga;
    if (double* x = importo(linea(riga), campo))
        *x = valorevirgola(testo);
    else if (campo == Campo::Data)
        linea(riga).data = testo.left(caratteriData);
    else
        linea(riga).descrizione = testo.left(caratteriDescrizione);
}

std::optional<Borftek::Posto> Borftek::invio(int riga, Campo campo) {
    if (campo != Campo::Onorari)
        return Posto{riga, static_cast<Campo>(static_cast<int>(campo) + 1)};
    if (riga < righeSchermo - 1)
        return Posto{riga + 1, Campo::Data};
    // The keyboard reaches line 190; the last ten are for the scroll bar.
    if (righeSchermo - 1 + m_primariga - 1 >= ultimaPosizione)
        return std::nullopt;
    ++m_primariga;
    return Posto{righeSchermo - 1, Campo::Data};
}

void Borftek::scorri(int primariga) {
    m_primariga = std::clamp(primariga, 1, ultimaPosizione);
}

QStringList Borftek::prestazioni() const {
    QStringList descrizioni;
    for (const Prestazione& p : m_prestazioni)
        descrizioni.append(p.descrizione);
    return descrizioni;
}

void Borftek::scegliPrestazione(int indice) {
    if (indice < 0 || indice >= m_prestazioni.size() || !rigaValida(m_rigafocus))
        return;
    const Prestazione& scelta = m_prestazioni[indice];
    QString testo = scelta.descrizione.trimmed();
    if (testo.isEmpty())
        return;
    std::size_t posto = static_cast<std::size_t>(m_primariga + m_rigafocus);
    m_righe[posto - 1].data.clear();
    while (!testo.isEmpty()) {
        m_righe[posto - 1].descrizione = staccaLinea(testo);
        posto = std::min<std::size_t>(posto + 1, righeParcella);
    }
    // On the last line of the bill the text piles up there, and the amounts go to the line before it.
    Rigap& ultima = m_righe[posto - 2];
    ultima.anticipazioni = scelta.anticipazioni;
    ultima.spese = scelta.spese;
    ultima.onorari = scelta.onorari;
}

void Borftek::inserisciRiga() {
    if (!rigaValida(m_rigafocus))
        return;
    m_righe.pop_back();
    m_righe.insert(m_righe.begin() + (m_primariga + m_rigafocus - 1), Rigap{});
}

void Borftek::eliminaRiga() {
    if (!rigaValida(m_rigafocus))
        return;
    m_righe.erase(m_righe.begin() + (m_primariga + m_rigafocus - 1));
    m_righe.emplace_back();
}

void Borftek::conferma() {
    const TotaliParcella t =
        totaliParcella(m_righe, m_documento.testata.pratica, m_contesto.tabelle, m_contesto.valuta());
    riportaTotali(m_documento, t.iva, t.baseritenuta, t.ritenuta, m_contesto);
    salvarighe();
    m_contesto.sessione.righelette = false;
    m_contesto.navigatore.mostra(Schermo::Borftea);
}

void Borftek::lascia() {
    m_contesto.navigatore.mostra(Schermo::Borftea);
}

QString Borftek::numfat() const {
    return testoDecimale(valore(m_documento.estremi.numero));
}

QString Borftek::totale(Campo colonna) const {
    const TotaliParcella t = sommaParcella(m_righe);
    const double x = colonna == Campo::Anticipazioni ? t.totanticipazioni
                     : colonna == Campo::Spese       ? t.totspese
                                                     : t.totonorari;
    return u' ' + m_contesto.valuta().importotesto(x);
}

} // namespace bor
