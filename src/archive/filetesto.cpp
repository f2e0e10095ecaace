#include "archive/filetesto.h"

#include "archive/disco.h"
#include "common/testo.h"

#include <QFile>

namespace bor {

FileTesto::FileTesto(const QString& percorso) {
    QFile file(percorso);
    m_aperto = !percorso.isEmpty() && file.open(QIODevice::ReadOnly);
    if (m_aperto)
        m_bytes = file.readAll();
    m_aperto = m_aperto && file.error() == QFileDevice::NoError;
    if (!m_aperto)
        qCDebug(logArchivio, "no settings file %s", qPrintable(percorso));
}

bool FileTesto::oltreFine() {
    if (m_posizione < m_bytes.size())
        return false;
    m_finito = true;
    return true;
}

QString FileTesto::linea() {
    if (oltreFine())
        return {};
    qsizetype fine = m_bytes.indexOf('\n', m_posizione);
    if (fine < 0)
        fine = m_bytes.size();
    QByteArrayView linea = QByteArrayView(m_bytes).sliced(m_posizione, fine - m_posizione);
    m_posizione = fine + 1;
    if (linea.endsWith('\r'))
        linea.chop(1);
    return daCp1252(linea);
}

QString FileTesto::campo() {
    const auto qui = [this] { return m_posizione < m_bytes.size() ? m_bytes[m_posizione] : '\n'; };
    while (m_posizione < m_bytes.size() && qui() == ' ')
        ++m_posizione;
    if (oltreFine())
        return {};
    const bool virgolette = qui() == '"';
    if (virgolette)
        ++m_posizione;
    const qsizetype inizio = m_posizione;
    while (m_posizione < m_bytes.size() && (virgolette ? qui() != '"' : qui() != ',' && qui() != '\n'))
        ++m_posizione;
    const QByteArrayView trovato = QByteArrayView(m_bytes).sliced(inizio, m_posizione - inizio);
    while (m_posizione < m_bytes.size() && qui() != ',' && qui() != '\n')
        ++m_posizione;
    ++m_posizione;
    return virgolette ? daCp1252(trovato) : daCp1252(trovato).trimmed();
}

} // namespace bor
