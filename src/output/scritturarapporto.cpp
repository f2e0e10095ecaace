#include "output/scritturarapporto.h"

namespace bor {

using enum ComandoRapporto;

ScritturaRapporto::ScritturaRapporto() : m_bytes(firmaRapporto.toByteArray() + "\r\n") {}

void ScritturaRapporto::immagine(double x1, double y1, double x2, double y2, const QString& file) {
    m_bytes += scriviRecord({.comando = Immagine, .x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .testo = file});
}

void ScritturaRapporto::linea(double x1, double y1, double x2, double y2, int colore) {
    m_bytes += scriviRecord(
        {.comando = Linea, .x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .colore = colore, .grassetto = true});
}

void ScritturaRapporto::riquadro(double x1, double y1, double x2, double y2, int colore, bool pieno) {
    m_bytes += scriviRecord(
        {.comando = Riquadro, .x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .colore = colore, .grassetto = pieno});
}

void ScritturaRapporto::testo(double x, double y, const QString& testo, const Carattere& carattere,
                              int colore) {
    m_bytes += scriviRecord({.comando = Testo,
                             .x1 = x,
                             .y1 = y,
                             .dimensione = carattere.punti,
                             .colore = colore,
                             .testo = testo,
                             .carattere = carattere.nome,
                             .grassetto = carattere.grassetto,
                             .corsivo = carattere.corsivo});
}

void ScritturaRapporto::finePagina() {
    m_bytes += scriviRecord({.comando = FinePagina});
}

} // namespace bor
