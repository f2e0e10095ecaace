// The mail settings of borxpdf.ini in the suite's root. Used by the mail.
#pragma once

#include "borxpdf/fileini.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace bor {
class Percorsi;
}

namespace bor::pdf {

enum class Sicurezza { Starttls, Tls, Nessuna };

struct ImpostazioniPosta {
    QString server;
    int porta = 0;
    Sicurezza sicurezza = Sicurezza::Starttls;
    QString mittente;
    QString nome;        // shown before the sender's address; may be empty
    QString utente;      // empty: the server wants no login
    QByteArray password; // read from its own file, never from the shared settings
    QString certificati; // real file of trusted certificates; empty: those of the system

    /// Nothing when a setting is missing or unsafe; `errore` then says in Italian which one.
    static std::optional<ImpostazioniPosta> leggi(const FileIni& ini, const Percorsi& percorsi,
                                                  QString& errore);
};

} // namespace bor::pdf
