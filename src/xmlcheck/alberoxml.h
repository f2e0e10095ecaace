// From the parser's tree to the reader's own. Only the reader uses it.
#pragma once

#include "xmlcheck/letturaxml.h"

struct _xmlNode;

namespace bor {

/// A copy of the tree. `segnati` takes what the marks of repaired text say; null for a text without marks.
std::unique_ptr<Nodo> copiaAlbero(const _xmlNode* radice, std::vector<Rilievo>* segnati);

} // namespace bor
