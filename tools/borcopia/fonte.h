// What belongs to a company and goes into its copy, and by what a file is known again.
#pragma once

#include <QDeadlineTimer>
#include <QString>

#include <optional>
#include <vector>

namespace bor {
class Percorsi;
}

namespace bor::copia {

/// Two equal ones mean that a file was neither replaced nor written to in between.
struct Identita {
    qint64 disco = 0;
    qint64 inode = 0;
    qint64 lunghezza = 0;
    qint64 modificato = 0; ///< nanoseconds since 1970
    qint64 cambiato = 0;   ///< the same, of the entry in its folder too

    friend bool operator==(const Identita&, const Identita&) = default;
};

/// Of an open file; nothing when it cannot be had.
std::optional<Identita> identita(int descrittore);

struct FileFonte {
    QString percorso; ///< on this machine
    QString nome;     ///< in the copy
    Identita identita;
    bool diRaffica = false; ///< bursts of writes change it
};

/// The files of the company as they are now: its folder with all that is below it; of the suite's folder the
/// settings and pictures that all companies share; of the user's own data the lines of documents that have no
/// lines file yet. Not the recovery log, which is empty whenever a copy is taken, and not the note about the
/// last copy. Nothing when a folder could not be read, or not by then.
std::optional<std::vector<FileFonte>> elencaFonte(const Percorsi& percorsi, int codice,
                                                  QDeadlineTimer scadenza = QDeadlineTimer::Forever);

/// Where the parts lie in a copy, each with its closing slash.
inline constexpr QStringView parteSuite = u"suprok/suprok/";
inline constexpr QStringView parteRighe = u"utente/righe/";

/// Whether `elencaFonte` gives files of this company such names: what an archive from anywhere holds beside
/// them, a program or the settings of the mail, is none of a copy.
bool nomeDiCopia(const QString& nome, int codice);

/// "suprok/suprok/boraz0.007/".
QString parteAzienda(int codice);

} // namespace bor::copia
