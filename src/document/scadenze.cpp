#include "document/scadenze.h"

#include "archive/contesto.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "document/totali.h"

#include <algorithm>

namespace bor {

namespace {

/// How a payment type's code is read: the months of each instalment, then what holds for all.
constexpr qsizetype caratteriMesi = 3;
constexpr Tratto fineMese{19, 1};
constexpr Tratto giornoFisso{20, 3};
constexpr Tratto regolaAccesa{24, 1};
constexpr Tratto giornoDellaRegola{25, 5};

constexpr int agosto = 8;
constexpr int settembre = 9;
constexpr int dicembre = 12;

QString codice(const Contesto& contesto, int riga) {
    return contesto.tabelle.tipopagamenti[riga].codice.trimmed();
}

void avanza(int& mese, int& anno) {
    if (++mese > dicembre) {
        mese = 1;
        ++anno;
    }
}

int ultimoGiorno(int mese, int anno) {
    if (mese == 2)
        return anno % 4 == 0 ? 29 : 28;
    return QDate(anno, mese, 1).daysInMonth();
}

QString dataDa(int giorno, int mese, int anno) {
    const auto cifre = [](int n, int quante) { return zeriDavanti(QString::number(n), quante); };
    return cifre(giorno, 2) + u'/' + cifre(mese, 2) + u'/' + cifre(anno, 4);
}

} // namespace

int CodicePagamento::quante() const {
    return 1 + static_cast<int>(std::count_if(mesi.begin() + 1, mesi.end(), [](int m) { return m > 0; }));
}

CodicePagamento codicePagamento(const Contesto& contesto, int posizione) {
    CodicePagamento c;
    const QString testo = codice(contesto, posizione + 1);
    for (int k = 0; k < quantiIn(c.mesi); ++k)
        elemento(c.mesi, k) = valoreIntero(pezzo(testo, 1 + caratteriMesi * k, caratteriMesi));
    c.finemese = pezzo(testo, fineMese) == u"F";
    c.giorno = valoreIntero(pezzo(testo, giornoFisso));
    return c;
}

RegoleScadenza regoleScadenza(const Contesto& contesto) {
    const QString prima = codice(contesto, 1);
    const QString seconda = codice(contesto, 2);
    RegoleScadenza r;
    r.agosto = pezzo(prima, regolaAccesa) == u"1";
    r.settembre = valoreIntero(pezzo(prima, giornoDellaRegola));
    r.dicembre = pezzo(seconda, regolaAccesa) == u"1";
    r.gennaio = valoreIntero(pezzo(seconda, giornoDellaRegola));
    return r;
}

QString calcscad(QDate data, int mesi, bool finemese, int giorno, const RegoleScadenza& regole) {
    int gg = data.day();
    int mm = data.month();
    int aa = data.year();
    for (int i = 0; i < mesi; ++i)
        avanza(mm, aa);
    if (finemese && giorno > 0) {
        gg = giorno;
        avanza(mm, aa);
    } else {
        gg = finemese ? ultimoGiorno(mm, aa) : std::min(gg, ultimoGiorno(mm, aa));
    }
    if (regole.agosto && mm == agosto) {
        gg = regole.settembre;
        mm = settembre;
    }
    if (regole.dicembre && gg == 31 && mm == dicembre) {
        gg = regole.gennaio;
        avanza(mm, aa);
    }
    return dataDa(gg, mm, aa);
}

void calcolascadenze(Documento& documento, const Contesto& contesto) {
    const int posizione = documento.scadenze.pagamento;
    if (posizione >= contesto.tabelle.tipopagamenti.ultimo)
        return;
    const CodicePagamento c = codicePagamento(contesto, posizione);
    const RegoleScadenza regole = regoleScadenza(contesto);
    const QDate data = dataValida(documento.estremi.data).value_or(contesto.orologio.oggi());
    auto& rate = documento.scadenze.rate;
    for (std::size_t k = 0; k < rate.size(); ++k) {
        // An immediate payment has no months and is due on the date of the document.
        if (k == 0 || c.mesi[k] > 0)
            rate[k].scadenza = calcscad(data, c.mesi[k], c.finemese, c.giorno, regole);
        else
            rate[k] = {};
    }
}

void calcolarate(Documento& documento, const Contesto& contesto) {
    const CodicePagamento c = codicePagamento(contesto, documento.scadenze.pagamento);
    const double netto = totali(documento).nettodoc;
    const int n = c.quante();
    const double quota = contesto.valuta().arrotonda(netto / n);
    auto& rate = documento.scadenze.rate;
    for (std::size_t k = 1; k < rate.size(); ++k) {
        if (c.mesi[k] > 0)
            rate[k].importo = testoDecimale(quota);
    }
    rate[0].importo = testoDecimale(netto - (n - 1) * quota);
}

} // namespace bor
