// Somebody who types fast: one key in ten is the wrong one, seen at once and taken back.
#pragma once

#include "ui/gesti.h"

#include <random>

namespace bor {

class Dattilografa {
public:
    Dattilografa(QWidget& finestra, std::mt19937& caso) : m_finestra(finestra), m_caso(caso) {}

    /// Types into the box in focus.
    void batti(const QString& testo) {
        for (const QChar c : testo) {
            if (m_caso() % 10 == 0)
                sbaglia();
            scrivi(m_finestra, QString(c));
        }
    }
    void battiEInvio(const QString& testo) {
        batti(testo);
        tasto(m_finestra, Qt::Key_Return);
    }
    void invii(int quanti) {
        for (int i = 0; i < quanti; ++i)
            tasto(m_finestra, Qt::Key_Return);
    }
    int sbagliati() const { return m_sbagliati; }

private:
    /// A wrong key that the box refuses leaves nothing to take back.
    void sbaglia() {
        static constexpr QStringView vicini = u"0123456789xqà,-";
        auto* campo = qobject_cast<QLineEdit*>(m_finestra.focusWidget());
        ASSERT_TRUE(campo);
        const QString prima = campo->text();
        const bool scelto = campo->hasSelectedText();
        scrivi(m_finestra, QString(vicini[static_cast<qsizetype>(m_caso() % vicini.size())]));
        if (campo->text() != prima || (scelto && !campo->hasSelectedText()))
            tasto(m_finestra, Qt::Key_Backspace);
        ++m_sbagliati;
    }

    QWidget& m_finestra;
    std::mt19937& m_caso;
    int m_sbagliati = 0;
};

} // namespace bor
