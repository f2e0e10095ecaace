#include "common/numeri.h"

#include <QVarLengthArray>
#include <algorithm>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace bor {

namespace {

bool cifra(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// Length of the leading number in the text, 0 when it does not begin with one.
qsizetype lunghezzaNumero(QStringView t) {
    qsizetype i = 0;
    qsizetype cifre = 0;
    const auto scorriCifre = [&] {
        while (i < t.size() && cifra(t[i])) {
            ++i;
            ++cifre;
        }
    };
    if (i < t.size() && (t[i] == u'-' || t[i] == u'+'))
        ++i;
    scorriCifre();
    if (i < t.size() && t[i] == u'.') {
        ++i;
        scorriCifre();
    }
    if (cifre == 0)
        return 0;
    if (i + 2 < t.size() && t[i] == u'E' && (t[i + 1] == u'+' || t[i + 1] == u'-') && cifra(t[i + 2])) {
        i += 2;
        scorriCifre();
    }
    return i;
}

/// A finite number as its 15 significant decimal digits: 0.digits times ten to `punto`.
struct Cifre {
    bool negativo = false;
    QVarLengthArray<char, 16> cifre; ///< no trailing zeros; empty for zero
    int punto = 0; ///< how many of the digits stand before the decimal point; may be negative
};

Cifre cifreDi(double x) {
    Cifre risultato;
    if (!std::isfinite(x) || x == 0.0)
        return risultato;
    std::array<char, 40> testo{};
    const auto fine = std::to_chars(testo.data(), testo.data() + testo.size(), std::fabs(x),
                                    std::chars_format::scientific, 14);
    const QByteArrayView scritto(testo.data(), fine.ptr);
    const auto e = scritto.indexOf('e');
    risultato.negativo = x < 0;
    risultato.cifre.append(scritto[0]);
    risultato.cifre.append(scritto.data() + 2, e - 2);
    risultato.punto = scritto.sliced(e + 1).toInt() + 1;
    while (risultato.cifre.last() == '0')
        risultato.cifre.removeLast();
    return risultato;
}

/// Rounds to `decimali` places, half away from zero.
void arrotondaCifre(Cifre& n, int decimali) {
    const qsizetype tenute = qsizetype{n.punto} + decimali;
    if (tenute >= n.cifre.size())
        return;
    const bool inSu = tenute >= 0 && n.cifre[tenute] >= '5';
    n.cifre.resize(std::max<qsizetype>(tenute, 0));
    if (inSu) {
        qsizetype i = n.cifre.size();
        while (i > 0 && n.cifre[i - 1] == '9')
            --i;
        n.cifre.resize(i);
        if (i > 0) {
            ++n.cifre[i - 1];
        } else {
            n.cifre.append('1');
            ++n.punto;
        }
    }
    if (n.cifre.isEmpty())
        n = {};
}

QString interi(const Cifre& n) {
    if (n.punto <= 0 || n.cifre.isEmpty())
        return QStringLiteral("0");
    QString testo(n.punto, u'0');
    for (qsizetype i = 0; i < std::min<qsizetype>(n.punto, n.cifre.size()); ++i)
        testo[i] = QLatin1Char(n.cifre[i]);
    return testo;
}

QString decimali(const Cifre& n) {
    if (n.cifre.isEmpty())
        return {};
    QString testo(std::max(-n.punto, 0), u'0');
    for (qsizetype i = std::max(n.punto, 0); i < n.cifre.size(); ++i)
        testo += QLatin1Char(n.cifre[i]);
    return testo;
}

/// Most numbers of a document: no digit of theirs is beyond the fifteenth.
bool intero(double x) {
    return std::fabs(x) < 1e15 && x == std::trunc(x);
}

QString componi(double x, int posti, QChar punto, bool migliaia) {
    Cifre n = cifreDi(x);
    arrotondaCifre(n, posti);
    QString testo = interi(n);
    if (migliaia) {
        for (qsizetype i = testo.size() - 3; i > 0; i -= 3)
            testo.insert(i, u'.');
    }
    if (posti > 0)
        testo += punto + decimali(n).leftJustified(posti, u'0');
    return n.negativo ? u'-' + testo : testo;
}

} // namespace

double valore(QStringView testo) {
    while (!testo.isEmpty() && testo.front() == u' ')
        testo = testo.sliced(1);
    QByteArray numero = testo.left(lunghezzaNumero(testo)).toLatin1();
    if (numero.startsWith('+'))
        numero.remove(0, 1);
    double x = 0;
    const auto esito = std::from_chars(numero.constData(), numero.constData() + numero.size(), x);
    return esito.ec == std::errc() ? x : 0.0;
}

int valoreIntero(QStringView testo) {
    constexpr double limite = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::trunc(valore(testo)), -limite, limite));
}

double valoretesto(QStringView testo) {
    QString s = testo.trimmed().toString();
    const qsizetype lunghezza = s.size();
    for (qsizetype i = 0; i < lunghezza && i < s.size(); ++i) {
        // The character that moves into the place of a removed point is not looked at again: "1..2" is 1.2.
        if (s[i] == u'.')
            s.remove(i, 1);
        else if (s[i] == u',')
            s[i] = u'.';
    }
    return valore(s);
}

double valorevirgola(QStringView testo) {
    return valore(testo.trimmed().toString().replace(u',', u'.'));
}

QString testoDecimale(double x) {
    if (intero(x))
        return QString::number(static_cast<qint64>(x));
    const Cifre n = cifreDi(x);
    if (n.cifre.isEmpty())
        return QStringLiteral("0");
    QString testo;
    if (n.punto > 15) {
        const QString tutte = QString::fromLatin1(n.cifre.data(), n.cifre.size());
        testo = tutte.left(1) + (tutte.size() > 1 ? u'.' + tutte.mid(1) : QString()) + QStringLiteral("E+") +
                QString::number(n.punto - 1);
    } else {
        const QString frazione = decimali(n);
        testo = interi(n) + (frazione.isEmpty() ? QString() : u'.' + frazione);
    }
    return n.negativo ? u'-' + testo : testo;
}

QString testoCasella(double x) {
    return x == 0.0 ? QString() : testoDecimale(x);
}

QString testoStampa(double x) {
    const QString testo = testoDecimale(x);
    return (testo.startsWith(u'-') ? testo : u' ' + testo) + u' ';
}

QString testoFisso(double x, int decimaliVoluti) {
    if (intero(x) && decimaliVoluti > 0)
        return QString::number(static_cast<qint64>(x)) + u'.' + QString(decimaliVoluti, u'0');
    return componi(x, decimaliVoluti, u'.', false);
}

QString testoItaliano(double x, int decimaliVoluti) {
    return componi(x, decimaliVoluti, u',', true);
}

QString numerotesto(QStringView testo) {
    const double v = valore(testo);
    if (v == 0.0)
        return {};
    return testoItaliano(v, v == parteIntera(v) ? 0 : 2);
}

double parteIntera(double x) {
    return std::floor(x);
}

double tronca(double x) {
    return parteIntera(x * 100) / 100;
}

} // namespace bor
