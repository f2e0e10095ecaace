// The findings about an electronic invoice, each at its place of the screen.
#pragma once

#include "fatturapa/postifel.h"

#include <QString>

#include <vector>

namespace bor {

class RilieviFel {
public:
    RilieviFel() = default;
    explicit RilieviFel(const std::vector<Rilievo>& tutti);

    /// Those at a place, one a line; empty for none.
    QString testo(PostoFel posto) const { return m_testi[posto]; }
    /// One of them is more than a hint.
    bool grave(PostoFel posto) const { return m_gravi[posto]; }
    bool grave(ProspettoFel prospetto) const;

private:
    PerPosto<QString> m_testi;
    PerPosto<bool> m_gravi;
};

} // namespace bor
