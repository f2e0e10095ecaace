#include "document/caricadoc.h"

#include "archive/contesto.h"
#include "common/numeri.h"

namespace bor {

namespace {

constexpr int tipiPagamento = 60;
constexpr int vociRicavo = 100;
constexpr int ultimoRegistro = 9;

/// List position of a stored value that counts from 1; -1 when the list does not have it.
int posizione(int valore, qsizetype voci) {
    return valore >= 1 && valore <= voci ? valore - 1 : -1;
}

bool spunta(const Text<1>& campo) {
    return campo.text() == u"1";
}

void caricaEstremi(Documento& documento) {
    const auto& [fte, f2e] = documento.coppia;
    Estremi& estremi = documento.estremi;
    estremi.numero = puliscitesto(fte.numero.text());
    estremi.data = dataDaAnnoMeseGiorno(fte.datadoc.text());
    estremi.datareg = dataDaAnnoMeseGiorno(fte.datareg.text());
    // A document stored without a protocol shows its record number.
    estremi.protocollo = testoDecimale(fte.protocollo != 0.0 ? double{fte.protocollo} : documento.record);
    estremi.registro = fte.registro < 0 || fte.registro > ultimoRegistro ? 0 : int{fte.registro};
    estremi.esig = spunta(fte.esigdiff);
    estremi.voce1 = posizione(fte.voce1, vociRicavo);
    estremi.voce2 = posizione(fte.voce2, vociRicavo);
    estremi.voce3 = posizione(fte.voce3, vociRicavo);
    estremi.quota2 = testoCasella(fte.quota2);
    estremi.quota3 = testoCasella(fte.quota3);
    estremi.pdf = puliscitesto(f2e.pdf.text());
}

void caricaScadenze(Scadenze& scadenze, const CoppiaFte& coppia) {
    const auto& [fte, f2e] = coppia;
    const std::size_t rateFte = fte.rata.size();
    for (std::size_t k = 0; k < scadenze.rate.size(); ++k) {
        const bool prima = k < rateFte;
        Rata& rata = scadenze.rate[k];
        rata.scadenza = dataDaGiornoMeseAnno((prima ? fte.scad[k] : f2e.scad[k - rateFte]).text());
        rata.importo = testoCasella(prima ? fte.rata[k] : f2e.rata[k - rateFte]);
    }
    scadenze.rib = fte.riba == 1;
    scadenze.pagamento = posizione(valoreIntero(fte.pagamento.text()), tipiPagamento);
    scadenze.provaliq = puliscitesto(fte.provaliq.text());
    scadenze.provimp = testoCasella(fte.provimp);
}

void caricaPeriodo(QString& mese, QString& anno, const Text<6>& campo) {
    const QString testo = campo.text();
    mese = puliscitesto(pezzo(testo, 1, 2));
    anno = puliscitesto(pezzo(testo, 3, 4));
}

void caricaProspetti(Prospetti& prospetti, const CoppiaFte& coppia, qsizetype tributi) {
    const auto& [fte, f2e] = coppia;
    for (std::size_t k = 0; k < prospetti.differita.size(); ++k) {
        IvaDifferita& riga = prospetti.differita[k];
        caricaPeriodo(riga.mese, riga.anno, f2e.dper[k]);
        riga.pagato = testoCasella(f2e.dimp[k]);
        riga.quota = testoCasella(f2e.diva[k]);
    }
    caricaPeriodo(prospetti.terminemese, prospetti.termineanno, f2e.dtermine);
    for (std::size_t k = 0; k < prospetti.ritenute.size(); ++k) {
        Ritenuta& riga = prospetti.ritenute[k];
        riga.raimpo = testoCasella(f2e.raimpo[k]);
        riga.raimp = testoCasella(f2e.raimp[k]);
        riga.rascad = dataDaGiornoMeseAnno(f2e.rascad[k].text());
        riga.ravers = dataDaGiornoMeseAnno(f2e.ravers[k].text());
    }
    prospetti.tributo = posizione(f2e.tributo, tributi);
    prospetti.spesometro = spunta(fte.spesom);
    const int classe = valoreIntero(fte.noleggio.text());
    prospetti.noleggio = classe > 0;
    prospetti.classenoleggio = std::max(classe, 0) - 1;
    prospetti.ivanonesp = spunta(fte.ivanonesp);
    prospetti.autofattura = spunta(fte.autofatt);
    prospetti.riepilogativo = spunta(fte.riepil);
}

} // namespace

void caricadoc(Documento& documento, const Contesto& contesto) {
    caricaEstremi(documento);
    caricaScadenze(documento.scadenze, documento.coppia);
    caricaProspetti(documento.prospetti, documento.coppia, leggiTributi(contesto.archivio).size());
}

} // namespace bor
