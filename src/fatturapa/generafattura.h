// Today's electronic invoice of a stored document, from its records to the checked file. The screen and the
// program that writes many use it.
#pragma once

#include "archive/contesto.h"
#include "fatturapa/archiviofel.h"
#include "fatturapa/componi.h"

namespace bor {

/// What became of a document.
struct EsitoFel {
    enum class Stato {
        Scritta,
        Rifiutata, ///< the document cannot be said in the format; nothing was written
        NonScritta ///< the file or the program's own data could not be written
    };
    Stato stato = Stato::Rifiutata;
    QString percorso; ///< of the file, on this machine
    /// Of the composition and of the check of the file.
    std::vector<Rilievo> rilievi;
};

class GeneratoreFel {
public:
    /// Reads the company's data and the program's own. `cartella`: folder of this machine for the files.
    GeneratoreFel(Contesto& contesto, QString cartella);

    /// The invoice as it would go out now, for a screen; gives out no name and writes nothing.
    Composta componi(const Documento& documento) const;

    /// Composes, checks and writes. A document keeps the name of its file; a new one gets the next.
    EsitoFel genera(const Documento& documento);

    ArchivioFel& propri() { return m_propri; }
    DatiFel datiPropri(const Documento& documento) const;

private:
    Composta componi(const Documento& documento, const QString& progressivo) const;
    std::optional<Fpa> leggiFpa(const QString& nome) const;
    void allega(const Documento& documento, Composta& composta) const;
    QString nomeFile(const QString& progressivo) const;

    Contesto& m_contesto;
    QString m_cartella;
    ArchivioFel m_propri;
    ArchivioFel::Stato m_stato;
    std::optional<Fpa> m_azienda;
};

/// Folder of this machine for the files: the company's folder of XML files, else the one of the PDFs (a DOS
/// path); empty when neither is a folder of the program.
QString cartellaFatture(const Archivio& archivio, const Fpa& azienda, const QString& cartellaPdf);

} // namespace bor
