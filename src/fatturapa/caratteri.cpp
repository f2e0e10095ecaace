#include "fatturapa/caratteri.h"

#include <array>
#include <utility>

namespace bor {

namespace {

constexpr auto sostituzioni = std::to_array<std::pair<char16_t, QStringView>>({
    {u'€', u"EUR"}, {u'‘', u"'"},    {u'’', u"'"},  {u'‚', u"'"},  {u'‹', u"'"},          {u'›', u"'"},
    {u'“', u"\""},  {u'”', u"\""},   {u'„', u"\""}, {u'–', u"-"},  {u'—', u"-"},          {u'•', u"-"},
    {u'…', u"..."}, {u'™', u"(TM)"}, {u'Œ', u"OE"}, {u'œ', u"oe"}, {u'Š', u"S"},          {u'š', u"s"},
    {u'Ž', u"Z"},   {u'ž', u"z"},    {u'Ÿ', u"Y"},  {u'ƒ', u"f"},  {u'‰', u" per mille"}, {u'ˆ', u"^"},
    {u'˜', u"~"},   {u'†', u"+"},    {u'‡', u"+"},
});

constexpr auto inAscii = std::to_array<std::pair<char16_t, QStringView>>({
    {u'ß', u"ss"},
    {u'æ', u"ae"},
    {u'Æ', u"AE"},
    {u'ø', u"o"},
    {u'Ø', u"O"},
    {u'«', u"\""},
    {u'»', u"\""},
    {u'£', u"GBP"},
    {u'´', u"'"},
    {u'×', u"x"},
});

template <std::size_t N>
const QStringView* cerca(const std::array<std::pair<char16_t, QStringView>, N>& tabella, QChar c) {
    for (const auto& [da, a] : tabella)
        if (c == QChar(da))
            return &a;
    return nullptr;
}

/// The characters up to `ultimo` of the decomposed form: "ě" gives "e", a sign without likeness nothing.
QString somigliante(QChar c, char16_t ultimo) {
    QString base;
    for (const QChar parte : QString(c).normalized(QString::NormalizationForm_KD))
        if (parte <= QChar(ultimo))
            base += parte;
    return base;
}

bool controllo(QChar c) {
    return c < u' ' || (c >= QChar(0x7F) && c <= QChar(0x9F));
}

} // namespace

QString testoLatino(QStringView testo) {
    QString latino;
    latino.reserve(testo.size());
    for (const QChar c : testo) {
        if (controllo(c))
            latino += u' ';
        else if (c <= QChar(0xFF))
            latino += c;
        else if (const QStringView* trovato = cerca(sostituzioni, c))
            latino += *trovato;
        else
            latino += somigliante(c, 0xFF);
    }
    return latino.simplified();
}

QString testoAscii(QStringView testo) {
    QString ascii;
    for (const QChar c : testoLatino(testo)) {
        if (c < QChar(0x7F))
            ascii += c;
        else if (const QStringView* trovato = cerca(inAscii, c))
            ascii += *trovato;
        else
            ascii += somigliante(c, 0x7E);
    }
    return ascii.simplified();
}

} // namespace bor
