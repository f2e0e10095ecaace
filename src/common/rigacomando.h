// What the command lines of all tools have in common: --version, --aiuto, and how a wrong option is refused.
#pragma once

#include <QCommandLineParser>

#include <optional>

namespace bor {

/// Whether a program takes arguments beside its options. One that does not refuses them: who writes two files
/// where one is read would take the answer for both.
enum class AltriArgomenti { Rifiutati, Ammessi };

/// Reads the running program's arguments. The code with which it has to end at once: 0 after its help was
/// asked for, `rifiutata` after the error stream was told what is wrong; nothing when it goes on.
std::optional<int> leggiRigaComando(QCommandLineParser& riga, int rifiutata,
                                    AltriArgomenti altri = AltriArgomenti::Rifiutati);

/// The number of an option within its limits; nothing after the error stream was told what is wrong with it.
std::optional<int> numeroOpzione(const QCommandLineParser& riga, const QString& opzione, int minimo,
                                 int massimo);

} // namespace bor
