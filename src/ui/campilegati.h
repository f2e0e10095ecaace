// Makes the fields of a form, each bound to its text, tick or position.
#pragma once

#include "ui/campi.h"
#include "ui/campodata.h"
#include "ui/invio.h"
#include "ui/legame.h"
#include "ui/legami.h"

class QCheckBox;
class QComboBox;
class QGridLayout;

namespace bor {

class CampiLegati {
public:
    /// `bordata`: the date dialog of the form's date fields.
    CampiLegati(Legami& legami, const Bordata& bordata) : m_legami(legami), m_bordata(bordata) {}

    CampoTesto* testo(const QString& nome, const QString& didascalia, int caratteri,
                      const Legame<QString>& dato) const;
    CampoImporto* importo(const QString& nome, const QString& didascalia, const Legame<QString>& dato,
                          int caratteri = 0) const;
    /// A date that does not exist is marked as long as it stands there.
    CampoData* data(const QString& nome, const QString& calendario, const QString& didascalia,
                    const Legame<QString>& dato) const;
    QCheckBox* spunta(const QString& nome, const QString& didascalia, const Legame<bool>& dato) const;
    /// A list whose width does not follow its longest item.
    QComboBox* lista(const QString& nome, const QString& didascalia, const QStringList& voci,
                     const Legame<int>& dato) const;

private:
    Legami& m_legami;
    Bordata m_bordata;
};

/// "nome(3)".
QString indicizzato(QStringView nome, int indice);

/// Headings over the columns of a grid, from the given column on.
void intestazioni(QGridLayout* griglia, const QStringList& testi, int primaColonna, Qt::Alignment dove);

} // namespace bor
