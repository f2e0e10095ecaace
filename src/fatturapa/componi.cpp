#include "fatturapa/componi.h"

#include "archive/tabelle.h"
#include "common/codicifiscali.h"
#include "common/date.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "document/codiceiva.h"
#include "fatturapa/caratteri.h"
#include "fatturapa/composizione.h"
#include "fatturapa/tabellefel.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Exempt amounts above this bear stamp duty.
constexpr double sogliaBollo = 77.47;
constexpr double importoBollo = 2;
constexpr qsizetype caratteriCausale = 200;
const QString elementoCollegata = u"FatturaElettronicaBody/DatiGenerali/DatiFattureCollegate/Data"_s;

const QString dovePropri = u"nella maschera \"Fattura elettronica\""_s;

/// Natures that were split into subcodes, and the last one that there is.
bool naturaDiOggi(const QString& natura) {
    static const QStringList note = u"N1 N2.1 N2.2 N3.1 N3.2 N3.3 N3.4 N3.5 N3.6 N4 N5 N6.1 N6.2 N6.3 N6.4 "
                                    u"N6.5 N6.6 N6.7 N6.8 N6.9 N7"_s.split(u' ');
    return note.contains(natura);
}

QString tipoProposto(const Composizione& c) {
    const Documento& d = c.fonti.documento;
    if (d.coppia.fte.tipo == 1)
        return u"TD04"_s;
    if (d.parcella())
        return u"TD06"_s;
    const auto& ddt = c.fattura.ddt;
    const bool differita =
        std::ranges::any_of(ddt, [&](const DdtFel& documento) { return documento.data < c.fattura.data; });
    return differita ? u"TD24"_s : u"TD01"_s;
}

QString tipoDocumento(const Composizione& c) {
    const QString proprio = c.fonti.propri.documento.tipo;
    if (!proprio.isEmpty())
        return proprio;
    const QString pa = c.fonti.pa ? c.fonti.pa->tipodocpa.trimmed() : QString();
    // The form of 2014 knows no deferred invoices.
    return pa.isEmpty() || pa == u"TD01" ? tipoProposto(c) : pa;
}

void componiCausali(Composizione& c) {
    const Testata& testata = c.fonti.documento.testata;
    QStringList testi;
    if (c.fonti.documento.parcella())
        std::ranges::copy(testata.pratica.descrizione, std::back_inserter(testi));
    else
        std::ranges::copy(testata.cliente.nota, std::back_inserter(testi));
    for (const QString& testo : testi) {
        const QString latino = testoLatino(testo);
        for (qsizetype i = 0; i < latino.size(); i += caratteriCausale)
            if (const QString causale = latino.sliced(i).left(caratteriCausale).trimmed(); !causale.isEmpty())
                c.fattura.causali.append(causale);
    }
}

void componiBollo(Composizione& c) {
    const QString& scelta = c.fonti.propri.documento.bollo;
    double esente = 0;
    for (const RiepilogoFel& r : c.fattura.riepiloghi)
        if (r.natura == u"N1" || r.natura.startsWith(u"N2") || r.natura == u"N4" || r.natura == u"N5")
            esente += r.imponibile;
    if (scelta == u"SI" || (scelta != u"NO" && esente > sogliaBollo))
        c.fattura.bollo = importoBollo;
}

void componiDocumento(Composizione& c) {
    const Documento& d = c.fonti.documento;
    FatturaElettronica& f = c.fattura;
    f.numero = testoAscii(d.estremi.numero);
    const auto data = dataValida(d.estremi.data);
    f.data = data.value_or(QDate());
    if (!data)
        c.rifiuta(elementoDocumento + u"/Data"_s, d.estremi.data, u"La data del documento non è valida."_s,
                  u"Correggere la data nella maschera del documento."_s);
    if (!c.fonti.valuta.euro)
        c.rifiuta(elementoDocumento + u"/Divisa"_s, u"lire"_s,
                  u"I conti dell'azienda sono in lire: una fattura elettronica è in euro."_s,
                  u"Emettere il documento su carta."_s);
    f.art73 = c.fonti.pa && valore(c.fonti.pa->art73flag.text()) != 0;
    componiCausali(c);
    const DocumentoFel& propri = c.fonti.propri.documento;
    if (const QString numero = testoAscii(propri.collegatanumero).left(20); !numero.isEmpty())
        f.collegate.push_back({.numero = numero,
                               .data = c.dataPropria(propri.collegatadata, elementoCollegata),
                               .item = {},
                               .commessa = {},
                               .cup = {},
                               .cig = {}});
}

/// Records of a broken disk: an amount that is no number must not go out as 0.
void rifiutaNonNumeri(Composizione& c) {
    const FatturaElettronica& f = c.fattura;
    const auto guasta = [](const LineaFel& l) {
        return !std::isfinite(l.totale) || !std::isfinite(l.prezzo);
    };
    if (!std::isfinite(f.totale) || std::ranges::any_of(f.linee, guasta))
        c.rifiuta(elementoLinee + u"/PrezzoTotale"_s, {}, u"Un importo del documento non è un numero."_s,
                  u"Riscrivere gli importi del documento."_s);
}

/// A document whose lines are lost still goes out: one line for each amount of its VAT rows.
void lineeDalleRigheIva(Composizione& c) {
    FatturaElettronica& f = c.fattura;
    const QString descrizione =
        u"Come da documento n. %1 del %2"_s.arg(f.numero, testoLatino(c.fonti.documento.estremi.data));
    for (const RiepilogoFel& r : f.riepiloghi)
        f.linee.push_back({.codice = {},
                           .codice2 = {},
                           .descrizione = descrizione,
                           .quantita = {},
                           .um = {},
                           .prezzo = r.imponibile,
                           .sconti = {},
                           .totale = r.imponibile,
                           .aliquota = r.aliquota,
                           .natura = r.natura,
                           .intento = {}});
    c.avvisa(elementoLinee, {},
             u"Le righe del documento non ci sono: il file ne porta una per ogni aliquota."_s,
             u"Riscrivere le righe del documento, se servono."_s);
}

} // namespace

Composizione::RigaIva Composizione::rigaIva(int riga) const {
    const auto& [fte, f2e] = fonti.documento.coppia;
    const std::size_t i = postoDaZero(riga - 1);
    const std::size_t prime = fte.impon.size();
    if (i < prime)
        return {fte.impon[i], fte.iva[i], fte.esen[i]};
    return {f2e.impon[i - prime], f2e.iva[i - prime], f2e.esen[i - prime]};
}

IvaFel Composizione::iva(int codice) {
    const bool tassato = CodiceIva(codice).tassato();
    IvaFel iva;
    if (tassato) {
        iva.aliquota = fonti.tabelle.aliquota(codice);
        iva.ritenuta = fonti.tabelle.ritenuta(codice);
        if (iva.aliquota != 0)
            return iva;
    }
    const int riga = CodiceIva(codice).riga();
    const QString& propria = elemento(fonti.propri.nature, codice);
    iva.natura = !propria.isEmpty() ? propria : tassato ? QString() : naturaSuite(fonti.tabelle, riga);
    iva.riferimento = tassato ? QString() : testoLatino(fonti.tabelle.esenzioni[riga].riferimento).left(100);
    if (naturaDiOggi(iva.natura))
        return iva;
    const QString motivo =
        iva.natura.isEmpty()
            ? u"Il codice IVA %1 non ha né aliquota né natura."_s.arg(codice)
            : u"Il codice IVA %1 ha la natura %2, che oggi non è più ammessa così."_s.arg(codice).arg(
                  iva.natura);
    const QString elemento = elementoLinee + u"/Natura"_s;
    if (std::ranges::none_of(rilievi, [&](const Rilievo& r) { return r.motivo == motivo; }))
        rifiuta(elemento, iva.natura, motivo,
                u"Scegliere la natura con il suo sottocodice (per esempio N3.1) per questo codice, %1."_s.arg(
                    dovePropri));
    return iva;
}

double Composizione::totaleRitenute() const {
    double somma = 0;
    for (const double importo : fonti.documento.coppia.f2e.raimp)
        somma += importo;
    return somma;
}

QString Composizione::esigibilita() const {
    if (fonti.propri.cliente.splitpayment == u"SI")
        return u"S"_s;
    return fonti.documento.estremi.esig ? u"D"_s : u"I"_s;
}

QDate Composizione::dataPropria(const QString& testo, const QString& elemento) {
    const QString netto = testo.trimmed();
    const auto data = dataValida(completaData(netto));
    const auto detta = [&](const Rilievo& r) { return r.elemento == elemento && r.valore == netto; };
    if (!data && !netto.isEmpty() && std::ranges::none_of(rilievi, detta))
        rifiuta(elemento, netto, u"La data non è valida."_s, u"Correggerla %1."_s.arg(dovePropri));
    return data.value_or(QDate());
}

void Composizione::rifiuta(const QString& elemento, const QString& valore, const QString& motivo,
                           const QString& rimedio) {
    rilievi.push_back({.elemento = elemento, .valore = valore, .motivo = motivo, .rimedio = rimedio});
}

void Composizione::avvisa(const QString& elemento, const QString& valore, const QString& motivo,
                          const QString& rimedio) {
    rilievi.push_back({.elemento = elemento,
                       .valore = valore,
                       .motivo = motivo,
                       .rimedio = rimedio,
                       .gravita = Gravita::Avviso});
}

void componiRitenute(Composizione& c, const std::vector<QuotaRitenuta>& quote) {
    const double totale = c.totaleRitenute();
    if (totale == 0)
        return;
    const DatiFel& propri = c.fonti.propri;
    const auto scelta = [](const QString& documento, const QString& azienda) {
        return documento.isEmpty() ? azienda : documento;
    };
    QString tipo = scelta(propri.documento.tiporitenuta, propri.azienda.tiporitenuta);
    if (tipo.isEmpty())
        tipo = diPersona(c.fonti.azienda.codfiscale.trimmed()) ? u"RT01"_s : u"RT02"_s;
    QString causale = scelta(propri.documento.causaleritenuta, propri.azienda.causaleritenuta);
    if (causale.isEmpty() && c.fonti.pa)
        causale = c.fonti.pa->causalepagamento.trimmed();
    if (causale.isEmpty())
        c.rifiuta(elementoDocumento + u"/DatiRitenuta/CausalePagamento"_s, {},
                  u"Il documento ha una ritenuta, ma non se ne conosce la causale."_s,
                  u"Scegliere la causale della ritenuta %1."_s.arg(dovePropri));
    double somma = 0;
    std::vector<RitenutaFel> ritenute;
    for (const QuotaRitenuta& quota : quote) {
        if (quota.importo == 0)
            continue;
        somma += quota.importo;
        const auto stessa = std::ranges::find(ritenute, quota.aliquota, &RitenutaFel::aliquota);
        if (stessa != ritenute.end())
            stessa->importo += quota.importo;
        else
            ritenute.push_back({tipo, quota.importo, quota.aliquota, causale});
    }
    // An amount that the operator typed is one withholding, at the rate that it comes to.
    if (ritenute.empty() || std::abs(somma - totale) > 0.005) {
        double base = 0;
        for (const double imponibile : c.fonti.documento.coppia.f2e.raimpo)
            base += imponibile;
        const double aliquota = !ritenute.empty() ? ritenute.back().aliquota
                                : base != 0       ? totale / base * 100
                                                  : 0;
        ritenute = {{tipo, totale, aliquota, causale}};
    }
    c.fattura.ritenute = std::move(ritenute);
}

double scontato(double importo, const std::vector<double>& sconti) {
    for (const double percento : sconti)
        importo *= 1 - percento / 100;
    return importo;
}

double ottoDecimali(double x) {
    return valore(testoFisso(x, 8));
}

bool Composta::rifiutata() const {
    return std::ranges::any_of(rilievi, [](const Rilievo& r) { return r.gravita == Gravita::Errore; });
}

Composta componi(const FontiFel& fonti) {
    Composta composta;
    Composizione c{fonti, composta.fattura, composta.rilievi};
    componiTrasmissione(c);
    componiCedente(c);
    componiCessionario(c);
    componiDocumento(c);
    componiRiferimenti(c);
    if (fonti.documento.parcella())
        componiParcella(c);
    else
        componiRighe(c);
    if (c.fattura.linee.empty())
        lineeDalleRigheIva(c);
    c.fattura.tipo = tipoDocumento(c);
    componiBollo(c);
    for (const RiepilogoFel& r : c.fattura.riepiloghi)
        c.fattura.totale += r.imponibile + r.imposta;
    rifiutaNonNumeri(c);
    componiPagamento(c);
    return composta;
}

} // namespace bor
