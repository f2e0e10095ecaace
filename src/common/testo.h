// Text in the single-byte code page of the archive (Windows-1252), and the small text rules that every
// screen and file shares.
#pragma once

#include <QByteArray>
#include <QString>

namespace bor {

/// Decodes archive bytes. All 256 values map to a character of their own (the five that the code page leaves
/// open become the control characters of the same number), so decoding and encoding loses nothing.
QString daCp1252(QByteArrayView bytes);

/// Code of a byte of the archive, 0 to 255.
constexpr int codiceDi(char byte) {
    return static_cast<unsigned char>(byte);
}

/// True for the codes that a text keeps: NULs of fields never written, control codes and code 255 fillers are
/// none of it.
constexpr bool stampabile(int codice) {
    return codice >= 32 && codice <= 254;
}

/// Encodes for the archive; a character that the code page lacks becomes '?'.
QByteArray inCp1252(QStringView testo);

/// True when the code page has the character.
bool inCodePage(QChar carattere);

/// Upper case as the archive's indexes have it: character by character, never changing the length, and only
/// to letters that the code page has.
QString maiuscolo(QStringView testo);

/// Keeps, in order, the characters whose archive code is `stampabile`.
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

/// Characters of a text that is read by position: from `da`, counted from 1, so many; -1 for all that follow.
struct Tratto {
    qsizetype da;
    qsizetype lunghezza = -1;
};

/// The text from position `da` (counted from 1), `lunghezza` characters at the most; empty beyond the end.
QString pezzo(QStringView testo, qsizetype da, qsizetype lunghezza = -1);
inline QString pezzo(QStringView testo, Tratto tratto) {
    return pezzo(testo, tratto.da, tratto.lunghezza);
}

} // namespace bor
