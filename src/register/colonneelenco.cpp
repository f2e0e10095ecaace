#include "register/colonneelenco.h"

#include "common/posti.h"

namespace bor {

const DatiColonna& datiColonna(Colonna colonna) {
    using enum GenereColonna;
    static const Serie<DatiColonna, Colonna::Registrazione, Colonna::Pagamento> colonne{{{
        {u"Registr.", u"registrazione", Numero, 9},
        {u"Data reg.", u"dataRegistrazione", Data, 11},
        {u"Fattura", u"numero", Testo, 9},
        {u"Data", u"data", Data, 11},
        {u"Cliente", u"cliente", Testo, 30},
        {u"Importo", u"importo", Importo, 14},
        {u"PA", u"pa", Testo, 4},
        {u"PDF", u"pdf", Testo, 5},
        {u"File PDF", u"filePdf", Testo, 30},
        {u"Chiave", u"chiave", Testo, 9},
        {u"Imponibile", u"imponibile", Importo, 14},
        {u"Imposta", u"imposta", Importo, 13},
        {u"Esente", u"esente", Importo, 13},
        {u"Ritenuta", u"ritenuta", Importo, 13},
        {u"Prima scad.", u"primaScadenza", Data, 12},
        {u"Pagamento", u"pagamento", Testo, 22},
    }}};
    return colonne[colonna];
}

std::optional<Colonna> colonnaDi(QStringView chiave) {
    for (int i = 0; i < colonneElenco; ++i) {
        if (datiColonna(enumeratore<Colonna>(i)).chiave == chiave)
            return enumeratore<Colonna>(i);
    }
    return std::nullopt;
}

} // namespace bor
