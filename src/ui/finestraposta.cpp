#include "ui/finestraposta.h"

#include "common/date.h"
#include "common/posti.h"
#include "ui/elencotesti.h"
#include "ui/vista.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString esitoDi(const VocePosta& voce) {
    switch (voce.stato) {
    case StatoPosta::Affidata:
        return u"affidata all'invio: l'esito non è ancora noto"_s;
    case StatoPosta::Spedita:
        return u"spedita"_s;
    case StatoPosta::NonSpedita:
        return u"non spedita: "_s + voce.motivo;
    }
    return {};
}

QTableWidget* elencoDi(const std::vector<VocePosta>& voci) {
    auto* elenco = elencoTesti(u"elencoPosta"_s, u"Messaggi spediti"_s,
                               {u"Quando"_s, u"Indirizzo"_s, u"Esito"_s}, quantiIn(voci));
    for (int r = 0; r < quantiIn(voci); ++r) {
        const VocePosta& voce = elemento(voci, r);
        const QString quando = testoData(voce.quando.date()) + voce.quando.toString(u" HH:mm"_s);
        int colonna = 0;
        for (const QString& testo : {quando, voce.indirizzo, esitoDi(voce)}) {
            auto* cella = new QTableWidgetItem(testo);
            cella->setToolTip(testo);
            elenco->setItem(r, colonna++, cella);
        }
    }
    return elenco;
}

} // namespace

FinestraPosta::FinestraPosta(const QString& documento, const std::vector<VocePosta>& voci, QWidget* parent)
    : QDialog(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"finestraPosta"_s);
    setWindowTitle(u"Posta elettronica del documento"_s);
    offriGuida(this, u"posta"_s);
    auto* layout = new QVBoxLayout(this);
    auto* cima = new QLabel(documento);
    cima->setTextFormat(Qt::PlainText);
    cima->setWordWrap(true);
    layout->addWidget(cima);
    if (voci.empty())
        layout->addWidget(new QLabel(u"Da questo computer non è stato spedito."_s), 1);
    else
        layout->addWidget(elencoDi(voci), 1);
    auto* bottoni = new QDialogButtonBox;
    QPushButton* chiudi = bottoni->addButton(u"&Chiudi"_s, QDialogButtonBox::RejectRole);
    connect(chiudi, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(bottoni);
    resize(640, voci.empty() ? 120 : 280);
}

} // namespace bor
