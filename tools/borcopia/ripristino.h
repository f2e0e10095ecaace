// Reads a copy from beginning to end, compares it with its checksums, and puts its files where they are
// wanted.
#pragma once

#include "borcopia/appunti.h"
#include "borcopia/copiatore.h"
#include "borverifica/verifica.h"

#include <optional>

namespace bor::copia {

/// The notes of a copy; nothing for a file that is none.
std::optional<Appunti> leggiAppunti(const QString& copia);

struct EsitoLetturaCopia {
    QString errore; ///< in the operator's words; empty when the copy is whole and could be put on disk
    Appunti appunti;
    int file = 0;
};

/// Puts the company and the settings it needs into the current drive of `percorsi`, a folder that is empty or
/// missing; refused where anything is in it. Lines of documents that have no lines file yet go to the user's
/// own data. What lies there is never replaced. While it runs, and after a failure, nothing in the folder
/// looks like a company.
EsitoLetturaCopia ripristina(const QString& copia, const Percorsi& percorsi, const Avanzamento& avanzamento);

struct EsitoVerifica {
    EsitoLetturaCopia lettura;
    verifica::Discordanze discordanze; ///< what the checker says of the company in the copy

    int errori() const { return quante(discordanze, verifica::Gravita::Errore); }
    int avvisi() const { return quante(discordanze, verifica::Gravita::Avviso); }
};

/// Compares every file of a copy with its checksum and has the checker read the company in it. Its archive is
/// put into a temporary folder for that; of the lines files the checker wants to know only that they are
/// there.
EsitoVerifica verificaCopia(const QString& copia, const Avanzamento& avanzamento);

} // namespace bor::copia
