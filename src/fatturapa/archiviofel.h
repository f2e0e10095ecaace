// The program's own data for today's electronic invoice: the text file `borlano.fel` in the company's folder,
// whose form docs/fatturapa.md tells. Nothing of it stands in the suite's records.
#pragma once

#include "archive/archivio.h"
#include "fatturapa/datifel.h"
#include "fatturapa/filefel.h"

#include <functional>
#include <span>

namespace bor {

class ArchivioFel {
public:
    enum class Stato { Letto, Assente, Illeggibile };

    explicit ArchivioFel(Archivio& archivio) : m_archivio(archivio) {}

    /// Reads the file anew. `Illeggibile`: it is there, but was not read; every save then refuses.
    Stato leggi();

    AziendaFel azienda() const;
    NatureFel nature() const;
    /// The customer's data, kept under record number and VAT number (tax code where he has none). Those of
    /// another customer who now has this record are not taken; one who changed his record is found by number.
    ClienteFel cliente(int record, const Cli& cli) const;
    DocumentoFel documento(const Fte& fte) const;

    /// Each reads the file again, changes it and replaces it whole, under a lock. False when that failed: the
    /// file is then as it was.
    bool salva(const AziendaFel& azienda);
    bool salva(const NatureFel& nature);
    bool salva(int record, const Cli& cli, const ClienteFel& cliente);
    bool salva(const Fte& fte, const DocumentoFel& documento);
    /// The invoice that a credit note corrects; whatever else is kept of the document stays.
    bool collega(const Fte& fte, const QString& numero, const QString& data);

    using Occupato = std::function<bool(const QString&)>;
    /// The progressives of the documents' files, in their order: of each the one it has, or the next one,
    /// five characters of base 36. All are stored in one write before any is used, so that no crash gives one
    /// out twice. `occupato` tells of a progressive whose file exists already. Empty where none is left, and
    /// all of them when they could not be stored.
    QStringList progressivi(std::span<const Fte> documenti, const Occupato& occupato);
    QString progressivo(const Fte& fte, const Occupato& occupato);
    /// The receiving system has refused the document's file. It takes no name twice, also of a refused file:
    /// the document goes without one until the next is given out. False when that could not be stored.
    bool scarta(const Fte& fte);

private:
    bool cambia(const std::function<bool(FileFel&)>& come);
    QString sezioneCliente(int record, const Cli& cli) const;
    QString percorso() const;
    void usa(FileFel file);

    Archivio& m_archivio;
    FileFel m_file;
    QHash<QString, QString> m_clienti; ///< first section of each VAT number
};

/// The progressive that follows, "0000Z" to "00010"; empty behind "ZZZZZ". Any text that is no progressive
/// counts as the one before the first.
QString prossimoProgressivo(QStringView ultimo);

} // namespace bor
