#include "lotto/scelti.h"

#include "lotto/lavorocontrollo.h"
#include "lotto/lavoroelettroniche.h"
#include "lotto/lavoropdf.h"
#include "lotto/lavorostampa.h"

namespace bor {

std::unique_ptr<Lotto> Scelti::prepara(ComandoScelti comando, const std::vector<Identita>& documenti) const {
    const auto lavoro = [&]() -> std::unique_ptr<Lavoro> {
        switch (comando) {
        case ComandoScelti::Stampa:
            break;
        case ComandoScelti::Pdf:
            return std::make_unique<LavoroPdf>(m_contesto, m_stampante, m_avvia, LavoroPdf::Posta::No);
        case ComandoScelti::Posta:
            return std::make_unique<LavoroPdf>(m_contesto, m_stampante, m_avvia, LavoroPdf::Posta::Si);
        case ComandoScelti::Elettronica:
            return std::make_unique<LavoroElettroniche>(m_contesto,
                                                        caricaTestiPdf(m_contesto.archivio).cartella());
        case ComandoScelti::Controlla:
            return std::make_unique<LavoroControllo>(m_contesto);
        }
        return std::make_unique<LavoroStampa>(m_contesto, m_stampante);
    };
    return std::make_unique<Lotto>(m_contesto, m_sospese, lavoro(), documenti);
}

} // namespace bor
