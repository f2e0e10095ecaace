#include "document/numeriusati.h"

#include "archive/archivio.h"
#include "common/date.h"
#include "common/testo.h"
#include "document/recorddoc.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr qsizetype cifreAnno = 4;

} // namespace

QString numeroRidotto(const QString& numero) {
    qsizetype zeri = 0;
    while (zeri + 1 < numero.size() && numero[zeri] == u'0' && numero[zeri + 1].isDigit())
        ++zeri;
    return maiuscolo(numero.mid(zeri));
}

NumeriUsati::NumeriUsati(const Archivio& archivio, int escluso) {
    const int quanti = archivio.leggiTot(Conta::Fte).numero;
    m_usati.reserve(static_cast<std::size_t>(std::max(quanti, 0)));
    archivio.fte.scorri(1, quanti, [&](int n, const Fte& fte) {
        if (n != escluso && fte.annullata != 1)
            m_usati.push_back({fte.numero, fte.datadoc, registroIva(fte)});
        return true;
    });
}

QString NumeriUsati::avviso(const Estremi& estremi) {
    const auto data = dataValida(completaData(estremi.data));
    const Domanda domanda{numeroRidotto(estremi.numero.trimmed()), data ? data->year() : 0, estremi.registro};
    if (domanda != m_domanda)
        m_risposta = cerca(domanda);
    m_domanda = domanda;
    return m_risposta;
}

QString NumeriUsati::cerca(const Domanda& domanda) const {
    if (domanda.numero.isEmpty() || domanda.anno == 0)
        return {};
    const QByteArray anno = QByteArray::number(domanda.anno);
    const auto stesso = std::ranges::find_if(m_usati, [&](const Usato& usato) {
        return usato.registro == domanda.registro && usato.data.raw().first(cifreAnno) == anno &&
               numeroRidotto(puliscitesto(usato.numero.text())) == domanda.numero;
    });
    if (stesso == m_usati.end())
        return {};
    return u"Già usato dal documento %1 del %2"_s.arg(puliscitesto(stesso->numero.text()),
                                                      dataDaAnnoMeseGiorno(stesso->data.text()));
}

} // namespace bor
