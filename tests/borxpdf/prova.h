// What the tests of the PDF tool share: a drive with a company on it, and report files of literal lines.
#pragma once

#include "common/percorsi.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace bor::pdf {

inline QByteArray rigaDiTesto(const QByteArray& x, const QByteArray& y, const QByteArray& testo) {
    return " 3 \r\n " + x + " \r\n " + y + " \r\n 0 \r\n 0 \r\n 10 \r\n 0 \r\n" + testo +
           "\r\nArial\r\n 0 \r\n 0 \r\n";
}

inline QByteArray finePagina() {
    return " 9 \r\n" + QByteArray("\r\n").repeated(10);
}

/// Two pages with an accent and a euro sign in Windows-1252.
inline QByteArray dueFogli() {
    return "#FILEFORMAT=QLM-RTO\r\n" + rigaDiTesto("20", "30", "Citt\xe0 di Forl\xec") +
           rigaDiTesto("150", "30.5", "1.234,56 \x80") + finePagina() +
           rigaDiTesto("20", "30", "Totale 99,90") + finePagina();
}

class Unita {
public:
    const Percorsi& percorsi() const { return m_percorsi; }

    QString reale(const QString& dos) const { return *m_percorsi.reale(dos); }

    void scrivi(const QString& dos, const QByteArray& dati) const {
        QDir().mkpath(QFileInfo(reale(dos)).path());
        QFile file(reale(dos));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(dati) == dati.size());
    }

    QByteArray leggi(const QString& dos) const {
        QFile file(reale(dos));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_cartella;
    Percorsi m_percorsi{m_cartella.filePath(QStringLiteral("unita")),
                        m_cartella.filePath(QStringLiteral("c"))};
};

} // namespace bor::pdf
