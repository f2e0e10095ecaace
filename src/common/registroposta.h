// The log of the mails that documents went out with, one file a company among the user's own data: the module
// notes with which document it charges the PDF tool, the tool notes how it ended.
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

namespace bor {

class Percorsi;

/// A document as the log knows it.
struct DocumentoPosta {
    QString numero;
    QString data;     ///< "dd/mm/yyyy"
    double stamp = 0; ///< moment of creation; 0 as long as it is not stored

    bool vuoto() const { return numero.isEmpty() && data.isEmpty(); }
    /// The same document, by creation where both have one, else by number and date.
    bool stesso(const DocumentoPosta& altro) const;
};

enum class StatoPosta {
    Affidata, ///< the tool was charged with it; how it ended is not known
    Spedita,
    NonSpedita
};

struct VocePosta {
    QDateTime quando;
    DocumentoPosta documento; ///< of the tool's own entries empty
    QString pdf;              ///< DOS path
    QString indirizzo;
    StatoPosta stato = StatoPosta::Affidata;
    QString motivo = {}; ///< why it was not sent
};

class RegistroPosta {
public:
    RegistroPosta(const Percorsi& percorsi, double codiceazienda);
    /// Of the company in whose folder this file lies (a DOS path); nothing for any other path.
    static std::optional<RegistroPosta> diFile(const Percorsi& percorsi, const QString& file);

    /// In one write at the end of the file, so that two programs never mix theirs. What cannot be written is
    /// not logged: false.
    bool aggiungi(const VocePosta& voce) const;
    /// The mails of a document, the latest first: each charge together with how it ended. Lines of no known
    /// form are skipped.
    std::vector<VocePosta> voci(const DocumentoPosta& documento) const;

    const QString& file() const { return m_file; }

private:
    QString m_file;
};

} // namespace bor
