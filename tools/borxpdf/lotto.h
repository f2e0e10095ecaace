// Many PDFs and mails in one run of the program: commands come in one after the other, and each is answered.
// Used by main.
#pragma once

#include <QIODevice>

namespace bor {
class Percorsi;
}

namespace bor::pdf {

/// What comes in through a pipe, as soon as it comes: a file of Qt's would wait until its buffer is full, and
/// who sends a command waits for the answer before the next one.
class IngressoComandi : public QIODevice {
public:
    explicit IngressoComandi(int descrittore) : m_descrittore(descrittore) {}

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* dati, qint64 massimo) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    int m_descrittore;
};

/// Does the commands of `ComandoLotto` until `comandi` ends, and writes a `RispostaLotto` for each. A command
/// that fails stops no other one. False when what came in was no command: nothing behind it can be trusted.
bool eseguiLotto(QIODevice& comandi, QIODevice& risposte, const Percorsi& percorsi);

} // namespace bor::pdf
