// borxpdf: turns the report of a printed document into a PDF, mails it when asked, or shows it on screen.

#include "borxpdf/anteprima.h"
#include "borxpdf/comando.h"
#include "borxpdf/lotto.h"
#include "common/lottopdf.h"
#include "common/percorsi.h"
#include "common/versione.h"
#include "ui/adattatori.h"
#include "ui/aspetto.h"
#include "ui/guida.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QMessageBox>

#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Without a display the PDF and the mail go on all the same, and faults are told on standard error.
void scegliSchermo() {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return;
    const bool schermo = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    qputenv("QT_QPA_PLATFORM", schermo ? "xcb;wayland;offscreen" : "offscreen");
}

bool conSchermo() {
    const QString schermo = QGuiApplication::platformName();
    return schermo != "offscreen"_L1 && schermo != "minimal"_L1;
}

void avvisa(const QString& errore) {
    std::fprintf(stderr, "borxpdf: %s\n", errore.toUtf8().constData());
    if (conSchermo())
        QMessageBox::critical(nullptr, u"Attenzione"_s, errore);
}

/// Who asked for a mail went on working meanwhile.
void raccontaPosta(const bor::ComandoPdf& comando) {
    if (comando.indirizzo != bor::senzaPosta && conSchermo())
        QMessageBox::information(nullptr, u"Attenzione"_s,
                                 u"Il documento è stato spedito per posta elettronica a: "_s +
                                     comando.indirizzo);
}

/// Only by itself: words of a command may begin with dashes.
void mostraVersione(const QStringList& argomenti) {
    QCoreApplication::setApplicationVersion(bor::versione());
    QCommandLineParser parser;
    parser.addVersionOption();
    if (argomenti.size() == 2 && parser.parse(argomenti) && parser.isSet(u"version"_s))
        parser.showVersion();
}

/// Nobody is told anything in a window: who started the run gets each answer.
int lotto(const bor::Percorsi& percorsi) {
    bor::pdf::IngressoComandi comandi(STDIN_FILENO);
    QFile risposte;
    return comandi.open(QIODevice::ReadOnly) &&
                   risposte.open(STDOUT_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                   bor::pdf::eseguiLotto(comandi, risposte, percorsi)
               ? 0
               : 1;
}

} // namespace

int main(int argc, char* argv[]) {
    scegliSchermo();
    QApplication programma(argc, argv);
    mostraVersione(QCoreApplication::arguments());
    bor::applicaAspetto(programma);

    const bor::Percorsi percorsi = bor::Percorsi::predefiniti();
    percorsi.creaRadiceC();
    if (QApplication::arguments().sliced(1) == QStringList{bor::opzioneLotto.toString()})
        return lotto(percorsi);
    const auto comando = bor::ComandoPdf::leggi(QApplication::arguments().sliced(1));
    if (!comando) {
        avvisa(u"Uso: borxpdf [--anteprima] layout,rapporto,pdf,indirizzo[,testo]"_s);
        return 2;
    }
    QString errore;
    if (comando->anteprima) {
        if (auto documento = bor::pdf::apri(*comando, percorsi, errore)) {
            bor::SistemaQt sistema;
            bor::OperatoreQt operatore;
            bor::pdf::Anteprima finestra(std::move(*documento), [&sistema, &operatore] {
                bor::apriGuida(sistema, operatore, u"stampa"_s);
            });
            operatore.usa(&finestra);
            finestra.show();
            finestra.activateWindow();
            return QApplication::exec();
        }
    } else if (bor::pdf::esegui(*comando, percorsi, errore)) {
        raccontaPosta(*comando);
        return 0;
    }
    avvisa(errore);
    return 1;
}
