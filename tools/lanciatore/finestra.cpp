// The window of the launcher, which starts it with one argument: the drive whose companies are shown. With a
// second one it only tells that text, why nothing can be opened, and ends with 1.
#include "lanciatore/scelta.h"
#include "ui/aspetto.h"

#include <QApplication>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace {

/// Where there is no display, the terminal has told it already.
int rifiuta(const QString& motivo) {
    if (const QString schermo = QGuiApplication::platformName();
        schermo != u"offscreen" && schermo != u"minimal")
        QMessageBox::critical(nullptr, u"Attenzione"_s, motivo);
    return 1;
}

int mostraScelta(const QString& unita) {
    const QString cartella = QCoreApplication::applicationDirPath();
    bor::lancia::SceltaAzienda finestra(unita, cartella,
                                        [cartella](const bor::Percorsi& percorsi, int codice) {
                                            return bor::lancia::avviaModulo(percorsi, cartella, codice);
                                        });
    finestra.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc == 3 && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland;offscreen");
    QApplication applicazione(argc, argv);
    bor::applicaAspetto(applicazione);
    const QStringList argomenti = QCoreApplication::arguments();
    return argc == 3 ? rifiuta(argomenti.value(2)) : mostraScelta(argomenti.value(1));
}
