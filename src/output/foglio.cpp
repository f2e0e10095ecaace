#include "output/foglio.h"

#include <algorithm>

namespace bor {

namespace {

/// What is drawn has at least two points; the report keeps the size as it was set.
Carattere disegnato(Carattere carattere) {
    carattere.punti = std::max(carattere.punti, 2.0);
    return carattere;
}

} // namespace

/// A bare file name is one of the company's folder, as the PDF tool has it.
QString Foglio::percorso(const QString& file) const {
    const Archivio& archivio = m_contesto.archivio;
    return archivio.reale(file.contains(u'\\') ? file : archivio.file(file));
}

Foglio::Foglio(const Contesto& contesto, Stampante& stampante, Uscita uscita, const QString& titolo)
    : m_contesto(contesto), m_stampante(stampante), m_uscita(uscita),
      m_stampa(uscita != Uscita::SoloRapporto && stampante.inizia(titolo)) {}

void Foglio::testo(double x, double y, const QString& testo, const Carattere& carattere, int colore) {
    if (m_stampa && !testo.isEmpty())
        m_stampante.testo(x, y, testo, disegnato(carattere), colore);
    m_rapporto.testo(x, y, testo, carattere, colore);
}

void Foglio::testoADestra(double x, double y, const QString& t, const Carattere& carattere, int colore) {
    testo(x - m_stampante.larghezza(t, disegnato(carattere)), y, t, carattere, colore);
}

void Foglio::linea(double x1, double y1, double x2, double y2, int colore) {
    if (m_stampa)
        m_stampante.linea(x1, y1, x2, y2, colore);
    m_rapporto.linea(x1, y1, x2, y2, colore);
}

void Foglio::riquadro(double x1, double y1, double x2, double y2, int colore, bool pieno) {
    if (m_stampa)
        m_stampante.riquadro(x1, y1, x2, y2, colore, pieno);
    m_rapporto.riquadro(x1, y1, x2, y2, colore, pieno);
}

void Foglio::immagine(double x1, double y1, double x2, double y2, const QString& file) {
    if (m_stampa)
        m_stampante.immagine(x1, y1, x2, y2, percorso(file));
    m_rapporto.immagine(x1, y1, x2, y2, file);
}

void Foglio::finePagina() {
    if (m_stampa)
        m_stampante.nuovaPagina();
    m_rapporto.finePagina();
}

bool Foglio::termina() {
    if (m_stampa)
        m_stampante.termina();
    if (m_uscita == Uscita::SoloStampante)
        return true;
    Archivio& archivio = m_contesto.archivio;
    return archivio.disco().scriviFile(archivio.reale(m_contesto.rapporto), m_rapporto.bytes());
}

} // namespace bor
