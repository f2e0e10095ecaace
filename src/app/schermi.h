// Puts the screens of the program into its window.
#pragma once

namespace bor {

class Finestra;
class Modulo;

void aggiungiSchermi(Finestra& finestra, Modulo& modulo);

} // namespace bor
