// The official schemas of the electronic invoice, which are not ours to ship: the environment variable
// BOR_SCHEMI names their folder. Tests that need them are skipped where they or xmllint are missing.
#pragma once

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QStringList>

namespace bor {

class Schemi {
public:
    /// `versione`: "1.0" or "1.2.3".
    explicit Schemi(const QString& versione)
        : m_xsd(qEnvironmentVariable("BOR_SCHEMI") + QStringLiteral("/FatturaPA_v%1.xsd").arg(versione)),
          m_xmllint(QStandardPaths::findExecutable(QStringLiteral("xmllint"))) {}

    bool ciSono() const { return QFile::exists(m_xsd) && !m_xmllint.isEmpty(); }

    /// Those of the files that the schema takes.
    QSet<QString> validi(const QStringList& file) const {
        constexpr qsizetype perVolta = 500;
        static const QRegularExpression buono(QStringLiteral("^(.*) validates$"));
        QSet<QString> buoni;
        for (qsizetype i = 0; i < file.size(); i += perVolta) {
            QProcess lint;
            lint.setProcessChannelMode(QProcess::MergedChannels);
            lint.start(m_xmllint, QStringList{QStringLiteral("--nonet"), QStringLiteral("--noout"),
                                              QStringLiteral("--schema"), m_xsd} +
                                      file.mid(i, perVolta));
            lint.waitForFinished(120'000);
            for (const QString& linea : QString::fromUtf8(lint.readAll()).split(u'\n'))
                if (const auto trovato = buono.match(linea); trovato.hasMatch())
                    buoni.insert(trovato.captured(1));
        }
        return buoni;
    }

private:
    QString m_xsd;
    QString m_xmllint;
};

} // namespace bor
