// A text of sections and keys that a person may edit too: comments, unknown sections, unknown keys and their
// order stay as they are. Only the archive of own data reads and writes it.
#pragma once

#include <QByteArrayList>
#include <QHash>
#include <QString>

#include <vector>

namespace bor {

class FileFel {
public:
    /// UTF-8 text; any bytes are good input.
    explicit FileFel(const QByteArray& contenuto = {});
    QByteArray bytes() const;

    bool haSezione(const QString& nome) const { return m_indice.contains(nome); }
    /// Names of all sections in the order of the file.
    QStringList sezioni() const;
    /// Value of the first line with that key; empty when there is none.
    QString valore(const QString& sezione, QStringView chiave) const;
    /// Writes the value over the first line with that key, or behind the last one. An empty value takes the
    /// line away. Line breaks and control characters inside become blanks.
    void metti(const QString& sezione, QStringView chiave, const QString& valore);

private:
    struct Sezione {
        QString nome; ///< empty: what stands above the first heading
        QByteArray intestazione;
        QByteArrayList linee;
    };

    std::vector<Sezione> m_sezioni;
    QHash<QString, std::size_t> m_indice;
};

} // namespace bor
