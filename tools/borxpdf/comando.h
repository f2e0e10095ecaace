// What the program is asked on its command line, and the doing of it without any window. Used by main.
#pragma once

#include "borxpdf/disegno.h"
#include "borxpdf/modello.h"
#include "borxpdf/rapporto.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace bor {
class Percorsi;
}

namespace bor::pdf {

/// The parts of "layout,report,pdf,address[,text of the mail]"; paths are DOS paths.
struct Comando {
    bool anteprima = false; // pages on screen: layout and report alone
    QString modello;
    QString rapporto;
    QString pdf;
    QString indirizzo; // "***": no mail
    QString testo;     // all that follows the fourth comma, commas too

    /// The arguments after the program's name; several are taken as one, joined with blanks.
    static std::optional<Comando> leggi(const QStringList& argomenti);
};

/// Layout, pages and pictures of one command, read from disk.
struct Documento {
    Modello modello;
    Rapporto rapporto;
    Disegnatore disegnatore;
};

/// A missing layout means A4 and defaults; a report that cannot be used gives nothing and fills `errore`.
std::optional<Documento> apri(const Comando& comando, const Percorsi& percorsi, QString& errore);

/// Writes the PDF and sends it. False with `errore` in Italian; a PDF that was written stays.
bool esegui(const Comando& comando, const Percorsi& percorsi, QString& errore);

} // namespace bor::pdf
