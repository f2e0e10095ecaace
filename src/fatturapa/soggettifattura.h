// Who issues, receives and sends today's electronic invoice, as plain values.
#pragma once

#include <QString>

#include <optional>

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

} // namespace bor
