#include "borxpdf/layoutpdf.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor::pdf {
namespace {

constexpr double kLatoMinimo = 20;
constexpr double kLatoMassimo = 2000;

QSizeF formato(const QString& nome) {
    static const std::array<std::pair<QLatin1StringView, QSizeF>, 3> formati{{
        {"a3"_L1, {297, 420}},
        {"a5"_L1, {148, 210}},
        {"lettera"_L1, {215.9, 279.4}},
    }};
    const auto trovato = std::find_if(formati.begin(), formati.end(),
                                      [&](const auto& f) { return nome.toLower() == f.first; });
    return trovato == formati.end() ? QSizeF(210, 297) : trovato->second;
}

bool usabile(const QSizeF& lati) {
    return std::min(lati.width(), lati.height()) >= kLatoMinimo &&
           std::max(lati.width(), lati.height()) <= kLatoMassimo;
}

} // namespace

LayoutPdf::LayoutPdf(const FileIni& ini)
    : titolo(ini.testo(u"documento/titolo"_s)), autore(ini.testo(u"documento/autore"_s)),
      oggetto(ini.testo(u"posta/oggetto"_s)), testo(ini.testo(u"posta/testo"_s)) {
    const QSizeF nominale = formato(ini.testo(u"pagina/formato"_s));
    const QSizeF scelto(ini.numero(u"pagina/larghezza"_s, nominale.width()),
                        ini.numero(u"pagina/altezza"_s, nominale.height()));
    if (usabile(scelto))
        foglio = scelto;
    taglioSinistra = std::max(0.0, ini.numero(u"pagina/taglio_sinistra"_s, 0));
    taglioAlto = std::max(0.0, ini.numero(u"pagina/taglio_alto"_s, 0));
    taglioDestra = std::max(0.0, ini.numero(u"pagina/taglio_destra"_s, 0));
    taglioBasso = std::max(0.0, ini.numero(u"pagina/taglio_basso"_s, 0));
    if (!usabile(pagina()))
        taglioSinistra = taglioAlto = taglioDestra = taglioBasso = 0;
}

QSizeF LayoutPdf::pagina() const {
    return {foglio.width() - taglioSinistra - taglioDestra, foglio.height() - taglioAlto - taglioBasso};
}

QString nomeBreve(const QString& percorsoPdf) {
    QString nome = percorsoPdf.sliced(percorsoPdf.lastIndexOf(u'\\') + 1);
    if (nome.endsWith(".pdf"_L1, Qt::CaseInsensitive))
        nome.chop(4);
    return nome;
}

QString conNumero(QString testo, const QString& nomePdf) {
    return conNumeri(std::move(testo), {nomePdf});
}

QString conNumeri(QString testo, const QStringList& nomiPdf) {
    QStringList numeri;
    for (const QString& nome : nomiPdf) {
        QString numero;
        for (const QChar c : nomeBreve(nome))
            if (c.isDigit())
                numero += c;
        numeri.append(numero);
    }
    return testo.replace(u"{numero}"_s, numeri.join(u", "_s)).replace(u"\\n"_s, u"\n"_s);
}

} // namespace bor::pdf
