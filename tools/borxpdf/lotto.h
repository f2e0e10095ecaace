// Many PDFs and mails in one run of the program: commands come in one after the other, and each is answered.
// Used by main.
#pragma once

class QIODevice;

namespace bor {
class Percorsi;
}

namespace bor::pdf {

/// Does the commands of `ComandoLotto` until `comandi` ends, and writes a `RispostaLotto` for each. A command
/// that fails stops no other one. False when what came in was no command: nothing behind it can be trusted.
bool eseguiLotto(QIODevice& comandi, QIODevice& risposte, const Percorsi& percorsi);

} // namespace bor::pdf
