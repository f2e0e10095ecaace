#include "document/recorddoc.h"

#include "archive/contesto.h"
#include "common/numeri.h"

#include <algorithm>

namespace bor {

namespace {

constexpr int tipiPagamento = 60;
constexpr int vociRicavo = 100;

/// First position of the instalments that the second record holds.
constexpr std::size_t rateFte = 4;

// Each kind of field, then each group of fields: how it is read and, beside it, how it is filled.

/// List position of a stored value that counts from 1; -1 when the list does not have it.
int leggiPosizione(int valore, qsizetype voci) {
    return valore >= 1 && valore <= voci ? valore - 1 : -1;
}

Intero mettiPosizione(int indice) {
    return breve(indice + 1);
}

bool leggiSpunta(const Text<1>& campo) {
    return campo.text() == u"1";
}

void mettiSpunta(Text<1>& campo, bool spunta) {
    campo.set(spunta ? u"1" : u"0");
}

void leggiPeriodo(QString& mese, QString& anno, const Text<6>& campo) {
    const QString testo = campo.text();
    mese = puliscitesto(pezzo(testo, 1, 2));
    anno = puliscitesto(pezzo(testo, 3, 4));
}

/// A period as `mmyyyy`; one without month and year is all zeros.
QString testoPeriodo(const QString& mese, const QString& anno) {
    return zeriDavanti(mese.trimmed(), 2) + zeriDavanti(anno.trimmed(), 4);
}

void caricaLegami(Documento& documento) {
    documento.recordcliente = documento.coppia.fte.cliente;
    documento.recordfpa = documento.coppia.f2e.fpa;
}

void mettiLegami(CoppiaFte& coppia, const Documento& documento) {
    coppia.fte.cliente = breve(documento.recordcliente);
    coppia.f2e.fpa = documento.recordfpa;
}

void caricaEstremi(Documento& documento) {
    const auto& [fte, f2e] = documento.coppia;
    Estremi& estremi = documento.estremi;
    estremi.numero = puliscitesto(fte.numero.text());
    estremi.data = dataDaAnnoMeseGiorno(fte.datadoc.text());
    estremi.datareg = dataDaAnnoMeseGiorno(fte.datareg.text());
    // A document stored without a protocol shows its record number.
    estremi.protocollo =
        testoDecimale(fte.protocollo != 0.0 ? double{fte.protocollo} : documento.recordfattura);
    estremi.registro = registroIva(fte);
    estremi.esig = leggiSpunta(fte.esigdiff);
    estremi.voce1 = leggiPosizione(fte.voce1, vociRicavo);
    estremi.voce2 = leggiPosizione(fte.voce2, vociRicavo);
    estremi.voce3 = leggiPosizione(fte.voce3, vociRicavo);
    estremi.quota2 = testoCasella(fte.quota2);
    estremi.quota3 = testoCasella(fte.quota3);
    estremi.pdf = puliscitesto(f2e.pdf.text());
}

void mettiEstremi(CoppiaFte& coppia, const Estremi& estremi) {
    auto& [fte, f2e] = coppia;
    fte.numero.set(estremi.numero);
    fte.datadoc.set(annoMeseGiorno(estremi.data.trimmed()));
    fte.datareg.set(annoMeseGiorno(estremi.datareg.trimmed()));
    fte.protocollo = valore(estremi.protocollo);
    fte.registro = breve(estremi.registro);
    mettiSpunta(fte.esigdiff, estremi.esig);
    fte.voce1 = mettiPosizione(estremi.voce1);
    fte.voce2 = mettiPosizione(estremi.voce2);
    fte.voce3 = mettiPosizione(estremi.voce3);
    fte.quota2 = valore(estremi.quota2);
    fte.quota3 = valore(estremi.quota3);
    f2e.pdf.set(estremi.pdf.trimmed());
}

void caricaScadenze(Scadenze& scadenze, const CoppiaFte& coppia) {
    const auto& [fte, f2e] = coppia;
    for (std::size_t k = 0; k < scadenze.rate.size(); ++k) {
        const bool prima = k < rateFte;
        Rata& rata = scadenze.rate[k];
        rata.scadenza = dataDaGiornoMeseAnno((prima ? fte.scad[k] : f2e.scad[k - rateFte]).text());
        rata.importo = testoCasella(prima ? fte.rata[k] : f2e.rata[k - rateFte]);
    }
    scadenze.rib = fte.riba == 1;
    scadenze.pagamento = leggiPosizione(valoreIntero(fte.pagamento.text()), tipiPagamento);
    scadenze.provaliq = puliscitesto(fte.provaliq.text());
    scadenze.provimp = testoCasella(fte.provimp);
}

void mettiScadenze(CoppiaFte& coppia, const Scadenze& scadenze) {
    auto& [fte, f2e] = coppia;
    for (std::size_t k = 0; k < scadenze.rate.size(); ++k) {
        const bool prima = k < rateFte;
        const Rata& rata = scadenze.rate[k];
        (prima ? fte.scad[k] : f2e.scad[k - rateFte]).set(giornoMeseAnno(rata.scadenza.trimmed()));
        (prima ? fte.rata[k] : f2e.rata[k - rateFte]) = valore(rata.importo);
    }
    fte.riba = scadenze.rib ? 1 : 0;
    fte.pagamento.set(QString::number(scadenze.pagamento + 1));
    fte.provaliq.set(scadenze.provaliq.trimmed());
    fte.provimp = valore(scadenze.provimp);
}

void caricaDifferita(Prospetti& prospetti, const F2e& f2e) {
    for (std::size_t k = 0; k < prospetti.differita.size(); ++k) {
        IvaDifferita& riga = prospetti.differita[k];
        leggiPeriodo(riga.mese, riga.anno, f2e.dper[k]);
        riga.pagato = testoCasella(f2e.dimp[k]);
        riga.quota = testoCasella(f2e.diva[k]);
    }
    leggiPeriodo(prospetti.terminemese, prospetti.termineanno, f2e.dtermine);
}

void mettiDifferita(F2e& f2e, const Prospetti& prospetti) {
    for (std::size_t k = 0; k < prospetti.differita.size(); ++k) {
        const IvaDifferita& riga = prospetti.differita[k];
        f2e.dper[k].set(testoPeriodo(riga.mese, riga.anno));
        f2e.dimp[k] = valore(riga.pagato);
        f2e.diva[k] = valore(riga.quota);
    }
    f2e.dtermine.set(testoPeriodo(prospetti.terminemese, prospetti.termineanno));
}

void caricaRitenute(Prospetti& prospetti, const F2e& f2e, qsizetype tributi) {
    for (std::size_t k = 0; k < prospetti.ritenute.size(); ++k) {
        Ritenuta& riga = prospetti.ritenute[k];
        riga.raimpo = testoCasella(f2e.raimpo[k]);
        riga.raimp = testoCasella(f2e.raimp[k]);
        riga.rascad = dataDaGiornoMeseAnno(f2e.rascad[k].text());
        riga.ravers = dataDaGiornoMeseAnno(f2e.ravers[k].text());
    }
    prospetti.tributo = leggiPosizione(f2e.tributo, tributi);
}

void mettiRitenute(F2e& f2e, const Prospetti& prospetti, int pagamento) {
    for (std::size_t k = 0; k < prospetti.ritenute.size(); ++k) {
        const Ritenuta& riga = prospetti.ritenute[k];
        f2e.raimpo[k] = valore(riga.raimpo);
        f2e.raimp[k] = valore(riga.raimp);
        f2e.rascad[k].set(giornoMeseAnno(riga.rascad.trimmed()));
        f2e.ravers[k].set(giornoMeseAnno(riga.ravers.trimmed()));
    }
    // The position of the payment type, not of the tax code: the suite's stored documents are read so.
    f2e.tributo = mettiPosizione(pagamento);
}

void caricaSpesometro(Prospetti& prospetti, const Fte& fte) {
    prospetti.spesometro = leggiSpunta(fte.spesom);
    const int classe = valoreIntero(fte.noleggio.text());
    prospetti.noleggio = classe > 0;
    prospetti.classenoleggio = std::max(classe, 0) - 1;
    prospetti.ivanonesp = leggiSpunta(fte.ivanonesp);
    prospetti.autofattura = leggiSpunta(fte.autofatt);
    prospetti.riepilogativo = leggiSpunta(fte.riepil);
}

void mettiSpesometro(Fte& fte, const Prospetti& prospetti) {
    mettiSpunta(fte.spesom, prospetti.spesometro);
    mettiSpunta(fte.ivanonesp, prospetti.ivanonesp);
    mettiSpunta(fte.autofatt, prospetti.autofattura);
    mettiSpunta(fte.riepil, prospetti.riepilogativo);
    fte.noleggio.set(prospetti.noleggio ? QString::number(prospetti.classenoleggio + 1)
                                        : QStringLiteral("0"));
}

template <std::size_t N>
void sbianca(std::array<Text<8>, N>& date) {
    for (Text<8>& data : date)
        data.blank();
}

/// What only the first save of a document sets.
void iniziaRecord(CoppiaFte& coppia) {
    auto& [fte, f2e] = coppia;
    sbianca(fte.datx);
    sbianca(f2e.datx);
    fte.impx.fill(0.0);
    f2e.impx.fill(0.0);
    fte.flagx1 = 0;
    fte.flagx2 = 0;
    f2e.resy2 = 0.0;
}

} // namespace

int registroIva(const Fte& fte) {
    return fte.registro < 0 || fte.registro > ultimoRegistro ? 0 : int{fte.registro};
}

void caricadoc(Documento& documento, const Archivio& archivio) {
    const auto& [fte, f2e] = documento.coppia;
    caricaLegami(documento);
    caricaEstremi(documento);
    caricaScadenze(documento.scadenze, documento.coppia);
    caricaDifferita(documento.prospetti, f2e);
    caricaRitenute(documento.prospetti, f2e, leggiTributi(archivio).size());
    caricaSpesometro(documento.prospetti, fte);
}

CoppiaFte riempiRecord(const Documento& documento, double stamp) {
    CoppiaFte coppia = documento.coppia;
    auto& [fte, f2e] = coppia;
    const bool nuovo = documento.recordfattura == 0;
    mettiLegami(coppia, documento);
    mettiEstremi(coppia, documento.estremi);
    mettiScadenze(coppia, documento.scadenze);
    mettiDifferita(f2e, documento.prospetti);
    mettiRitenute(f2e, documento.prospetti, documento.scadenze.pagamento);
    mettiSpesometro(fte, documento.prospetti);
    if (nuovo)
        iniziaRecord(coppia);
    if (nuovo || fte.stamp == 0.0)
        fte.stamp = stamp;
    fte.vuoto2.blank();
    fte.annullata = 0; // saving a deleted document brings it back
    f2e.marca = F2e::marcaValida;
    return coppia;
}

} // namespace bor
