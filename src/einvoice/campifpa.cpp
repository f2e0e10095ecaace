#include "einvoice/campifpa.h"

#include <array>

namespace bor {

namespace {

using T = TestoFpa;
using D = DataFpa;

/// The box of the field that the members lead to, from the record inwards.
template <auto... Membri>
constexpr CasellaFpa casella(PostoFpa posto, PostoFpa dopo) {
    return {.posto = posto,
            .leggi = [](const Fpa& fpa) { return (fpa.*....*Membri).trimmed(); },
            .scrivi = [](Fpa& fpa, QStringView testo) { (fpa.*....*Membri).set(testo); },
            .dopo = dopo};
}

using R = RiferimentoFpa;

constexpr std::array caselle = {
    casella<&Fpa::numerodoc>(T::Numero, D::Documento),
    casella<&Fpa::numeroddt>(T::NumeroDdt, D::Ddt),
    casella<&Fpa::ordine, &R::numero>(T::OrdineNumero, D::Ordine),
    casella<&Fpa::ordine, &R::item>(T::OrdineItem, T::OrdineCommessa),
    casella<&Fpa::ordine, &R::commessa>(T::OrdineCommessa, T::ContrattoNumero),
    casella<&Fpa::contratto, &R::numero>(T::ContrattoNumero, D::Contratto),
    casella<&Fpa::contratto, &R::item>(T::ContrattoItem, T::ContrattoCommessa),
    casella<&Fpa::contratto, &R::commessa>(T::ContrattoCommessa, T::ConvenzioneNumero),
    casella<&Fpa::convenzione, &R::numero>(T::ConvenzioneNumero, D::Convenzione),
    casella<&Fpa::convenzione, &R::item>(T::ConvenzioneItem, T::ConvenzioneCommessa),
    casella<&Fpa::convenzione, &R::commessa>(T::ConvenzioneCommessa, T::RicezioneNumero),
    casella<&Fpa::ricezione, &R::numero>(T::RicezioneNumero, D::Ricezione),
    casella<&Fpa::ricezione, &R::item>(T::RicezioneItem, T::RicezioneCommessa),
    casella<&Fpa::ricezione, &R::commessa>(T::RicezioneCommessa, T::CodiceCup),
    casella<&Fpa::codicecup>(T::CodiceCup, T::CodiceCig),
    casella<&Fpa::codicecig>(T::CodiceCig, T::CodiceCig),
    casella<&Fpa::progressivoinvio>(T::Progressivo, T::NumeroDdt),
    casella<&Fpa::datadoc>(D::Documento, T::Progressivo),
    casella<&Fpa::dataddt>(D::Ddt, T::OrdineNumero),
    casella<&Fpa::ordine, &R::data>(D::Ordine, T::OrdineItem),
    casella<&Fpa::contratto, &R::data>(D::Contratto, T::ContrattoItem),
    casella<&Fpa::convenzione, &R::data>(D::Convenzione, T::ConvenzioneItem),
    casella<&Fpa::ricezione, &R::data>(D::Ricezione, T::RicezioneItem),
};

constexpr bool alLoroPosto() {
    for (std::size_t i = 0; i < caselle.size(); ++i) {
        if (indiceFpa(caselle[i].posto) != i)
            return false;
    }
    return caselle.size() == numeroPostiFpa;
}
static_assert(alLoroPosto());

} // namespace

std::span<const CasellaFpa> caselleFpa() {
    return caselle;
}

const CasellaFpa& casellaFpa(PostoFpa posto) {
    return caselle[indiceFpa(posto)];
}

} // namespace bor
