#include "document/testorighe.h"

#include "common/numeri.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr QStringView inizioFormula = u"=+-@";

bool comeFormula(QStringView testo) {
    return !testo.isEmpty() && inizioFormula.contains(testo.front());
}

QString cella(const QString& testo) {
    const QString pulita = testo.simplified();
    return comeFormula(pulita) ? u'\'' + pulita : pulita;
}

QString daCella(const QString& testo) {
    const QString pulita = testo.simplified();
    return pulita.startsWith(u'\'') && comeFormula(QStringView(pulita).sliced(1)) ? pulita.sliced(1) : pulita;
}

/// Takes the cells of a text one after the other.
class Lettore {
public:
    explicit Lettore(const QString& testo) : m_testo(testo) {}

    bool finito() const { return m_posto >= m_testo.size(); }
    QStringList riga() {
        QStringList celle{prossima()};
        while (!finito() && m_testo[m_posto] == u'\t') {
            ++m_posto;
            celle.append(prossima());
        }
        if (!finito() && m_testo[m_posto] == u'\r')
            ++m_posto;
        if (!finito() && m_testo[m_posto] == u'\n')
            ++m_posto;
        return celle;
    }

private:
    bool allaFine(qsizetype posto) const {
        return posto >= m_testo.size() || QStringView(u"\t\r\n").contains(m_testo[posto]);
    }
    QString prossima() {
        if (const auto traVirgolette = quotata())
            return daCella(*traVirgolette);
        const qsizetype da = m_posto;
        while (!allaFine(m_posto))
            ++m_posto;
        return daCella(m_testo.sliced(da, m_posto - da));
    }
    /// A cell that begins with a quote and has its other one right before the end of the cell; nothing, and
    /// the place stays, for any other: a quote may be one of inches.
    std::optional<QString> quotata() {
        if (finito() || m_testo[m_posto] != u'"')
            return std::nullopt;
        QString dentro;
        for (qsizetype i = m_posto + 1; i < m_testo.size(); ++i) {
            if (m_testo[i] != u'"') {
                dentro += m_testo[i];
            } else if (i + 1 < m_testo.size() && m_testo[i + 1] == u'"') {
                dentro += m_testo[i++];
            } else if (allaFine(i + 1)) {
                m_posto = i + 1;
                return dentro;
            } else {
                return std::nullopt;
            }
        }
        return std::nullopt;
    }

    const QString& m_testo;
    qsizetype m_posto = 0;
};

QString linea(const QStringList& celle) {
    return celle.join(u'\t') + u'\n';
}

} // namespace

bool testoDiRighe(QStringView testo) {
    while (testo.endsWith(u'\n') || testo.endsWith(u'\r'))
        testo.chop(1);
    return testo.contains(u'\t') || testo.contains(u'\n') || testo.contains(u'\r');
}

QList<QStringList> celleDi(const QString& testo) {
    QList<QStringList> righe;
    for (Lettore lettore(testo); !lettore.finito();)
        righe.append(lettore.riga());
    return righe;
}

std::optional<NumeroLetto> leggiNumeroItaliano(const QString& testo) {
    static const QRegularExpression italiano(u"^[+-]?(?:\\d{1,3}(?:\\.\\d{3})+|\\d+)?(?:,\\d+)?$"_s);
    static const QRegularExpression conPunto(u"^[+-]?\\d*\\.\\d+$"_s);
    static const QRegularExpression segni(u"[€%\\x{00A0}\\x{202F}\\x{2009}]"_s);
    constexpr qsizetype cifreMassime = 15;
    QString numero = testo;
    numero = numero.remove(segni).trimmed().replace(QChar(0x2212), u'-');
    qsizetype cifre = 0;
    for (const QChar c : std::as_const(numero))
        cifre += c >= u'0' && c <= u'9' ? 1 : 0;
    if (cifre == 0 || cifre > cifreMassime)
        return std::nullopt;
    if (italiano.match(numero).hasMatch())
        return NumeroLetto{valoretesto(numero), numero.count(u'.') == 1 && !numero.contains(u',')};
    if (conPunto.match(numero).hasMatch())
        return NumeroLetto{valore(numero), false};
    return std::nullopt;
}

QString numeroPerTabella(double x) {
    return testoCasella(x).replace(u'.', u',');
}

QString testoRighe(std::span<const Riga> righe) {
    QString testo;
    for (const Riga& r : righe)
        testo += linea({cella(r.codice), cella(r.descrizione), cella(r.um), numeroPerTabella(r.quantita),
                        numeroPerTabella(r.sconto1), numeroPerTabella(r.sconto2), numeroPerTabella(r.prezzo),
                        r.iva.testo()});
    return testo;
}

QString testoRighe(std::span<const Rigap> righe) {
    QString testo;
    for (const Rigap& r : righe)
        testo += linea({cella(r.data), cella(r.descrizione), numeroPerTabella(r.anticipazioni),
                        numeroPerTabella(r.spese), numeroPerTabella(r.onorari)});
    return testo;
}

} // namespace bor
