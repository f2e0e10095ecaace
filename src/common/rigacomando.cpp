#include "common/rigacomando.h"

#include "common/italiano.h"
#include "common/versione.h"

#include <QCoreApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace bor {

std::optional<int> leggiRigaComando(QCommandLineParser& riga, int rifiutata, AltriArgomenti altri) {
    traduciQt();
    QCoreApplication::setApplicationVersion(versione());
    const QCommandLineOption aiuto({u"h"_s, u"aiuto"_s, u"help"_s}, u"Mostra questo aiuto."_s);
    riga.addOptions({{u"version"_s, u"Mostra la versione."_s}, aiuto});
    if (!riga.parse(QCoreApplication::arguments())) {
        QTextStream(stderr) << riga.errorText() << '\n';
        return rifiutata;
    }
    if (riga.isSet(u"version"_s))
        riga.showVersion();
    if (riga.isSet(aiuto)) {
        QTextStream(stdout) << riga.helpText();
        return 0;
    }
    if (altri == AltriArgomenti::Ammessi || riga.positionalArguments().isEmpty())
        return std::nullopt;
    QTextStream(stderr) << u"\"%1\" non è un'opzione: --aiuto le elenca.\n"_s.arg(
        riga.positionalArguments().first());
    return rifiutata;
}

std::optional<int> numeroOpzione(const QCommandLineParser& riga, const QString& opzione, int minimo,
                                 int massimo) {
    bool valido = false;
    const int n = riga.value(opzione).toInt(&valido);
    if (valido && n >= minimo && n <= massimo)
        return n;
    QTextStream(stderr) << u"--%1: serve un numero da %2 a %3.\n"_s.arg(opzione).arg(minimo).arg(massimo);
    return std::nullopt;
}

} // namespace bor
