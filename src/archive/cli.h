// A customer, and the index over customer names. Both are kept by another module of the suite and only read
// here.
#pragma once

#include "archive/campi.h"

namespace bor {

/// One of a company's addresses.
struct Sede {
    Text<40> ragione1;
    Text<40> ragione2;
    Text<40> indirizzo;
    Text<40> citta;
    Text<5> cap;
};

struct Cli {
    Sede sede;            ///< registered office; `ragione1` of a deleted customer has a mark in front
    Sede amministrazione; ///< administrative office
    std::array<Text<15>, 3> telefono;
    Text<11> partitaiva; ///< VAT number without country prefix
    Text<16> codicefiscale;
    Text<40> vettore1; ///< usual carrier
    Text<40> vettore2;
    Text<32> vettore3;
    Text<1> clix1;       ///< `clix…`: of other modules
    Text<6> clix2;       ///< office code of a public administration
    Text<1> nodifferita; ///< "1": no deferred VAT for this customer
    Text<36> banca;      ///< name of the bank
    Text<4> banca1;      ///< bank coordinates, four parts shown as one text of 26 characters
    Text<5> abi;
    Text<5> cab;
    Text<12> contocorrente;
    Intero pagamento; ///< payment type, counted from 1
    Intero agente;    ///< code of the agent, not a record number
    Intero sconto1;   ///< default discounts, whole percent
    Intero sconto2;
    Intero riba;          ///< 1: bank receipts (Ri.Ba.)
    Text<8> contocliente; ///< accounts: group 2, sub-group 2, account 4 digits
    Text<8> contoricavi;
    Text<8> contoiva;
    Text<8> contoesenti;
    Text<2> nazione; ///< country prefix of the VAT number
    Text<1> listino; ///< "1": buys at list 2, otherwise at list 1
    Text<1> postael; ///< "1": documents go by e-mail
    Text<1> clix3;
    Text<1> clix4;
    Text<1> clix5;
    Text<37> nota1; ///< notes to print on documents
    Text<1> clix6;
    Intero clix7;
    Text<37> nota2;
    Text<1> spesometro; ///< "0": left out of the yearly communication of invoices
    Text<1> clix8;
    Intero regimeiva; ///< VAT code 1 to 24 forced on every goods line; anything else forces nothing
    Text<36> email;
    Intero eliminato; ///< 1: deleted

    /// Bank coordinates as one text, blanks included.
    QString coordinate() const {
        return pulisci(banca1.text() + abi.text() + cab.text() + contocorrente.text());
    }
    /// Position of the payment type in its list, from 0; -1 when it names none of the 60.
    int posizionePagamento() const { return pagamento >= 1 && pagamento <= 60 ? pagamento - 1 : -1; }
};
static_assert(sizeof(Cli) == 752 && disposizioneDiFile<Cli>);
BOR_POSTO(Cli, amministrazione, 165);
BOR_POSTO(Cli, telefono, 330);
BOR_POSTO(Cli, vettore1, 402);
BOR_POSTO(Cli, clix2, 515);
BOR_POSTO(Cli, banca, 522);
BOR_POSTO(Cli, pagamento, 584);
BOR_POSTO(Cli, contocliente, 594);
BOR_POSTO(Cli, nazione, 626);
BOR_POSTO(Cli, nota1, 633);
BOR_POSTO(Cli, spesometro, 710);
BOR_POSTO(Cli, email, 714);
BOR_POSTO(Cli, eliminato, 750);

/// One entry of the customer index, sorted by the upper-case name.
struct Src {
    Text<40> chiave;
    Intero recordcli; ///< `cli` record
};
static_assert(sizeof(Src) == 42 && disposizioneDiFile<Src>);

} // namespace bor
