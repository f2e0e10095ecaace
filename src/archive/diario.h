// The recovery log of a company, `borlano.rip`: what one burst of writes is about to change. It is written
// and flushed before the burst and emptied after it, so one that is found says which writes may be missing.
#pragma once

#include "archive/campi.h"

#include <optional>
#include <vector>

namespace bor {

/// The archive files that bursts change, by their three letters, which is how the log names them.
struct FileDiRaffica {
    QStringView estensione;
    qsizetype lunghezza; ///< of a record, in bytes
};
inline constexpr std::array<FileDiRaffica, 7> fileDiRaffica{
    {{u"tot", 12}, {u"art", 327}, {u"con", 150}, {u"fte", 522}, {u"f2e", 838}, {u"mag", 94}, {u"gio", 296}}};

/// One record that a burst changes.
struct VoceDiario {
    std::size_t file = 0; ///< position in `fileDiRaffica`
    int record = 0;       ///< 1 to 32767
    QByteArray prima;     ///< the whole record before; zero bytes for a place beyond the end
    QByteArray dopo;
};

struct Diario {
    QString documento; ///< what the burst registers, as the operator is told
    std::vector<VoceDiario> voci;
};

/// The bytes of the log, which begin with a mark and a checksum over all that follows.
QByteArray codifica(const Diario& diario);

/// The log of these bytes; nothing when it is empty, torn, or names anything but records of `fileDiRaffica`.
std::optional<Diario> decodifica(QByteArrayView bytes);

/// What is written over the beginning of a log to empty it: its mark gone, in place, so that a full disk does
/// not hinder and the room stays for the next one.
inline constexpr std::array<char, 8> diarioVuoto{};

/// Beyond this size a file is no log of this program.
inline constexpr qint64 massimoDiario = qint64{128} * 1024 * 1024;

} // namespace bor
