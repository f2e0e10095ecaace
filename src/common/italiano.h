// Qt's own words in Italian, for programs with and without windows.
#pragma once

namespace bor {

/// Needs the application object. Where Qt's translations are not installed its words stay English.
void traduciQt();

} // namespace bor
