// What the grids of the register and of the customer picker have in common: blank rows, stripes, sort by
// heading.
#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace bor {

struct Gnr;

/// Rows that fill the window; a shorter list has blank ones below, which no sort moves.
inline constexpr int righePiene = 25;

/// Stripe of a row, counted from 0, as 0x00BBGGRR.
int coloreRiga(const Gnr& gnr, int riga);

/// Sorts rows ascending by their cells: numbers by value and before any text, texts by character, ties in
/// their present order. The result names, place by place, the row (from 0) that comes there.
std::vector<std::size_t> ordineCelle(std::size_t quante, const std::function<QString(int)>& cella);

template <class Riga>
void ordinaRighe(std::vector<Riga>& righe, const std::function<QString(int)>& cella) {
    std::vector<Riga> ordinate;
    ordinate.reserve(righe.size());
    for (const std::size_t i : ordineCelle(righe.size(), cella))
        ordinate.push_back(righe[i]);
    righe = std::move(ordinate);
}

} // namespace bor
