// A box of a screen with lines.
#pragma once

namespace bor {

/// `Campo` names the boxes of a line; lines count from 0, from the top of the screen.
template <class Campo>
struct CellaDi {
    Campo campo{};
    int linea = 0;

    friend bool operator==(const CellaDi&, const CellaDi&) = default;
};

} // namespace bor
