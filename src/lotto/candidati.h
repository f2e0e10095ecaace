// The chosen documents as they are on file when a command on them begins: enough to say what will happen, and
// to which of them nothing will.
#pragma once

#include "document/identita.h"

#include <QString>

#include <vector>

namespace bor {

class Archivio;

struct Candidato {
    Identita identita;    ///< as it was chosen
    QString nome;         ///< "fattura 12 del 15/03/2015"
    QString numero;       ///< as the document form shows it
    QString ragione;      ///< of the customer
    QString email;        ///< of the customer
    bool postael = false; ///< the customer wants his documents by mail
    bool parcella = false;
    bool pa = false; ///< has data of the electronic invoice of 2014
    QString pdf;     ///< name stored in the document
    QString fuori;   ///< why the command leaves it out, as "è eliminato"; empty for one that it takes

    bool dentro() const { return fuori.isEmpty(); }
};

/// In the order in which they were chosen. Those that are deleted, gone or unreadable are left out.
std::vector<Candidato> candidati(const Archivio& archivio, const std::vector<Identita>& scelti);

/// How many the command takes.
int quantiDentro(const std::vector<Candidato>& candidati);

/// "Restano fuori 3 documenti:" with the reasons, each with how many and the first of them; empty when none
/// is left out.
QString testoFuori(const std::vector<Candidato>& candidati);

/// "un documento", "12 documenti".
QString contoDocumenti(int quanti);

/// What became of a document that no longer is where it was chosen: `suFile` has its record number now.
QString nonPiuLui(const Identita& suFile);

inline const QString motivoEliminato = QStringLiteral("è eliminato");
inline const QString motivoSparito = QStringLiteral("non c'è più: l'archivio è stato riordinato");
inline const QString motivoIlleggibile = QStringLiteral("il suo record non si può leggere");

} // namespace bor
