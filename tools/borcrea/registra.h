// Stores the documents of a new company as a save of the program would: records, lines files, movements,
// warehouse rows.
#pragma once

#include "borcrea/documenti.h"

#include <vector>

namespace bor::crea {

/// The clock of a company in the making. It stands at the registration of the document at hand, a second
/// apart from the one before it, so that a company made twice is the same to the byte and no two documents
/// have one stamp.
class OrologioCantiere : public Orologio {
public:
    QDateTime momento{QDate(2015, 12, 31), QTime(12, 0)};
    QDateTime adesso() const override { return momento; }
};

class Registratore {
public:
    /// `rifiuti`: messages of the procedures, which go to nobody here; the first one ends the work.
    Registratore(Contesto& contesto, OrologioCantiere& orologio, const QStringList& rifiuti)
        : m_contesto(contesto), m_orologio(orologio), m_rifiuti(rifiuti) {}

    /// Loads the opening stock and stores the documents as the next records. False when a file could not be
    /// written or a movement was refused.
    bool scrivi(std::vector<DocumentoPronto>& documenti);
    /// The document that the work came to, for a message.
    const QString& ultimo() const { return m_ultimo; }

private:
    bool scrivi(DocumentoPronto& pronto, int n);
    bool registra(const Documento& documento);

    Contesto& m_contesto;
    OrologioCantiere& m_orologio;
    const QStringList& m_rifiuti;
    QString m_ultimo;
};

/// Goes on repeating the stored documents, spread over all customers, until there are `quanti`: an archive
/// for measuring. The repeated ones have no detail lines.
bool ripetiDocumenti(Archivio& archivio, int quanti);

} // namespace bor::crea
