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

/// As the settings of the desktop say; where they say nothing, as the palette that Qt got from the desktop.
/// Waits a third of a second at most.
Tono tonoDelDesktop(const QPalette& ricevuta);

/// Calls `cambiata` when the settings of the desktop have changed, as long as `padre` lives.
void seguiDesktop(QObject* padre, const std::function<void()>& cambiata);

} // namespace bor
