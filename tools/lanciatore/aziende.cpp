#include "lanciatore/aziende.h"

#include "archive/filetesto.h"
#include "common/avvio.h"
#include "common/installazione.h"
#include "common/testo.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>
#include <map>
#include <optional>

namespace bor::lancia {

using namespace Qt::StringLiterals;

QList<Azienda> elencaAziende(const Percorsi& percorsi) {
    static const QRegularExpression cartella(u"^boraz0\\.([0-9]{3})$"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    const QDir suite(percorsi.reale(radiceSuite).value_or(QString()));
    // A map, since on a drive that tells upper from lower case two folders may carry the same code.
    std::map<int, Azienda> aziende;
    for (const QString& nome : suite.entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)) {
        const QRegularExpressionMatch trovata = cartella.match(nome);
        if (!trovata.hasMatch())
            continue;
        const int codice = trovata.capturedView(1).toInt();
        const auto intestazione = percorsi.reale(cartellaAzienda(codice) + u"\\borlano.int"_s);
        aziende[codice] = {codice, puliscitesto(FileTesto(intestazione.value_or(QString())).linea())};
    }
    QList<Azienda> elenco;
    for (const auto& [codice, azienda] : aziende)
        elenco.append(azienda);
    return elenco;
}

QString ostacolo(const Percorsi& percorsi, int codiceazienda) {
    const QList<Azienda> aziende = elencaAziende(percorsi);
    if (std::none_of(aziende.begin(), aziende.end(),
                     [codiceazienda](const Azienda& a) { return a.codice == codiceazienda; }))
        return u"L'azienda %1 non c'è in %2."_s.arg(codiceazienda).arg(percorsi.radiceCorrente());
    for (const QString& nome : {u"borlano.cli"_s, u"borlano.tab"_s}) {
        const QString file =
            percorsi.reale(cartellaAzienda(codiceazienda) + u'\\' + nome).value_or(QString());
        if (!QFileInfo::exists(file))
            return u"All'azienda %1 manca il file %2 in %3."_s.arg(codiceazienda)
                .arg(nome, QFileInfo(file).path());
    }
    return {};
}

namespace {

QString traIDatiDellUtente(const QString& nome) {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/borfte/"_s + nome;
}

QSettings ricordi() {
    return QSettings(traIDatiDellUtente(u"lanciatore.ini"_s), QSettings::IniFormat);
}

constexpr QStringView unitaScelta = u"unita";

/// The working directory, if the suite lies there.
std::optional<QString> unitaQui() {
    const QString qui = QDir::currentPath();
    const auto suite = Percorsi(qui, QString()).reale(radiceSuite);
    return suite && QDir(*suite).exists() ? std::optional(qui) : std::nullopt;
}

} // namespace

QString unitaPredefinita() {
    return unitaQui().value_or(traIDatiDellUtente(u"unita"_s));
}

QString unitaDellaFinestra() {
    const auto qui = unitaQui();
    const QString scelta = qui ? *qui : ricordi().value(unitaScelta).toString();
    return QFileInfo(scelta).isDir() ? scelta : unitaPredefinita();
}

void ricordaUnita(const QString& unita) {
    ricordi().setValue(unitaScelta, unita);
}

Comando comandoModulo(const QString& cartellaProgrammi, int codiceazienda) {
    return {bor::programma(cartellaProgrammi, u"borfte"), {rigaAvvio(codiceazienda)}};
}

Comando comandoDimostrazione(const QString& cartellaProgrammi, const QString& unita) {
    return {bor::programma(cartellaProgrammi, u"borcrea"),
            {u"--unita"_s, unita, u"--azienda"_s, QString::number(codiceDimostrazione), installato(u"demo")}};
}

Comando comandoCopia(const QString& cartellaProgrammi, const QString& unita, int codiceazienda,
                     const QString& cartella) {
    return {bor::programma(cartellaProgrammi, u"borcopia"),
            {u"--unita"_s, unita, u"--azienda"_s, QString::number(codiceazienda), u"--in"_s, cartella,
             u"--avanzamento"_s}};
}

namespace {

/// A copy of the tool that an older version of the program has left. What somebody else has put there is not.
bool copiaSuperata(const QFileInfo& posta, const QFileInfo& programma) {
    constexpr qint64 tic = 2000; // milliseconds; some file systems count in them
    if (!posta.isFile() || posta.isSymLink() || posta.lastModified().msecsTo(programma.lastModified()) <= tic)
        return false;
    QFile file(posta.filePath());
    const QByteArrayView nostro(reinterpret_cast<const char*>(identificatore.utf16()),
                                identificatore.size() * qsizetype{sizeof(char16_t)});
    return file.open(QIODevice::ReadOnly) && file.readAll().contains(nostro);
}

/// Beside it first, so that a program that runs just then keeps its file. The copy has the age of its
/// original.
bool copiaProgramma(const QString& programma, const QString& posto) {
    const QString nuova = posto + u".nuovo"_s;
    QFile::remove(nuova);
    QFile file(nuova);
    const bool copiata = QFile::copy(programma, nuova) && file.open(QIODevice::ReadWrite) &&
                         file.setFileTime(QFileInfo(programma).lastModified(), QFile::FileModificationTime);
    file.close();
    if (copiata &&
        std::rename(QFile::encodeName(nuova).constData(), QFile::encodeName(posto).constData()) == 0)
        return true;
    QFile::remove(nuova);
    return false;
}

} // namespace

bool collegaBorxpdf(const Percorsi& percorsi, const QString& cartellaProgrammi) {
    const auto posto = percorsi.reale(radiceSuite.toString() + u"borxpdf"_s);
    if (!posto)
        return false;
    const QString programma = bor::programma(cartellaProgrammi, u"borxpdf");
    const bool installato = QFile::exists(programma);
    if (const QFileInfo posta(*posto); posta.exists()) {
        if (installato && copiaSuperata(posta, QFileInfo(programma)) && !copiaProgramma(programma, *posto))
            qWarning("borxpdf in the suite's folder is of an older version, and was not replaced");
        return true;
    }
    // What is in the way can only be a link to a program that has gone.
    QFile::remove(*posto);
    // Some network drives know no links.
    return installato && (QFile::link(programma, *posto) || copiaProgramma(programma, *posto));
}

bool avviaModulo(const Percorsi& percorsi, const QString& cartellaProgrammi, int codiceazienda) {
    if (!collegaBorxpdf(percorsi, cartellaProgrammi))
        qWarning("borxpdf is not in the suite's folder: no PDF files can be made");
    const Comando comando = comandoModulo(cartellaProgrammi, codiceazienda);
    return QProcess::startDetached(comando.programma, comando.argomenti, percorsi.radiceCorrente());
}

} // namespace bor::lancia
