// What the module asks of the PDF tool on its command line: composed here for the one, parsed for the other.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace bor {

/// The address of a document that is not mailed.
inline constexpr QStringView senzaPosta = u"***";

/// The parts of "layout,report,pdf,address[,text of the mail]"; paths are DOS paths.
struct ComandoPdf {
    bool anteprima = false; ///< pages on screen: layout and report alone
    QString layout;
    QString rapporto;
    QString pdf;
    QString indirizzo; ///< or `senzaPosta`
    QString testo;     ///< all that follows the fourth comma, commas too

    /// The arguments for the tool. No part but the text may hold a comma.
    QStringList argomenti() const;

    /// From the arguments after the tool's name; several are taken as one, joined with blanks. Nothing when a
    /// part is missing.
    static std::optional<ComandoPdf> leggi(const QStringList& argomenti);
};

} // namespace bor
