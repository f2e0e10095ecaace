// The VAT rows of a document: eight of the twelve in view.
#include "ui/cursorerighe.h"
#include "ui/riquadritea.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

struct ColonnaIva {
    VoceIva voce;
    QStringView nome;
    QStringView descrizione;
    int colonna;
};

constexpr std::array<ColonnaIva, 3> colonne = {{
    {VoceIva::Imponibile, u"impon", u"Imponibile", 1},
    {VoceIva::Imposta, u"ivai", u"Imposta", 2},
    {VoceIva::Esente, u"esent", u"Esenzione", 4},
}};

/// `modello`: a usual caption, which the label has room for.
QLabel* etichetta(const BancoTea& banco, const QString& nome, const QString& modello,
                  const Legami::Leggi& leggi) {
    auto* testo = new QLabel;
    testo->setObjectName(nome);
    testo->setMinimumWidth(testo->fontMetrics().horizontalAdvance(modello));
    testo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    banco.legami.altro([testo, leggi] {
        // The captions of a company may be longer than there is room for: the tooltip has them whole, and so
        // has the line below for the row in focus.
        testo->setText(leggi());
        testo->setToolTip(testo->text());
    });
    return testo;
}

} // namespace

RiquadroTea creaRigheIva(const BancoTea& banco) {
    auto* gruppo = gruppoDi(u"Frame4"_s, u"Dettaglio imponibili"_s);
    auto* griglia = new QGridLayout(gruppo);
    griglia->setVerticalSpacing(9);
    ImportiIva& importi = banco.form.importiIva();
    auto* intera = new QLabel;
    intera->setObjectName(u"vocerigaiva"_s);
    intera->setWordWrap(true);
    std::vector<QWidget*> percorso;
    for (const ColonnaIva& c : colonne)
        griglia->addWidget(new QLabel(c.descrizione.toString()), 0, c.colonna, Qt::AlignRight);
    const int linee = importi.finestra().linee();
    for (int i = 0; i < linee; ++i) {
        auto* iv = etichetta(banco, indicizzato(u"iv", i), u"Non imponibile art. 8"_s,
                             [&importi, i] { return importi.etichetta(i, VoceIva::Imponibile); });
        auto* es = etichetta(banco, indicizzato(u"es", i), u"Art. 17 c. 6 DPR 633/72"_s,
                             [&importi, i] { return importi.etichetta(i, VoceIva::Esente); });
        griglia->addWidget(iv, i + 1, 0);
        griglia->addWidget(es, i + 1, 3);
        for (const ColonnaIva& c : colonne) {
            auto* casella = new CampoImporto(indicizzato(c.nome, i), c.descrizione.toString());
            banco.legami.altro([&importi, casella, i, c] {
                casella->setAccessibleName(c.descrizione.toString() + importi.nome(i, c.voce));
            });
            casella->setMaximumWidth(casella->minimumSizeHint().width());
            banco.legami.testo(
                casella, [&importi, i, voce = c.voce] { return importi.testo(i, voce); },
                [&importi, i, voce = c.voce](const QString& t) { importi.cambia(i, voce, t); });
            banco.legami.entrato(casella, [intera, casella] { intera->setText(casella->accessibleName()); });
            griglia->addWidget(casella, i + 1, c.colonna);
            percorso.push_back(casella);
        }
    }
    griglia->addWidget(cursoreRighe(banco.legami, importi, u"Prima riga visibile"_s), 1, 5, linee, 1);
    griglia->setColumnStretch(0, 3);
    griglia->setColumnStretch(3, 4);
    griglia->addWidget(intera, linee + 1, 0, 1, 6);
    griglia->setRowStretch(linee + 2, 1);
    banco.invio.catena(percorso);
    return {gruppo, percorso.front(), percorso.back()};
}

} // namespace bor
