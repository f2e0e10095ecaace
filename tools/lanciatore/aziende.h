// The companies on a drive, and the commands that the launcher gives for them.
#pragma once

#include "common/percorsi.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace bor::lancia {

struct Azienda {
    int codice = 0;
    QString nome; ///< first line of the company's `borlano.int`; empty when there is none
};

/// The company folders on the drive, by code; none when the drive has no suite folder.
QList<Azienda> elencaAziende(const Percorsi& percorsi);

/// The folder that stands for the drive when none was named: the working directory if the suite lies there,
/// else "borfte/unita" in the user's data folder.
QString unitaPredefinita();

/// The same for the window, where the one that was last chosen in it comes before the user's own folder.
QString unitaDellaFinestra();
/// Remembers for the user a drive chosen in the window; where that cannot be written, the next start does not
/// know it.
void ricordaUnita(const QString& unita);

/// Why a company of the drive cannot be opened, in the operator's words: no such company, or without the
/// files that the module must find and would otherwise make empty. Empty when it can.
QString ostacolo(const Percorsi& percorsi, int codiceazienda);

/// The company that `borcrea` makes from the texts of the demo folder.
inline constexpr int codiceDimostrazione = 1;

struct Comando {
    QString programma;
    QStringList argomenti;
};

/// Starts the module on a company. Its working directory has to be the drive.
Comando comandoModulo(const QString& cartellaProgrammi, int codiceazienda);

/// Makes the demo company on the drive.
Comando comandoDimostrazione(const QString& cartellaProgrammi, const QString& unita);

/// Copies a company of the drive into a folder of this machine, and tells how far it is.
Comando comandoCopia(const QString& cartellaProgrammi, const QString& unita, int codiceazienda,
                     const QString& cartella);

/// Puts the PDF tool where the module calls it, in the suite's folder, unless one is there; where links
/// cannot be made it is a copy, which a newer version of the program replaces. False when there is none
/// afterwards: everything but PDF files then works.
bool collegaBorxpdf(const Percorsi& percorsi, const QString& cartellaProgrammi);

/// Starts the module on a company of the drive and goes on without waiting; false when it did not start.
bool avviaModulo(const Percorsi& percorsi, const QString& cartellaProgrammi, int codiceazienda);

} // namespace bor::lancia
