// What is wrong with the texts of a company, told to the person who wrote them.
#pragma once

#include <QList>
#include <QString>

namespace bor::crea {

struct Problema {
    QString file;
    int riga = 0; ///< line of the file, from 1; 0 when the whole file is meant
    QString motivo;

    /// "clienti.csv, riga 12: …".
    QString testo() const;
};

using Problemi = QList<Problema>;

} // namespace bor::crea
