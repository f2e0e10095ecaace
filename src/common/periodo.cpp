#include "common/periodo.h"

#include "common/date.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

Giorni mesi(int anno, int primo, int quanti) {
    const QDate dal(anno, primo, 1);
    return {dal, dal.isValid() ? dal.addMonths(quanti).addDays(-1) : QDate()};
}

} // namespace

Giorni giorniDi(const Periodo& periodo) {
    switch (periodo.genere) {
    case Periodo::Genere::Tutto:
        break;
    case Periodo::Genere::Mese:
        return mesi(periodo.anno, periodo.quale, 1);
    case Periodo::Genere::Trimestre:
        return mesi(periodo.anno, 3 * periodo.quale - 2, 3);
    case Periodo::Genere::Anno:
        return mesi(periodo.anno, 1, 12);
    case Periodo::Genere::DalAl:
        return periodo.dalAl;
    }
    return {};
}

QString descrizione(const Periodo& periodo) {
    const Giorni giorni = giorniDi(periodo);
    if (giorni.tutti())
        return {};
    switch (periodo.genere) {
    case Periodo::Genere::Tutto:
        return {};
    case Periodo::Genere::Mese:
        return u"%1 %2"_s.arg(nomiMesi().value(periodo.quale - 1)).arg(periodo.anno);
    case Periodo::Genere::Trimestre:
        return u"%1º trimestre %2"_s.arg(periodo.quale).arg(periodo.anno);
    case Periodo::Genere::Anno:
        return u"anno %1"_s.arg(periodo.anno);
    case Periodo::Genere::DalAl:
        break;
    }
    QStringList parti;
    if (giorni.dal.isValid())
        parti.append(u"dal "_s + testoData(giorni.dal));
    if (giorni.al.isValid())
        parti.append((parti.isEmpty() ? u"fino al "_s : u"al "_s) + testoData(giorni.al));
    return parti.join(u' ');
}

QStringList nomiMesi() {
    const QLocale italiano(QLocale::Italian);
    QStringList nomi;
    for (int mese = 1; mese <= 12; ++mese)
        nomi.append(italiano.standaloneMonthName(mese));
    return nomi;
}

} // namespace bor
