#include "ui/lettere.h"

#include "ui/campi.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QSet>

#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// A text that can carry a letter.
struct Portatore {
    QString testo;
    std::function<void(const QString&)> metti;
};

bool siScrive(const QWidget* campo) {
    const auto* linea = qobject_cast<const QLineEdit*>(campo);
    return campo && !qobject_cast<const QLabel*>(campo) && !(linea && linea->isReadOnly());
}

/// Writes a caption. Its underlined letter is drawn apart from its neighbours, which then overlap it no more:
/// the text can be longer than it is by itself.
void scrivi(QLabel* etichetta, const QString& testo) {
    etichetta->setText(testo);
    const qsizetype segno = testo.indexOf(u'&');
    if (segno < 0 || etichetta->wordWrap())
        return;
    const QFontMetrics misure = etichetta->fontMetrics();
    const int divisa = misure.horizontalAdvance(testo.first(segno)) +
                       misure.horizontalAdvance(testo.mid(segno + 1, 1)) +
                       misure.horizontalAdvance(testo.mid(segno + 2));
    const int intera = misure.horizontalAdvance(QString(testo).remove(segno, 1));
    if (divisa > intera)
        etichetta->setMinimumWidth(etichetta->sizeHint().width() + divisa - intera);
}

std::vector<Portatore> portatori(QWidget& schermo) {
    std::vector<Portatore> tutti;
    for (auto* bottone : schermo.findChildren<QToolButton*>()) {
        if (auto* comando = dynamic_cast<BottoneComando*>(bottone); comando && comando->isVisibleTo(&schermo))
            tutti.push_back({comando->text(), [comando](const QString& t) { comando->mettiDidascalia(t); }});
    }
    for (auto* etichetta : schermo.findChildren<QLabel*>()) {
        if (siScrive(etichetta->buddy()) && etichetta->isVisibleTo(&schermo))
            tutti.push_back({etichetta->text(), [etichetta](const QString& t) { scrivi(etichetta, t); }});
    }
    return tutti;
}

QChar lettera(const QString& testo) {
    const qsizetype segno = testo.indexOf(u'&');
    return segno < 0 || segno + 1 >= testo.size() ? QChar() : testo[segno + 1].toUpper();
}

/// Where the letter to underline stands; -1 when all of the text's letters are taken. The beginning of a word
/// is better than its middle.
qsizetype postoLibero(const QString& testo, const QSet<QChar>& prese) {
    for (const bool soloIniziali : {true, false}) {
        for (qsizetype i = 0; i < testo.size(); ++i) {
            const QChar c = testo[i].toUpper();
            const bool iniziale = i == 0 || !testo[i - 1].isLetter();
            const bool lecita = (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
            if (lecita && (iniziale || !soloIniziali) && !prese.contains(c))
                return i;
        }
    }
    return -1;
}

bool daNominare(const QWidget* widget) {
    return !widget->accessibleName().isEmpty() &&
           (qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QComboBox*>(widget) ||
            qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QAbstractSlider*>(widget) ||
            qobject_cast<const QAbstractItemView*>(widget));
}

} // namespace

void assegnaLettere(QWidget& schermo) {
    std::vector<Portatore> tutti = portatori(schermo);
    QSet<QChar> prese;
    for (Portatore& portatore : tutti) {
        const QChar sua = lettera(portatore.testo);
        if (!sua.isNull() && !prese.contains(sua))
            prese.insert(sua);
        else if (!sua.isNull())
            portatore.metti(portatore.testo.remove(u'&'));
    }
    for (Portatore& portatore : tutti) {
        if (!lettera(portatore.testo).isNull())
            continue;
        const qsizetype posto = postoLibero(portatore.testo, prese);
        if (posto < 0)
            continue;
        prese.insert(portatore.testo[posto].toUpper());
        portatore.metti(portatore.testo.insert(posto, u'&'));
    }
}

void distinguiNomi(QWidget& schermo) {
    QHash<QString, int> quanti;
    for (auto* widget : schermo.findChildren<QWidget*>()) {
        if (!daNominare(widget))
            continue;
        const int volta = ++quanti[widget->accessibleName()];
        if (volta > 1)
            widget->setAccessibleName(u"%1 %2"_s.arg(widget->accessibleName()).arg(volta));
    }
}

} // namespace bor
