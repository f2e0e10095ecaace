// What the program says to and asks of the person at the screen.
#pragma once

#include <QString>

namespace bor {

enum class Icona { Nessuna, Informazione, Domanda, Esclamazione, Stop };

/// The answer that Enter gives to a question. A question after which something is gone has `No`.
enum class Predefinita { Si, No };

/// Port to the operator: message boxes in the real program, recorded answers in tests.
class Operatore {
public:
    virtual ~Operatore();

    virtual void messaggio(const QString& testo, const QString& titolo, Icona icona) = 0;
    /// A question with the buttons Yes and No; true for Yes.
    virtual bool chiedi(const QString& testo, const QString& titolo, Icona icona = Icona::Domanda,
                        Predefinita predefinita = Predefinita::Si) = 0;
    /// Shows the wait cursor, or takes it away. Calls nest.
    virtual void attesa(bool inizio) = 0;
    /// Called inside long work: what the operator did meanwhile reaches the window, which repaints.
    virtual void lasciaEventi() = 0;
    /// Lets the operator choose an existing file ("*.pdf"); empty when he gives up.
    virtual QString scegliFile(const QString& titolo, const QString& filtro) = 0;
};

/// The wait cursor for the time of a block.
class Attesa {
public:
    explicit Attesa(Operatore& operatore) : m_operatore(operatore) { m_operatore.attesa(true); }
    ~Attesa() { m_operatore.attesa(false); }
    Attesa(const Attesa&) = delete;
    Attesa& operator=(const Attesa&) = delete;

private:
    Operatore& m_operatore;
};

} // namespace bor
