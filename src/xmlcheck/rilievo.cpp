#include "xmlcheck/rilievo.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

QString scartoDi(const Rilievo& rilievo) {
    if (rilievo.codice.isEmpty())
        return {};
    const bool avviso = rilievo.gravita == Gravita::Avviso;
    return (avviso ? u"Possibile scarto %1."_s : u"Scarto %1."_s).arg(rilievo.codice);
}

QString testoRilievo(const Rilievo& rilievo) {
    QString testo = rilievo.gravita == Gravita::Avviso ? u"Avviso. "_s : QString();
    if (rilievo.riga > 0)
        testo += u"Riga %1: "_s.arg(rilievo.riga);
    testo += (rilievo.elemento.isEmpty() ? u"file"_s : rilievo.elemento) + u'\n';
    if (!rilievo.valore.isEmpty())
        testo += u"  Valore: "_s + rilievo.valore + u'\n';
    if (!rilievo.codice.isEmpty())
        testo += u"  "_s + scartoDi(rilievo) + u'\n';
    return testo + u"  "_s + rilievo.motivo + u"\n  "_s + rilievo.rimedio + u'\n';
}

QString contoRilievi(const std::vector<Rilievo>& rilievi) {
    const auto avvisi = std::ranges::count(rilievi, Gravita::Avviso, &Rilievo::gravita);
    const auto errori = std::ssize(rilievi) - avvisi;
    QStringList parti;
    if (errori > 0)
        parti << (errori == 1 ? u"1 rilievo"_s : u"%1 rilievi"_s.arg(errori));
    if (avvisi > 0)
        parti << (avvisi == 1 ? u"1 avviso"_s : u"%1 avvisi"_s.arg(avvisi));
    return parti.isEmpty() ? u"nessun rilievo"_s : parti.join(u", "_s);
}

} // namespace bor
