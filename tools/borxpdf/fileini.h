// A small settings file: [section], key=value, lines that start with ";" or "#" are remarks.
// Backslashes stay as they are, since values may be DOS paths. Used for layouts and mail settings.
#pragma once

#include <QByteArrayView>
#include <QHash>
#include <QString>

namespace bor::pdf {

class FileIni {
public:
    FileIni() = default;
    /// The text is UTF-8 when it is valid as such, else Windows-1252. Lines of no known form are skipped.
    explicit FileIni(QByteArrayView dati);

    /// `chiave` is "section/key" in lower case. A missing or empty value gives `predefinito`.
    QString testo(const QString& chiave, const QString& predefinito = {}) const;
    /// The value as a number with a decimal point or comma; `predefinito` when it is missing or no number.
    double numero(const QString& chiave, double predefinito) const;

private:
    QHash<QString, QString> m_valori;
};

} // namespace bor::pdf
