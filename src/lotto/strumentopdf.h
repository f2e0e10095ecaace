// The PDF tool at work beside the program: it gets commands and answers each with a line.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace bor {

class StrumentoPdf {
public:
    virtual ~StrumentoPdf();

    /// Hands on bytes of commands; they wait where the tool has not taken them yet.
    virtual void scrivi(const QByteArray& bytes) = 0;
    /// The next answer that has come, nothing as long as none has. Never waits.
    virtual std::optional<QByteArray> linea() = 0;
    /// It ended or never began.
    virtual bool finito() const = 0;
};

/// Starts the tool; by its path on this machine, in a folder that is its current drive.
using AvviaStrumento =
    std::function<std::unique_ptr<StrumentoPdf>(const QString& programma, const QString& cartella)>;

std::unique_ptr<StrumentoPdf> avviaStrumentoPdf(const QString& programma, const QString& cartella);

} // namespace bor
