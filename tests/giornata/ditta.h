// The company of the typing day: what the test itself knows of it, in whole cents, beside the records on
// file.
#pragma once

#include "support/azienda.h"

#include <array>

namespace bor {

struct ArticoloNoto {
    QStringView codice;
    QStringView descrizione;
    int listino1; ///< cents
    int listino2;
    int iva;   ///< row of the VAT table
    int testi; ///< lines of additional text
};

inline constexpr std::array<ArticoloNoto, 8> articoliNoti = {{
    {u"MAC10", u"Macinacaffè da banco", 124990, 119900, 1, 0},
    {u"MAC101", u"Campana per macinacaffè", 4350, 4125, 1, 2},
    {u"SED20", u"Sedia impilabile", 3875, 3550, 1, 0},
    {u"SED21", u"Sgabello alto", 5210, 4990, 1, 1},
    {u"TAV7", u"Tavolo pieghevole", 18990, 17500, 1, 3},
    {u"LIB1", u"Manuale d'uso", 1250, 1190, 3, 0},
    {u"ACQ5", u"Acqua in boccioni", 315, 290, 2, 0},
    {u"VIT3", u"Viti assortite", 8, 7, 1, 0},
}};

inline constexpr int giacenzaIniziale = 500000; ///< pieces of each article

/// How a customer pays, as the test reads it: months to each instalment.
struct PagamentoNoto {
    QStringView descrizione;
    QStringView codice; ///< as the table of the company has it
    std::array<int, 3> mesi;
    int rate;
    bool finemese;
};

inline constexpr std::array<PagamentoNoto, 3> pagamentiNoti = {{
    {u"Rimessa diretta", u"000000000000000000", {0, 0, 0}, 1, false},
    {u"Ricevuta bancaria 30/60/90 giorni", u"001002003000000000", {1, 2, 3}, 3, false},
    {u"Bonifico 60 giorni fine mese", u"002000000000000000F", {2, 0, 0}, 1, true},
}};

struct ClienteNoto {
    QStringView ragione;
    QStringView cercato; ///< what is typed to find him
    int sconto1;
    int sconto2;
    bool listino2;
    int regimeiva; ///< VAT code forced on every line; 0 none
    int pagamento; ///< place in `pagamentiNoti`
};

inline constexpr std::array<ClienteNoto, 4> clientiNoti = {{
    {u"Arredamenti Bianchi S.r.l.", u"arred", 10, 5, false, 0, 1},
    {u"Esportazioni Doge S.p.A.", u"ESPORT", 0, 0, false, 15, 2},
    {u"Officine Rossi & C.", u"officine r", 5, 0, false, 0, 0},
    {u"Verdi Costruzioni", u"verdi", 0, 0, true, 0, 2},
}};

/// VAT rates of the rows 1 to 3, in percent.
inline constexpr std::array<int, 4> aliquoteNote = {0, 22, 10, 4};

/// Accounts of customer n, counted from 1, and the one that takes a part of the revenue.
QString contoCliente(int n);
inline constexpr QStringView contoRicavi = u"05010001";
inline constexpr QStringView contoRicaviDiversi = u"05010009";
inline constexpr QStringView contoIva = u"03010001";
inline constexpr QStringView contoEsenti = u"05010003";

/// Writes all of that into the company, with the stock loaded by a warehouse row an article.
void scriviDitta(AziendaDiProva& azienda);

} // namespace bor
