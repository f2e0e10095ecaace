#include "document/defaultcliente.h"

#include "archive/contesto.h"
#include "document/clienti.h"

namespace bor {

void prendiDefaults(Documento& documento, const Contesto& contesto) {
    const Cli& cliente = documento.cliente;
    documento.estremi.esig = contesto.tabelle.regimeiva() != 0 && cliente.nodifferita.text() != u"1";
    documento.estremi.postael = cliente.postael.text() == u"1";
    documento.prospetti.spesometro = cliente.spesometro.text() != u"0";
    documento.scadenze.rib = cliente.riba == 1;
    documento.scadenze.pagamento = cliente.posizionePagamento();
    // What the document counts with is what its record can hold.
    documento.scadenze.provaliq =
        cercaagente(contesto.archivio, cliente.agente).left(caratteriProvvigione).trimmed();
}

CodiceIva ivaForzata(const Cli& cliente) {
    const CodiceIva codice(cliente.regimeiva);
    return codice.valido() ? codice : CodiceIva();
}

} // namespace bor
