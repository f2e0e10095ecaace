#include "borcopia/appunti.h"

#include "archive/disco.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace bor::copia {

namespace {

/// Nobody's notes are longer.
constexpr qint64 massimo = 1 << 16;

QString unaLinea(QString testo) {
    return testo.replace(u'\n', u' ').replace(u'\r', u' ');
}

} // namespace

QByteArray Appunti::testo() const {
    const QString testo = u"azienda=%1\nnome=%2\nunita=%3\ncomputer=%4\nfile=%5\nquando=%6\nerrori=%7\n"_s;
    return testo
        .arg(QString::number(azienda), unaLinea(nome), unaLinea(unita), unaLinea(computer), unaLinea(file),
             quando.toUTC().toString(Qt::ISODate), QString::number(errori))
        .toUtf8();
}

std::optional<Appunti> Appunti::daTesto(QByteArrayView testo) {
    QMap<QString, QString> valori;
    const QString linee = QString::fromUtf8(testo);
    for (const QStringView linea : QStringView(linee).split(u'\n')) {
        const qsizetype uguale = linea.indexOf(u'=');
        if (uguale > 0)
            valori.insert(linea.first(uguale).toString(), linea.sliced(uguale + 1).toString());
    }
    bool numero = false;
    Appunti a{valori.value(u"azienda"_s).toInt(&numero),
              valori.value(u"nome"_s),
              valori.value(u"unita"_s),
              valori.value(u"computer"_s),
              valori.value(u"file"_s),
              QDateTime::fromString(valori.value(u"quando"_s), Qt::ISODate),
              valori.value(u"errori"_s).toInt()};
    const bool valide = numero && a.azienda >= 0 && a.azienda <= 999 && a.quando.isValid();
    return valide ? std::optional(std::move(a)) : std::nullopt;
}

std::optional<Appunti> ultimaCopia(const QString& cartellaAzienda) {
    QFile file(cartellaAzienda + u'/' + nomeUltimaCopia.toString());
    return file.open(QIODevice::ReadOnly) ? Appunti::daTesto(file.read(massimo)) : std::nullopt;
}

bool segnaUltimaCopia(const QString& cartellaAzienda, const Appunti& appunti) {
    return Disco().scriviFile(cartellaAzienda + u'/' + nomeUltimaCopia.toString(), appunti.testo());
}

} // namespace bor::copia
