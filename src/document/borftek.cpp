#include "document/borftek.h"

#include "common/numeri.h"
#include "document/avvisi.h"
#include "document/testorighe.h"
#include "document/totali.h"
#include "document/totaliparcella.h"

#include <algorithm>
#include <span>
#include <utility>

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

void Borftek::attiva() {
    Sessione& sessione = m_contesto.sessione;
    if (sessione.righelette)
        return;
    sessione.righelette = true;
    m_modificato = m_riprese.has_value();
    m_righe = m_riprese ? *std::exchange(m_riprese, std::nullopt) : m_documento.dddp;
    m_prestazioni = leggiPrestazioni(m_contesto.archivio);
    ++m_edizione;
    m_finestra.scorri(1);
    m_lineafuoco = 0;
    vaiAllInizio();
}

QString Borftek::titolo() const {
    return m_documento.notaCredito() ? u"Ristampa nota credito"_s : u"Ristampa parcella"_s;
}

QString Borftek::testo(Cella cella) const {
    Rigap copia = riga(cella.linea);
    if (const double* x = importo(copia, cella.campo))
        return testoCasella(*x);
    return cella.campo == Campo::Data ? copia.data : copia.descrizione;
}

QString Borftek::avviso(Cella cella) const {
    const bool inesistente = cella.campo == Campo::Data && dataInesistente(riga(cella.linea).data);
    return inesistente ? u"Questa data non esiste"_s : QString();
}

void Borftek::cambia(Cella cella, const QString& testo) {
    modificato();
    m_lineafuoco = cella.linea;
    Rigap& cambiata = riga(cella.linea);
    if (double* x = importo(cambiata, cella.campo))
        *x = valorevirgola(testo);
    else if (cella.campo == Campo::Data)
        cambiata.data = testo.left(caratteriData);
    else
        cambiata.descrizione = testo.left(caratteriDescrizione);
}

AppuntiRighe::Form Borftek::perAppunti() {
    return {
        .righe = righeParcella,
        .fuoco = [this] { return rigaFuoco(); },
        .vaiA = [this](int riga) { vaiARiga(riga); },
        .testo =
            [this](int prima, int ultima) {
                const std::span righe(m_righe);
                return testoRighe(righe.subspan(postoDaZero(prima - 1), postoDaZero(ultima - prima + 1)));
            },
        .prova =
            [this](int posto, const QString& testo) {
                TabellaRighep prova = m_righe;
                return incollaParcella(prova, posto, testo);
            },
        .metti =
            [this](int posto, const QString& testo) {
                modificato();
                return incollaParcella(m_righe, posto, testo);
            },
    };
}

void Borftek::entra(Cella cella) {
    if (cella.linea != m_lineafuoco)
        m_appunti.lascia();
    m_lineafuoco = cella.linea;
}

void Borftek::scorri(int prima) {
    m_appunti.lascia();
    m_finestra.scorri(prima);
}

void Borftek::modificato() {
    m_appunti.lascia();
    m_modificato = true;
}

void Borftek::vaiARiga(int riga) {
    m_finestra.scorri(m_finestra.primaCon(riga));
    m_lineafuoco = riga - m_finestra.prima();
    vaiAllInizio();
}

void Borftek::invio(Cella cella) {
    if (cella.campo != Campo::Onorari) {
        m_fuoco = Cella{prossimo(cella.campo), cella.linea};
    } else if (cella.linea < linee - 1) {
        m_fuoco = Cella{Campo::Data, cella.linea + 1};
    } else if (m_finestra.riga(linee - 1) <= m_finestra.ultima()) {
        // The keyboard reaches row 190; the last ten are for the scroll bar.
        scorri(m_finestra.prima() + 1);
        m_fuoco = Cella{Campo::Data, linee - 1};
    }
}

QStringList Borftek::prestazioni() const {
    QStringList descrizioni;
    for (const Prestazione& p : m_prestazioni)
        descrizioni.append(p.descrizione);
    return descrizioni;
}

void Borftek::scegliPrestazione(int indice) {
    vaiAllInizio();
    if (indice < 0 || indice >= m_prestazioni.size())
        return;
    const Prestazione& scelta = m_prestazioni[indice];
    QString testo = scelta.descrizione.trimmed();
    if (testo.isEmpty())
        return;
    int posto = m_finestra.riga(m_lineafuoco);
    modificato();
    riga(m_lineafuoco).data.clear();
    while (!testo.isEmpty()) {
        elemento(m_righe, posto - 1).descrizione = staccaLinea(testo);
        posto = std::min(posto + 1, righeParcella);
    }
    // On the last line of the bill the text piles up there, and the amounts go to the line before it.
    Rigap& ultima = elemento(m_righe, posto - 2);
    ultima.anticipazioni = scelta.anticipazioni;
    ultima.spese = scelta.spese;
    ultima.onorari = scelta.onorari;
}

void Borftek::inserisciRiga() {
    modificato();
    m_righe.pop_back();
    m_righe.insert(m_righe.begin() + (m_finestra.riga(m_lineafuoco) - 1), Rigap{});
    vaiAllInizio();
}

void Borftek::eliminaRiga() {
    modificato();
    m_righe.erase(m_righe.begin() + (m_finestra.riga(m_lineafuoco) - 1));
    m_righe.emplace_back();
}

void Borftek::conferma() {
    const TotaliParcella t =
        totaliParcella(m_righe, m_documento.testata.pratica, m_contesto.tabelle, m_contesto.valuta());
    riportaTotali(m_documento, t.iva, t.baseritenuta, t.ritenuta, m_contesto);
    salvarighe();
    m_contesto.sessione.righelette = false;
    m_contesto.sessione.regimicambiati = false;
    m_contesto.navigatore.mostra(Schermo::Borftea);
}

void Borftek::lascia() {
    if (!m_modificato || uscireSenzaRegistrare(m_contesto))
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
