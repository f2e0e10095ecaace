// Today's electronic invoice as a plain value: what goes out, before it is text. A screen shows it, the
// writer puts it into XML. Texts are within the characters and lengths of their elements, numbers as
// computed.
#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

#include <optional>
#include <vector>

namespace bor {

struct IndirizzoFel {
    QString indirizzo;
    QString cap;
    QString comune;
    QString provincia; ///< empty: left out
    QString nazione;
};

struct SoggettoFel {
    QString paese;         ///< of the VAT number
    QString codice;        ///< VAT number; empty: left out
    QString codicefiscale; ///< empty: left out
    QString denominazione; ///< empty for a person
    QString nome;
    QString cognome;
    IndirizzoFel sede;
};

struct ReaFel {
    QString ufficio;
    QString numero;
    std::optional<double> capitale;
    QString sociounico;
    QString liquidazione;
};

struct CedenteFel {
    SoggettoFel soggetto;
    QString regime; ///< "RF01" to "RF20"
    std::optional<IndirizzoFel> stabile;
    std::optional<ReaFel> rea;
    QString telefono;
    QString fax;
    QString email;
};

struct TrasmissioneFel {
    QString paese;
    QString codice;
    QString progressivo;
    bool pubblica = false; ///< FPA12, to a public administration; otherwise FPR12
    QString destinatario;  ///< office code, channel code, "0000000" or "XXXXXXX"
    QString pec;
};

struct RitenutaFel {
    QString tipo;
    double importo = 0;
    double aliquota = 0;
    QString causale;
};

struct CassaFel {
    QString tipo;
    double aliquota = 0;
    double importo = 0;
    double imponibile = 0;
    double aliquotaiva = 0;
    bool ritenuta = false;
    QString natura;
};

/// A reference to another document: order, contract, agreement, reception, linked invoice.
struct RiferimentoFel {
    QString numero;
    QDate data; ///< invalid: left out
    QString item;
    QString commessa;
    QString cup;
    QString cig;
};

struct DdtFel {
    QString numero;
    QDate data;
};

struct TrasportoFel {
    SoggettoFel vettore; ///< without a VAT number there is no carrier
    QString causale;
    int colli = 0; ///< 0: left out
    QString descrizione;
    double peso = 0; ///< gross, kg; 0: left out
    QDate inizio;
};

struct LineaFel {
    QString codice;  ///< article
    QString codice2; ///< second code
    QString descrizione;
    std::optional<double> quantita;
    QString um;
    double prezzo = 0;
    std::vector<double> sconti; ///< percent, one after the other; below 0 a surcharge
    double totale = 0;          ///< up to 8 decimals
    double aliquota = 0;
    bool ritenuta = false;
    QString natura;
    QString intento; ///< declaration of intent of a line N3.5
    QDate intentodata;
};

struct RiepilogoFel {
    double aliquota = 0;
    QString natura;
    double arrotondamento = 0; ///< 0: left out
    double imponibile = 0;
    double imposta = 0;
    QString esigibilita; ///< "I", "D", "S"; empty for an exempt one
    QString riferimento; ///< legal reference
};

struct RataFel {
    QDate scadenza; ///< invalid: left out
    double importo = 0;
};

struct PagamentoFel {
    QString condizioni;
    QString modalita;
    QString iban; ///< of the seller
    QString istituto;
    QString abi;
    QString cab;
    std::vector<RataFel> rate; ///< none: the file says nothing of payment
};

struct AllegatoFel {
    QString nome;
    QByteArray contenuto;
};

struct FatturaElettronica {
    TrasmissioneFel trasmissione;
    CedenteFel cedente;
    SoggettoFel cessionario;
    QString tipo; ///< "TD01", ...
    QDate data;
    QString numero;
    std::vector<RitenutaFel> ritenute;
    std::optional<double> bollo;
    std::vector<CassaFel> casse;
    double totale = 0;
    QStringList causali;
    bool art73 = false;
    std::vector<RiferimentoFel> ordini;
    std::vector<RiferimentoFel> contratti;
    std::vector<RiferimentoFel> convenzioni;
    std::vector<RiferimentoFel> ricezioni;
    std::vector<RiferimentoFel> collegate;
    std::vector<DdtFel> ddt;
    std::optional<TrasportoFel> trasporto;
    std::vector<LineaFel> linee;
    std::vector<RiepilogoFel> riepiloghi;
    PagamentoFel pagamento;
    std::optional<AllegatoFel> allegato;
};

} // namespace bor
