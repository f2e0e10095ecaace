#include "common/avvertenze.h"

#include <QMutex>

namespace bor {

namespace {

constexpr qsizetype massimo = 200;

struct Raccolta {
    QMutex serratura;
    QStringList testi;
    QtMessageHandler prima = nullptr;
};

/// Never destroyed: a warning may come when the program ends.
Raccolta& raccolta() {
    static Raccolta* const una = new Raccolta;
    return *una;
}

void tieni(QtMsgType tipo, const QMessageLogContext& contesto, const QString& testo) {
    Raccolta& r = raccolta();
    if (tipo != QtDebugMsg && tipo != QtInfoMsg) {
        const QMutexLocker chiusa(&r.serratura);
        const QString intero = QString::fromUtf8(contesto.category) + QStringLiteral(": ") + testo;
        if (r.testi.size() < massimo && !r.testi.contains(intero))
            r.testi.append(intero);
    }
    if (r.prima)
        r.prima(tipo, contesto, testo);
}

} // namespace

void raccogliAvvertenze() {
    raccolta().prima = qInstallMessageHandler(tieni);
}

QStringList avvertenze() {
    Raccolta& r = raccolta();
    const QMutexLocker chiusa(&r.serratura);
    return r.testi;
}

} // namespace bor
