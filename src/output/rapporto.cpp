#include "output/rapporto.h"

#include "common/numeri.h"
#include "common/testo.h"

namespace bor {

Rapporto::Rapporto() {
    linea(QStringLiteral("#FILEFORMAT=QLM-RTO"));
}

void Rapporto::immagine(double x1, double y1, double x2, double y2, const QString& file) {
    scrivi({.codice = Codice::Immagine, .x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .testo = file});
}

void Rapporto::linea(double x1, double y1, double x2, double y2, int colore) {
    scrivi(
        {.codice = Codice::Linea, .x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .colore = colore, .grassetto = 1});
}

void Rapporto::riquadro(double x1, double y1, double x2, double y2, int colore, bool pieno) {
    scrivi({.codice = Codice::Riquadro,
            .x1 = x1,
            .y1 = y1,
            .x2 = x2,
            .y2 = y2,
            .colore = colore,
            .grassetto = pieno ? 1 : 0});
}

void Rapporto::testo(double x, double y, const QString& testo, const Carattere& carattere, int colore) {
    scrivi({.codice = Codice::Testo,
            .x1 = x,
            .y1 = y,
            .dimensione = carattere.punti,
            .colore = colore,
            .testo = testo,
            .carattere = carattere.nome,
            .grassetto = carattere.grassetto ? 1 : 0,
            .corsivo = carattere.corsivo ? 1 : 0});
}

void Rapporto::finePagina() {
    constexpr int lineeVuote = 10;
    linea(testoStampa(static_cast<int>(Codice::FinePagina)));
    for (int i = 0; i < lineeVuote; ++i)
        linea({});
}

void Rapporto::scrivi(const Record& record) {
    linea(testoStampa(static_cast<int>(record.codice)));
    for (const double misura : {record.x1, record.y1, record.x2, record.y2, record.dimensione})
        linea(testoStampa(misura));
    linea(testoStampa(record.colore));
    linea(record.testo);
    linea(record.carattere);
    linea(testoStampa(record.grassetto));
    linea(testoStampa(record.corsivo));
}

void Rapporto::linea(const QString& testo) {
    // A line end within a text would put every following line of the file out of its place.
    QByteArray bytes = inCp1252(testo);
    bytes.replace('\r', ' ').replace('\n', ' ');
    m_bytes += bytes + "\r\n";
}

} // namespace bor
