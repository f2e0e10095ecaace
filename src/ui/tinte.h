// The colours of the program, one set for light and one for dark desktops.
#pragma once

#include <QColor>
#include <QPalette>

namespace bor {

/// Dark text on a light ground, or the other way round.
enum class Tono { Chiaro, Scuro };

/// Of a palette: by its ground and the text on it.
Tono tonoDi(const QPalette& tavolozza);

QPalette tavolozza(Tono tono);
/// What the palette cannot say: frames, the field in focus, marks. A label or button with the property
/// `avviso` warns, one with `consiglio` hints, a field with `errato` or `scarto` holds something wrong.
QString foglioDiStile(Tono tono);

/// A background that the archive names, made for a light desktop, as it looks on the given one: the same hue,
/// as far from the ground.
QColor fondoIn(Tono tono, const QColor& fondo);
/// Text that can be read on this background.
QColor testoSu(const QColor& fondo);

} // namespace bor
