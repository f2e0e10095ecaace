#include "document/righeinsospeso.h"

#include <bit>
#include <cmath>

namespace bor {

namespace {

QString nomeFile(double stamp) {
    return QString::number(std::bit_cast<quint64>(stamp), 16) + QStringLiteral(".righe");
}

} // namespace

bool RigheInSospeso::tieni(const Documento& documento) {
    const double stamp = documento.coppia.fte.stamp;
    const RigheSospese righe{documento.ddd, documento.dddp, documento.testata.trasporto,
                             documento.testata.pratica, documento.scorporo};
    m_documenti.insert_or_assign(stamp, righe);
    const QByteArray bytes = codifica(righe);
    return !m_cartella.tiene() || bytes == codifica(RigheSospese()) ||
           m_cartella.scrivi(nomeFile(stamp), bytes);
}

bool RigheInSospeso::riprendi(Documento& documento) const {
    // A garbled stamp that is no number has no place in the order of the others.
    const double stamp = documento.coppia.fte.stamp;
    if (std::isnan(stamp))
        return false;
    std::optional<RigheSospese> righe;
    if (const auto trovato = m_documenti.find(stamp); trovato != m_documenti.end())
        righe = trovato->second;
    else if (const auto bytes = m_cartella.leggi(nomeFile(stamp)))
        righe = decodificaRighe(*bytes);
    if (!righe)
        return false;
    documento.ddd = std::move(righe->ddd);
    documento.dddp = std::move(righe->dddp);
    documento.testata.trasporto = righe->trasporto;
    documento.testata.pratica = righe->pratica;
    documento.scorporo = righe->scorporo;
    return true;
}

void RigheInSospeso::dimentica(const Documento& documento) {
    m_documenti.erase(documento.coppia.fte.stamp);
    m_cartella.elimina(nomeFile(documento.coppia.fte.stamp));
}

} // namespace bor
