// The user's own folder of drafts of one company. Nobody else may read it.
#pragma once

#include "archive/disco.h"
#include "archive/filecasuale.h"

#include <QStringList>

#include <memory>
#include <optional>

namespace bor {

class CartellaBozze {
public:
    /// A folder of this machine, which is made at the first write. An empty name keeps nothing.
    explicit CartellaBozze(QString percorso) : m_percorso(std::move(percorso)) {}

    bool tiene() const { return !m_percorso.isEmpty(); }
    const QString& percorso() const { return m_percorso; }

    /// Replaces a file as a whole, on disk when it returns true.
    bool scrivi(const QString& nome, QByteArrayView bytes);
    /// Nothing for a file that is missing, not readable, or too large to be one of these.
    std::optional<QByteArray> leggi(const QString& nome) const;
    void elimina(const QString& nome);
    bool esiste(const QString& nome) const;
    /// Names of the files with this ending.
    QStringList nomi(const QString& finale) const;

    /// Takes a file for this program until the result goes away, which it does before the folder, or the
    /// program ends, however that happens; nothing while another program has it. Where the file system knows
    /// no locks everybody gets it.
    std::unique_ptr<FileCasuale> prendi(const QString& nome);

private:
    bool prepara();
    QString file(const QString& nome) const { return m_percorso + u'/' + nome; }

    QString m_percorso;
    Disco m_disco; ///< of its own: what fails here is no failure of the archive
};

} // namespace bor
