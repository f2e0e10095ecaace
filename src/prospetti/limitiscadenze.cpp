#include "prospetti/limitiscadenze.h"

#include "common/date.h"

namespace bor {

void LimitiScadenze::cambiaPeriodo(PeriodoScadenze periodo) {
    m_scelto = true;
    metti(periodo);
    m_cambiati();
}

void LimitiScadenze::proponi(bool daOggi) {
    if (!m_scelto)
        metti(daOggi ? PeriodoScadenze::DaOggi : PeriodoScadenze::Tutte);
}

void LimitiScadenze::metti(PeriodoScadenze periodo) {
    m_periodo = periodo;
    if (periodo == PeriodoScadenze::DalAl)
        return;
    const QDate oggi = m_orologio.oggi();
    m_primo.reset();
    m_ultimo.reset();
    if (periodo == PeriodoScadenze::DaOggi) {
        m_primo = oggi;
    } else if (periodo != PeriodoScadenze::Tutte) {
        const int fra = periodo == PeriodoScadenze::MeseProssimo ? 1 : 0;
        m_primo = QDate(oggi.year(), oggi.month(), 1).addMonths(fra);
        m_ultimo = m_primo->addMonths(1).addDays(-1);
    }
    m_dal = m_primo ? testoData(*m_primo) : QString();
    m_al = m_ultimo ? testoData(*m_ultimo) : QString();
}

void LimitiScadenze::cambiaDal(const QString& testo) {
    m_dal = testo;
    m_primo = dataValida(completaData(testo));
    cambiaPeriodo(PeriodoScadenze::DalAl);
}

void LimitiScadenze::cambiaAl(const QString& testo) {
    m_al = testo;
    m_ultimo = dataValida(completaData(testo));
    cambiaPeriodo(PeriodoScadenze::DalAl);
}

} // namespace bor
