#include "common/percorsi.h"

#include "common/numeri.h"
#include "common/testo.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <optional>
#include <vector>

namespace bor {

namespace {

bool nomeLecito(QStringView parte) {
    static constexpr QStringView vietati = u"<>:\"/|?*";
    return parte != u".." && std::none_of(parte.begin(), parte.end(),
                                          [](QChar c) { return c.unicode() < 32 || vietati.contains(c); });
}

constexpr qsizetype lettereProvate = 4;

/// The spelling of a short name in the folder, found by trying both cases of each letter; nothing when it has
/// too many letters, or one beyond ASCII. A document's lines file has one letter among 32,000 names: listing
/// them all takes a hundred thousand times as long.
std::optional<QString> provaGrafie(const QDir& dir, const QString& nome) {
    std::vector<qsizetype> lettere;
    for (qsizetype i = 0; i < nome.size(); ++i) {
        if (nome[i].unicode() > 127)
            return std::nullopt;
        if (nome[i].isLetter())
            lettere.push_back(i);
    }
    if (std::ssize(lettere) > lettereProvate)
        return std::nullopt;
    for (std::size_t grafia = 0; grafia < std::size_t{1} << lettere.size(); ++grafia) {
        QString prova = nome;
        for (std::size_t k = 0; k < lettere.size(); ++k) {
            QChar& c = prova[lettere[k]];
            c = (grafia >> k & 1) == 0 ? c.toLower() : c.toUpper();
        }
        if (dir.exists(prova))
            return prova;
    }
    return nome;
}

/// The entry of the folder that has this name, whatever its case; the name itself when there is none.
QString trova(const QString& cartella, const QString& nome) {
    const QDir dir(cartella);
    if (dir.exists(nome))
        return nome;
    if (const auto breve = provaGrafie(dir, nome))
        return *breve;
    const QStringList voci =
        dir.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
    const auto voce = std::find_if(voci.begin(), voci.end(), [&](const QString& v) {
        return v.compare(nome, Qt::CaseInsensitive) == 0;
    });
    return voce == voci.end() ? nome : *voce;
}

std::optional<QString> sotto(const QString& radice, const QString& reale) {
    const QString inizio = radice.endsWith(u'/') ? radice : radice + u'/';
    if (!reale.startsWith(inizio))
        return std::nullopt;
    return u'\\' + reale.mid(inizio.size()).replace(u'/', u'\\');
}

QString codiceATreCifre(double codiceazienda) {
    return zeriDavanti(testoDecimale(codiceazienda), 3);
}

} // namespace

Percorsi::Percorsi(QString radiceCorrente, QString radiceC)
    : m_radiceCorrente(QDir::cleanPath(radiceCorrente)), m_radiceC(QDir::cleanPath(radiceC)),
      m_cache(QFileInfo(m_radiceC).path() + QStringLiteral("/cache")) {}

Percorsi Percorsi::predefiniti() {
    return predefiniti(QDir::currentPath());
}

Percorsi Percorsi::predefiniti(const QString& radiceCorrente) {
    const QString radiceC =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/borfte/c");
    Percorsi percorsi(radiceCorrente, radiceC);
    percorsi.m_cache =
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + QStringLiteral("/borfte");
    return percorsi;
}

void Percorsi::creaRadiceC() const {
    QDir().mkpath(m_radiceC);
}

std::optional<QString> Percorsi::reale(QStringView dos) const {
    QString percorso = m_radiceCorrente;
    if (dos.size() >= 2 && dos[1] == u':') {
        if (dos[0].toLower() != u'c')
            return std::nullopt;
        percorso = m_radiceC;
        dos = dos.sliced(2);
    }
    for (const QStringView parte : dos.split(u'\\', Qt::SkipEmptyParts)) {
        if (!nomeLecito(parte))
            return std::nullopt;
        if (parte != u".")
            percorso += u'/' + trova(percorso, parte.toString());
    }
    return percorso;
}

std::optional<QString> Percorsi::dos(const QString& reale) const {
    const QString pulito =
        QDir::cleanPath(QDir::isAbsolutePath(reale) ? reale : QDir::current().filePath(reale));
    if (const auto corrente = sotto(m_radiceCorrente, pulito))
        return corrente;
    const auto c = sotto(m_radiceC, pulito);
    return c ? std::optional(QStringLiteral("c:") + *c) : std::nullopt;
}

/// What a company is called among the user's data.
QString Percorsi::nomeUtente(double codiceazienda) const {
    // Two drives may hold a company of the same code.
    constexpr qsizetype cifre = 16;
    const QString unita = QFileInfo(m_radiceCorrente).canonicalFilePath();
    const QByteArray impronta =
        QCryptographicHash::hash(unita.toUtf8(), QCryptographicHash::Sha256).toHex().first(cifre);
    return codiceATreCifre(codiceazienda) + u'-' + QString::fromLatin1(impronta);
}

QString Percorsi::cartellaBozze(double codiceazienda) const {
    return QFileInfo(m_radiceC).path() + QStringLiteral("/bozze/") + nomeUtente(codiceazienda);
}

QString Percorsi::promemoria(double codiceazienda) const {
    return QFileInfo(m_radiceC).path() + QStringLiteral("/aziende/") + nomeUtente(codiceazienda) +
           QStringLiteral(".ini");
}

QString Percorsi::indiceStorico(double codiceazienda) const {
    return m_cache + QStringLiteral("/storico/") + nomeUtente(codiceazienda) + QStringLiteral(".idx");
}

QString cartellaAzienda(double codiceazienda) {
    return radiceSuite.toString() + QStringLiteral("boraz0.") + codiceATreCifre(codiceazienda);
}

} // namespace bor
