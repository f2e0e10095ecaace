#include "archive/tabelle.h"
#include "common/date.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "document/codiceiva.h"
#include "document/totaliriga.h"
#include "fatturapa/caratteri.h"
#include "fatturapa/composizione.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// From here on the receiving system might take the rounding of the lines for an error.
constexpr double arrotondamentoDaDire = 0.5;

bool daScrivere(const Riga& riga) {
    return !riga.descrizione.trimmed().isEmpty() || riga.prezzo != 0 || riga.quantita != 0;
}

/// A comment, or a line of goods without price and code, takes the code of its neighbours.
bool haCodice(const Riga& riga) {
    return riga.prezzo != 0 || (riga.quantita != 0 && riga.iva.valido());
}

/// As the summary counts it: what is no code counts under the first.
int codiceDi(const Riga& riga) {
    return riga.iva.valido() ? riga.iva.numero() : 1;
}

/// Code of the lines that have neither amount nor code: the first taxed line's, else the first exempt one's.
int codicePredefinito(const TabellaRighe& righe) {
    int trovato = 0;
    for (const Riga& riga : righe) {
        if (riga.prezzo == 0)
            continue;
        const int codice = codiceDi(riga);
        if (CodiceIva(codice).tassato())
            return codice;
        if (trovato == 0)
            trovato = codice;
    }
    return trovato == 0 ? 1 : trovato;
}

std::vector<double> scontiDi(const Riga& riga) {
    std::vector<double> sconti;
    for (const int percento : {riga.sconto1, riga.sconto2})
        if (percento != 0)
            sconti.push_back(percento);
    return sconti;
}

QString descrizioneDi(const Riga& riga) {
    for (const QString& testo : {riga.descrizione, riga.codice})
        if (const QString latino = testoLatino(testo); !latino.isEmpty())
            return latino;
    return u"-"_s;
}

/// Quantities carry no sign in the file: the price takes it.
void mettiImporti(LineaFel& linea, const Riga& riga, double divisore) {
    linea.prezzo = ottoDecimali(riga.prezzo / divisore);
    if (riga.quantita != 0 && riga.quantita != Riga::soloPrezzo) {
        linea.quantita = ottoDecimali(std::abs(riga.quantita));
        if (riga.quantita < 0)
            linea.prezzo = -linea.prezzo;
    }
    linea.sconti = scontiDi(riga);
    linea.totale = ottoDecimali(scontato(linea.prezzo, linea.sconti) * linea.quantita.value_or(1));
}

LineaFel lineaDi(const Riga& riga, const IvaFel& iva, double divisore, Composizione& c) {
    LineaFel linea;
    linea.codice = testoLatino(riga.codice);
    linea.codice2 = testoLatino(riga.codice2);
    linea.descrizione = descrizioneDi(riga);
    linea.um = testoAscii(riga.um);
    mettiImporti(linea, riga, divisore);
    linea.aliquota = iva.aliquota;
    linea.natura = iva.natura;
    linea.ritenuta = iva.ritenuta > 0 && linea.totale != 0 && c.totaleRitenute() != 0;
    const ClienteFel& cliente = c.fonti.propri.cliente;
    if (iva.natura == u"N3.5") {
        linea.intento = testoLatino(cliente.intento);
        linea.intentodata =
            c.dataPropria(cliente.intentoricezione, elementoLinee + u"/AltriDatiGestionali"_s);
    }
    return linea;
}

struct Codici {
    std::array<bool, CodiceIva::ultimo + 1> usati{};
    std::array<double, CodiceIva::ultimo + 1> totali{};
};

/// The rounding of the lines, where it comes to much: the summary is the sum of rounded amounts, the lines
/// are not rounded.
double arrotondamentoDi(const TabellaIva& ricalcolata, const Codici& codici, int codice) {
    const CodiceIva iva(codice);
    const double atteso = iva.tassato() ? ricalcolata.imponibili[iva.riga()] : ricalcolata.esenti[iva.riga()];
    const double differenza = ottoDecimali(atteso - elemento(codici.totali, codice));
    return std::abs(differenza) >= arrotondamentoDaDire ? differenza : 0;
}

/// Amounts of lines that are a price alone are not rounded, and the tax inside them is not either: the file
/// has whole cents, so the tax is worked out from the base that it shows.
double impostaInCentesimi(const Composizione::RigaIva& riga, double aliquota) {
    constexpr double briciola = 0.000001;
    const double centesimi = riga.imposta * 100;
    if (std::abs(centesimi - std::round(centesimi)) < briciola)
        return riga.imposta;
    return std::round(valore(testoFisso(riga.imponibile, 2)) * aliquota) / 100;
}

void componiRiepiloghi(Composizione& c, const Codici& codici, const TabellaIva& ricalcolata) {
    for (int codice = 1; codice <= CodiceIva::ultimo; ++codice) {
        const bool tassato = CodiceIva(codice).tassato();
        const auto riga = c.rigaIva(CodiceIva(codice).riga());
        const double imponibile = tassato ? riga.imponibile : riga.esente;
        const double imposta = tassato ? riga.imposta : 0;
        if (imponibile == 0 && imposta == 0 && !elemento(codici.usati, codice))
            continue;
        const IvaFel iva = c.iva(codice);
        const double scritta = tassato ? impostaInCentesimi(riga, iva.aliquota) : 0;
        c.fattura.riepiloghi.push_back({.aliquota = iva.aliquota,
                                        .natura = iva.natura,
                                        .arrotondamento = arrotondamentoDi(ricalcolata, codici, codice),
                                        .imponibile = imponibile,
                                        .imposta = scritta,
                                        .esigibilita = iva.natura.isEmpty() ? c.esigibilita() : QString(),
                                        .riferimento = iva.riferimento});
    }
}

std::vector<QuotaRitenuta> quoteRitenuta(const Composizione& c, const TabellaIva& iva) {
    std::vector<QuotaRitenuta> quote;
    for (int riga = 1; riga <= righeIva; ++riga) {
        const double aliquota = c.fonti.tabelle.ritenuta(riga);
        if (aliquota > 0)
            quote.push_back({aliquota, c.fonti.valuta.percentuale(iva.imponibili[riga], aliquota)});
    }
    return quote;
}

} // namespace

void componiRighe(Composizione& c) {
    const Documento& d = c.fonti.documento;
    const TabellaIva ricalcolata = ricalcola(d.ddd, d.scorporo, c.fonti.tabelle, c.fonti.valuta).iva;
    const int predefinito = codicePredefinito(d.ddd);
    Codici codici;
    for (const Riga& riga : d.ddd) {
        if (!daScrivere(riga))
            continue;
        const int codice = haCodice(riga) ? codiceDi(riga) : predefinito;
        const IvaFel iva = c.iva(codice);
        const double divisore = d.scorporo && CodiceIva(codice).tassato() ? 1 + iva.aliquota / 100 : 1;
        c.fattura.linee.push_back(lineaDi(riga, iva, divisore, c));
        elemento(codici.usati, codice) = true;
        elemento(codici.totali, codice) += c.fattura.linee.back().totale;
    }
    componiRitenute(c, quoteRitenuta(c, ricalcolata));
    componiRiepiloghi(c, codici, ricalcolata);
}

} // namespace bor
