// The panels that take the place of the VAT rows: deferred VAT, withholding, yearly communication.
#include "common/posti.h"
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

/// A month and a year beside each other.
QWidget* periodo(const BancoTea& banco, int indice, const QString& quale, const Legame<QString>& mese,
                 const Legame<QString>& anno, std::vector<QWidget*>& percorso) {
    auto* insieme = new QWidget;
    auto* linea = new QHBoxLayout(insieme);
    linea->setContentsMargins(0, 0, 0, 0);
    linea->setSpacing(4);
    auto* m = banco.campi.testo(indicizzato(u"tmese", indice), quale + u", mese"_s, 2, mese);
    auto* a = banco.campi.testo(indicizzato(u"tanno", indice), quale + u", anno"_s, 4, anno);
    for (QWidget* campo : {m, a}) {
        campo->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        linea->addWidget(campo);
    }
    linea->addStretch();
    percorso.insert(percorso.end(), {m, a});
    return insieme;
}

} // namespace

RiquadroTea creaIvaDifferita(const BancoTea& banco) {
    auto* gruppo = gruppoDi(u"ivadiff"_s, u"Prospetto iva differita"_s);
    auto* griglia = new QGridLayout(gruppo);
    griglia->setVerticalSpacing(7);
    Borftea& form = banco.form;
    const int righe = quantiIn(form.dato(&Prospetti::differita));
    std::vector<QWidget*> percorso;
    griglia->addWidget(new QLabel(u"Periodo di competenza iva differita"_s), 0, 0);
    intestazioni(griglia, {u"Importo pagato"_s, u"Quota iva di competenza"_s}, 1, Qt::AlignRight);
    for (int k = 0; k < righe; ++k) {
        const auto voce = [&](QString IvaDifferita::*testo) {
            return legame(form, &Prospetti::differita, k, testo);
        };
        const QString quale = u", riga %1"_s.arg(k + 1);
        griglia->addWidget(periodo(banco, k, u"Periodo di competenza iva differita"_s + quale,
                                   voce(&IvaDifferita::mese), voce(&IvaDifferita::anno), percorso),
                           k + 1, 0);
        auto* pagato = banco.campi.importo(indicizzato(u"timp", k), u"Importo pagato"_s + quale,
                                           voce(&IvaDifferita::pagato));
        auto* quota = banco.campi.importo(indicizzato(u"tiva", k), u"Quota iva di competenza"_s + quale,
                                          voce(&IvaDifferita::quota));
        griglia->addWidget(pagato, k + 1, 1);
        griglia->addWidget(quota, k + 1, 2);
        percorso.insert(percorso.end(), {pagato, quota});
    }
    const int ultima = righe + 1;
    const QString termine = u"Termine ultimo versamento iva esigibilità differita"_s;
    griglia->addWidget(new QLabel(termine), ultima, 0, 1, 2);
    griglia->addWidget(periodo(banco, ultima - 1, termine, legame(form, &Prospetti::terminemese),
                               legame(form, &Prospetti::termineanno), percorso),
                       ultima, 2);
    griglia->setColumnStretch(0, 1);
    griglia->setRowStretch(ultima + 1, 1);
    banco.invio.catena(percorso);
    return {gruppo, percorso.front(), percorso.back()};
}

RiquadroTea creaRitenute(const BancoTea& banco) {
    auto* gruppo = gruppoDi(u"Frame5"_s, u"Prospetto ritenute d'acconto"_s);
    auto* griglia = new QGridLayout(gruppo);
    griglia->setVerticalSpacing(10);
    Borftea& form = banco.form;
    const int righe = quantiIn(form.dato(&Prospetti::ritenute));
    std::vector<QWidget*> percorso;
    intestazioni(griglia, {u"Imponibile rit.acconto"_s, u"Importo rit.acconto"_s}, 1, Qt::AlignRight);
    intestazioni(griglia, {u"Scadenza versamento"_s, u"Data versamento"_s}, 3, Qt::AlignLeft);
    for (int k = 0; k < righe; ++k) {
        const auto ritenuta = [&](QString Ritenuta::*testo) {
            return legame(form, &Prospetti::ritenute, k, testo);
        };
        const QString rata = u"%1' rata"_s.arg(k + 1);
        auto* base = banco.campi.importo(indicizzato(u"raimpo", k), u"Imponibile rit.acconto, "_s + rata,
                                         ritenuta(&Ritenuta::raimpo));
        auto* importo = banco.campi.importo(indicizzato(u"raimp", k), u"Importo rit.acconto, "_s + rata,
                                            ritenuta(&Ritenuta::raimp));
        auto* scadenza = banco.campi.data(indicizzato(u"rascad", k), indicizzato(u"rrascad", k),
                                          u"Scadenza versamento, "_s + rata, ritenuta(&Ritenuta::rascad));
        auto* versata = banco.campi.data(indicizzato(u"ravers", k), indicizzato(u"rravers", k),
                                         u"Data versamento, "_s + rata, ritenuta(&Ritenuta::ravers));
        riga(griglia, k + 1, rata, base);
        griglia->addWidget(importo, k + 1, 2);
        griglia->addWidget(scadenza, k + 1, 3);
        griglia->addWidget(versata, k + 1, 4);
        percorso.insert(percorso.end(), {base, importo, scadenza->campo(), versata->campo()});
    }
    const int ultima = righe + 1;
    const QString codice = u"Codice tributo"_s;
    auto* tributo = banco.campi.lista(u"Combo6"_s, codice, form.voci(Borftea::Lista::Tributi),
                                      legame(form, &Prospetti::tributo));
    auto* piede = new QHBoxLayout;
    piede->setSpacing(6);
    piede->addWidget(didascalia(codice, tributo));
    piede->addWidget(tributo, 1);
    griglia->addLayout(piede, ultima, 0, 1, 5);
    griglia->setRowStretch(ultima + 1, 1);
    percorso.push_back(tributo);
    banco.invio.catena(percorso);
    return {gruppo, percorso.front(), percorso.back()};
}

RiquadroTea creaSpesometro(const BancoTea& banco) {
    auto* gruppo = gruppoDi(u"Frame6"_s, u"Prospetto spesometro"_s);
    auto* griglia = new QGridLayout(gruppo);
    griglia->setVerticalSpacing(12);
    Borftea& form = banco.form;
    const auto& campi = banco.campi;
    auto* riporta = campi.spunta(u"xxiva(0)"_s, u"Riporta il documento nello spesometro"_s,
                                 legame(form, &Prospetti::spesometro));
    auto* noleggio = campi.spunta(u"xxiva(1)"_s, u"Documento relativo a noleggi o leasing"_s,
                                  legame(form, &Prospetti::noleggio));
    auto* classe =
        campi.lista(u"Combo7"_s, u"Documento relativo a noleggi o leasing: veicolo"_s,
                    form.voci(Borftea::Lista::ClassiNoleggio), legame(form, &Prospetti::classenoleggio));
    auto* nonesposta = campi.spunta(u"xxiva(2)"_s, u"Documento con iva non esposta in fattura"_s,
                                    legame(form, &Prospetti::ivanonesp));
    auto* autofattura = campi.spunta(u"xxiva(3)"_s, u"Autofattura"_s, legame(form, &Prospetti::autofattura));
    auto* riepilogo =
        campi.spunta(u"xxiva(4)"_s, u"Documento riepilogativo"_s, legame(form, &Prospetti::riepilogativo));
    griglia->addWidget(riporta, 0, 0);
    griglia->addWidget(noleggio, 1, 0);
    griglia->addWidget(classe, 1, 1);
    griglia->addWidget(nonesposta, 2, 0);
    griglia->addWidget(autofattura, 3, 0);
    griglia->addWidget(riepilogo, 4, 0);
    griglia->setColumnStretch(1, 1);
    griglia->setRowStretch(5, 1);
    banco.invio.catena({riporta, noleggio, classe, nonesposta, autofattura, riepilogo});
    return {gruppo, riporta, riepilogo};
}

} // namespace bor
