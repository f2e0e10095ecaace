#include "ui/finestratasti.h"

#include "common/posti.h"
#include "ui/elencotesti.h"
#include "ui/vista.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace bor {

FinestraTasti::FinestraTasti(const QString& schermo, const QList<TastoSchermo>& tasti, QWidget* parent)
    : QDialog(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"tasti"_s);
    setWindowTitle(u"Tasti: "_s + schermo);
    offriGuida(this, u"tasti"_s);
    auto* elenco = elencoTesti(u"elencoTasti"_s, u"Tasti dello schermo"_s, {u"Tasto"_s, u"Che cosa fa"_s},
                               quantiIn(tasti));
    for (int r = 0; r < tasti.size(); ++r) {
        elenco->setItem(r, 0, new QTableWidgetItem(tasti[r].tasto));
        elenco->setItem(r, 1, new QTableWidgetItem(tasti[r].azione));
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(elenco);
    resize(520, 460);
}

} // namespace bor
