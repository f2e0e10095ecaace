// What the programs remember for the user about a company, among his own data: when it was last checked,
// where its copies go. Nothing of it is needed to work; what cannot be read or written is simply not
// remembered.
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace bor {

class Percorsi;

/// The last time that the checker read the company, or a copy of it.
struct UltimaVerifica {
    QDateTime quando;
    int errori = 0;
    int avvisi = 0;
};

class Promemoria {
public:
    Promemoria(const Percorsi& percorsi, double codiceazienda);

    std::optional<UltimaVerifica> verifica() const;
    void segnaVerifica(const UltimaVerifica& verifica) const;

    /// Folder of this machine; empty when none was chosen yet.
    QString cartellaCopie() const;
    void segnaCartellaCopie(const QString& cartella) const;

private:
    QString m_file;
};

} // namespace bor
