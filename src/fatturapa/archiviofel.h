// The program's own data for today's electronic invoice: the text file `borlano.fel` in the company's folder,
// whose form docs/fatturapa.md tells. Nothing of it stands in the suite's records.
#pragma once

#include "archive/archivio.h"
#include "fatturapa/datifel.h"
#include "fatturapa/filefel.h"

#include <functional>

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

    /// The progressive of the document's file: the one it has, or the next one, five characters of base 36,
    /// stored before it is used so that no crash gives it out twice. `occupato` tells of a progressive whose
    /// file exists already. Empty when it could not be stored or none is left.
    QString progressivo(const Fte& fte, const std::function<bool(const QString&)>& occupato);

private:
    bool cambia(const std::function<bool(FileFel&)>& come);
    QString sezioneCliente(int record, const Cli& cli) const;
    QString percorso() const;

    Archivio& m_archivio;
    FileFel m_file;
};

/// The progressive that follows, "0000Z" to "00010"; empty behind "ZZZZZ". Any text that is no progressive
/// counts as the one before the first.
QString prossimoProgressivo(QStringView ultimo);

} // namespace bor
