#include "ui/barracomandi.h"

#include "ui/legami.h"

#include <QHBoxLayout>

namespace bor {

BarraComandi::BarraComandi(Legami& legami) : m_legami(legami), m_layout(new QHBoxLayout(this)) {
    setAccessibleName(QStringLiteral("Comandi"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addStretch();
}

BottoneComando* BarraComandi::comando(const QString& nome, const QString& testo, const QString& icona,
                                      const QString& tasto, std::function<void()> azione) {
    auto* bottone = new BottoneComando(nome, testo, icona, QKeySequence(tasto));
    m_legami.comando(bottone, std::move(azione));
    m_layout->insertWidget(m_layout->count() - 1, bottone);
    return bottone;
}

void BarraComandi::spazio() {
    constexpr int punti = 24;
    m_layout->insertSpacing(m_layout->count() - 1, punti);
}

} // namespace bor
