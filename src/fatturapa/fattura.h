// Today's electronic invoice as a plain value: what goes out, before it is text. A screen shows it, the
// writer puts it into XML.
#pragma once

#include "fatturapa/partifattura.h"

#include <QStringList>

namespace bor {

struct FatturaElettronica {
    TrasmissioneFel trasmissione;
    CedenteFel cedente;
    SoggettoFel cessionario;
    QString tipo; ///< "TD01", ...
    QDate data;
    QString numero;
    std::vector<RitenutaFel> ritenute;
    std::optional<double> bollo;
    std::vector<CassaFel> casse;
    double totale = 0;
    QStringList causali;
    bool art73 = false;
    std::vector<RiferimentoFel> ordini;
    std::vector<RiferimentoFel> contratti;
    std::vector<RiferimentoFel> convenzioni;
    std::vector<RiferimentoFel> ricezioni;
    std::vector<RiferimentoFel> collegate;
    std::vector<DdtFel> ddt;
    std::optional<TrasportoFel> trasporto;
    std::vector<LineaFel> linee;
    std::vector<RiepilogoFel> riepiloghi;
    PagamentoFel pagamento;
    std::optional<AllegatoFel> allegato;
};

} // namespace bor
