#include "document/riscontromovimento.h"

#include "common/numeri.h"
#include "document/integrata.h"
#include "document/righeiva.h"
#include "document/trovamovimento.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

double scarto(double x, double y) {
    constexpr double mezzoCentesimo = 0.005;
    return std::fabs(x - y) < mezzoCentesimo ? 0.0 : x - y;
}

SommeMovimento somme(const Gio& movimento) {
    SommeMovimento s;
    for (const VoceGio& voce : movimento.voce)
        (voce.segno == 0 ? s.dare : s.avere) += voce.importo;
    return s;
}

double differenzaMovimento(const SommeMovimento& movimento, const CoppiaFte& coppia, const Tabelle& tabelle) {
    double atteso = sommaIva(coppia, VoceIva::Imposta);
    // The seller's own invoice is posted apart: this movement then carries the tax alone.
    if (cercaIntegrata(coppia, tabelle) == Integrata::No)
        atteso += sommaIva(coppia, VoceIva::Imponibile) + sommaIva(coppia, VoceIva::Esente);
    const double differenza = scarto(coppia.fte.tipo == 1 ? movimento.avere : movimento.dare, atteso);
    return coppia.fte.parcella != 0 && differenza > 0 ? 0.0 : differenza;
}

MovimentiDocumenti::MovimentiDocumenti(const Archivio& archivio) {
    archivio.gio.scorri(1, archivio.leggiTot(Conta::Gio).numero, [this](int, const Gio& gio) {
        const double stamp = gio.riferimentofattura;
        if (stamp != 0.0 && std::isfinite(stamp) && appartiene(gio, stamp)) {
            const SommeMovimento sue = somme(gio);
            SommeMovimento& tutte = m_movimenti[stamp];
            tutte.dare += sue.dare;
            tutte.avere += sue.avere;
        }
        return true;
    });
}

QString MovimentiDocumenti::difetto(const CoppiaFte& coppia, const Tabelle& tabelle) const {
    if (coppia.fte.annullata == 1 || m_movimenti.empty())
        return {};
    const auto suo = m_movimenti.find(coppia.fte.stamp);
    if (suo == m_movimenti.end())
        return u"Non ha un movimento contabile"_s;
    const auto& [dare, avere] = suo->second;
    if (const double sbilancio = scarto(dare, avere); sbilancio != 0.0)
        return u"Dare e avere del movimento contabile non pareggiano: "_s + testoItaliano(sbilancio, 2);
    if (const double differenza = differenzaMovimento(suo->second, coppia, tabelle); differenza != 0.0)
        return u"Il movimento contabile differisce dal documento: "_s + testoItaliano(differenza, 2);
    return {};
}

} // namespace bor
