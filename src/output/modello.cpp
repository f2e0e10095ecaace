#include "output/modello.h"

#include "archive/archivio.h"
#include "archive/filetesto.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "output/foglio.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int massimoOggetti = 500;
constexpr double larghezzaA4 = 210;
constexpr double altezzaA4 = 297;

QStringView estensione(CodiceModello codice) {
    switch (codice) {
    case CodiceModello::Fattura:
        return u"lkf";
    case CodiceModello::Riepilogo:
        return u"lkr";
    case CodiceModello::Parcella:
        return u"lkp";
    case CodiceModello::ParcellaB:
        return u"lkb";
    case CodiceModello::ParcellaO:
        return u"lko";
    case CodiceModello::ParcellaV:
        return u"lkv";
    case CodiceModello::ParcellaG:
        break;
    }
    return u"lkg";
}

/// Nothing when the file ends before the kind; last numbers that are missing count as 0.
std::optional<OggettoModello> leggiOggetto(FileTesto& file) {
    OggettoModello o;
    o.testo = file.linea();
    o.carattere = file.linea().trimmed();
    const int tipo = valoreIntero(file.campo());
    if (file.finito())
        return std::nullopt;
    using Tipo = OggettoModello::Tipo;
    if (tipo > ordinale(Tipo::Nessuno) && tipo <= ordinale(Tipo::Immagine))
        o.tipo = enumeratore<Tipo>(tipo);
    o.x1 = valore(file.campo());
    o.y1 = valore(file.campo());
    o.x2 = valore(file.campo());
    o.y2 = valore(file.campo());
    o.colore = valoreIntero(file.campo());
    o.misura = valore(file.campo());
    o.grassetto = valore(file.campo()) != 0.0;
    o.corsivo = valore(file.campo()) != 0.0;
    return o;
}

void tieniNelFoglio(OggettoModello& o) {
    o.x1 = std::max(o.x1, 1.0);
    o.y1 = std::max(o.y1, 1.0);
    o.x2 = std::min(o.x2, larghezzaA4);
    o.y2 = std::min(o.y2, altezzaA4);
}

bool riquadroPieno(const OggettoModello& o) {
    return o.tipo == OggettoModello::Tipo::Riquadro && o.misura == 1.0;
}

void disegna(const OggettoModello& o, bool notaCredito, Foglio& foglio) {
    if (o.tipo == OggettoModello::Tipo::Riquadro && o.misura == 0.0)
        foglio.riquadro(o.x1, o.y1, o.x2, o.y2, o.colore, false);
    if (o.tipo == OggettoModello::Tipo::Linea)
        foglio.linea(o.x1, o.y1, o.x2, o.y2, o.colore);
    if (o.tipo == OggettoModello::Tipo::Testo) {
        const bool nota = notaCredito && o.testo.trimmed().toUpper() == u"FATTURA NUMERO";
        foglio.testo(o.x1, o.y1, nota ? u"Nota credito numero"_s : o.testo,
                     {o.carattere, o.misura, o.grassetto, o.corsivo}, o.colore);
    }
}

} // namespace

Modello caricamodello(const Archivio& archivio, CodiceModello codice) {
    FileTesto file(archivio.reale(archivio.borlano(estensione(codice))));
    const int quanti = std::clamp(valoreIntero(file.campo()), 0, massimoOggetti);
    Modello modello;
    for (int i = 0; i < quanti && file.aperto(); ++i) {
        auto oggetto = leggiOggetto(file);
        if (!oggetto)
            break;
        modello.push_back(*std::move(oggetto));
    }
    return modello;
}

void disegnamodello(Modello& modello, bool notaCredito, Foglio& foglio) {
    for (const OggettoModello& o : modello) {
        if (o.tipo == OggettoModello::Tipo::Immagine)
            foglio.immagine(o.x1, o.y1, o.x2, o.y2, o.testo.trimmed());
    }
    std::ranges::for_each(modello, tieniNelFoglio);
    for (const OggettoModello& o : modello) {
        if (riquadroPieno(o))
            foglio.riquadro(o.x1, o.y1, o.x2, o.y2, o.colore, true);
    }
    for (const OggettoModello& o : modello)
        disegna(o, notaCredito, foglio);
}

} // namespace bor
