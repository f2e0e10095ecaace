#include "output/voci.h"

#include "archive/tabelle.h"
#include "common/numeri.h"

using namespace Qt::StringLiterals;

namespace bor::voci {

namespace {

constexpr qsizetype lineeIntestazione = 16;
constexpr int annoDellaData = 7; ///< position of the year in "dd/mm/yyyy"

QStringList campiSede(const SedeTesti& sede) {
    return {sede.ragione1, sede.ragione2, sede.indirizzo, sede.cap, sede.citta};
}

QString coordinateBanca(const Cli& cliente) {
    const QStringList parti = {cliente.banca1.trimmed(), cliente.abi.trimmed(), cliente.cab.trimmed(),
                               cliente.contocorrente.trimmed()};
    return parti.join(QString()).isEmpty() ? QString() : parti.join(u'.');
}

} // namespace

QStringList intestazione(const DatiStampa& dati) {
    QStringList linee;
    for (qsizetype i = 0; i < lineeIntestazione; ++i)
        linee.append(dati.intestazione.value(i).trimmed());
    return linee;
}

QStringList ivaPerCassa(const DatiStampa& dati) {
    return {dati.documento.estremi.esig
                ? u"'Iva per cassa': documento emesso ai sensi dell'art.32 bis del D.L. 22/6/2012 n.83 "
                  "convertito dalla L. 7/8/2012 n.134"_s
                : QString()};
}

QStringList sede(const DatiStampa& dati) {
    return campiSede(dati.documento.testata.cliente.sede);
}

QStringList codiciFiscali(const DatiStampa& dati) {
    const DatiCliente& cliente = dati.documento.testata.cliente;
    return {puliscitesto(cliente.nazione.trimmed() + cliente.partitaiva), cliente.codicefiscale};
}

QStringList amministrazione(const DatiStampa& dati) {
    return campiSede(dati.documento.testata.cliente.amministrazione);
}

QStringList telefoni(const DatiStampa& dati) {
    const auto& telefono = dati.documento.testata.cliente.telefono;
    return {telefono.begin(), telefono.end()};
}

QStringList numeroEData(const DatiStampa& dati) {
    const Estremi& estremi = dati.documento.estremi;
    const QString anno = dati.numeroConAnno ? u'/' + pezzo(estremi.data, annoDellaData) : QString();
    return {estremi.numero.trimmed() + anno, estremi.data};
}

QStringList bancaCliente(const DatiStampa& dati) {
    const Cli& cliente = dati.documento.cliente;
    return {coordinateBanca(cliente), cliente.banca.trimmed()};
}

QStringList pagamento(const DatiStampa& dati) {
    return {dati.tabelle.tipopagamenti[dati.documento.scadenze.pagamento + 1].descrizione.trimmed()};
}

QStringList bancaPagamento(const DatiStampa& dati) {
    return {dati.documento.testata.cliente.banca};
}

QStringList rate(const DatiStampa& dati, std::size_t prima, std::size_t ultima) {
    QStringList testi;
    for (std::size_t i = prima; i <= ultima; ++i) {
        const Rata& rata = dati.documento.scadenze.rate[i - 1];
        const double importo = valore(rata.importo);
        testi << dati.importo(importo) << (importo == 0.0 ? QString() : rata.scadenza);
    }
    return testi;
}

QStringList ivaCodici(const DatiStampa& dati) {
    QStringList testi;
    for (const RigaIvaStampata& riga : dati.righeIva)
        testi << riga.codice << riga.descrizione;
    return testi;
}

QStringList ivaImporti(const DatiStampa& dati) {
    QStringList testi;
    for (const RigaIvaStampata& riga : dati.righeIva)
        testi << riga.imponibile << riga.aliquota << riga.imposta << riga.esente;
    return testi;
}

QStringList ivaRiferimenti(const DatiStampa& dati) {
    QStringList testi;
    for (const RigaIvaStampata& riga : dati.righeIva)
        testi << riga.riferimento;
    return testi;
}

QStringList provvigione(const DatiStampa& dati) {
    const Scadenze& scadenze = dati.documento.scadenze;
    const double importo = valore(scadenze.provimp);
    return {importo == 0.0 ? QString() : scadenze.provaliq.trimmed() + u"% "_s + dati.importo(importo)};
}

QStringList termineIva(const DatiStampa& dati) {
    const Prospetti& p = dati.documento.prospetti;
    return {dati.documento.estremi.esig && !p.terminemese.isEmpty() ? p.terminemese + u'/' + p.termineanno
                                                                    : QString()};
}

QStringList note(const DatiStampa& dati) {
    const auto& nota = dati.documento.testata.cliente.nota;
    return {nota.begin(), nota.end()};
}

} // namespace bor::voci
