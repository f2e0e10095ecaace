#include "document/incollarighe.h"

#include "common/date.h"
#include "common/numeri.h"
#include "document/righemerce.h"
#include "document/testorighe.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

using Campo = RigheMerce::Campo;

constexpr qsizetype caratteriData = 10;
constexpr qsizetype caratteriDescrizione = 60;
constexpr qsizetype caratteriDescrizioneParcella = 50;
constexpr qsizetype caratteriUm = 2;
constexpr int colonneMerce = 8;
constexpr int colonneParcella = 5;

/// A row of the text on its way into the document: its cells are asked for one by one, and what cannot be
/// understood of them is noted.
class RigaLetta {
public:
    RigaLetta(const QStringList& celle, int linea) : m_celle(celle) { m_esito.linea = linea; }

    QString cella(int colonna) const { return m_celle.value(colonna); }
    QString testo(int colonna, const QString& nome, qsizetype massimo) {
        const QString tutto = cella(colonna);
        if (tutto.size() > massimo)
            nota(u"%1: più di %2 caratteri, il resto non entra"_s.arg(nome).arg(massimo));
        return tutto.left(massimo);
    }
    std::optional<double> numero(int colonna, const QString& nome) {
        const QString scritto = cella(colonna);
        if (scritto.isEmpty())
            return std::nullopt;
        const auto letto = leggiNumeroItaliano(scritto);
        if (!letto)
            nota(u"%1: \"%2\" non è un numero, resta senza"_s.arg(nome, scritto.left(20)));
        else if (letto->dubbio)
            nota(u"%1: \"%2\" è letto come %3"_s.arg(nome, scritto, testoDecimale(letto->valore)));
        return letto ? std::optional(letto->valore) : std::nullopt;
    }
    /// A whole number in these limits.
    std::optional<int> intero(int colonna, const QString& nome, int minimo, int massimo,
                              const QString& altrimenti) {
        const QString scritto = cella(colonna);
        const auto letto = leggiNumeroItaliano(scritto);
        if (letto && letto->valore == std::floor(letto->valore) && letto->valore >= minimo &&
            letto->valore <= massimo)
            return static_cast<int>(letto->valore);
        if (!scritto.isEmpty())
            nota(u"%1: \"%2\" non va, %3"_s.arg(nome, scritto.left(20), altrimenti));
        return std::nullopt;
    }
    void controllaColonne(int quante) {
        const bool altre = std::any_of(m_celle.begin() + std::min<qsizetype>(quante, m_celle.size()),
                                       m_celle.end(), [](const QString& cella) { return !cella.isEmpty(); });
        if (altre)
            nota(u"le colonne oltre la %1 non entrano"_s.arg(quante));
    }
    void nota(const QString& rilievo) { m_esito.rilievi.append(rilievo); }
    RigaIncollata dentro(QStringList celle) {
        m_esito.dentro = true;
        m_esito.celle = std::move(celle);
        return m_esito;
    }
    RigaIncollata fuori(const QString& motivo) {
        m_esito.rilievi = {motivo};
        m_esito.celle = m_celle;
        return m_esito;
    }

private:
    QStringList m_celle;
    RigaIncollata m_esito;
};

bool vuota(const QStringList& celle) {
    return std::ranges::all_of(celle, &QString::isEmpty);
}

/// The first row names the columns: at least two cells are captions, and none is anything else.
bool intestazione(const QStringList& celle, const QStringList& didascalie) {
    const auto didascalia = [&](const QString& cella) {
        return didascalie.contains(cella, Qt::CaseInsensitive);
    };
    return std::ranges::count_if(celle, didascalia) >= 2 &&
           std::ranges::all_of(celle, [&](const QString& c) { return c.isEmpty() || didascalia(c); });
}

const QString pieno = u"non entra: le righe del documento sono finite"_s;
const QString testata = u"è l'intestazione delle colonne: non entra"_s;

/// Inserts goods rows one after the other.
class InserimentoMerce {
public:
    InserimentoMerce(RigheMerce& righe, int posto, const TrovaArticolo& articolo, QList<QStringList> celle)
        : m_righe(righe), m_articolo(articolo), m_celle(std::move(celle)), m_primo(posto), m_posto(posto),
          m_sole(std::ranges::all_of(m_celle, [](const QStringList& c) { return c.size() == 1; })) {}

    Incollate esegui() {
        Incollate esito;
        for (m_linea = 0; m_linea < m_celle.size(); ++m_linea) {
            if (!vuota(m_celle[m_linea]))
                esito.righe.append(prossima());
        }
        esito.inserite = m_posto - m_primo;
        return esito;
    }

private:
    RigaIncollata prossima() {
        static const QStringList didascalie = {u"Articolo"_s, u"Codice"_s, u"Descrizione"_s, u"UM"_s,
                                               u"Quantità"_s, u"Sconto"_s, u"Sconti"_s,      u"Sconto 1"_s,
                                               u"Sconto 2"_s, u"Prezzo"_s, u"Iva"_s};
        const QStringList& celle = m_celle[m_linea];
        RigaLetta letta(celle, m_linea + 1);
        if (m_linea == 0 && intestazione(celle, didascalie))
            return letta.fuori(testata);
        const auto [recart, testi] = celle.front().isEmpty() ? ArticoloTrovato() : m_articolo(celle.front());
        if (!m_righe.apri(m_posto, 1 + quantiIn(testi)))
            return letta.fuori(pieno);
        const int riga = m_posto;
        m_posto += 1 + quantiIn(testi);
        if (recart > 0)
            m_righe.metti(riga, recart, RigheMerce::Da::Casella);
        riempi(letta, riga, recart);
        m_linea += ripetuti(testi);
        QStringList ora;
        for (Campo campo = Campo::Artic; campo <= Campo::Civ; campo = prossimo(campo))
            ora.append(m_righe.testo(riga, campo));
        return letta.dentro(ora);
    }

    void riempi(RigaLetta& letta, int riga, int recart) {
        letta.controllaColonne(colonneMerce);
        QString descrizione = letta.testo(colonna(Campo::Ds), u"descrizione"_s, caratteriDescrizione);
        if (recart == 0)
            descrizione = senzaArticolo(letta, descrizione);
        if (!descrizione.isEmpty())
            m_righe.cambia(riga, Campo::Ds, descrizione);
        if (const QString um = letta.testo(colonna(Campo::Um), u"unità di misura"_s, caratteriUm);
            !um.isEmpty())
            m_righe.cambia(riga, Campo::Um, um);
        // The code goes before the price, which proposes one where there is none.
        if (const auto iva = letta.intero(colonna(Campo::Civ), u"codice iva"_s, 1, CodiceIva::ultimo,
                                          u"vale quello proposto"_s))
            m_righe.cambiaIva(riga, *iva);
        const auto importo = [&](Campo campo, const QString& nome) {
            const auto letto = letta.numero(colonna(campo), nome);
            if (letto)
                m_righe.cambia(riga, campo, testoDecimale(*letto));
            return letto.has_value();
        };
        importo(Campo::Quantita, u"quantità"_s);
        const bool conPrezzo = importo(Campo::Prezzo, u"prezzo"_s);
        for (const Campo campo : {Campo::Sc1, Campo::Sc2}) {
            if (const auto sconto = letta.intero(colonna(campo), u"sconto"_s, -99, 100, u"resta senza"_s))
                m_righe.cambia(riga, campo, QString::number(*sconto));
        }
        // Price and discounts of the list go together.
        if (recart > 0 && !conPrezzo)
            m_righe.proponiSconti(riga);
    }

    static int colonna(Campo campo) { return ordinale(campo); }

    /// The description of a row whose code is no article's: the code itself where there is no other.
    QString senzaArticolo(RigaLetta& letta, const QString& descrizione) const {
        const QString codice = letta.cella(colonna(Campo::Artic));
        if (codice.isEmpty())
            return descrizione;
        if (!m_sole)
            letta.nota(u"l'articolo \"%1\" non c'è: riga senza articolo"_s.arg(codice));
        else if (codice.size() > caratteriDescrizione)
            letta.nota(u"descrizione: più di %1 caratteri, il resto non entra"_s.arg(caratteriDescrizione));
        return descrizione.isEmpty() ? codice : descrizione;
    }

    /// How many rows of the text repeat the additional text that came with the article, as rows copied from a
    /// document do: all of it or none.
    int ripetuti(const QStringList& testi) const {
        const int quanti = quantiIn(testi);
        for (int i = 0; i < quanti; ++i) {
            const QStringList celle = m_celle.value(m_linea + 1 + i);
            const bool commento = celle.size() > 1 && celle[colonna(Campo::Ds)] == testi[i].simplified() &&
                                  celle.count(QString()) == celle.size() - 1;
            if (!commento)
                return 0;
        }
        return quanti;
    }

    RigheMerce& m_righe;
    const TrovaArticolo& m_articolo;
    QList<QStringList> m_celle;
    int m_primo;
    int m_posto;
    bool m_sole; ///< no row has more than a cell
    int m_linea = 0;
};

RigaIncollata leggiParcella(RigaLetta& letta, bool sola, Rigap& riga) {
    letta.controllaColonne(colonneParcella);
    const int descrizione = sola ? 0 : 1;
    riga.descrizione = letta.testo(descrizione, u"descrizione"_s, caratteriDescrizioneParcella);
    if (!sola) {
        riga.data = letta.testo(0, u"data"_s, caratteriData);
        if (dataInesistente(riga.data))
            letta.nota(u"la data %1 non esiste: resta com'è scritta"_s.arg(riga.data));
        riga.anticipazioni = letta.numero(2, u"anticipazioni"_s).value_or(0);
        riga.spese = letta.numero(3, u"spese"_s).value_or(0);
        riga.onorari = letta.numero(4, u"onorari"_s).value_or(0);
    }
    return letta.dentro({riga.data, riga.descrizione, testoCasella(riga.anticipazioni),
                         testoCasella(riga.spese), testoCasella(riga.onorari)});
}

} // namespace

bool Incollate::conRilievi() const {
    return std::ranges::any_of(righe, [](const RigaIncollata& riga) { return !riga.rilievi.isEmpty(); });
}

Incollate incollaMerce(RigheMerce& righe, int posto, const QString& testo, const TrovaArticolo& articolo) {
    return InserimentoMerce(righe, posto, articolo, celleDi(testo)).esegui();
}

Incollate incollaParcella(TabellaRighep& righe, int posto, const QString& testo) {
    static const QStringList didascalie = {u"Data"_s,        u"Descrizione prestazione"_s,
                                           u"Descrizione"_s, u"Anticipazioni"_s,
                                           u"Spese"_s,       u"Onorari"_s};
    const QList<QStringList> tutte = celleDi(testo);
    const bool sole = std::ranges::all_of(tutte, [](const QStringList& c) { return c.size() == 1; });
    Incollate esito;
    for (int linea = 0; linea < tutte.size(); ++linea) {
        const QStringList& celle = tutte[linea];
        RigaLetta letta(celle, linea + 1);
        if (vuota(celle))
            continue;
        if (linea == 0 && intestazione(celle, didascalie)) {
            esito.righe.append(letta.fuori(testata));
        } else if (righe.back() != Rigap() || posto + esito.inserite > righeParcella) {
            esito.righe.append(letta.fuori(pieno));
        } else {
            Rigap riga;
            esito.righe.append(leggiParcella(letta, sole, riga));
            righe.pop_back();
            righe.insert(righe.begin() + (posto - 1 + esito.inserite), riga);
            ++esito.inserite;
        }
    }
    return esito;
}

} // namespace bor
