// A new document made from one on file: its duplicate, or the credit note that corrects it. What goes along
// and what stays behind is decided here, field by field.
//
// Goes along: customer (his data as they are today), kind and fee mark, VAT register, the lines and their
// prices with or without VAT, the practice and regimes of a fee bill, causes, packages, weight, carrier and
// order of the head, the VAT rows and the withholding amounts as they stand, revenue items and their shares,
// payment type, Ri.Ba., commission rate, the ticks of deferred VAT and of the yearly communication.
//
// Made anew: number and protocol (the next ones), both dates (today), due dates, instalments and commission,
// the e-mail tick (the customer's), the number of the lines file (given out by the first save).
//
// Stays behind: stamp, and with it warehouse rows, movement and data of the electronic invoice of today; the
// electronic invoice of 2014, the PDF, the deletion mark, due and payment dates of the withholding, the
// payments of deferred VAT, transport document, day and hour of that one delivery, the mark of an integrated
// invoice (the program that integrates sets it), and all reserved fields, which other programs keep.
#pragma once

#include "common/sessione.h"
#include "document/documento.h"

#include <optional>

namespace bor {

struct Contesto;
class RigheInSospeso;

/// The new document, of which nothing is written. A credit note names what it corrects in its first line and
/// in `collegata`. Nothing comes, and the operator is told why, when the original was deleted, is a credit
/// note that another one should correct, has a customer who was deleted, or could not be read. He is also
/// told what of the original is not in the new document as he may expect it.
std::optional<Documento> copiaDocumento(const Contesto& contesto, int recordfattura, Copia copia,
                                        RigheInSospeso& sospese);

} // namespace bor
