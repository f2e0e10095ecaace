#include "output/layout.h"

#include "archive/archivio.h"
#include "archive/filetesto.h"
#include "common/numeri.h"

namespace bor {

namespace {

constexpr std::size_t rigaModello = 99;
constexpr int cifreCoordinata = 3;

/// Where `borlano.pdf` has the folder, and the e-mail's text of each kind of document.
constexpr std::size_t rigaCartella = 1;
constexpr std::size_t rigaFattura = 1;
constexpr std::size_t rigaParcella = 3;
constexpr std::size_t colonnaCartella = 0;
constexpr std::size_t colonnaTesto = 3;

VoceLayout leggiVoce(FileTesto& file) {
    VoceLayout voce;
    voce.posizione = file.linea();
    voce.carattere.punti = valore(file.linea());
    voce.carattere.nome = file.linea().trimmed();
    voce.carattere.grassetto = valore(file.linea()) != 0.0;
    voce.carattere.corsivo = valore(file.linea()) != 0.0;
    voce.colore = valoreIntero(file.linea());
    return voce;
}

VoceLayout vocePredefinita() {
    VoceLayout voce;
    voce.posizione = QStringLiteral("000000");
    voce.carattere.nome = QStringLiteral("Arial");
    return voce;
}

} // namespace

double VoceLayout::x() const {
    return valore(pezzo(posizione, 1, cifreCoordinata));
}

double VoceLayout::y() const {
    return valore(posizione.right(cifreCoordinata));
}

Layout caricaLayout(const Archivio& archivio, bool parcella) {
    Layout layout;
    FileTesto file(archivio.reale(archivio.borlano(parcella ? u"lyp" : u"lyf")));
    for (std::size_t i = 1; i < layout.voci.size(); ++i)
        layout.voci[i] = leggiVoce(file);
    if (!file.aperto() || file.finito())
        layout.voci.fill(vocePredefinita());
    layout.modello = valore(layout.voci[rigaModello].posizione) == 1.0;
    return layout;
}

QString TestiPdf::cartella() const {
    const QString scelta = righe[rigaCartella][colonnaCartella].trimmed();
    return scelta.isEmpty() ? QStringLiteral("\\suprok\\pdf") : scelta;
}

QString TestiPdf::testo(bool parcella) const {
    return righe[parcella ? rigaParcella : rigaFattura][colonnaTesto].trimmed();
}

TestiPdf caricaTestiPdf(const Archivio& archivio) {
    TestiPdf testi;
    FileTesto file(archivio.reale(archivio.borlano(u"pdf")));
    for (std::size_t r = 1; r < testi.righe.size(); ++r) {
        for (QString& cella : testi.righe[r])
            cella = file.linea();
    }
    return testi;
}

} // namespace bor
