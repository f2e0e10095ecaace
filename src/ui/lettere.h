// What makes a screen whole for the keyboard and for assistive tools: a letter or digit for each command and
// caption, a name for each control.
#pragma once

class QWidget;

namespace bor {

/// Underlines in each command and caption in view a letter that no other has, as long as there are letters:
/// commands choose first. A letter once given stays, so that hands can learn it.
void assegnaLettere(QWidget& schermo);

/// Numbers the names that several controls of the screen have in common ("Banca appoggio", "Banca appoggio
/// 2"), in their order on the screen.
void distinguiNomi(QWidget& schermo);

} // namespace bor
