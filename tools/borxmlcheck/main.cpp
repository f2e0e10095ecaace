// Checks electronic invoices of either version before they are sent: prints what the receiving system would
// refuse in each file, or one file as a readable page. Ends with the number of files with findings.
#include "borxmlcheck/resoconto.h"
#include "common/rigacomando.h"
#include "ui/aspetto.h"
#include "ui/finestrafattura.h"
#include "xmlcheck/doppioni.h"
#include "xmlcheck/vistafattura.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDate>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

void scrivi(std::FILE* dove, const QString& testo) {
    std::fputs(qUtf8Printable(testo), dove);
}

/// One byte more than is allowed tells that there are too many.
constexpr qint64 daLeggere = 5'000'001;

/// The files as given; for a folder all its XML files, by name.
QStringList fileDi(const QStringList& percorsi) {
    QStringList file;
    for (const QString& percorso : percorsi) {
        if (!QFileInfo(percorso).isDir()) {
            file.append(percorso);
            continue;
        }
        QStringList dentro;
        QDirIterator cartella(percorso, {u"*.xml"_s, u"*.XML"_s}, QDir::Files);
        while (cartella.hasNext())
            dentro.append(cartella.next());
        dentro.sort();
        file += dentro;
    }
    return file;
}

bor::resoconto::RilieviFile controlla(const QString& percorso, bor::Doppioni& doppioni) {
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly))
        return {percorso,
                {{.motivo = u"Il file non si può leggere (%1)."_s.arg(file.errorString()),
                  .rimedio = u"Controllare il nome e i permessi del file."_s}}};
    return {percorso, bor::controllaXml(file.read(daLeggere), QFileInfo(percorso).fileName(),
                                        QDate::currentDate(), &doppioni)};
}

const QString opzioneMostra = u"mostra"_s;
const QString opzioneHtml = u"html"_s;

const QString senzaSchermo = u"offscreen"_s;

/// A display that is named but does not answer counts as none.
void preparaSchermo() {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return;
    const QByteArray wayland = qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? "" : "wayland;";
    qputenv("QT_QPA_PLATFORM", wayland + "xcb;" + senzaSchermo.toLatin1());
}

/// A window is asked for, and there should be a display for it.
bool conFinestra(int argc, char** argv) {
    bool mostra = false;
    for (int i = 1; i < argc; ++i) {
        const QString argomento = QString::fromLocal8Bit(argv[i]);
        if (argomento == u"--"_s + opzioneHtml)
            return false;
        mostra = mostra || argomento.startsWith(u"--"_s + opzioneMostra);
    }
    return mostra &&
           (!qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"));
}

int mostra(const QString& percorso) {
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly)) {
        scrivi(stderr, u"%1: il file non si può leggere (%2).\n"_s.arg(percorso, file.errorString()));
        return bor::resoconto::esitoErrore;
    }
    const QByteArray contenuto = file.read(daLeggere);
    auto* applicazione = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (!applicazione || QGuiApplication::platformName() == senzaSchermo) {
        scrivi(stdout, bor::vistaFattura(contenuto));
        return 0;
    }
    bor::applicaAspetto(*applicazione);
    (new bor::FinestraFattura(contenuto, QFileInfo(percorso).absoluteFilePath()))->show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    const bool finestra = conFinestra(argc, argv);
    if (finestra)
        preparaSchermo();
    const std::unique_ptr<QCoreApplication> applicazione(finestra ? new QApplication(argc, argv)
                                                                  : new QCoreApplication(argc, argv));
    QCommandLineParser riga;
    riga.setApplicationDescription(
        u"Dice che cosa il sistema di interscambio rifiuterebbe in una fattura elettronica, del 2014 o di "
        u"oggi, "
        u"prima dell'invio. Il codice di uscita è il numero dei file con rilievi (al massimo 254)."_s);
    const QCommandLineOption json(u"json"_s, u"Scrive i rilievi in JSON."_s);
    const QCommandLineOption pagina(
        opzioneMostra,
        u"Apre la fattura in una finestra, da leggere e stampare; senza uno schermo la scrive come HTML."_s,
        u"file"_s);
    riga.addOptions(
        {json, pagina, {opzioneHtml, u"Con --mostra: scrive la pagina HTML anche dove c'è uno schermo."_s}});
    riga.addPositionalArgument(u"file"_s, u"I file XML da controllare, o cartelle di file XML."_s,
                               u"file..."_s);
    if (const auto esito =
            bor::leggiRigaComando(riga, bor::resoconto::esitoErrore, bor::AltriArgomenti::Ammessi))
        return *esito;
    if (riga.isSet(pagina))
        return mostra(riga.value(pagina));
    if (riga.positionalArguments().isEmpty()) {
        scrivi(stderr, riga.helpText());
        return bor::resoconto::esitoErrore;
    }
    bor::resoconto::Resoconto resoconto(riga.isSet(json));
    bor::Doppioni doppioni;
    for (const QString& percorso : fileDi(riga.positionalArguments()))
        scrivi(stdout, resoconto.aggiungi(controlla(percorso, doppioni)));
    scrivi(stdout, resoconto.chiudi());
    return resoconto.esito();
}
