#include "fatturapa/rilievifel.h"

using namespace Qt::StringLiterals;

namespace bor {

RilieviFel::RilieviFel(const std::vector<Rilievo>& tutti) {
    constexpr int perPosto = 3;
    PerPosto<int> quanti;
    for (const Rilievo& rilievo : tutti) {
        const PostoFel posto = postoDi(rilievo);
        m_gravi[posto] = m_gravi[posto] || rilievo.gravita == Gravita::Errore;
        if (++quanti[posto] > perPosto)
            continue;
        QString& testo = m_testi[posto];
        testo += (testo.isEmpty() ? QString() : u"\n"_s) + rilievoInBreve(rilievo);
    }
    for (std::size_t i = 0; i < numeroPostiFel; ++i)
        if (const int altri = quanti.tutti[i] - perPosto; altri > 0)
            m_testi.tutti[i] += altri == 1 ? u"\nE un altro."_s : u"\nE altri %1."_s.arg(altri);
}

bool RilieviFel::grave(ProspettoFel prospetto) const {
    for (std::size_t i = 0; i < numeroPostiFel; ++i)
        if (m_gravi.tutti[i] && prospettoDi(static_cast<PostoFel>(i)) == prospetto)
            return true;
    return false;
}

} // namespace bor
