// A report file of hostile bytes: it is refused with a message, or every page of it can be drawn.
#include "borxpdf/paginestampate.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    QString errore;
    const auto rapporto = bor::pdf::PagineStampate::leggi(
        QByteArrayView(reinterpret_cast<const char*>(dati), static_cast<qsizetype>(quanti)), errore);
    if (rapporto.has_value() != errore.isEmpty() || (rapporto && rapporto->pagine.empty()))
        std::abort();
    if (!rapporto)
        return 0;
    for (const bor::pdf::Pagina& pagina : rapporto->pagine)
        for (const bor::RecordRapporto& e : pagina)
            for (const double lungo : {e.x1, e.y1, e.x2, e.y2, e.dimensione})
                if (!(std::abs(lungo) <= 2000))
                    std::abort();
    return 0;
}
