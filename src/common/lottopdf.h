// What the module and the PDF tool say to each other while the tool works through many documents: a line of
// JSON each way. Composed here for the one, parsed for the other.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace bor {

/// The tool's option for such a run: it then takes commands on its standard input, until that ends.
inline constexpr QStringView opzioneLotto = u"--lotto";

/// No report is larger, in bytes.
inline constexpr qint64 massimoRapporto = qint64{256} * 1024 * 1024;

/// A PDF to make of the report that follows the line, or a mail with PDFs that were made before. Paths are
/// DOS paths.
struct ComandoLotto {
    QString layout;
    QString pdf;          ///< empty for a mail
    qint64 byte = 0;      ///< of the report, which follow the line at once
    QString indirizzo;    ///< of a mail
    QString testo;        ///< of the mail; empty for the layout's
    QStringList allegati; ///< PDFs of the mail, in their order

    QByteArray linea() const;
    /// Nothing for a line that is no such command.
    static std::optional<ComandoLotto> leggi(const QByteArray& linea);
};

/// One for each command, in their order.
struct RispostaLotto {
    QString errore; ///< why it was not done, a sentence; empty when it was

    QByteArray linea() const;
    static std::optional<RispostaLotto> leggi(const QByteArray& linea);
};

} // namespace bor
