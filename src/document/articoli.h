// The articles as the goods lines find them: the sorted list, the barcode search, the description search.
#pragma once

#include "archive/art.h"
#include "common/posti.h"

#include <QStringList>

#include <cstdint>
#include <vector>

namespace bor {

class Archivio;

enum class OrdineArticoli { Codice, Descrizione };

/// The list of all articles that are not deleted, sorted by the text of its items, upper and lower case
/// alike; items that tie keep the order of the articles. It holds the texts as they are on file and makes an
/// item only when one is asked for.
class ListaArticoli {
public:
    /// Reads the whole article file, twenty records at a time.
    void carica(const Archivio& archivio, OrdineArticoli ordine);

    int quanti() const { return quantiIn(m_ordinati); }
    /// Item at a position from 0: code, " - ", description (the other way round when sorted by it).
    QString testo(int posizione) const;
    /// `art` record of the item at a position from 0.
    int recart(int posizione) const;
    /// Position of the first item that begins with the text, whatever the case of its letters; -1 for none.
    int cerca(QStringView inizio) const;

private:
    static constexpr std::size_t lunghezzaVoce = 15 + 3 + 40;
    using Voce = std::array<char, lunghezzaVoce>;

    struct Articolo {
        Voce voce;
        std::uint16_t recart;
    };

    void aggiungi(const Art& articolo, int recart, OrdineArticoli ordine);
    void ordina();

    std::vector<Articolo> m_articoli;      ///< in file order
    std::vector<std::uint16_t> m_ordinati; ///< indexes of `m_articoli` in list order
};

/// Reads an article, blank beyond the end of the file. False when there is no such record or the article is
/// deleted.
bool leggiarticolo(const Archivio& archivio, int recart, Art& articolo);

/// The lines of text that go with an article, without the empty ones; none for record 0.
QStringList testoAggiuntivo(const Archivio& archivio, int recart);

/// `art` record of a barcode, which must be the whole one; 0 when the index does not have it.
int cercabarcode(const Archivio& archivio, QStringView testo);

/// First `art` record behind `dopo` whose description begins with the text, deleted articles included; 0 for
/// none.
int cercadescrizione(const Archivio& archivio, QStringView testo, int dopo = 0);

} // namespace bor
