// Stores the documents of a new company.
#include "borcrea/documenti.h"
#include "common/numeri.h"
#include "document/filerighe.h"
#include "document/righeiva.h"

#include <QDateTime>

namespace bor {

using namespace Qt::StringLiterals;

namespace {

std::int16_t posizione(int indice) {
    return static_cast<std::int16_t>(indice + 1);
}

void segna(Text<1>& campo, bool acceso) {
    campo.set(acceso ? u"1" : u"0");
}

/// The moment of registration. It follows from the date and the place in the table, so that a company made
/// twice is the same to the byte; a second apart, no two are equal.
double stampDi(const Estremi& estremi, int indice) {
    const QDate data = dataValida(estremi.datareg).value_or(QDate(2015, 1, 1));
    return contoGiorni(QDateTime(data, QTime(8, 0)).addSecs(indice));
}

void riempiEstremi(const Documento& d, int indice, Fte& fte) {
    const Estremi& e = d.estremi;
    fte.numero.set(e.numero);
    fte.datadoc.set(annoMeseGiorno(e.data));
    fte.datareg.set(annoMeseGiorno(e.datareg));
    fte.protocollo = valore(e.protocollo);
    fte.registro = static_cast<std::int16_t>(e.registro);
    fte.voce1 = posizione(e.voce1);
    fte.voce2 = posizione(e.voce2);
    fte.voce3 = posizione(e.voce3);
    fte.quota2 = valore(e.quota2);
    fte.quota3 = valore(e.quota3);
    fte.stamp = stampDi(e, indice);
    fte.vuoto2.blank();
    segna(fte.spesom, d.prospetti.spesometro);
    segna(fte.ivanonesp, false);
    segna(fte.riepil, false);
    segna(fte.noleggio, false);
    segna(fte.autofatt, false);
    segna(fte.esigdiff, e.esig);
    for (auto& data : fte.datx)
        data.blank();
}

void riempiScadenze(const Scadenze& s, Fte& fte, F2e& f2e) {
    for (std::size_t k = 0; k < s.rate.size(); ++k) {
        auto& scad = k < 4 ? fte.scad[k] : f2e.scad[k - 4];
        Reale& rata = k < 4 ? fte.rata[k] : f2e.rata[k - 4];
        scad.set(giornoMeseAnno(s.rate[k].scadenza));
        rata = valore(s.rate[k].importo);
    }
    fte.pagamento.set(QString::number(s.pagamento + 1));
    fte.riba = s.rib ? 1 : 0;
    fte.provaliq.set(s.provaliq);
    fte.provimp = valore(s.provimp);
}

void riempiProspetti(const Documento& d, F2e& f2e) {
    for (std::size_t k = 0; k < d.prospetti.ritenute.size(); ++k) {
        const Ritenuta& r = d.prospetti.ritenute[k];
        f2e.raimpo[k] = valore(r.raimpo);
        f2e.raimp[k] = valore(r.raimp);
        f2e.rascad[k].set(giornoMeseAnno(r.rascad));
        f2e.ravers[k].set(giornoMeseAnno(r.ravers));
    }
    // The stored tax code is the place of the payment type: so the suite's programs have always kept it.
    f2e.tributo = posizione(d.scadenze.pagamento);
    for (auto& periodo : f2e.dper)
        periodo.set(u"000000");
    const auto data = dataValida(d.estremi.data);
    f2e.dtermine.set(d.estremi.esig && data
                         ? zeriDavanti(QString::number(data->month()), 2) + QString::number(data->year() + 1)
                         : u"000000"_s);
    f2e.pdf.set(d.estremi.pdf);
    f2e.resy1.blank();
    f2e.resy3.blank();
}

} // namespace

bool scriviDocumenti(Archivio& archivio, std::vector<DocumentoPronto>& documenti) {
    Tot tot = vuoto<Tot>();
    Tot fpa = vuoto<Tot>();
    for (std::size_t i = 0; i < documenti.size(); ++i) {
        Documento& d = documenti[i].documento;
        d.record = static_cast<int>(i) + 1;
        Fte& fte = d.coppia.fte;
        riempiEstremi(d, static_cast<int>(i), fte);
        riempiScadenze(d.scadenze, fte, d.coppia.f2e);
        riempiProspetti(d, d.coppia.f2e);
        fte.nfile = static_cast<float>(d.record);
        fte.annullata = documenti[i].eliminato ? 1 : 0;
        if (!archivio.scrivi(d.record, d.coppia) ||
            (!documenti[i].eliminato && !scrividoc(d, archivio)))
            return false;
        if (documenti[i].fpa &&
            !scriviFpa(archivio, u"fpa"_s + testoDecimale(double{d.coppia.f2e.fpa}), *documenti[i].fpa))
            return false;
        tot.numero = static_cast<std::int16_t>(d.record);
        tot.ultimonumero = static_cast<std::int16_t>(valoreIntero(d.estremi.numero));
        tot.progressivo = fte.nfile;
        fpa.numero = std::max<std::int16_t>(fpa.numero, static_cast<std::int16_t>(double{d.coppia.f2e.fpa}));
    }
    return archivio.scriviTot(Conta::Fte, tot) && archivio.scriviTot(Conta::Fpa, fpa);
}

bool ripetiDocumenti(Archivio& archivio, int quanti) {
    Tot tot = archivio.leggiTot(Conta::Fte);
    const int originali = tot.numero;
    const int clienti = archivio.leggiTot(Conta::Cli).numero;
    if (originali == 0 || quanti <= originali)
        return true;
    for (int n = originali + 1; n <= quanti; ++n) {
        CoppiaFte coppia = archivio.leggi((n - 1) % originali + 1);
        coppia.fte.cliente = static_cast<std::int16_t>((n - 1) % clienti + 1);
        coppia.fte.numero.set(QString::number(n));
        coppia.fte.stamp = coppia.fte.stamp + (n - (n - 1) % originali - 1) / 86400.0;
        coppia.fte.nfile = 0;
        if (!archivio.scrivi(n, coppia))
            return false;
    }
    tot.numero = static_cast<std::int16_t>(quanti);
    tot.ultimonumero = tot.numero;
    return archivio.scriviTot(Conta::Fte, tot);
}

} // namespace bor
