// What the programs remember for the user about a company, among his own data: when it was last checked,
// where its copies go. Nothing of it is needed to work; what cannot be read or written is simply not
// remembered.
#pragma once

#include "common/posti.h"

#include <QDateTime>
#include <QSettings>
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

/// The choice that was kept under a key; the first one where it is none of them.
template <class E>
E sceltaRicordata(const QSettings& file, QStringView chiave, E ultima) {
    const int numero = file.value(chiave, 0).toInt();
    return numero >= 0 && numero <= ordinale(ultima) ? enumeratore<E>(numero) : E{};
}

} // namespace bor
