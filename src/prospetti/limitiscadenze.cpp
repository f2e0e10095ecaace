#include "prospetti/limitiscadenze.h"

#include "common/date.h"

using namespace Qt::StringLiterals;

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
    Giorni giorni;
    if (periodo == PeriodoScadenze::DaOggi) {
        giorni.dal = oggi;
    } else if (periodo != PeriodoScadenze::Tutte) {
        const int fra = periodo == PeriodoScadenze::MeseProssimo ? 1 : 0;
        giorni.dal = QDate(oggi.year(), oggi.month(), 1).addMonths(fra);
        giorni.al = giorni.dal.addMonths(1).addDays(-1);
    }
    limita(giorni);
}

void LimitiScadenze::limita(const Giorni& giorni) {
    const auto limite = [](QDate giorno) { return giorno.isValid() ? std::optional(giorno) : std::nullopt; };
    m_primo = limite(giorni.dal);
    m_ultimo = limite(giorni.al);
    m_dal = m_primo ? testoData(*m_primo) : QString();
    m_al = m_ultimo ? testoData(*m_ultimo) : QString();
}

void LimitiScadenze::riprendi(PeriodoScadenze periodo, const Giorni& giorni) {
    m_scelto = true;
    metti(periodo);
    if (periodo == PeriodoScadenze::DalAl)
        limita(giorni);
}

void LimitiScadenze::cambiaDal(const QString& testo) {
    m_dal = testo;
    m_primo = dataValida(completaData(testo));
    cambiaPeriodo(PeriodoScadenze::DalAl);
}

QStringList LimitiScadenze::errati() const {
    QStringList caselle;
    if (!m_primo && !m_dal.isEmpty())
        caselle.append(u"Dal"_s);
    if (!m_ultimo && !m_al.isEmpty())
        caselle.append(u"Al"_s);
    return caselle;
}

void LimitiScadenze::cambiaAl(const QString& testo) {
    m_al = testo;
    m_ultimo = dataValida(completaData(testo));
    cambiaPeriodo(PeriodoScadenze::DalAl);
}

} // namespace bor
