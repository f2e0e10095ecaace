#include "borverifica/verifica.h"
#include "common/numeri.h"

#include <QDate>

#include <map>
#include <set>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// What ten digits can hold; beyond it is a number only by its exponent.
constexpr double numeroMassimo = 1e10;

struct Serie {
    std::map<QString, QStringList> documenti; ///< documents by their number without leading zeros
    std::set<qint64> numeri;
    std::set<qint64> eliminati; ///< numbers of deleted documents, which explain a gap
};

using ChiaveSerie = std::pair<int, int>; ///< year of issue, VAT register

QString senzaZeri(const QString& numero) {
    qsizetype zeri = 0;
    while (zeri + 1 < numero.size() && numero[zeri] == u'0' && numero[zeri + 1].isDigit())
        ++zeri;
    return maiuscolo(numero.mid(zeri));
}

QString tratto(qint64 primo, qint64 ultimo) {
    return primo == ultimo ? QString::number(primo) : u"da %1 a %2"_s.arg(primo).arg(ultimo);
}

/// The numbers as text, runs drawn together, no longer than a person reads.
QString elenco(const QList<std::pair<qint64, qint64>>& tratti) {
    constexpr qsizetype massimo = 10;
    QStringList testi;
    for (const auto& [primo, ultimo] : tratti.first(std::min(massimo, tratti.size())))
        testi.append(tratto(primo, ultimo));
    QString testo = testi.join(u", "_s);
    if (tratti.size() > massimo)
        testo += u" e altri %1"_s.arg(tratti.size() - massimo);
    return testo;
}

void buchi(const QString& dove, const Serie& serie, Discordanze& trovate) {
    std::set<qint64> presenti = serie.numeri;
    QList<std::pair<qint64, qint64>> eliminati;
    for (const qint64 numero : serie.eliminati) {
        if (presenti.empty() || numero < *serie.numeri.begin() || numero > *serie.numeri.rbegin())
            continue;
        if (presenti.insert(numero).second)
            eliminati.append({numero, numero});
    }
    QList<std::pair<qint64, qint64>> mancanti;
    for (auto prima = presenti.begin(); prima != presenti.end() && std::next(prima) != presenti.end();
         ++prima) {
        if (*std::next(prima) > *prima + 1)
            mancanti.append({*prima + 1, *std::next(prima) - 1});
    }
    if (!mancanti.isEmpty())
        trovate.append({Gravita::Avviso, dove, u"numeri mancanti: "_s + elenco(mancanti)});
    if (!eliminati.isEmpty())
        trovate.append(
            {Gravita::Informazione, dove, u"numeri di documenti eliminati: "_s + elenco(eliminati)});
}

} // namespace

Discordanze verificaNumerazione(const Archivio& archivio) {
    Discordanze trovate;
    std::map<ChiaveSerie, Serie> serie;
    archivio.fte.scorri(1, inUso(archivio, Conta::Fte, archivio.fte), [&](int n, const Fte& fte) {
        const QDate data = QDate::fromString(fte.datadoc.text(), u"yyyyMMdd"_s);
        const bool vivo = fte.annullata != 1;
        if (!data.isValid()) {
            if (vivo)
                trovate.append(
                    {Gravita::Avviso, nomeDocumento(fte, n), u"la data di emissione non è valida"_s});
            return true;
        }
        const int registro = fte.registro >= 0 && fte.registro <= 9 ? int{fte.registro} : 0;
        Serie& sua = serie[{data.year(), registro}];
        const QString numero = puliscitesto(fte.numero.text());
        const double cifra = valore(numero);
        if (cifra >= 1 && cifra < numeroMassimo)
            (vivo ? sua.numeri : sua.eliminati).insert(static_cast<qint64>(cifra));
        if (vivo)
            sua.documenti[senzaZeri(numero)].append(nomeDocumento(fte, n));
        return true;
    });
    for (const auto& [chiave, sua] : serie) {
        const QString dove = u"anno %1, registro IVA %2"_s.arg(chiave.first).arg(chiave.second);
        for (const auto& [numero, documenti] : sua.documenti) {
            if (documenti.size() > 1)
                trovate.append({Gravita::Errore, dove,
                                u"numero %1 usato %2 volte: %3"_s.arg(numero)
                                    .arg(documenti.size())
                                    .arg(documenti.join(u", "_s))});
        }
        buchi(dove, sua, trovate);
    }
    return trovate;
}

} // namespace bor
