#include "document/articoli.h"

#include "archive/archivio.h"
#include "common/posti.h"

#include <numeric>

namespace bor {

namespace {

constexpr int perBlocco = 20;
constexpr QByteArrayView separatore(" - ");

/// Upper case of the archive's code page, byte by byte.
const std::array<char, 256>& maiuscole() {
    static const auto tabella = [] {
        std::array<char, 256> t{};
        for (std::size_t c = 0; c < t.size(); ++c) {
            const char byte = static_cast<char>(c);
            t[c] = inCp1252(maiuscolo(daCp1252(QByteArrayView(&byte, 1)))).front();
        }
        return t;
    }();
    return tabella;
}

char maiuscola(char c) {
    return elemento(maiuscole(), codiceDi(c));
}

/// Sign of the comparison of two texts, upper and lower case alike, by code.
int confronta(QByteArrayView a, QByteArrayView b) {
    const qsizetype comuni = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < comuni; ++i) {
        const int ca = codiceDi(maiuscola(a[i]));
        const int cb = codiceDi(maiuscola(b[i]));
        if (ca != cb)
            return ca < cb ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

/// The first sixteen bytes of an item as numbers that compare like the text: nearly every comparison of the
/// sort ends there.
struct Chiave {
    std::uint64_t alta = 0;
    std::uint64_t bassa = 0;
    std::uint16_t indice = 0;

    Chiave(const char* voce, std::size_t i) : indice(static_cast<std::uint16_t>(i)) {
        const auto otto = [](const char* da) {
            std::uint64_t n = 0;
            for (int k = 0; k < 8; ++k)
                n = n << 8U | postoDaZero(codiceDi(maiuscola(da[k])));
            return n;
        };
        alta = otto(voce);
        bassa = otto(voce + 8);
    }
};

/// Copies a field into an item. Places that were never written show as blanks.
char* copia(QByteArrayView campo, char* dove) {
    return std::ranges::transform(campo, dove, [](char c) { return stampabile(codiceDi(c)) ? c : ' '; }).out;
}

bool haCodice(const Art& articolo) {
    return std::ranges::any_of(articolo.codice.bytes, [](char c) { return stampabile(codiceDi(c)); });
}

} // namespace

void ListaArticoli::carica(const Archivio& archivio, OrdineArticoli ordine) {
    m_articoli.clear();
    const int numero = archivio.leggiTot(Conta::Art).numero;
    const int blocchi = numero < 0 ? 0 : numero / perBlocco + 1;
    m_articoli.reserve(postoDaZero(blocchi * perBlocco));
    BloccoArt blocco;
    for (int b = 1; b <= blocchi; ++b) {
        archivio.artBlocchi.leggi(b, blocco);
        for (int j = 1; j <= perBlocco; ++j) {
            const Art& articolo = elemento(blocco.articoli, j - 1);
            const int recart = j + perBlocco * (b - 1);
            // The list looks only at the low byte of the mark, as the other modules' lists do.
            const bool eliminato = (articolo.eliminato & 0xFF) != 0;
            if (!eliminato && recart <= Archivio::massimo && haCodice(articolo))
                aggiungi(articolo, recart, ordine);
        }
    }
    ordina();
}

void ListaArticoli::aggiungi(const Art& articolo, int recart, OrdineArticoli ordine) {
    const bool perCodice = ordine == OrdineArticoli::Codice;
    const QByteArrayView codice = articolo.codice.raw();
    const QByteArrayView descrizione = articolo.descrizione.raw();
    Articolo& nuovo = m_articoli.emplace_back();
    char* dove = copia(perCodice ? codice : descrizione, nuovo.voce.data());
    dove = copia(separatore, dove);
    copia(perCodice ? descrizione : codice, dove);
    nuovo.recart = static_cast<std::uint16_t>(recart);
}

void ListaArticoli::ordina() {
    std::vector<Chiave> chiavi;
    chiavi.reserve(m_articoli.size());
    for (std::size_t i = 0; i < m_articoli.size(); ++i)
        chiavi.emplace_back(m_articoli[i].voce.data(), i);
    std::ranges::sort(chiavi, [this](const Chiave& a, const Chiave& b) {
        if (a.alta != b.alta)
            return a.alta < b.alta;
        if (a.bassa != b.bassa)
            return a.bassa < b.bassa;
        const int resto = confronta(m_articoli[a.indice].voce, m_articoli[b.indice].voce);
        return resto != 0 ? resto < 0 : a.indice < b.indice;
    });
    m_ordinati.resize(chiavi.size());
    std::ranges::transform(chiavi, m_ordinati.begin(), &Chiave::indice);
}

QString ListaArticoli::testo(int posizione) const {
    return daCp1252(m_articoli[elemento(m_ordinati, posizione)].voce);
}

int ListaArticoli::recart(int posizione) const {
    return m_articoli[elemento(m_ordinati, posizione)].recart;
}

int ListaArticoli::cerca(QStringView inizio) const {
    QByteArray cercato = inCp1252(inizio);
    copia(cercato, cercato.data());
    const auto testa = [&](std::uint16_t i) {
        return QByteArrayView(m_articoli[i].voce).first(std::min<qsizetype>(cercato.size(), lunghezzaVoce));
    };
    const auto trovato = std::ranges::lower_bound(
        m_ordinati, QByteArrayView(cercato),
        [](QByteArrayView a, QByteArrayView b) { return confronta(a, b) < 0; }, testa);
    if (trovato == m_ordinati.end() || confronta(testa(*trovato), cercato) != 0)
        return -1;
    return postoDi(m_ordinati, trovato);
}

bool leggiarticolo(const Archivio& archivio, int recart, Art& articolo) {
    return archivio.art.leggi(recart, articolo) == EsitoLettura::Letta && articolo.eliminato == 0;
}

QStringList testoAggiuntivo(const Archivio& archivio, int recart) {
    if (recart == 0)
        return {};
    const Prx prx = archivio.prx.leggi(recart);
    QStringList testi;
    if (prx.marca != Prx::marcaValida)
        return testi;
    for (const auto& campo : prx.riga) {
        if (const QString testo = puliscitesto(daCp1252(campo.raw())); !testo.isEmpty())
            testi.append(testo);
    }
    return testi;
}

int cercabarcode(const Archivio& archivio, QStringView testo) {
    const QString cercato = maiuscolo(testo.trimmed());
    int basso = 1;
    int alto = std::max<int>(archivio.leggiTot(Conta::Art).numero, 0) + 1;
    for (int precedente = 0;;) {
        const int medio = basso + (alto - basso) / 2;
        if (medio == precedente)
            return 0;
        precedente = medio;
        const Srb voce = archivio.srb.leggi(medio);
        const QString chiave = maiuscolo(voce.barcode.trimmed());
        if (chiave == cercato)
            return voce.recordart;
        (chiave > cercato ? alto : basso) = medio;
    }
}

int cercadescrizione(const Archivio& archivio, QStringView testo, int dopo) {
    const QString cercato = maiuscolo(testo.trimmed());
    int trovato = 0;
    archivio.art.scorri(dopo + 1, archivio.leggiTot(Conta::Art).numero, [&](int n, const Art& articolo) {
        if (maiuscolo(articolo.descrizione.text()).left(cercato.size()) == cercato)
            trovato = n;
        return trovato == 0;
    });
    return trovato;
}

} // namespace bor
