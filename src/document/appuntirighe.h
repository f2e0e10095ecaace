// The rows of a document that the operator chooses, copies and pastes in a lines form. Each of these forms
// holds one, and its screen hands it the keys.
#pragma once

#include "document/incollarighe.h"

#include <QString>

#include <functional>
#include <optional>
#include <utility>

namespace bor {

/// Rows count from 1.
class AppuntiRighe {
public:
    /// What the form does for it.
    struct Form {
        int righe;                          ///< of the document
        std::function<int()> fuoco;         ///< the row last entered
        std::function<void(int riga)> vaiA; ///< enters the first box of a row
        /// The rows from `prima` to `ultima` as text.
        std::function<QString(int prima, int ultima)> testo;
        /// Rows of a text in front of row `posto`: what would become of them, and putting them in.
        std::function<Incollate(int posto, const QString& testo)> prova;
        std::function<Incollate(int posto, const QString& testo)> metti;
    };

    explicit AppuntiRighe(Form form) : m_form(std::move(form)) {}
    AppuntiRighe(const AppuntiRighe&) = delete;
    AppuntiRighe& operator=(const AppuntiRighe&) = delete;

    /// Up (-1) or down: the row last entered is chosen with those before, and the next one too.
    void scegli(int verso);
    bool scelta(int riga) const;
    /// No row is chosen any more.
    void lascia() { m_ancora.reset(); }

    /// The chosen rows, or the one last entered, as text.
    QString copia() const;
    /// What would become of the rows of a text in front of the row last entered.
    Incollate prova(const QString& testo) const;
    /// Puts them in, and goes on behind them.
    void incolla(const QString& testo);

private:
    /// From the row at which choosing began to the one last entered, the upper one first.
    std::pair<int, int> tratto() const;

    Form m_form;
    std::optional<int> m_ancora; ///< the row at which choosing began
};

} // namespace bor
