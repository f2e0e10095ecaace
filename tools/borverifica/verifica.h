// Reads a company's archive and tells what in it does not agree, a check a subject. Nothing is ever written:
// the archive is open for reading only.
#pragma once

#include "archive/archivio.h"

#include <QList>
#include <QString>

namespace bor::verifica {

enum class Gravita {
    Errore,       ///< the archive contradicts itself, or something is lost
    Avviso,       ///< somebody should look at it; it may be wanted
    Informazione, ///< explains a figure, nothing to be done
};

struct Discordanza {
    Gravita gravita = Gravita::Errore;
    QString dove; ///< what it is about, e.g. "fattura n. 12 (record 7)"
    QString motivo;

    /// "ERRORE  fattura n. 12 (record 7): …".
    QString testo() const;
};

using Discordanze = QList<Discordanza>;

/// Each counter of `tot` against the length of the files that it counts.
Discordanze verificaContatori(const Archivio& archivio);

/// Documents: their customer, their detail-lines file, their second half, and the electronic invoice data.
Discordanze verificaDocumenti(const Archivio& archivio);

/// Live documents and live journal movements, by the stamp that ties them.
Discordanze verificaMovimenti(const Archivio& archivio);

/// The running totals of the accounts against the journal. What movements deleted with their document have
/// left there is told apart: deleting takes the amount from the side across, so a total is not the sum of the
/// live movements.
Discordanze verificaConti(const Archivio& archivio);

/// Warehouse rows: their document and article; what the articles say was sold, as information, since other
/// modules of the suite sell too.
Discordanze verificaMagazzino(const Archivio& archivio);

/// Indexes of customer names and barcodes: their order, and entries that point nowhere.
Discordanze verificaIndici(const Archivio& archivio);

/// Document numbers by year of issue and VAT register: numbers used twice, and gaps.
Discordanze verificaNumerazione(const Archivio& archivio);

/// All of them.
Discordanze verificaArchivio(const Archivio& archivio);

/// The files that are there but could not be opened.
QStringList nonLeggibili(const Archivio& archivio);

/// How many documents, movements and so on can be read: the counter, but never more than the file holds nor
/// less than 0.
template <class R>
int inUso(const Archivio& archivio, Conta quale, const RecordFile<R>& file) {
    const qint64 interi = file.lunghezza() / qint64{sizeof(R)};
    return static_cast<int>(std::clamp<qint64>(archivio.leggiTot(quale).numero, 0, interi));
}

/// A stamp that ties a document to its rows and its movement: 0 is a document from before the link.
bool collegato(double stamp);

/// The texts with commas between them, no more than a person reads: "1, 2, 3 e altri 40".
QString elencoBreve(const QStringList& testi);

/// "fattura n. 12 (record 7)", or credit note, or fee bill.
QString nomeDocumento(const Fte& fte, int record);

} // namespace bor::verifica
