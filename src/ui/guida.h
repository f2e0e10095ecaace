// The operator's guide: which chapter tells of a screen, and its page on the desktop.
#pragma once

#include "common/navigatore.h"

#include <QKeySequence>
#include <QString>

namespace bor {

class Operatore;
class Sistema;

/// Name of a screen's chapter, without the ending of its page.
QString capitolo(Schermo schermo);

/// The key that opens it: F1, or Shift+F1 on the screen where F1 looks for an article.
QKeySequence tastoGuida(Schermo schermo);

/// Opens a chapter with the desktop's browser; the operator reads where the pages are when that fails.
void apriGuida(Sistema& sistema, Operatore& operatore, const QString& capitolo);

} // namespace bor
