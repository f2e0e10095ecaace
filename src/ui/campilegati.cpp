#include "ui/campilegati.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace bor {

CampoTesto* CampiLegati::testo(const QString& nome, const QString& didascalia, int caratteri,
                               const Legame<QString>& dato) const {
    auto* campo = new CampoTesto(nome, didascalia, caratteri);
    m_legami.testo(campo, dato.leggi, dato.scrivi);
    return campo;
}

CampoImporto* CampiLegati::importo(const QString& nome, const QString& didascalia,
                                   const Legame<QString>& dato, int caratteri) const {
    auto* campo = new CampoImporto(nome, didascalia, caratteri);
    m_legami.testo(campo, dato.leggi, dato.scrivi);
    return campo;
}

CampoData* CampiLegati::data(const QString& nome, const QString& calendario, const QString& didascalia,
                             const Legame<QString>& dato) const {
    auto* data = new CampoData(nome, calendario, didascalia, m_bordata);
    m_legami.testo(data->campo(), dato.leggi, dato.scrivi);
    m_legami.segnala(data->campo(), [leggi = dato.leggi] { return avvisoData(leggi()); });
    return data;
}

QCheckBox* CampiLegati::spunta(const QString& nome, const QString& didascalia,
                               const Legame<bool>& dato) const {
    auto* casella = new QCheckBox(didascalia);
    casella->setObjectName(nome);
    casella->setAccessibleName(didascalia);
    m_legami.spunta(casella, dato.leggi, dato.scrivi);
    return casella;
}

QComboBox* CampiLegati::lista(const QString& nome, const QString& didascalia, const QStringList& voci,
                              const Legame<int>& dato) const {
    auto* scelta = new QComboBox;
    scelta->setObjectName(nome);
    scelta->setAccessibleName(didascalia);
    scelta->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    scelta->setMaxVisibleItems(20);
    scelta->addItems(voci);
    m_legami.lista(scelta, dato.leggi, dato.scrivi);
    return scelta;
}

QString indicizzato(QStringView nome, int indice) {
    return u"%1(%2)"_s.arg(nome).arg(indice);
}

void intestazioni(QGridLayout* griglia, const QStringList& testi, int primaColonna, Qt::Alignment dove) {
    for (int c = 0; c < testi.size(); ++c)
        griglia->addWidget(new QLabel(testi[c]), 0, primaColonna + c, dove);
}

} // namespace bor
