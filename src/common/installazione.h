// Where the programs lie and what was installed with them, found from the running program: its folder may be
// moved, and a build folder is laid out alike.
#pragma once

#include <QString>
#include <QStringView>

namespace bor {

/// Names the program to the desktop: its menu entry, icon and windows carry it.
inline constexpr QStringView identificatore = u"example.borlano.borfte";

/// The program of this name for those that run from `cartella`: beside them, or where the others are
/// installed. The place beside them when it is nowhere.
QString programma(const QString& cartella, QStringView nome);

/// A file or folder that was installed with the programs, such as "demo". Needs the application object.
QString installato(QStringView nome);

} // namespace bor
