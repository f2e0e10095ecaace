// The version of the program, which stands once in CMakeLists.txt: the register shows it, each tool tells it.
#pragma once

#include <QString>

namespace bor {

/// "15.1".
QString versione();

} // namespace bor
