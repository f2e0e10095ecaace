#include "document/riempirecord.h"

#include "archive/contesto.h"
#include "common/numeri.h"

namespace bor {

namespace {

/// First position of the instalments that the second record holds.
constexpr std::size_t rateFte = 4;

Intero posizione(int indice) {
    return static_cast<std::int16_t>(indice + 1);
}

void mettiSpunta(Text<1>& campo, bool spunta) {
    campo.set(spunta ? u"1" : u"0");
}

/// A period as `mmyyyy`; one without month and year is all zeros.
QString periodo(const QString& mese, const QString& anno) {
    return zeriDavanti(mese.trimmed(), 2) + zeriDavanti(anno.trimmed(), 4);
}

void mettiEstremi(Fte& fte, const Estremi& estremi) {
    fte.numero.set(estremi.numero);
    fte.datadoc.set(annoMeseGiorno(estremi.data.trimmed()));
    fte.datareg.set(annoMeseGiorno(estremi.datareg.trimmed()));
    fte.protocollo = valore(estremi.protocollo);
    fte.registro = static_cast<std::int16_t>(estremi.registro);
    mettiSpunta(fte.esigdiff, estremi.esig);
    fte.voce1 = posizione(estremi.voce1);
    fte.voce2 = posizione(estremi.voce2);
    fte.voce3 = posizione(estremi.voce3);
    fte.quota2 = valore(estremi.quota2);
    fte.quota3 = valore(estremi.quota3);
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

void mettiSpesometro(Fte& fte, const Prospetti& prospetti) {
    mettiSpunta(fte.spesom, prospetti.spesometro);
    mettiSpunta(fte.ivanonesp, prospetti.ivanonesp);
    mettiSpunta(fte.autofatt, prospetti.autofattura);
    mettiSpunta(fte.riepil, prospetti.riepilogativo);
    fte.noleggio.set(prospetti.noleggio ? QString::number(prospetti.classenoleggio + 1)
                                        : QStringLiteral("0"));
}

void mettiProspetti(F2e& f2e, const Prospetti& prospetti) {
    for (std::size_t k = 0; k < prospetti.differita.size(); ++k) {
        const IvaDifferita& riga = prospetti.differita[k];
        f2e.dper[k].set(periodo(riga.mese, riga.anno));
        f2e.dimp[k] = valore(riga.pagato);
        f2e.diva[k] = valore(riga.quota);
    }
    f2e.dtermine.set(periodo(prospetti.terminemese, prospetti.termineanno));
    for (std::size_t k = 0; k < prospetti.ritenute.size(); ++k) {
        const Ritenuta& riga = prospetti.ritenute[k];
        f2e.raimpo[k] = valore(riga.raimpo);
        f2e.raimp[k] = valore(riga.raimp);
        f2e.rascad[k].set(giornoMeseAnno(riga.rascad.trimmed()));
        f2e.ravers[k].set(giornoMeseAnno(riga.ravers.trimmed()));
    }
}

template <std::size_t N>
void sbianca(std::array<Text<8>, N>& date) {
    for (Text<8>& data : date)
        data.blank();
}

/// What only the first save of a document sets.
void iniziaRecord(CoppiaFte& coppia, int tipodocumento) {
    auto& [fte, f2e] = coppia;
    sbianca(fte.datx);
    sbianca(f2e.datx);
    fte.impx.fill(0.0);
    f2e.impx.fill(0.0);
    fte.parcella = 0;
    fte.flagx1 = 0;
    fte.flagx2 = 0;
    fte.tipo = static_cast<std::int16_t>(tipodocumento);
    f2e.resy2 = 0.0;
}

} // namespace

CoppiaFte riempiRecord(const Documento& documento, const Contesto& contesto) {
    CoppiaFte coppia = documento.coppia;
    auto& [fte, f2e] = coppia;
    const bool nuovo = documento.record == 0;
    fte.cliente = static_cast<std::int16_t>(contesto.sessione.recordcliente);
    mettiEstremi(fte, documento.estremi);
    mettiScadenze(coppia, documento.scadenze);
    mettiSpesometro(fte, documento.prospetti);
    if (nuovo)
        iniziaRecord(coppia, contesto.sessione.tipodocumento);
    if (nuovo || fte.stamp == 0.0)
        fte.stamp = contesto.timbro.nuovo(contesto.orologio.adesso());
    fte.vuoto2.blank();
    fte.annullata = 0; // saving a deleted document brings it back
    mettiProspetti(f2e, documento.prospetti);
    f2e.marca = F2e::marcaValida;
    f2e.fpa = contesto.sessione.recordfpa;
    f2e.pdf.set(documento.estremi.pdf.trimmed());
    // The position of the payment type, not of the tax code: the suite's stored documents are read so.
    f2e.tributo = posizione(documento.scadenze.pagamento);
    return coppia;
}

} // namespace bor
