#include "common/italiano.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace bor {

void traduciQt() {
    auto* italiano = new QTranslator(QCoreApplication::instance());
    if (italiano->load(u"qtbase_it"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(italiano);
}

} // namespace bor
