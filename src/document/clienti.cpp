#include "document/clienti.h"

#include "common/numeri.h"

namespace bor {

int cercaNome(int numero, QStringView testo, const std::function<Src(int)>& leggi) {
    int basso = 1;
    int alto = std::max(numero, 0) + 1;
    int precedente = 0;
    for (bool fine = false; !fine;) {
        const int medio = basso + (alto - basso) / 2;
        // A position that comes up twice is the last one left; it is read once more all the same.
        fine = medio == precedente;
        precedente = medio;
        const QString chiave = maiuscolo(leggi(medio).chiave.text()).left(testo.size());
        const int confronto = chiave.compare(testo);
        if (confronto == 0)
            return medio;
        (confronto > 0 ? alto : basso) = medio;
    }
    return 0;
}

int cercacliente(const Archivio& archivio, QStringView nome) {
    return cercaNome(archivio.leggiTot(Conta::Cli).numero, maiuscolo(nome.trimmed()),
                     [&](int posizione) { return archivio.src.leggi(posizione); });
}

int posizionecliente(const Archivio& archivio, int record) {
    int trovata = 0;
    archivio.src.scorri(1, archivio.leggiTot(Conta::Cli).numero, [&](int posizione, const Src& voce) {
        if (voce.recordcli == record)
            trovata = posizione;
        return trovata == 0;
    });
    return trovata;
}

QString cercaagente(const Archivio& archivio, int codice) {
    QString provvigione;
    archivio.age.scorri(1, archivio.leggiTot(Conta::Age).numero, [&](int, const Age& agente) {
        const bool trovato = valore(agente.codice.text()) == codice;
        if (trovato)
            provvigione = puliscitesto(agente.provvigione.text());
        return !trovato;
    });
    return provvigione;
}

void prendiCliente(Documento& documento, const Archivio& archivio, int record) {
    documento.cliente = archivio.cli.leggi(record);
    const int pagamento = documento.testata.cliente.pagamento;
    documento.testata.cliente = DatiCliente::da(documento.cliente);
    // A payment type outside the list leaves the one that was selected.
    if (documento.testata.cliente.pagamento < 0)
        documento.testata.cliente.pagamento = pagamento;
}

} // namespace bor
