// The elements of an electronic invoice in words, for those who never see the file.
#pragma once

#include "xmlcheck/rilievo.h"

namespace bor {

/// "numero del documento", of the path of an element below the root; empty for an empty path.
QString elementoInParole(const QString& percorso);

/// What is wrong, behind the element in words where the reason speaks of its form alone.
QString motivoInParole(const Rilievo& rilievo);

} // namespace bor
