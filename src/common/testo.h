// Text in the single-byte code page of the archive (Windows-1252), and the small text rules that every
// screen and file shares.
#pragma once

#include <QByteArray>
#include <QString>

namespace bor {

/// Decodes archive bytes. All 256 values map to a character of their own (the five that the code page leaves
/// open become the control characters of the same number), so decoding and encoding loses nothing.
QString daCp1252(QByteArrayView bytes);

/// Encodes for the archive; a character that the code page lacks becomes '?'.
QByteArray inCp1252(QStringView testo);

/// True when the code page has the character.
bool inCodePage(QChar carattere);

/// Upper case as the archive's indexes have it: character by character, never changing the length, and only
/// to letters that the code page has.
QString maiuscolo(QStringView testo);

/// Keeps, in order, the characters whose archive code lies from 32 to 254: the NULs of fields that were never
/// written and code 255 fillers disappear.
QString pulisci(QStringView testo);

/// `pulisci`, then trimmed.
QString puliscitesto(QStringView testo);

/// The text as a search compares it: small letters, without accents.
QString piega(QStringView testo);

/// The text cut or padded with blanks to exactly `lunghezza` characters.
QString riempi(QStringView testo, qsizetype lunghezza);

/// The last `lunghezza` characters of the text, zeros put in front: "7" to three places is "007", "1234" is
/// "234".
QString zeriDavanti(QStringView testo, qsizetype lunghezza);

/// The text from position `da` (counted from 1), `lunghezza` characters at the most; empty beyond the end.
QString pezzo(QStringView testo, qsizetype da, qsizetype lunghezza = -1);

} // namespace bor
