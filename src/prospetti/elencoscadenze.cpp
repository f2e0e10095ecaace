#include "prospetti/elencoscadenze.h"

#include "archive/giornidifile.h"
#include "archive/nomiclienti.h"
#include "common/posti.h"
#include "document/righeiva.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>

namespace bor {

namespace {

constexpr std::size_t rateFte = std::tuple_size_v<decltype(Fte::rata)>;
constexpr std::size_t rateF2e = std::tuple_size_v<decltype(F2e::rata)>;

constexpr int tipiPagamento = 60;

/// How an order is packed into one number: group, then day, then customer, then the place on file.
constexpr int bitPosto = 18;
constexpr int bitCliente = 15;
constexpr int bitGiorno = 23;
constexpr quint64 senzaGiorno = (quint64{1} << bitGiorno) - 1; ///< behind all days

constexpr bool cifra(char c) {
    return c >= '0' && c <= '9';
}

/// Julian day of a `ddmmyyyy`; 0 when there is no such day.
int giornoDi(const Text<8>& campo) {
    const QDate data = daGiornoMeseAnno(campo);
    return data.isValid() ? static_cast<int>(data.toJulianDay()) : 0;
}

/// The number that a text begins with, as lists of the archive name their rows: 1 to 60, or 0 for none.
std::int8_t pagamentoDi(const Text<40>& campo) {
    auto c = std::ranges::find_if(campo.bytes, [](char b) { return b != ' '; });
    int n = 0;
    for (; c != campo.bytes.end() && cifra(*c) && n <= tipiPagamento; ++c)
        n = n * 10 + (*c - '0');
    return static_cast<std::int8_t>(n <= tipiPagamento ? n : 0);
}

/// Two keys that are equal above these bits are of one group.
int bitSottoIlGruppo(GruppiScadenze gruppi) {
    switch (gruppi) {
    case GruppiScadenze::PerGiorno:
        return bitCliente + bitPosto;
    case GruppiScadenze::PerCliente:
        return bitGiorno + bitPosto;
    case GruppiScadenze::PerPagamento:
        return bitGiorno + bitCliente + bitPosto;
    }
    return 0;
}

/// Sorts keys that already stand in the order of their places: digit by digit from the lowest one above the
/// place, which takes no comparison of tens of thousands of them with each other.
void ordinaPerCifre(std::vector<quint64>& chiavi) {
    constexpr int bitCifra = 11;
    std::vector<quint64> altre(chiavi.size());
    for (int bit = bitPosto; bit < 64; bit += bitCifra) {
        const auto cifra = [bit](quint64 chiave) { return chiave >> bit & ((1U << bitCifra) - 1); };
        std::array<std::size_t, std::size_t{1} << bitCifra> dove{};
        for (const quint64 chiave : chiavi)
            ++dove[cifra(chiave)];
        // What all keys have in common orders nothing.
        if (std::ranges::find(dove, chiavi.size()) != dove.end())
            continue;
        std::exclusive_scan(dove.begin(), dove.end(), dove.begin(), std::size_t{0});
        for (const quint64 chiave : chiavi)
            altre[dove[cifra(chiave)]++] = chiave;
        chiavi.swap(altre);
    }
}

double nettoAPagare(const Fte& fte, const F2e& f2e) {
    double netto = sommaIva(fte, f2e, VoceIva::Imposta) + sommaIva(fte, f2e, VoceIva::Imponibile) +
                   sommaIva(fte, f2e, VoceIva::Esente);
    for (const double ritenuta : f2e.raimp)
        netto -= ritenuta;
    return netto;
}

} // namespace

void ElencoScadenze::svuota() {
    m_documenti.clear();
    m_rate.clear();
    m_righe.clear();
    m_gruppi.clear();
    m_conData = {};
    m_senzaData = {};
}

void ElencoScadenze::aggiungi(int record, const Fte& fte, const F2e& f2e) {
    const bool nota = fte.tipo == 1;
    const int documento = quantiIn(m_documenti);
    const std::size_t prima = m_rate.size();
    const auto metti = [&](double importo, std::size_t numero, const Text<8>& scadenza) {
        if (importo != 0.0)
            m_rate.push_back({nota ? -importo : importo, giornoDi(scadenza), documento,
                              static_cast<std::int8_t>(numero), scadenza});
    };
    for (std::size_t k = 0; k < rateFte; ++k)
        metti(fte.rata[k], k + 1, fte.scad[k]);
    for (std::size_t k = 0; k < rateF2e; ++k)
        metti(f2e.rata[k], rateFte + k + 1, f2e.scad[k]);
    const std::size_t rate = m_rate.size() - prima;
    if (rate == 0) {
        Text<8> nessuna;
        nessuna.blank();
        metti(nettoAPagare(fte, f2e), 0, nessuna);
    }
    if (m_rate.size() > prima)
        m_documenti.push_back({identitaDi(record, fte), pagamentoDi(fte.pagamento),
                               static_cast<std::int8_t>(rate), fte.riba == 1, nota, fte.parcella != 0});
}

void ElencoScadenze::completa(const Archivio& archivio) {
    int ultimo = 0;
    std::array<bool, tipiPagamento + 1> pagamenti{};
    for (const DocumentoARate& documento : m_documenti) {
        ultimo = std::max(ultimo, documento.cliente());
        elemento(pagamenti, documento.pagamento) = true;
    }
    m_pagamenti.clear();
    for (int tipo = 0; tipo <= tipiPagamento; ++tipo) {
        if (elemento(pagamenti, tipo))
            m_pagamenti.append(tipo);
    }
    m_nomi = nomiClienti(archivio, ultimo);
    m_piegati.clear();
    for (const QString& nome : m_nomi)
        m_piegati.push_back(piega(nome));
    std::vector<int> ordine(m_nomi.size());
    std::iota(ordine.begin(), ordine.end(), 0);
    std::ranges::stable_sort(
        ordine, [this](int a, int b) { return elemento(m_piegati, a) < elemento(m_piegati, b); });
    m_ranghi.resize(ordine.size());
    for (int i = 0; i < quantiIn(ordine); ++i)
        elemento(m_ranghi, elemento(ordine, i)) = i;
}

bool ElencoScadenze::passa(const RataDovuta& rata, const SceltaScadenze& scelta,
                           const std::vector<bool>& clienti) const {
    const DocumentoARate& documento = elemento(m_documenti, rata.documento);
    if (scelta.pagamento >= 0 && documento.pagamento != scelta.pagamento)
        return false;
    if (scelta.riba != SceltaRiba::Tutte && documento.riba != (scelta.riba == SceltaRiba::SoloRiba))
        return false;
    return clienti[postoDaZero(documento.cliente())];
}

quint64 ElencoScadenze::chiave(std::size_t rata, GruppiScadenze gruppi) const {
    const DocumentoARate& documento = elemento(m_documenti, m_rate[rata].documento);
    const quint64 giorno = m_rate[rata].giorno > 0 ? postoDaZero(m_rate[rata].giorno) : senzaGiorno;
    const quint64 cliente = postoDaZero(elemento(m_ranghi, documento.cliente()));
    switch (gruppi) {
    case GruppiScadenze::PerGiorno:
        return (giorno << bitCliente | cliente) << bitPosto | rata;
    case GruppiScadenze::PerCliente:
        return (cliente << bitGiorno | giorno) << bitPosto | rata;
    case GruppiScadenze::PerPagamento:
        return ((postoDaZero(documento.pagamento) << bitGiorno | giorno) << bitCliente | cliente)
                   << bitPosto |
               rata;
    }
    return rata;
}

void ElencoScadenze::mostra(const SceltaScadenze& scelta) {
    const QString cercato = piega(scelta.cliente.trimmed());
    std::vector<bool> clienti;
    for (const QString& nome : m_piegati)
        clienti.push_back(nome.contains(cercato));
    const auto primo = static_cast<int>(scelta.dal ? scelta.dal->toJulianDay() : 1);
    const auto ultimo =
        static_cast<int>(scelta.al ? scelta.al->toJulianDay() : std::numeric_limits<int>::max());
    std::vector<quint64> chiavi;
    chiavi.reserve(m_rate.size());
    for (std::size_t i = 0; i < m_rate.size(); ++i) {
        const int giorno = m_rate[i].giorno;
        if ((giorno == 0 || (giorno >= primo && giorno <= ultimo)) && passa(m_rate[i], scelta, clienti))
            chiavi.push_back(chiave(i, scelta.gruppi));
    }
    ordinaPerCifre(chiavi);

    m_ordine = scelta.gruppi;
    m_righe.clear();
    m_gruppi.clear();
    m_conData = {};
    m_senzaData = {};
    m_righe.reserve(2 * chiavi.size());
    const int bit = bitSottoIlGruppo(scelta.gruppi);
    for (std::size_t i = 0; i < chiavi.size(); ++i) {
        if (i == 0 || chiavi[i] >> bit != chiavi[i - 1] >> bit) {
            if (i > 0)
                m_righe.push_back({m_righe.back().rata, quantiIn(m_gruppi) - 1});
            m_gruppi.emplace_back();
        }
        const auto posto = static_cast<int>(chiavi[i] & ((quint64{1} << bitPosto) - 1));
        const RataDovuta& rata = elemento(m_rate, posto);
        m_righe.push_back({posto, -1});
        m_gruppi.back().aggiungi(rata.importo);
        (rata.giorno > 0 ? m_conData : m_senzaData).aggiungi(rata.importo);
    }
    if (!m_righe.empty())
        m_righe.push_back({m_righe.back().rata, quantiIn(m_gruppi) - 1});
}

const RataDovuta& ElencoScadenze::rata(const Riga& riga) const {
    return elemento(m_rate, riga.rata);
}

const DocumentoARate& ElencoScadenze::documento(const Riga& riga) const {
    return elemento(m_documenti, rata(riga).documento);
}

const ContoRate& ElencoScadenze::totale(const Riga& riga) const {
    return elemento(m_gruppi, riga.gruppo);
}

const QString& ElencoScadenze::nome(int cliente) const {
    return elemento(m_nomi, cliente);
}

int ElencoScadenze::primaDal(QDate giorno) const {
    if (m_ordine != GruppiScadenze::PerGiorno)
        return -1;
    return postoDi(m_righe, std::ranges::find_if(m_righe, [&](const Riga& riga) {
                       return !riga.totale() && rata(riga).giorno >= giorno.toJulianDay();
                   }));
}

bool ElencoScadenze::dovute(QDate dal) const {
    return std::ranges::any_of(m_rate, [&](const RataDovuta& r) { return r.giorno >= dal.toJulianDay(); });
}

} // namespace bor
