#include "common/bordata.h"

#include "common/date.h"

namespace bor {

void Bordata::prepara(const QString& testo) {
    m_sessione.datadialogo = completaData(testo);
    m_sessione.datariserva = testoData(m_orologio.oggi());
    m_sessione.datascelta.clear();
}

QDate Bordata::iniziale() const {
    const auto data = dataValida(m_sessione.datadialogo);
    return data ? *data : dataValida(m_sessione.datariserva).value_or(m_orologio.oggi());
}

void Bordata::scegli(QDate giorno) {
    m_sessione.datascelta = testoData(giorno);
}

const QString& Bordata::scelta() const {
    return m_sessione.datascelta;
}

} // namespace bor
