// A file of fixed-length records open for random access, shared with other programs and computers.
#pragma once

#include <QString>

#include <cstddef>
#include <span>

namespace bor {

class Disco;

enum class Apertura {
    Condivisa,   ///< other programs may have the file open too
    Esclusiva,   ///< fails while any other program has the file open, and keeps others out
    SolaLettura, ///< shared, never made when it is missing, and every write fails
};

/// The bytes of such a file. Share modes are advisory locks on one byte far beyond the end of the data: a
/// lock on the data itself would stop the reads of other programs on some network file systems. Where the
/// file system knows no locks, the open succeeds without one.
class FileCasuale {
public:
    explicit FileCasuale(Disco& disco) : m_disco(disco) {}
    ~FileCasuale() { chiudi(); }
    FileCasuale(const FileCasuale&) = delete;
    FileCasuale& operator=(const FileCasuale&) = delete;

    /// Opens the file of this machine, made empty when it does not exist (unless only for reading). A file
    /// that may not be written is opened for reading, and its writes fail. False leaves it closed: reads then
    /// give nothing and writes fail.
    bool apri(const QString& percorso, Apertura apertura = Apertura::Condivisa);
    void chiudi();
    bool aperto() const { return m_descrittore >= 0; }
    const QString& percorso() const { return m_percorso; }
    int descrittore() const { return m_descrittore; }
    qint64 lunghezza() const;

    /// How many bytes could be read; what lies beyond them in `bytes` is set to zero. -1 when the read failed
    /// or the file is closed: all bytes are then zero, but what lies on disk is not known.
    qint64 leggiBytes(qint64 posizione, std::span<std::byte> bytes) const;
    bool scriviBytes(qint64 posizione, std::span<const std::byte> bytes);
    /// Waits until what was written is on the disk itself.
    bool scarica();
    /// Gives back the room behind this length, if the file is longer.
    void accorcia(qint64 lunghezza);

private:
    Disco& m_disco;
    QString m_percorso;
    int m_descrittore = -1;
};

/// A lock on one byte of an open file, held for a few system calls. Waits for another program at the most
/// five seconds.
class BloccoByte {
public:
    BloccoByte(const FileCasuale& file, qint64 posizione);
    ~BloccoByte();
    BloccoByte(const BloccoByte&) = delete;
    BloccoByte& operator=(const BloccoByte&) = delete;

    /// Another program kept the lock all the time. False also where the file system knows no locks: work goes
    /// on without.
    bool occupato() const { return m_occupato; }

private:
    bool m_occupato = false;
    int m_descrittore = -1;
    qint64 m_posizione;
};

/// Places of the locks, far beyond any record. Other running programs look at the same bytes: they can never
/// change.
inline constexpr qint64 byteCondivisione = qint64{1} << 40;
inline constexpr qint64 byteContatori = byteCondivisione + 1;

} // namespace bor
