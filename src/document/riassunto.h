// Whose document this is, in one line: at the top of every screen that edits it, and in the question before
// it is deleted.
#pragma once

#include <QString>

namespace bor {

struct Contesto;
struct Documento;

/// Kind, number and date, customer and town, net to pay; a customer without name or town is left out.
QString riassunto(const Documento& documento, const Contesto& contesto);

} // namespace bor
