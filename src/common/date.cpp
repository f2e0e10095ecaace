#include "common/date.h"

#include "common/numeri.h"
#include "common/testo.h"

#include <QDateTime>
#include <QRegularExpression>

#include <cmath>

namespace bor {

namespace {

constexpr double millisecondiAlGiorno = 86400000.0;

int annoIntero(int anno, qsizetype cifre) {
    if (cifre > 2)
        return anno;
    return anno >= 80 ? 1900 + anno : 2000 + anno;
}

} // namespace

std::optional<QDate> dataValida(QStringView testo) {
    static const QRegularExpression forma(QStringLiteral(R"(\A(\d\d)/(\d\d)/(\d{4})\z)"),
                                          QRegularExpression::DontCaptureOption);
    const QString t = testo.trimmed().toString();
    if (!forma.match(t).hasMatch())
        return std::nullopt;
    const QDate data(valoreIntero(t.mid(6)), valoreIntero(t.mid(3, 2)), valoreIntero(t.left(2)));
    return data.isValid() ? std::optional(data) : std::nullopt;
}

QString testoData(QDate data) {
    return data.toString(QStringLiteral("dd/MM/yyyy"));
}

QString completaData(QStringView testo) {
    static const QRegularExpression conBarre(
        QStringLiteral(R"(\A(\d{1,2})[/.-](\d{1,2})[/.-](\d{2}|\d{4})\z)"));
    static const QRegularExpression soloCifre(QStringLiteral(R"(\A(\d\d)(\d\d)(\d{2}|\d{4})\z)"));
    const QString t = testo.trimmed().toString();
    auto pezzi = conBarre.match(t);
    const bool senzaBarre = !pezzi.hasMatch();
    if (senzaBarre)
        pezzi = soloCifre.match(t);
    if (!pezzi.hasMatch())
        return testo.toString();
    const QString anno = pezzi.captured(3);
    const QDate data(annoIntero(valoreIntero(anno), anno.size()), valoreIntero(pezzi.captured(2)),
                     valoreIntero(pezzi.captured(1)));
    if (data.isValid())
        return testoData(data);
    // On file such a text is cut by position: only with its bars do its digits stay what was typed.
    return senzaBarre && anno.size() > 2 ? pezzi.captured(1) + u'/' + pezzi.captured(2) + u'/' + anno
                                         : testo.toString();
}

bool dataInesistente(QStringView testo) {
    static const QRegularExpression forma(
        QStringLiteral(R"(\A(\d{1,2}[/.-]\d{1,2}[/.-](\d{2}|\d{4})|\d{6}|\d{8})\z)"),
        QRegularExpression::DontCaptureOption);
    const QString t = testo.trimmed().toString();
    return forma.match(t).hasMatch() && !dataValida(completaData(t));
}

QString dataDaAnnoMeseGiorno(QStringView campo) {
    if (puliscitesto(campo).isEmpty())
        return {};
    return pezzo(campo, 7, 2) + u'/' + pezzo(campo, 5, 2) + u'/' + pezzo(campo, 1, 4);
}

QString annoMeseGiorno(QStringView data) {
    return pezzo(data, postoAnno) + pezzo(data, postoMese) + pezzo(data, postoGiorno);
}

QString dataDaGiornoMeseAnno(QStringView campo) {
    if (valore(campo) <= 0)
        return {};
    return pezzo(campo, 1, 2) + u'/' + pezzo(campo, 3, 2) + u'/' + pezzo(campo, 5, 4);
}

QString giornoMeseAnno(QStringView data) {
    return pezzo(data, postoGiorno) + pezzo(data, postoMese) + pezzo(data, postoAnno);
}

double contoGiorni(const QDateTime& momento) {
    static const QDate inizio(1899, 12, 30);
    const QDateTime locale = momento.toLocalTime();
    return static_cast<double>(inizio.daysTo(locale.date())) +
           locale.time().msecsSinceStartOfDay() / millisecondiAlGiorno;
}

double timbro(const QDateTime& momento, int record) {
    // A double that counts days of our time has 37 bits behind the point: some 1590 steps a millisecond, of
    // which the record number takes 1024, as many as fit. Records 1024 apart are never made in one
    // millisecond.
    constexpr int bitFrazione = 37;
    constexpr std::uint64_t passi = 1024;
    const QDateTime locale = momento.toLocalTime();
    const auto millisecondi = static_cast<std::uint64_t>(locale.time().msecsSinceStartOfDay());
    // Rounded up, so that the stamp is never before its millisecond.
    constexpr auto giorno = static_cast<std::uint64_t>(millisecondiAlGiorno);
    const std::uint64_t inizio = ((millisecondi << bitFrazione) + giorno - 1) / giorno;
    const std::uint64_t frazione = inizio + static_cast<std::uint64_t>(record) % passi;
    return std::floor(contoGiorni(momento)) + std::ldexp(static_cast<double>(frazione), -bitFrazione);
}

} // namespace bor
