// The texts that invoices and fee bills have in common.
#pragma once

#include "output/pianta.h"

#include <algorithm>
#include <array>

namespace bor::voci {

QStringList intestazione(const DatiStampa& dati);
QStringList ivaPerCassa(const DatiStampa& dati);
QStringList sede(const DatiStampa& dati);
QStringList codiciFiscali(const DatiStampa& dati);
QStringList amministrazione(const DatiStampa& dati);
QStringList telefoni(const DatiStampa& dati);
QStringList numeroEData(const DatiStampa& dati);
QStringList bancaCliente(const DatiStampa& dati);
QStringList pagamento(const DatiStampa& dati);
QStringList bancaPagamento(const DatiStampa& dati);
/// Amount and due date of the instalments from one to another, counted from 1.
QStringList rate(const DatiStampa& dati, std::size_t prima, std::size_t ultima);
/// Code and description of each VAT row.
QStringList ivaCodici(const DatiStampa& dati);
/// Taxable amount, rate, tax and exempt amount of each VAT row.
QStringList ivaImporti(const DatiStampa& dati);
/// The law of each VAT row's exemption.
QStringList ivaRiferimenti(const DatiStampa& dati);
/// Rate and amount of the agent's commission, empty without one.
QStringList provvigione(const DatiStampa& dati);
/// Last term of deferred VAT, "mm/yyyy"; empty unless the document has it.
QStringList termineIva(const DatiStampa& dati);
QStringList note(const DatiStampa& dati);

/// Items 1 to 34, the same on every kind of page.
inline constexpr std::array comuni = {
    GruppoVoci{1, 16, SuPagine::Tutte, Lato::Sinistra, intestazione},
    GruppoVoci{17, 1, SuPagine::Tutte, Lato::Sinistra, ivaPerCassa},
    GruppoVoci{18, 5, SuPagine::Tutte, Lato::Sinistra, sede},
    GruppoVoci{23, 2, SuPagine::Tutte, Lato::Sinistra, codiciFiscali},
    GruppoVoci{25, 5, SuPagine::Tutte, Lato::Sinistra, amministrazione},
    GruppoVoci{30, 3, SuPagine::Tutte, Lato::Sinistra, telefoni},
    GruppoVoci{33, 2, SuPagine::Tutte, Lato::Sinistra, numeroEData},
};

/// The common items with those of one kind of document behind them.
template <std::size_t N>
constexpr std::array<GruppoVoci, comuni.size() + N> conComuni(const std::array<GruppoVoci, N>& proprie) {
    std::array<GruppoVoci, comuni.size() + N> tutte{};
    std::ranges::copy(comuni, tutte.begin());
    std::ranges::copy(proprie, tutte.begin() + comuni.size());
    return tutte;
}

} // namespace bor::voci
