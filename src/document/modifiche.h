// What the operator would lose by leaving a document now.
#pragma once

namespace bor {

struct Documento;

/// The next save would store something else than `prima` held. That lines were only looked at counts for
/// nothing.
bool modificato(const Documento& ora, const Documento& prima);

} // namespace bor
