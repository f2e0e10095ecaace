#include "document/testata.h"

#include "archive/cli.h"

namespace bor {

namespace {

SedeTesti testiDi(const Sede& sede) {
    return {sede.ragione1.trimmed(), sede.ragione2.trimmed(), sede.indirizzo.trimmed(), sede.cap.trimmed(),
            sede.citta.trimmed()};
}

} // namespace

ContoTesti ContoTesti::da(QStringView campo) {
    return {puliscitesto(pezzo(campo, postoMastro)), puliscitesto(pezzo(campo, postoConto)),
            puliscitesto(pezzo(campo, postoSottoconto))};
}

DatiCliente DatiCliente::da(const Cli& cliente) {
    DatiCliente d;
    d.sede = testiDi(cliente.sede);
    if (cliente.eliminato == 1)
        d.sede.ragione1.remove(0, 1);
    d.codicefiscale = cliente.codicefiscale.trimmed();
    d.nazione = cliente.nazione.trimmed();
    d.partitaiva = cliente.partitaiva.trimmed();
    d.amministrazione = testiDi(cliente.amministrazione);
    for (std::size_t i = 0; i < d.telefono.size(); ++i)
        d.telefono[i] = cliente.telefono[i].trimmed();
    d.email = cliente.email.trimmed();
    d.vettore = {cliente.vettore1.trimmed(), cliente.vettore2.trimmed(), cliente.vettore3.trimmed()};
    d.nota = {cliente.nota1.trimmed(), cliente.nota2.trimmed()};
    d.pagamento = cliente.posizionePagamento();
    d.banca = cliente.banca.trimmed();
    d.coordinate = cliente.coordinate();
    d.contocliente = ContoTesti::da(cliente.contocliente.text());
    d.contoricavi = ContoTesti::da(cliente.contoricavi.text());
    d.contoiva = ContoTesti::da(cliente.contoiva.text());
    d.contoesenti = ContoTesti::da(cliente.contoesenti.text());
    return d;
}

} // namespace bor
