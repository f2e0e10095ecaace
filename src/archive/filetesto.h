// Reads the suite's settings files, in which a value is known only by its place: line by line, or field by
// field.
#pragma once

#include <QByteArray>
#include <QString>

namespace bor {

/// A settings file read from its beginning. Reading past the end gives empty values and sets `finito`.
class FileTesto {
public:
    /// Reads the whole file of this machine; a missing file counts as one that is finished at once.
    explicit FileTesto(const QString& percorso);

    bool aperto() const { return m_aperto; }
    /// A value was asked for beyond the end of the file.
    bool finito() const { return m_finito; }

    /// The next whole line.
    QString linea();
    /// The next comma-separated field, which may stand in double quotes and end with its line.
    QString campo();

private:
    bool oltreFine();

    QByteArray m_bytes;
    qsizetype m_posizione = 0;
    bool m_aperto = false;
    bool m_finito = false;
};

} // namespace bor
