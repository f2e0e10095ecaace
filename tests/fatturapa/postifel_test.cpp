// The places of the screen that findings speak of.
#include "fatturapa/postifel.h"

#include "xmlcheck/tracciato.h"

#include <gtest/gtest.h>

namespace bor {

TEST(PostiFel, OgniCampoCheUnRimedioNominaESulloSchermo) {
    const auto scorri = [](const auto& qui, const Elemento& elemento) -> void {
        if (!elemento.campo.isEmpty()) {
            bool trovato = false;
            for (std::size_t i = 0; i < numeroPostiFel; ++i)
                trovato = trovato || nomePosto(static_cast<PostoFel>(i)) == elemento.campo;
            EXPECT_TRUE(trovato) << qPrintable(elemento.campo);
        }
        for (const Elemento& figlio : elemento.figli)
            qui(qui, figlio);
    };
    scorri(scorri, tracciato(Versione::V123));
}

} // namespace bor
