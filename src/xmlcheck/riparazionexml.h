// Mends the text of an XML file before it is parsed: what would stop a parser is replaced by what the writer
// meant, with a mark in front by which the finding is put to the right element afterwards.
#pragma once

#include "xmlcheck/rilievo.h"

#include <QByteArray>

#include <array>

namespace bor {

/// Marks in repaired text: characters that stand for nothing and that XML lets through.
enum class Segno : char16_t { Codifica = 0xFDD0, ECommerciale, Minore, Controllo };

inline constexpr std::array segni = {Segno::Codifica, Segno::ECommerciale, Segno::Minore, Segno::Controllo};

/// A file with more repairs than this is beyond them: the text ends there.
inline constexpr qsizetype segniMassimi = 10'000;

struct TestoRiparato {
    QString testo;       ///< with its marks
    qsizetype segni = 0; ///< how many repairs it took
};

/// The text of the file. Encoded as it declares, or byte by byte as the Italian code page where the bytes are
/// no UTF-8.
TestoRiparato riparaXml(const QByteArray& contenuto);

/// The bytes are UTF-8 and declare nothing else.
bool diUtf8(const QByteArray& contenuto);

/// Finding for one kind of mark, without its element.
Rilievo rilievoDelSegno(Segno segno);

} // namespace bor
