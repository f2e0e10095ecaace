// The data of electronic invoices to a public administration: the company's own, and those of each document.
#pragma once

#include "archive/archivio.h"
#include "archive/fpa.h"
#include "borcrea/problemi.h"

#include <optional>

namespace bor::crea {

class RigaTabella;

/// The company's data from `fpa_azienda.csv`, a field a row; nothing when there is no such table.
std::optional<Fpa> leggiFpaAzienda(const QString& cartella, Problemi& problemi);

/// The columns of `fpa.csv`: the document, then the fields that a row may give.
QStringList colonneFpa();

/// A document's data from its row of `fpa.csv`; what belongs to the document itself is left blank.
Fpa leggiFpaDocumento(const RigaTabella& riga);

/// Writes the only record of `borlano.fpa` (`nome` "borlano.fpa") or of a document's `fpa<N>`.
bool scriviFpa(Archivio& archivio, const QString& nome, const Fpa& fpa);

} // namespace bor::crea
