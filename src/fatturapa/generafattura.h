// Today's electronic invoice of a stored document, from its records to the checked file. The screen and the
// program that writes many use it.
#pragma once

#include "archive/contesto.h"
#include "fatturapa/archiviofel.h"
#include "fatturapa/componi.h"

#include <span>

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

/// A document as it would go out.
struct ProvaFel {
    FatturaElettronica fattura;
    QByteArray xml; ///< without the attachment; empty for a document that is refused
    /// Of the composition and of the check of the file.
    std::vector<Rilievo> rilievi;
};

/// A document on its way to its file.
struct InUscitaFel {
    Fte fte;
    Composta composta;
    QString progressivo; ///< part of the file's name; empty as long as it has none
};

/// What stands on disk of a document.
enum class FileDocumento {
    Assente,
    Attuale, ///< what would be written now
    Diverso  ///< document or data changed since it was written
};

class GeneratoreFel {
public:
    /// Reads the company's data and the program's own. `cartella`: folder of this machine for the files.
    GeneratoreFel(Contesto& contesto, QString cartella);
    /// For a screen: the files go into the company's folder of XML files, else into the one of the PDFs (a
    /// DOS path).
    static GeneratoreFel perAzienda(Contesto& contesto, const QString& cartellaPdf);

    /// The invoice with these data of the program's own; gives out no name and writes nothing.
    ProvaFel prova(const Documento& documento, const DatiFel& propri) const;

    /// Composes, checks and writes. A document keeps the name of its file; a new one gets the next.
    EsitoFel genera(const Documento& documento);
    /// The same for many. All their names are stored in one write, before the first of them is used.
    std::vector<EsitoFel> genera(std::span<const Documento> documenti);

    enum class Scarto { Fatto, NonScritto, FileRimasto };
    /// The receiving system has refused the document's file: the file gets `.scartata` behind its name, and
    /// the next one a new name. `NonScritto`: nothing has changed. `FileRimasto`: only the file keeps its
    /// name.
    Scarto scarta(const Documento& documento);

    /// The steps of `genera`, for who pauses between them: composes a document, names those composed that can
    /// go out, all in one write, then writes the file of each.
    InUscitaFel prepara(const Documento& documento) const;
    void nomina(std::span<InUscitaFel* const> uscite);
    EsitoFel emetti(const Documento& documento, InUscitaFel uscita) const;

    /// Folder of this machine; empty when the company names none of the program.
    const QString& cartella() const { return m_cartella; }
    /// The folder is there, or is all that is missing of its path: the first file makes it.
    bool cartellaPronta() const;
    /// Of the document's file on this machine; empty as long as it has no name.
    QString percorso(const Documento& documento) const;
    FileDocumento suDisco(const Documento& documento) const;

    ArchivioFel& propri() { return m_propri; }
    DatiFel datiPropri(const Documento& documento) const;

private:
    Composta componi(const Documento& documento, const DatiFel& propri) const;
    std::optional<Fpa> leggiFpa(const QString& nome) const;
    QString pdfDaAllegare(const Documento& documento, const DatiFel& propri,
                          std::vector<Rilievo>& rilievi) const;
    QByteArray scrivi(const Documento& documento, const DatiFel& propri, Composta& composta) const;
    QString nomeFile(const QString& progressivo) const;
    QString percorsoDi(const QString& progressivo) const;

    Contesto& m_contesto;
    QString m_cartella;
    ArchivioFel m_propri;
    ArchivioFel::Stato m_stato;
    std::optional<Fpa> m_azienda;
};

} // namespace bor
