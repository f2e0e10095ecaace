#include "common/comandopdf.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr QStringView opzioneAnteprima = u"--anteprima";

} // namespace

QStringList ComandoPdf::argomenti() const {
    if (anteprima)
        return {opzioneAnteprima.toString(), layout + u',' + rapporto};
    QStringList parti = {layout, rapporto, pdf, indirizzo};
    if (!testo.isEmpty())
        parti.append(testo);
    return {parti.join(u',')};
}

std::optional<ComandoPdf> ComandoPdf::leggi(const QStringList& argomenti) {
    QStringList parole = argomenti;
    ComandoPdf comando;
    comando.anteprima = !parole.isEmpty() && parole.first() == opzioneAnteprima;
    if (comando.anteprima)
        parole.removeFirst();
    const QString tutto = parole.join(u' ');
    const auto parte = [&](int i) { return tutto.section(u',', i, i).trimmed(); };
    comando.layout = parte(0);
    comando.rapporto = parte(1);
    comando.pdf = parte(2);
    comando.indirizzo = parte(3);
    comando.testo = tutto.section(u',', 4).trimmed();
    const qsizetype parti = tutto.count(u',') + 1;
    if (comando.rapporto.isEmpty() || (!comando.anteprima && (parti < 4 || comando.pdf.isEmpty())))
        return std::nullopt;
    return comando;
}

} // namespace bor
