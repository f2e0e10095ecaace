#include "ui/campitea.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace bor {

CampoTesto* CampiTea::testo(const QString& nome, const QString& didascalia, int caratteri,
                            QString& dove) const {
    auto* campo = new CampoTesto(nome, didascalia, caratteri);
    m_legami.testo(
        campo, [&dove] { return dove; }, [&dove](const QString& testo) { dove = testo; });
    return campo;
}

CampoImporto* CampiTea::importo(const QString& nome, const QString& didascalia, QString& dove) const {
    auto* campo = new CampoImporto(nome, didascalia);
    m_legami.testo(
        campo, [&dove] { return dove; }, [&dove](const QString& testo) { dove = testo; });
    return campo;
}

CampoData* CampiTea::data(const QString& nome, const QString& calendario, const QString& didascalia,
                          QString& dove) const {
    auto* data = new CampoData(nome, calendario, didascalia);
    m_legami.testo(
        data->campo(), [&dove] { return dove; }, [&dove](const QString& testo) { dove = testo; });
    return data;
}

QCheckBox* CampiTea::spunta(const QString& nome, const QString& didascalia, bool& dove) const {
    auto* casella = new QCheckBox(didascalia);
    casella->setObjectName(nome);
    casella->setAccessibleName(didascalia);
    m_legami.spunta(
        casella, [&dove] { return dove; }, [&dove](bool acceso) { dove = acceso; });
    return casella;
}

QComboBox* CampiTea::lista(const QString& nome, const QString& didascalia, const QStringList& voci,
                           int& dove) const {
    auto* scelta = listaTea(nome, didascalia, voci);
    m_legami.lista(
        scelta, [&dove] { return dove; }, [&dove](int posizione) { dove = posizione; });
    return scelta;
}

QComboBox* listaTea(const QString& nome, const QString& didascalia, const QStringList& voci) {
    auto* scelta = new QComboBox;
    scelta->setObjectName(nome);
    scelta->setAccessibleName(didascalia);
    scelta->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    scelta->setMaxVisibleItems(20);
    scelta->addItems(voci);
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
