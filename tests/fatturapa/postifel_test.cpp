// The places of the screen that findings speak of.
#include "fatturapa/postifel.h"

#include "xmlcheck/elementiinparole.h"
#include "xmlcheck/tracciato.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

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

TEST(PostiFel, UnRilievoSullaFormaDiceDiCheElementoParla) {
    Rilievo rilievo{.elemento = u"FatturaElettronicaBody[2]/DatiGenerali/DatiGeneraliDocumento/Numero"_s,
                    .motivo = u"L'elemento è vuoto."_s,
                    .rimedio = u"Compilare."_s,
                    .codice = u"00200"_s};
    EXPECT_EQ(rilievoInBreve(rilievo),
              u"Scarto 00200. Numero del documento (Numero). L'elemento è vuoto. Compilare.");
    rilievo.elemento = u"FatturaElettronicaHeader/CessionarioCommittente/Sede/CAP"_s;
    EXPECT_EQ(motivoInParole(rilievo), u"CAP della sede del cliente (CAP). L'elemento è vuoto.");
    rilievo.elemento = u"FatturaElettronicaBody/DatiGenerali/DatiOrdineAcquisto/CodiceCUP"_s;
    EXPECT_TRUE(motivoInParole(rilievo).startsWith(u"Codice CUP dell'ordine (CodiceCUP). "_s));
    rilievo.codice = u"00425"_s;
    EXPECT_EQ(motivoInParole(rilievo), rilievo.motivo) << "such a reason names it";
}

} // namespace bor
