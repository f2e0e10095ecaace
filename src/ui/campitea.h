// Makes the fields of the document form, each bound to its text, tick or position in the document.
#pragma once

#include "ui/campi.h"
#include "ui/invio.h"
#include "ui/legami.h"

class QCheckBox;
class QComboBox;
class QGridLayout;

namespace bor {

class CampiTea {
public:
    explicit CampiTea(Legami& legami) : m_legami(legami) {}

    CampoTesto* testo(const QString& nome, const QString& didascalia, int caratteri, QString& dove) const;
    CampoImporto* importo(const QString& nome, const QString& didascalia, QString& dove) const;
    CampoData* data(const QString& nome, const QString& calendario, const QString& didascalia,
                    QString& dove) const;
    QCheckBox* spunta(const QString& nome, const QString& didascalia, bool& dove) const;
    QComboBox* lista(const QString& nome, const QString& didascalia, const QStringList& voci,
                     int& dove) const;

private:
    Legami& m_legami;
};

/// A list whose width does not follow its longest item.
QComboBox* listaTea(const QString& nome, const QString& didascalia, const QStringList& voci);

/// "nome(3)".
QString indicizzato(QStringView nome, int indice);

/// Headings over the columns of a grid, from the given column on.
void intestazioni(QGridLayout* griglia, const QStringList& testi, int primaColonna, Qt::Alignment dove);

} // namespace bor
