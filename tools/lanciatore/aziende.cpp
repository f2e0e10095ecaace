#include "lanciatore/aziende.h"

#include "archive/filetesto.h"
#include "common/avvio.h"
#include "common/installazione.h"
#include "common/testo.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <map>

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

QString unitaPredefinita() {
    const QString qui = QDir::currentPath();
    const auto suite = Percorsi(qui, QString()).reale(radiceSuite);
    if (suite && QDir(*suite).exists())
        return qui;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/borfte/unita"_s;
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
    return {cartellaProgrammi + u"/borcopia"_s,
            {u"--unita"_s, unita, u"--azienda"_s, QString::number(codiceazienda), u"--in"_s, cartella,
             u"--avanzamento"_s}};
}

bool collegaBorxpdf(const Percorsi& percorsi, const QString& cartellaProgrammi) {
    const auto posto = percorsi.reale(radiceSuite.toString() + u"borxpdf"_s);
    if (!posto)
        return false;
    if (QFileInfo::exists(*posto))
        return true;
    // What is in the way can only be a link to a program that has gone.
    QFile::remove(*posto);
    const QString programma = bor::programma(cartellaProgrammi, u"borxpdf");
    // Some network drives know no links.
    return QFile::exists(programma) && (QFile::link(programma, *posto) || QFile::copy(programma, *posto));
}

bool avviaModulo(const Percorsi& percorsi, const QString& cartellaProgrammi, int codiceazienda) {
    if (!collegaBorxpdf(percorsi, cartellaProgrammi))
        qWarning("borxpdf is not in the suite's folder: no PDF files can be made");
    const Comando comando = comandoModulo(cartellaProgrammi, codiceazienda);
    return QProcess::startDetached(comando.programma, comando.argomenti, percorsi.radiceCorrente());
}

} // namespace bor::lancia
