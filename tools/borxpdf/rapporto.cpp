#include "borxpdf/rapporto.h"

#include "common/testo.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace bor::pdf {
namespace {

constexpr auto kFirma = "#FILEFORMAT=QLM-RTO";
constexpr std::size_t kRigheElemento = 11;
constexpr std::size_t kMassimePagine = 10'000;
constexpr std::size_t kMassimiElementi = 2'000'000;
constexpr qsizetype kMassimoTesto = 2'000;
// Far beyond any sheet, and small enough for every coordinate computed from it.
constexpr double kMassimaCoordinata = 2'000.0;
constexpr double kMassimaDimensione = 300.0;
constexpr double kColori = 0x1000000;

class LettoreRighe {
public:
    explicit LettoreRighe(QByteArrayView dati) : m_resto(dati) {}

    std::optional<QByteArrayView> prossima() {
        if (m_resto.isEmpty())
            return std::nullopt;
        ++m_numero;
        const qsizetype fine = m_resto.indexOf('\n');
        QByteArrayView riga = fine < 0 ? m_resto : m_resto.first(fine);
        m_resto = fine < 0 ? QByteArrayView() : m_resto.sliced(fine + 1);
        if (riga.endsWith('\r'))
            riga.chop(1);
        return riga;
    }

    bool soloRigheVuote() const {
        return std::all_of(m_resto.begin(), m_resto.end(), [](char c) { return c == '\r' || c == '\n'; });
    }

    int numero() const { return m_numero; } // of the line given last, from 1

private:
    QByteArrayView m_resto;
    int m_numero = 0;
};

/// An empty line is 0: graphics leave the lines they do not use empty.
std::optional<double> numero(QByteArrayView riga) {
    riga = riga.trimmed();
    if (riga.isEmpty())
        return 0.0;
    bool letto = false;
    const double valore = riga.toDouble(&letto);
    if (!letto || !std::isfinite(valore))
        return std::nullopt;
    return valore;
}

std::optional<Codice> codice(double valore) {
    for (const Codice c :
         {Codice::Immagine, Codice::Linea, Codice::Riquadro, Codice::Testo, Codice::FinePagina})
        if (valore == static_cast<double>(c))
            return c;
    return std::nullopt;
}

double coordinata(double valore) {
    return std::clamp(valore, -kMassimaCoordinata, kMassimaCoordinata);
}

std::optional<Elemento> elemento(const std::array<QByteArrayView, kRigheElemento>& righe) {
    std::array<double, kRigheElemento> n{};
    for (std::size_t i = 0; i < kRigheElemento; ++i) {
        if (i == 7 || i == 8) // the two lines of text
            continue;
        const auto valore = numero(righe[i]);
        if (!valore)
            return std::nullopt;
        n[i] = *valore;
    }
    const auto comando = righe[0].trimmed().isEmpty() ? std::nullopt : codice(n[0]);
    if (!comando)
        return std::nullopt;

    Elemento e;
    e.codice = *comando;
    e.x1 = coordinata(n[1]);
    e.y1 = coordinata(n[2]);
    e.x2 = coordinata(n[3]);
    e.y2 = coordinata(n[4]);
    e.dimensione = std::clamp(n[5], 0.0, kMassimaDimensione);
    // A colour of the desktop's own palette is negative or beyond 24 bits: black on paper.
    e.colore = n[6] >= 0 && n[6] < kColori ? static_cast<std::uint32_t>(n[6]) : 0;
    e.testo = daCp1252(righe[7].first(std::min(righe[7].size(), kMassimoTesto)));
    e.carattere = daCp1252(righe[8].first(std::min(righe[8].size(), kMassimoTesto))).trimmed();
    e.grassetto = n[9] != 0;
    e.corsivo = n[10] != 0;
    return e;
}

} // namespace

std::optional<Rapporto> Rapporto::leggi(QByteArrayView dati, QString& errore) {
    LettoreRighe lettore(dati);
    const auto firma = lettore.prossima();
    if (!firma || firma->trimmed() != QByteArrayView(kFirma)) {
        errore = u"Il file di stampa non è riconosciuto: ristampare il documento."_s;
        return std::nullopt;
    }

    Rapporto rapporto;
    Pagina pagina;
    std::size_t elementi = 0;
    while (!lettore.soloRigheVuote()) {
        const int inizio = lettore.numero() + 1;
        std::array<QByteArrayView, kRigheElemento> righe;
        for (QByteArrayView& riga : righe) {
            const auto letta = lettore.prossima();
            if (!letta) {
                errore = u"Il file di stampa è incompleto: ristampare il documento."_s;
                return std::nullopt;
            }
            riga = *letta;
        }
        auto letto = elemento(righe);
        if (!letto) {
            errore = u"Il file di stampa è rovinato dopo la riga %1: ristampare il documento."_s.arg(inizio);
            return std::nullopt;
        }
        if (letto->codice == Codice::FinePagina)
            rapporto.pagine.push_back(std::exchange(pagina, {}));
        else
            pagina.push_back(std::move(*letto));
        if (++elementi > kMassimiElementi || rapporto.pagine.size() > kMassimePagine) {
            errore = u"Il file di stampa ha troppe pagine o troppe righe."_s;
            return std::nullopt;
        }
    }
    if (!pagina.empty() || rapporto.pagine.empty()) {
        errore = rapporto.pagine.empty() && pagina.empty()
                     ? u"Il file di stampa non ha pagine: ristampare il documento."_s
                     : u"Il file di stampa è incompleto: ristampare il documento."_s;
        return std::nullopt;
    }
    return rapporto;
}

} // namespace bor::pdf
