#include "borverifica/verifica.h"
#include "common/numeri.h"
#include "document/numeriusati.h"
#include "document/recorddoc.h"

#include <QDate>

#include <map>
#include <set>

using namespace Qt::StringLiterals;

namespace bor::verifica {

namespace {

/// What ten digits can hold; beyond it is a number only by its exponent.
constexpr double numeroMassimo = 1e10;

struct Serie {
    std::map<QString, QStringList> documenti; ///< documents by their number without leading zeros
    std::set<qint64> numeri;
    std::set<qint64> eliminati; ///< numbers of deleted documents, which explain a gap
};

using ChiaveSerie = std::pair<int, int>; ///< year of issue, VAT register

QString tratto(qint64 primo, qint64 ultimo) {
    return primo == ultimo ? QString::number(primo) : u"da %1 a %2"_s.arg(primo).arg(ultimo);
}

void buchi(const QString& dove, const Serie& serie, Discordanze& trovate) {
    std::set<qint64> presenti = serie.numeri;
    QStringList eliminati;
    for (const qint64 numero : serie.eliminati) {
        if (presenti.empty() || numero < *serie.numeri.begin() || numero > *serie.numeri.rbegin())
            continue;
        if (presenti.insert(numero).second)
            eliminati.append(QString::number(numero));
    }
    QStringList mancanti;
    for (auto prima = presenti.begin(); prima != presenti.end() && std::next(prima) != presenti.end();
         ++prima) {
        if (*std::next(prima) > *prima + 1)
            mancanti.append(tratto(*prima + 1, *std::next(prima) - 1));
    }
    if (!mancanti.isEmpty())
        trovate.append({Gravita::Avviso, dove, u"numeri mancanti: "_s + elencoBreve(mancanti),
                        Rimedio::ControllaNumeri});
    if (!eliminati.isEmpty())
        trovate.append({Gravita::Informazione, dove,
                        u"numeri di documenti eliminati: "_s + elencoBreve(eliminati), Rimedio::Nessuno});
}

void doppi(const QString& dove, const Serie& serie, Discordanze& trovate) {
    for (const auto& [numero, documenti] : serie.documenti) {
        if (documenti.size() > 1)
            trovate.append({Gravita::Errore, dove,
                            u"numero %1 usato %2 volte: %3"_s.arg(numero, QString::number(documenti.size()),
                                                                  elencoBreve(documenti)),
                            Rimedio::CambiaNumero});
    }
}

/// What keeps a live document out of the numbering; empty when nothing does.
QString fuoriNumerazione(QDate data, const QString& numero) {
    if (!data.isValid())
        return u"la data di emissione non è valida"_s;
    return numero.isEmpty() ? u"non ha un numero"_s : QString();
}

std::map<ChiaveSerie, Serie> leggiSerie(const Archivio& archivio, Discordanze& trovate) {
    std::map<ChiaveSerie, Serie> serie;
    archivio.fte.scorri(1, inUso(archivio, Conta::Fte, archivio.fte), [&](int n, const Fte& fte) {
        const QDate data = QDate::fromString(fte.datadoc.text(), u"yyyyMMdd"_s);
        const QString numero = puliscitesto(fte.numero.text());
        const bool vivo = fte.annullata != 1;
        if (const QString motivo = fuoriNumerazione(data, numero); !motivo.isEmpty()) {
            if (vivo)
                trovate.append({Gravita::Avviso, nomeDocumento(fte, n), motivo, Rimedio::Correggi});
            return true;
        }
        Serie& sua = serie[{data.year(), registroIva(fte)}];
        const double cifra = valore(numero);
        if (cifra >= 1 && cifra < numeroMassimo)
            (vivo ? sua.numeri : sua.eliminati).insert(static_cast<qint64>(cifra));
        if (vivo)
            sua.documenti[numeroRidotto(numero)].append(nomeDocumento(fte, n));
        return true;
    });
    return serie;
}

} // namespace

Discordanze verificaNumerazione(const Archivio& archivio) {
    Discordanze trovate;
    for (const auto& [chiave, serie] : leggiSerie(archivio, trovate)) {
        const QString dove = u"anno %1, registro IVA %2"_s.arg(chiave.first).arg(chiave.second);
        doppi(dove, serie, trovate);
        buchi(dove, serie, trovate);
    }
    return trovate;
}

} // namespace bor::verifica
