// What an electronic invoice to a public administration needs beyond the document. One layout, two images:
// the company's (`borlano.fpa`, fields of the company only) and a document's (`fpa<N>`).
#pragma once

#include "archive/campi.h"

namespace bor {

/// An address within the electronic invoice data.
struct SedeFpa {
    Text<60> indirizzo;
    Text<8> libero; ///< not read here
    Text<5> cap;
    Text<60> comune;
    Text<2> provincia;
    Text<2> nazione;
};

/// A reference to a purchase order, contract, agreement or reception.
struct RiferimentoFpa {
    Text<20> numero;
    Text<10> data; ///< "dd/mm/yyyy"
    Text<10> item;
    Text<10> commessa;
};

struct Fpa {
    Text<3> statoquadri;     ///< "999": the company data have been compiled
    Text<2> idpaese;         ///< country of the transmitter and the company
    Text<28> idcodice;       ///< fiscal code of the transmitter; heads the XML file's name
    Text<6> coddestinatario; ///< office code of the public administration
    Text<16> codfiscale;
    Text<12> partitaiva;
    Text<2> regimefiscale; ///< from 0: 0 is "RF01"
    Text<1> formasocieta;  ///< 2: with share capital
    Text<1> iscrizionerea; ///< 1: entered in the REA register
    Text<2> reaufficio;
    Text<20> reanumero;
    Text<14> capitalesociale;
    Text<2> sociounico;
    Text<2> statoliquidazione;
    Text<80> denominazione; ///< empty for a natural person
    Text<60> cognome;
    Text<60> nome;
    SedeFpa sede;    ///< registered office
    SedeFpa stabile; ///< permanent establishment
    Text<12> telefono;
    Text<12> fax;
    Text<98> email;
    Text<2> fpax1;     ///< not read here
    Text<4> tipodocpa; ///< "TD01" to "TD06"
    Text<10> datadoc;  ///< "dd/mm/yyyy"
    Text<20> numerodoc;
    Text<10> dataddt;
    Text<20> numeroddt;
    Text<4> tiporitenuta; ///< "RT00" to "RT02"; blank without withholding
    Text<15> importoritenuta;
    Text<6> aliquotaritenuta;
    Text<1> causalepagamento; ///< letter of the 770S reason
    Text<4> tipocassa;        ///< pension fund; these seven are blanked before each generation
    Text<6> alcassa;
    Text<15> importocassa;
    Text<15> imponibilecassa;
    Text<6> aliquotacassa;
    Text<2> ritenutacassa;
    Text<2> naturacassa;
    Text<6> progressivoinvio; ///< of the company: the last one; of a document: its own
    RiferimentoFpa ordine;
    RiferimentoFpa contratto;
    RiferimentoFpa convenzione;
    RiferimentoFpa ricezione;
    Text<15> codicecup;
    Text<15> codicecig;
    Text<2> vettorepaese;
    Text<28> vettorecodice;
    Text<16> vettorecf;
    Text<80> vettorenome;
    Text<4> condizionipagamento; ///< "TP01" to "TP03"
    Text<4> modalitapagamento;   ///< "MP01" to "MP17"
    Text<1> art73flag;
    Text<1> esigdifferita;
    Text<1000> fpax2;      ///< not read here
    Text<200> cartellaxml; ///< of the company: folder of the XML files

    static constexpr int compilato = 999;
};
static_assert(sizeof(Fpa) == 2421 && disposizioneDiFile<Fpa>);
BOR_POSTO(Fpa, codfiscale, 39);
BOR_POSTO(Fpa, denominazione, 111);
BOR_POSTO(Fpa, sede, 311);
BOR_POSTO(Fpa, stabile, 448);
BOR_POSTO(Fpa, telefono, 585);
BOR_POSTO(Fpa, tipodocpa, 709);
BOR_POSTO(Fpa, tiporitenuta, 773);
BOR_POSTO(Fpa, tipocassa, 799);
BOR_POSTO(Fpa, progressivoinvio, 849);
BOR_POSTO(Fpa, ordine, 855);
BOR_POSTO(Fpa, codicecup, 1055);
BOR_POSTO(Fpa, vettorenome, 1131);
BOR_POSTO(Fpa, art73flag, 1219);
BOR_POSTO(Fpa, cartellaxml, 2221);

} // namespace bor
