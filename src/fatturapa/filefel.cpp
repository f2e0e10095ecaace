#include "fatturapa/filefel.h"

#include <QStringList>

#include <algorithm>

namespace bor {

namespace {

bool diCommento(const QByteArray& linea) {
    return linea.startsWith('#') || linea.startsWith(';');
}

bool haChiave(const QByteArray& linea, QStringView chiave) {
    const qsizetype uguale = linea.indexOf('=');
    return uguale > 0 && !diCommento(linea) && QString::fromUtf8(linea.first(uguale).trimmed()) == chiave;
}

QString suUnaLinea(QString testo) {
    std::ranges::replace_if(
        testo, [](QChar c) { return c.category() == QChar::Other_Control || c == QChar::LineSeparator; },
        QChar(u' '));
    return testo.trimmed();
}

} // namespace

FileFel::FileFel(const QByteArray& contenuto) {
    m_sezioni.push_back({});
    QByteArrayList linee = contenuto.split('\n');
    if (linee.last().isEmpty())
        linee.removeLast();
    for (QByteArray& linea : linee) {
        if (linea.endsWith('\r'))
            linea.chop(1);
        const QByteArray netta = linea.trimmed();
        if (netta.startsWith('[') && netta.endsWith(']')) {
            const QString nome = QString::fromUtf8(netta.sliced(1, netta.size() - 2).trimmed());
            m_sezioni.push_back({nome, linea, {}});
            if (!m_indice.contains(nome))
                m_indice.insert(nome, m_sezioni.size() - 1);
        } else {
            m_sezioni.back().linee.append(linea);
        }
    }
}

QByteArray FileFel::bytes() const {
    QByteArray testo;
    for (const Sezione& sezione : m_sezioni) {
        if (&sezione != &m_sezioni.front())
            testo += sezione.intestazione + '\n';
        for (const QByteArray& linea : sezione.linee)
            testo += linea + '\n';
    }
    return testo;
}

QStringList FileFel::sezioni() const {
    QStringList nomi;
    for (const Sezione& sezione : m_sezioni)
        nomi.append(sezione.nome);
    nomi.removeFirst();
    return nomi;
}

QString FileFel::valore(const QString& sezione, QStringView chiave) const {
    const auto dove = m_indice.constFind(sezione);
    if (dove == m_indice.constEnd())
        return {};
    for (const QByteArray& linea : m_sezioni[*dove].linee)
        if (haChiave(linea, chiave))
            return QString::fromUtf8(linea.sliced(linea.indexOf('=') + 1)).trimmed();
    return {};
}

void FileFel::metti(const QString& sezione, QStringView chiave, const QString& valore) {
    const QString netto = suUnaLinea(valore);
    if (!m_indice.contains(sezione)) {
        if (netto.isEmpty())
            return;
        m_sezioni.push_back({sezione, '[' + sezione.toUtf8() + ']', {}});
        m_indice.insert(sezione, m_sezioni.size() - 1);
    }
    QByteArrayList& linee = m_sezioni[m_indice.value(sezione)].linee;
    const auto trovata =
        std::ranges::find_if(linee, [&](const QByteArray& linea) { return haChiave(linea, chiave); });
    const QByteArray nuova = chiave.toUtf8() + '=' + netto.toUtf8();
    if (trovata != linee.end() && netto.isEmpty())
        linee.erase(trovata);
    else if (trovata != linee.end())
        *trovata = nuova;
    else if (!netto.isEmpty()) {
        // Blank lines at the end keep the next section apart.
        qsizetype dopo = linee.size();
        while (dopo > 0 && linee[dopo - 1].trimmed().isEmpty())
            --dopo;
        linee.insert(dopo, nuova);
    }
}

} // namespace bor
