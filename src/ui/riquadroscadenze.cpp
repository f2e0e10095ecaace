// Instalments, way of payment and the agent's commission.
#include "ui/flusso.h"
#include "ui/riquadritea.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include <vector>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// The six instalments, two columns of three, with the due dates and amounts in Enter order.
std::vector<QWidget*> creaRate(const BancoTea& banco, QGridLayout* griglia) {
    constexpr int perColonna = 3;
    constexpr int colonneRata = 4; // number, date, amount, gap
    std::vector<QWidget*> percorso;
    const auto rata = [&](int i, QString Rata::*testo) {
        return legame(banco.form, &Scadenze::rate, i, testo);
    };
    for (int i = 0; i < std::ssize(banco.form.dato(&Scadenze::rate)); ++i) {
        const QString quale = u"%1' rata"_s.arg(i + 1);
        auto* data = banco.campi.data(indicizzato(u"dsca", i), indicizzato(u"ddsca", i),
                                      u"Data scadenza, "_s + quale, rata(i, &Rata::scadenza));
        auto* importo =
            banco.campi.importo(indicizzato(u"sca", i), u"Importo, "_s + quale, rata(i, &Rata::importo));
        // The room goes to the VAT rows.
        importo->setMinimumWidth(importo->fontMetrics().horizontalAdvance(u"-1000000.00 "_s));
        const int colonna = i / perColonna * colonneRata;
        const int linea = 1 + i % perColonna;
        griglia->addWidget(didascalia(quale, data), linea, colonna, Qt::AlignRight | Qt::AlignVCenter);
        griglia->addWidget(data, linea, colonna + 1);
        griglia->addWidget(importo, linea, colonna + 2);
        if (i % perColonna == 0) {
            griglia->addWidget(new QLabel(u"Data scadenza"_s), 0, colonna + 1);
            griglia->addWidget(new QLabel(u"Importo"_s), 0, colonna + 2, Qt::AlignRight);
        }
        percorso.insert(percorso.end(), {data->campo(), importo});
    }
    griglia->setColumnMinimumWidth(colonneRata - 1, 12);
    return percorso;
}

QWidget* creaProvvigione(const BancoTea& banco, std::vector<QWidget*>& percorso) {
    auto* insieme = new QWidget;
    auto* linea = new Flusso(insieme);
    linea->setContentsMargins(0, 0, 0, 0);
    Borftea& form = banco.form;
    auto* aliquota = banco.campi.importo(u"pro(0)"_s, u"Provvigione agente: Aliquota"_s,
                                         legame(form, &Scadenze::provaliq), caratteriProvvigione);
    auto* importo =
        banco.campi.importo(u"pro(1)"_s, u"Provvigione agente: Importo"_s, legame(form, &Scadenze::provimp));
    for (QWidget* campo : std::initializer_list<QWidget*>{aliquota, importo})
        campo->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    linea->addWidget(new QLabel(u"Provvigione agente"_s));
    linea->spazio(12);
    linea->addWidget(conDidascalia(u"Aliquota"_s, aliquota));
    linea->spazio(12);
    linea->addWidget(conDidascalia(u"Importo"_s, importo));
    linea->molla();
    percorso.insert(percorso.end(), {aliquota, importo});
    return insieme;
}

} // namespace

RiquadroTea creaScadenze(const BancoTea& banco) {
    auto* gruppo = gruppoDi(u"Frame2"_s, u"Scadenze, modalità di pagamento e provvigioni"_s);
    auto* colonna = new QVBoxLayout(gruppo);
    colonna->setSpacing(8);
    Borftea& form = banco.form;
    const QString modo = u"Modalità di pagamento"_s;
    auto* pagamento = banco.campi.lista(u"Combo1"_s, modo, form.voci(Borftea::Lista::Pagamenti),
                                        legame(form, &Scadenze::pagamento));
    auto* rib = banco.campi.spunta(u"rib"_s, u"Emissione Ri.Ba."_s, legame(form, &Scadenze::rib));
    auto* testa = new QHBoxLayout;
    testa->addWidget(didascalia(modo, pagamento));
    testa->addWidget(pagamento, 1);
    testa->addWidget(rib);
    colonna->addLayout(testa);
    auto* griglia = new QGridLayout;
    griglia->setVerticalSpacing(7);
    std::vector<QWidget*> percorso = creaRate(banco, griglia);
    colonna->addLayout(griglia);
    auto* fuori = new QLabel(u"Anticipazioni non comprese nelle scadenze"_s);
    fuori->setObjectName(u"anticipazioni"_s);
    fuori->setProperty("avviso", true);
    banco.legami.visibile(fuori, [&form] { return form.anticipazioniFuori(); });
    colonna->addWidget(fuori);
    colonna->addWidget(creaProvvigione(banco, percorso));
    banco.invio.passo(pagamento, percorso.front());
    banco.invio.passo(rib, percorso.front());
    banco.invio.catena(percorso);
    return {gruppo, percorso.front(), percorso.back()};
}

} // namespace bor
