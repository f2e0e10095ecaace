#include "common/rapporto.h"

#include "common/numeri.h"
#include "common/posti.h"
#include "common/testo.h"

#include <cmath>

namespace bor {

namespace {

/// What stands in each line of a record, from 0.
struct Posto {
    enum : std::size_t { Comando, X1, Y1, X2, Y2, Dimensione, Colore, Testo, Carattere, Grassetto, Corsivo };
};
static_assert(Posto::Corsivo + 1 == lineeRecordRapporto);

constexpr double colori = 0x1000000;

QByteArray linea(const QString& testo) {
    QByteArray bytes = inCp1252(testo);
    bytes.replace('\r', ' ').replace('\n', ' ');
    return bytes + "\r\n";
}

std::optional<double> numero(QByteArrayView linea) {
    linea = linea.trimmed();
    if (linea.isEmpty())
        return 0.0;
    bool letto = false;
    const double valore = linea.toDouble(&letto);
    if (!letto || !std::isfinite(valore))
        return std::nullopt;
    return valore;
}

std::optional<ComandoRapporto> comando(QByteArrayView linea, double valore) {
    using enum ComandoRapporto;
    if (linea.trimmed().isEmpty())
        return std::nullopt;
    for (const ComandoRapporto c : {Immagine, Linea, Riquadro, Testo, FinePagina})
        if (valore == ordinale(c))
            return c;
    return std::nullopt;
}

} // namespace

QByteArray scriviRecord(const RecordRapporto& record) {
    QByteArray bytes = linea(testoStampa(ordinale(record.comando)));
    if (record.comando == ComandoRapporto::FinePagina)
        return bytes + QByteArray("\r\n").repeated(lineeRecordRapporto - 1);
    for (const double misura : {record.x1, record.y1, record.x2, record.y2, record.dimensione})
        bytes += linea(testoStampa(misura));
    return bytes + linea(testoStampa(record.colore)) + linea(record.testo) + linea(record.carattere) +
           linea(testoStampa(record.grassetto ? 1 : 0)) + linea(testoStampa(record.corsivo ? 1 : 0));
}

std::optional<RecordRapporto> leggiRecord(const std::array<QByteArrayView, lineeRecordRapporto>& linee) {
    std::array<double, lineeRecordRapporto> n{};
    for (std::size_t i = 0; i < linee.size(); ++i) {
        if (i == Posto::Testo || i == Posto::Carattere)
            continue;
        const auto valore = numero(linee[i]);
        if (!valore)
            return std::nullopt;
        n[i] = *valore;
    }
    const auto letto = comando(linee[Posto::Comando], n[Posto::Comando]);
    if (!letto)
        return std::nullopt;
    return RecordRapporto{
        .comando = *letto,
        .x1 = n[Posto::X1],
        .y1 = n[Posto::Y1],
        .x2 = n[Posto::X2],
        .y2 = n[Posto::Y2],
        .dimensione = n[Posto::Dimensione],
        .colore = n[Posto::Colore] >= 0 && n[Posto::Colore] < colori ? static_cast<int>(n[Posto::Colore]) : 0,
        .testo = daCp1252(linee[Posto::Testo]),
        .carattere = daCp1252(linee[Posto::Carattere]),
        .grassetto = n[Posto::Grassetto] != 0.0,
        .corsivo = n[Posto::Corsivo] != 0.0};
}

} // namespace bor
