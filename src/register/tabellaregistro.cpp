#include "register/tabellaregistro.h"

#include "archive/impostazioni.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

std::optional<double> sommaDi(const SommeElenco& somme, Colonna colonna) {
    switch (colonna) {
    case Colonna::Importo:
        return somme.totale;
    case Colonna::Imponibile:
        return somme.imponibile;
    case Colonna::Imposta:
        return somme.imposta;
    case Colonna::Esente:
        return somme.esente;
    case Colonna::Ritenuta:
        return somme.ritenuta;
    default:
        return std::nullopt;
    }
}

/// The column that has room to say how many documents make up the totals.
std::optional<Colonna> colonnaDelTotale(const std::vector<ColonnaScelta>& colonne) {
    std::optional<Colonna> larga;
    for (const auto& [colonna, caratteri] : colonne) {
        const DatiColonna& dati = datiColonna(colonna);
        if (dati.genere == GenereColonna::Testo && (!larga || dati.caratteri > datiColonna(*larga).caratteri))
            larga = colonna;
    }
    return larga;
}

} // namespace

Tabella tabellaRegistro(const ElencoFatture& elenco, const std::vector<ColonnaScelta>& colonne,
                        const Valuta& valuta) {
    Tabella tabella;
    for (const auto& [colonna, caratteri] : colonne) {
        const DatiColonna& dati = datiColonna(colonna);
        tabella.colonne.push_back({dati.nome.toString(), dati.genere,
                                   caratteri > 0 ? caratteri : dati.caratteri, dati.chiave.toString()});
    }
    tabella.decimali = valuta.euro ? 2 : 0;
    tabella.righe = elenco.quante();
    tabella.riga = [&elenco, colonne](int riga, CelleRiga& celle) {
        for (const ColonnaScelta& scelta : colonne)
            elenco.cella(riga, scelta.colonna, celle);
    };
    tabella.totali = [somme = elenco.somma(), colonne](CelleRiga& celle) {
        const auto larga = colonnaDelTotale(colonne);
        for (const ColonnaScelta& scelta : colonne) {
            if (const auto somma = sommaDi(somme, scelta.colonna))
                celle.importo(*somma);
            else if (scelta.colonna == larga)
                celle.testo(u"Totale di %1 documenti"_s.arg(somme.documenti - somme.eliminati));
            else
                celle.vuota();
        }
    };
    return tabella;
}

QString titoloRegistro(const Archivio& archivio) {
    const QString titolo = u"Registro delle fatture emesse"_s;
    const QString azienda = nomeAzienda(archivio);
    return azienda.isEmpty() ? titolo : titolo + u" - "_s + azienda;
}

QString filtroRegistro(const QStringList& limiti) {
    QString riga = limiti.isEmpty() ? u"Tutti i documenti"_s : limiti.join(u", "_s);
    riga[0] = riga[0].toUpper();
    return riga;
}

} // namespace bor
