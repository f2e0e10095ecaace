#include "ui/barracomandi.h"

#include "ui/flusso.h"
#include "ui/legami.h"

#include <QHBoxLayout>

namespace bor {

BarraComandi::BarraComandi(Legami& legami) : m_legami(legami), m_layout(new Flusso(this)) {
    setAccessibleName(QStringLiteral("Comandi"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->molla();
}

BottoneComando* BarraComandi::comando(const QString& nome, const QString& testo, const QString& icona,
                                      const QString& tasto, std::function<void()> azione) {
    auto* bottone = new BottoneComando(nome, testo, icona, QKeySequence(tasto));
    m_legami.comando(bottone, std::move(azione));
    QLayoutItem* molla = m_layout->takeAt(m_layout->count() - 1);
    m_layout->addWidget(bottone);
    m_layout->addItem(molla);
    return bottone;
}

void BarraComandi::spazio() {
    constexpr int punti = 24;
    QLayoutItem* molla = m_layout->takeAt(m_layout->count() - 1);
    m_layout->spazio(punti);
    m_layout->addItem(molla);
}

BarraProspetti::BarraProspetti(Legami& legami, const QString& nome)
    : m_legami(legami), m_layout(new QHBoxLayout(this)) {
    setAccessibleName(nome);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(4);
}

BottoneComando* BarraProspetti::prospetto(const QString& nome, const QString& testo, const QString& tasto,
                                          std::function<bool()> inVista,
                                          const std::function<void()>& mostra) {
    auto* bottone = new BottoneComando(nome, testo, {}, QKeySequence(tasto));
    bottone->setCheckable(true);
    bottone->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_legami.altro([bottone, inVista = std::move(inVista)] { bottone->setChecked(inVista()); });
    connect(bottone, &QToolButton::clicked, this, mostra);
    m_layout->addWidget(bottone);
    return bottone;
}

} // namespace bor
