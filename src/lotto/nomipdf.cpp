#include "lotto/nomipdf.h"

#include "archive/archivio.h"
#include "archive/raffica.h"

#include <unordered_map>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// The documents of a PDF's name, two at the most: one of them is another one's.
struct Proprietari {
    int primo = 0;
    int secondo = 0;

    void aggiungi(int record) { (primo == 0 ? primo : secondo) = record; }
    int altroDa(int record) const { return primo != record ? primo : secondo; }
};
using PerNome = std::unordered_map<QString, Proprietari>;

QString chiave(const QString& pdf) {
    return pdf.trimmed().toLower();
}

/// Of the names stored in the archive, by live documents.
PerNome registrati(const Archivio& archivio) {
    PerNome nomi;
    const int ultimo = archivio.leggiTot(Conta::Fte).numero;
    std::vector<bool> eliminati(static_cast<std::size_t>(std::max(ultimo, 0)) + 1);
    archivio.fte.scorri(1, ultimo, [&](int n, const Fte& fte) {
        eliminati[static_cast<std::size_t>(n)] = fte.annullata == 1;
        return true;
    });
    archivio.f2e.scorri(1, ultimo, [&](int n, const F2e& f2e) {
        if (f2e.marca == F2e::marcaValida && !eliminati[static_cast<std::size_t>(n)])
            if (const QString nome = chiave(f2e.pdf.text()); !nome.isEmpty())
                nomi[nome].aggiungi(n);
        return true;
    });
    return nomi;
}

} // namespace

void escludiPdfAltrui(std::vector<Candidato>& candidati, const std::vector<QString>& nomi,
                      const Archivio& archivio) {
    PerNome proprietari = registrati(archivio);
    for (std::size_t i = 0; i < candidati.size(); ++i) {
        Candidato& c = candidati[i];
        if (!c.dentro())
            continue;
        Proprietari& suoi = proprietari[chiave(nomi[i])];
        const int altro = suoi.altroDa(c.identita.record);
        if (altro == 0) {
            suoi.primo = c.identita.record;
            continue;
        }
        const QString quale = numeroEData(identitaDi(altro, archivio.fte.leggi(altro)));
        c.fuori = u"il file \"%1\" è già il PDF del documento %2"_s.arg(nomi[i], quale);
    }
}

void registraNomi(Archivio& archivio, const std::vector<NomePdf>& nomi,
                  const std::function<void(std::size_t, const QString&)>& rifiuta) {
    Raffica raffica(archivio, u"nomi dei PDF"_s);
    for (const NomePdf& nome : nomi) {
        const int n = nome.documento.record;
        const Fte fte = raffica.leggi(archivio.fte, n);
        if (!stesso(nome.documento, identitaDi(n, fte)) || fte.annullata == 1) {
            rifiuta(nome.riga, u"nel frattempo il documento è cambiato"_s);
            continue;
        }
        F2e f2e = raffica.leggi(archivio.f2e, n);
        if (f2e.marca != F2e::marcaValida)
            f2e = f2eVuoto();
        f2e.pdf.set(nome.pdf);
        raffica.cambia(archivio.f2e, Conta::Fte, n, f2e);
    }
    const EsitoRaffica esito = raffica.esegui();
    if (esito == EsitoRaffica::Riuscita)
        return;
    for (const NomePdf& nome : nomi)
        rifiuta(nome.riga, esito == EsitoRaffica::Occupata ? u"l'archivio è impegnato da un altro computer"_s
                                                           : u"l'archivio non si può scrivere"_s);
}

} // namespace bor
