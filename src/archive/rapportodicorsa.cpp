#include "archive/rapportodicorsa.h"

#include "common/percorsi.h"
#include "common/rapporto.h"

#include <cerrno>

using namespace Qt::StringLiterals;

namespace bor {

RapportoDiCorsa::RapportoDiCorsa(const Percorsi& percorsi) {
    constexpr int massimo = 99;
    percorsi.creaRadiceC();
    for (int n = 1; n <= massimo; ++n) {
        m_nome = fileRapporto.toString();
        if (n > 1)
            m_nome.insert(m_nome.lastIndexOf(u'.'), QString::number(n));
        const QString file = percorsi.reale(m_nome).value_or(QString());
        // Where no lock can be had, work goes on without.
        if (m_blocco.apri(file + u".lock"_s, Apertura::Esclusiva) || errno != EAGAIN)
            return;
    }
}

} // namespace bor
