#include "document/testata.h"

#include "archive/cli.h"

namespace bor {

namespace {

/// All characters of a field but the NULs of a place never written.
template <std::size_t N>
QString scritto(const Text<N>& campo) {
    return campo.text().remove(QChar::Null);
}

template <std::size_t N>
QString testoDi(const Text<N>& campo) {
    return scritto(campo).trimmed();
}

SedeTesti testiDi(const Sede& sede) {
    return {testoDi(sede.ragione1), testoDi(sede.ragione2), testoDi(sede.indirizzo), testoDi(sede.cap),
            testoDi(sede.citta)};
}

} // namespace

ContoTesti ContoTesti::da(QStringView campo) {
    return {pezzo(campo, 1, 2).trimmed(), pezzo(campo, 3, 2).trimmed(), pezzo(campo, 5).trimmed()};
}

DatiCliente DatiCliente::da(const Cli& cliente) {
    DatiCliente d;
    d.sede = testiDi(cliente.sede);
    if (cliente.eliminato == 1)
        d.sede.ragione1.remove(0, 1);
    d.codicefiscale = testoDi(cliente.codicefiscale);
    d.nazione = testoDi(cliente.nazione);
    d.partitaiva = testoDi(cliente.partitaiva);
    d.amministrazione = testiDi(cliente.amministrazione);
    for (std::size_t i = 0; i < d.telefono.size(); ++i)
        d.telefono[i] = testoDi(cliente.telefono[i]);
    d.email = testoDi(cliente.email);
    d.vettore = {testoDi(cliente.vettore1), testoDi(cliente.vettore2), testoDi(cliente.vettore3)};
    d.nota = {testoDi(cliente.nota1), testoDi(cliente.nota2)};
    d.pagamento = cliente.posizionePagamento();
    d.banca = testoDi(cliente.banca);
    d.coordinate = cliente.coordinate().remove(QChar::Null);
    d.contocliente = ContoTesti::da(scritto(cliente.contocliente));
    d.contoricavi = ContoTesti::da(scritto(cliente.contoricavi));
    d.contoiva = ContoTesti::da(scritto(cliente.contoiva));
    d.contoesenti = ContoTesti::da(scritto(cliente.contoesenti));
    return d;
}

} // namespace bor
