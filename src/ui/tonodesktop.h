// Whether the desktop is light or dark, and the moment when that changes.
#pragma once

#include "ui/tinte.h"

#include <QVariant>

#include <functional>
#include <optional>

namespace bor {

/// What the desktop's settings answer to the question for the colour scheme, in however many wrappings.
/// Nothing for a desktop without a preference, or for no answer.
std::optional<Tono> tonoRisposto(QVariant risposta);

/// Asks the settings of the desktop. What it returns waits for the answer, a third of a second at most; where
/// the settings say nothing it is that of the palette which Qt got from the desktop.
std::function<Tono()> chiediTono(const QPalette& ricevuta);

/// Calls `cambiata` when the settings of the desktop have changed, as long as `padre` lives.
void seguiDesktop(QObject* padre, const std::function<void()>& cambiata);

} // namespace bor
