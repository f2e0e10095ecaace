#include "register/cercafatture.h"

#include "common/date.h"
#include "common/posti.h"
#include "common/testo.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr qsizetype cifreData = 8;

/// The characters between the blanks and NULs around them.
QByteArrayView senzaVuoti(QByteArrayView testo) {
    const auto vuoto = [](char c) { return c == ' ' || c == '\0'; };
    while (!testo.isEmpty() && vuoto(testo.front()))
        testo = testo.sliced(1);
    while (!testo.isEmpty() && vuoto(testo.back()))
        testo.chop(1);
    return testo;
}

char grande(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// Number, bar and year of a document.
class NumeroEAnno {
public:
    NumeroEAnno(QByteArrayView numero, QByteArrayView datadoc) {
        std::ranges::for_each(senzaVuoti(numero), [this](char c) { metti(grande(c)); });
        metti('/');
        std::ranges::for_each(datadoc.first(4), [this](char c) { metti(c); });
    }
    bool comincia(QByteArrayView testo) const {
        return QByteArrayView(m_testo.data(), m_lunghezza).startsWith(testo);
    }

private:
    void metti(char c) {
        if (m_lunghezza < std::ssize(m_testo))
            elemento(m_testo, m_lunghezza++) = c;
    }

    std::array<char, 16> m_testo{};
    qsizetype m_lunghezza = 0;
};

} // namespace

CercaFatture::CercaFatture(const QString& testo)
    : m_nome(piega(testo.trimmed())), m_testo(inCp1252(testo.trimmed())), m_importo(leggiImporto(testo)) {
    std::ranges::transform(m_testo, m_testo.begin(), grande);
    const QString data = completaData(testo.trimmed());
    if (data.contains(u'/'))
        m_data = data.toLatin1();
}

std::optional<CercaFatture::Importo> CercaFatture::leggiImporto(const QString& testo) {
    static const QRegularExpression migliaia(u"\\A\\d{1,3}(\\.\\d{3})+(,|\\z)"_s);
    static const QRegularExpression forma(u"\\A\\d{1,12}([.,]\\d{0,2})?\\z"_s);
    QString importo = testo;
    importo.remove(u'€').remove(u' ');
    const bool negativo = importo.startsWith(u'-');
    if (negativo)
        importo.remove(0, 1);
    if (migliaia.match(importo).hasMatch())
        importo.remove(u'.');
    if (!forma.match(importo).hasMatch())
        return std::nullopt;
    const qsizetype virgola = std::max(importo.indexOf(u','), importo.indexOf(u'.'));
    const qsizetype decimali = virgola < 0 ? 0 : importo.size() - virgola - 1;
    importo.remove(u',').remove(u'.');
    return Importo{importo.toLongLong(), static_cast<int>(decimali), negativo};
}

bool CercaFatture::trovaNome(const QString& nome) const {
    return piega(nome).contains(m_nome);
}

bool CercaFatture::trovaDocumento(QByteArrayView numero, QByteArrayView datareg, QByteArrayView datadoc,
                                  double totale) const {
    return NumeroEAnno(numero, datadoc).comincia(m_testo) || trovaData(datadoc) || trovaData(datareg) ||
           trovaImporto(totale);
}

bool CercaFatture::trovaData(QByteArrayView data) const {
    if (m_data.isEmpty() || data.size() < cifreData)
        return false;
    const std::array<char, 10> scritta = {data[6], data[7], '/',     data[4], data[5],
                                          '/',     data[0], data[1], data[2], data[3]};
    return QByteArrayView(scritta).startsWith(m_data);
}

bool CercaFatture::trovaImporto(double totale) const {
    constexpr double massimo = 1e15;
    if (!m_importo || !(std::abs(totale) < massimo) || (m_importo->negativo && totale >= 0))
        return false;
    qint64 cifre = std::llround(std::abs(totale) * 100);
    for (int d = 2; d > m_importo->decimali; --d)
        cifre /= 10;
    return cifre == m_importo->cifre && totale != 0.0;
}

} // namespace bor
