// Numbers and dates of a document; the revenue items of the simplified accounts.
#include "ui/riquadritea.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include <array>

using namespace Qt::StringLiterals;

namespace bor {

QGroupBox* gruppoDi(const QString& nome, const QString& titolo) {
    auto* gruppo = new QGroupBox(titolo);
    gruppo->setObjectName(nome);
    return gruppo;
}

RiquadroTea creaEstremi(const BancoTea& banco) {
    auto* gruppo = gruppoDi(u"Frame1"_s, u"Estremi del documento"_s);
    auto* griglia = new QGridLayout(gruppo);
    griglia->setVerticalSpacing(7);
    Borftea& form = banco.form;

    auto* numero =
        banco.campi.testo(u"Text2(0)"_s, u"Numero del documento"_s, 10, legame(form, &Estremi::numero));
    banco.legami.lasciato(numero, [&form] { form.lasciaNumero(); });
    banco.legami.segnala(numero, [&form] { return form.avvisoNumero(); });
    auto* emissione = banco.campi.data(u"text3(1)"_s, u"calendario(1)"_s, u"Data di emissione"_s,
                                       legame(form, &Estremi::data));
    banco.legami.lasciato(emissione->campo(), [&form] { form.lasciaData(); });
    auto* registrazione = banco.campi.data(u"text3(2)"_s, u"calendario(2)"_s, u"Data di registrazione"_s,
                                           legame(form, &Estremi::datareg));
    auto* protocollo = banco.campi.importo(u"Text2(3)"_s, u"Numero di protocollo personalizzato"_s,
                                           legame(form, &Estremi::protocollo));
    auto* registro =
        banco.campi.lista(u"Combo5"_s, u"Numero registro iva"_s, u"0 1 2 3 4 5 6 7 8 9"_s.split(u' '),
                          legame(form, &Estremi::registro));
    auto* esig = banco.campi.spunta(u"esig"_s, u"Documento con iva ad esigibilità differita"_s,
                                    legame(form, &Estremi::esig));
    banco.legami.abilitato(esig, [&form] { return form.esigAbilitato(); });

    riga(griglia, 0, u"Numero del documento"_s, numero);
    riga(griglia, 1, u"Numero registro iva"_s, registro);
    riga(griglia, 2, u"Numero di protocollo personalizzato"_s, protocollo);
    riga(griglia, 0, u"Data di emissione"_s, emissione, 2);
    riga(griglia, 1, u"Data di registrazione"_s, registrazione, 2);
    griglia->addWidget(esig, 3, 0, 1, 4, Qt::AlignHCenter);
    griglia->setColumnStretch(3, 1);
    for (QWidget* campo : std::initializer_list<QWidget*>{numero, registro, protocollo})
        campo->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    banco.invio.catena({numero, emissione->campo(), registrazione->campo(), protocollo});
    banco.invio.catena({registro, registrazione->campo()});
    banco.invio.passo(esig, protocollo);
    // A date box as a whole: its edit alone would leave the rest of it behind the last field, whence Tab
    // falls back.
    const std::array<QWidget*, 6> ordine = {numero, emissione, registro, registrazione, protocollo, esig};
    for (std::size_t i = 1; i < ordine.size(); ++i)
        QWidget::setTabOrder(ordine[i - 1], ordine[i]);
    return {gruppo, numero, protocollo};
}

RiquadroTea creaRicavi(const BancoTea& banco) {
    auto* gruppo = gruppoDi(u"Frame3"_s, u"Estremi contabili (bilancino di contabilità semplificata)"_s);
    auto* griglia = new QGridLayout(gruppo);
    griglia->setVerticalSpacing(7);
    Borftea& form = banco.form;
    const QStringList voci = form.voci(Borftea::Lista::Ricavi);
    const QString principale = u"Tipo di documento (voce di ricavo principale)"_s;
    const QString scorpora = u"Scorpora e attribusci l'importo alla diversa voce"_s;
    auto* voce1 = banco.campi.lista(u"Combo2"_s, principale, voci, legame(form, &Estremi::voce1));
    auto* voce2 = banco.campi.lista(u"Combo3"_s, scorpora, voci, legame(form, &Estremi::voce2));
    auto* quota2 = banco.campi.importo(u"Text2(5)"_s, scorpora, legame(form, &Estremi::quota2));
    auto* voce3 = banco.campi.lista(u"Combo4"_s, scorpora, voci, legame(form, &Estremi::voce3));
    auto* quota3 = banco.campi.importo(u"Text2(6)"_s, scorpora, legame(form, &Estremi::quota3));
    griglia->addWidget(didascalia(principale, voce1), 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    griglia->addWidget(voce1, 0, 1, 1, 2);
    riga(griglia, 1, scorpora, voce2);
    riga(griglia, 2, scorpora, voce3);
    griglia->addWidget(quota2, 1, 2);
    griglia->addWidget(quota3, 2, 2);
    griglia->setColumnStretch(1, 1);
    banco.invio.catena({voce1, voce2, quota2, voce3, quota3});
    return {gruppo, voce1, quota3};
}

} // namespace bor
