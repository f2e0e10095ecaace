// Reads a company's archive and tells what in it does not agree, a check a subject. Nothing is ever written:
// the archive is open for reading only.
#pragma once

#include "archive/archivio.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

namespace bor::verifica {

enum class Gravita {
    Errore,       ///< the archive contradicts itself, or something is lost
    Avviso,       ///< somebody should look at it; it may be wanted
    Informazione, ///< explains a figure, nothing to be done
};

/// What is to be done about it.
enum class Rimedio {
    Nessuno,
    Correggi,
    Registra,
    ScegliCliente,
    CambiaNumero,
    ControllaNumeri,
    RegistraRighe,
    SeparaRighe,
    MettiDaParte,
    RifaiFattura,
    RifaiMovimento,
    ControllaMovimento,
    RiordinaMovimenti,
    RifaiProgressivi,
    ControllaRigaMagazzino,
    ControllaArticolo,
    RicostruisciIndici,
    AvviaProgramma,
    ConfrontaDato,
    CorreggiContatore,
    RipristinaCopia,
    Assistenza
};

/// One sentence for whoever looks after the archive.
QString testo(Rimedio rimedio);

struct Discordanza {
    Gravita gravita = Gravita::Errore;
    QString dove; ///< what it is about, e.g. "fattura n. 12 (record 7)"
    QString motivo;
    Rimedio rimedio = Rimedio::Nessuno;

    /// "ERRORE  fattura n. 12 (record 7): …".
    QString testo() const;
    /// One object in UTF-8 without a line end: `gravita` ("errore", "avviso", "info"), `dove`, `motivo`,
    /// `rimedio`.
    QByteArray json() const;
};

using Discordanze = QList<Discordanza>;

/// How many of them there are.
int quante(const Discordanze& discordanze, Gravita gravita);

/// Each counter of `tot` against the length of the files that it counts.
Discordanze verificaContatori(const Archivio& archivio);

/// The files of the company's folder: their lengths by their names.
using ElencoFile = QHash<QString, qint64>;
ElencoFile elencoFile(const Archivio& archivio);

/// Documents: their customer, their detail-lines file, their second half, and the electronic invoice data.
/// Lines files that no live document has, and the counter of their numbers.
Discordanze verificaDocumenti(const Archivio& archivio, const ElencoFile& file);

/// Live documents and live journal movements, by the stamp that ties them.
Discordanze verificaMovimenti(const Archivio& archivio);

/// The running totals of the accounts against the journal. What movements deleted with their document have
/// left there is told apart: deleting takes the amount from the side across, so a total is not the sum of the
/// live movements.
Discordanze verificaConti(const Archivio& archivio);

/// Warehouse rows: their document and article; stock and quantity sold of the articles. These are errors
/// where the rows begin with a load, a row of no document that adds to the stock; without one, other modules
/// of the suite may have moved the article, and a difference is information.
Discordanze verificaMagazzino(const Archivio& archivio);

/// What an interrupted program left: a recovery log that is not empty, files half written.
Discordanze verificaResti(const Archivio& archivio, const ElencoFile& file);

/// Indexes of customer names and barcodes: their order, and entries that point nowhere.
Discordanze verificaIndici(const Archivio& archivio);

/// Document numbers by year of issue and VAT register: numbers used twice, and gaps.
Discordanze verificaNumerazione(const Archivio& archivio);

/// All of them.
Discordanze verificaArchivio(const Archivio& archivio);
/// The same where only the files `borlano.` are in the folder, and `file` tells which others belong there.
Discordanze verificaArchivio(const Archivio& archivio, const ElencoFile& file);

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
