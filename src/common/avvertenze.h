// The warnings of this run, which go to the terminal and are kept here too, for who asks what is wrong.
#pragma once

#include <QStringList>

namespace bor {

/// From now on warnings and errors are kept, beside going where they went before. To be called once, at the
/// start of a program.
void raccogliAvvertenze();

/// What was kept, "category: text" each, every text once, the oldest first; at most 200 of them.
QStringList avvertenze();

} // namespace bor
