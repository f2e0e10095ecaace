#include "borxpdf/paginestampate.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor::pdf {
namespace {

constexpr std::size_t kMassimePagine = 10'000;
constexpr std::size_t kMassimiElementi = 2'000'000;
constexpr qsizetype kMassimoTesto = 2'000;
// Far beyond any sheet, and small enough for every coordinate computed from it.
constexpr double kMassimaCoordinata = 2'000.0;
constexpr double kMassimaDimensione = 300.0;

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

void tieniNelDisegnabile(RecordRapporto& record) {
    for (double* lungo : {&record.x1, &record.y1, &record.x2, &record.y2})
        *lungo = std::clamp(*lungo, -kMassimaCoordinata, kMassimaCoordinata);
    record.dimensione = std::clamp(record.dimensione, 0.0, kMassimaDimensione);
    record.testo.truncate(kMassimoTesto);
    record.carattere.truncate(kMassimoTesto);
    record.carattere = record.carattere.trimmed();
}

} // namespace

std::optional<PagineStampate> PagineStampate::leggi(QByteArrayView dati, QString& errore) {
    LettoreRighe lettore(dati);
    const auto firma = lettore.prossima();
    if (!firma || firma->trimmed() != firmaRapporto) {
        errore = u"Il file di stampa non è riconosciuto: ristampare il documento."_s;
        return std::nullopt;
    }

    PagineStampate stampa;
    Pagina pagina;
    std::size_t elementi = 0;
    while (!lettore.soloRigheVuote()) {
        const int inizio = lettore.numero() + 1;
        std::array<QByteArrayView, lineeRecordRapporto> righe;
        for (QByteArrayView& riga : righe) {
            const auto letta = lettore.prossima();
            if (!letta) {
                errore = u"Il file di stampa è incompleto: ristampare il documento."_s;
                return std::nullopt;
            }
            riga = *letta;
        }
        auto letto = leggiRecord(righe);
        if (!letto) {
            errore = u"Il file di stampa è rovinato dopo la riga %1: ristampare il documento."_s.arg(inizio);
            return std::nullopt;
        }
        tieniNelDisegnabile(*letto);
        if (letto->comando == ComandoRapporto::FinePagina)
            stampa.pagine.push_back(std::exchange(pagina, {}));
        else
            pagina.push_back(std::move(*letto));
        if (++elementi > kMassimiElementi || stampa.pagine.size() > kMassimePagine) {
            errore = u"Il file di stampa ha troppe pagine o troppe righe."_s;
            return std::nullopt;
        }
    }
    if (!pagina.empty() || stampa.pagine.empty()) {
        errore = stampa.pagine.empty() && pagina.empty()
                     ? u"Il file di stampa non ha pagine: ristampare il documento."_s
                     : u"Il file di stampa è incompleto: ristampare il documento."_s;
        return std::nullopt;
    }
    return stampa;
}

} // namespace bor::pdf
