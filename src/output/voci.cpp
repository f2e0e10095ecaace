#include "output/voci.h"

#include "archive/contesto.h"
#include "common/numeri.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr std::size_t codiciIva = 12;
constexpr qsizetype caratteriEsenzione = 100; ///< what follows them is for the electronic invoice

/// The fields of an address in the order of the items: two name lines, street, postcode, town.
QString campoSede(const SedeTesti& sede, int indice) {
    const std::array<const QString*, 5> campi = {&sede.ragione1, &sede.ragione2, &sede.indirizzo, &sede.cap,
                                                 &sede.citta};
    return *campi[static_cast<std::size_t>(indice)];
}

QString coordinateBanca(const Cli& cliente) {
    const QStringList parti = {cliente.banca1.trimmed(), cliente.abi.trimmed(), cliente.cab.trimmed(),
                               cliente.contocorrente.trimmed()};
    return parti.join(QString()).isEmpty() ? QString() : parti.join(u'.');
}

QString numeroStampato(const Documento& documento, const Contesto& contesto) {
    const bool conAnno = contesto.impostazioni.gnr.annonumero.text() == u"1";
    return documento.estremi.numero.trimmed() +
           (conAnno ? u'/' + pezzo(documento.estremi.data, 7) : QString());
}

QString codiceIva(std::size_t codice) {
    return zeriDavanti(QString::number(codice), 2);
}

} // namespace

TestoVoce voceComune(int voce, const Documento& documento, const Contesto& contesto,
                     const QStringList& intestazione) {
    const DatiCliente& cliente = documento.testata.cliente;
    if (voce >= 1 && voce <= 16)
        return {intestazione.value(voce - 1).trimmed()};
    if (voce >= 18 && voce <= 22)
        return {campoSede(cliente.sede, voce - 18)};
    if (voce >= 25 && voce <= 29)
        return {campoSede(cliente.amministrazione, voce - 25)};
    if (voce >= 30 && voce <= 32)
        return {cliente.telefono[static_cast<std::size_t>(voce - 30)]};
    switch (voce) {
    case 17:
        return {documento.estremi.esig
                    ? u"'Iva per cassa': documento emesso ai sensi dell'art.32 bis del D.L. 22/6/2012 n.83 "
                      "convertito dalla L. 7/8/2012 n.134"_s
                    : QString()};
    case 23:
        return {puliscitesto(cliente.nazione.trimmed() + cliente.partitaiva)};
    case 24:
        return {cliente.codicefiscale};
    case 33:
        return {numeroStampato(documento, contesto)};
    case 34:
        return {documento.estremi.data};
    case 40:
        return {coordinateBanca(documento.cliente)};
    case 41:
        return {documento.cliente.banca.trimmed()};
    default:
        return {};
    }
}

TestoVoce voceRata(int indice, const Documento& documento, const Contesto& contesto) {
    const Rata& rata = documento.scadenze.rate[static_cast<std::size_t>(indice / 2)];
    if (indice % 2 == 0)
        return voceImporto(valore(rata.importo), contesto);
    return {valore(rata.importo) == 0.0 ? QString() : rata.scadenza};
}

TestoVoce voceImporto(double importo, const Contesto& contesto) {
    return {contesto.valuta().importotesto(importo), true};
}

QString testoPagamento(const Documento& documento, const Contesto& contesto) {
    const auto riga = static_cast<std::size_t>(documento.scadenze.pagamento + 1);
    const auto& tipi = contesto.tabelle.tipopagamenti;
    return riga >= 1 && riga < tipi.size() ? tipi[riga][0].trimmed() : QString();
}

QString testoProvvigione(const Documento& documento, const Contesto& contesto) {
    const double importo = valore(documento.scadenze.provimp);
    return importo == 0.0
               ? QString()
               : documento.scadenze.provaliq.trimmed() + u"% "_s + contesto.valuta().importotesto(importo);
}

QString testoTermine(const Documento& documento) {
    const Prospetti& p = documento.prospetti;
    return documento.estremi.esig && !p.terminemese.isEmpty() ? p.terminemese + u'/' + p.termineanno
                                                              : QString();
}

std::vector<std::array<TestoVoce, 7>> righeIvaStampate(const TabellaIva& iva, const Contesto& contesto) {
    std::vector<std::array<TestoVoce, 7>> righe;
    for (std::size_t r = 1; r <= codiciIva; ++r) {
        if (iva.imponibili[r] == 0.0 && iva.imposte[r] == 0.0)
            continue;
        const QString aliquota = contesto.tabelle.aliquote[r][0].trimmed();
        righe.push_back({{{codiceIva(r)},
                          {u"Iva "_s + aliquota + u'%'},
                          voceImporto(iva.imponibili[r], contesto),
                          {aliquota, true},
                          voceImporto(iva.imposte[r], contesto),
                          {},
                          {}}});
    }
    for (std::size_t r = 1; r <= codiciIva; ++r) {
        if (iva.esenti[r] == 0.0)
            continue;
        const auto& [riferimento, descrizione] = contesto.tabelle.esenzioni[r];
        righe.push_back({{{codiceIva(r + codiciIva)},
                          {descrizione.left(caratteriEsenzione).trimmed()},
                          {},
                          {},
                          {},
                          voceImporto(iva.esenti[r], contesto),
                          {riferimento.trimmed()}}});
    }
    return righe;
}

} // namespace bor
