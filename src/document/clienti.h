// Finding customers and agents in the archive: by name through the sorted index, by record number, by agent
// code.
#pragma once

#include "document/documento.h"

#include <functional>

namespace bor {

/// Searches an index of `numero` entries, in upper-case order of their keys, for one whose key begins with
/// the text; `leggi` reads an entry by its position. Position from 1; 0 when there is none. Any of several
/// entries that begin alike may be found, and an empty text finds the middle one. It ends after a read for
/// each halving of the index and one more, whatever the entries hold.
int cercaNome(int numero, QStringView testo, const std::function<Src(int)>& leggi);

/// The same in the company's customer index, counted anew, for a text as an operator typed it.
int cercacliente(const Archivio& archivio, QStringView nome);

/// Position in the customer index of a `cli` record; 0 when the index does not hold it.
int posizionecliente(const Archivio& archivio, int record);

/// Commission rate, as text, of the first agent whose code is worth `codice`; empty when there is none. An
/// agent without a code is worth 0, the code of a customer who has no agent.
QString cercaagente(const Archivio& archivio, int codice);

/// Makes a `cli` record the customer of the document: the record itself and its fields as texts. A record
/// that does not exist leaves them blank.
void prendiCliente(Documento& documento, const Archivio& archivio, int record);

} // namespace bor
