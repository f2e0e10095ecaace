// A file of records of one type, read and written whole by record number.
#pragma once

#include "archive/campi.h"
#include "archive/filecasuale.h"

#include <vector>

namespace bor {

/// What became of the read of a record.
enum class EsitoLettura {
    Letta,  ///< the whole record is on file
    Manca,  ///< its place is beyond the end of the file, or the end cuts it off
    Guasta, ///< the read failed: what is on file is not known, and nothing may be written over it
};

/// Records are numbered from 1. There is no header and no buffer: other computers write the same file, so
/// every read and write goes to it. How many records are in use stands in `tot`, not in the length of the
/// file.
template <class R>
class RecordFile : public FileCasuale {
    static_assert(disposizioneDiFile<R>);

public:
    using FileCasuale::FileCasuale;

    /// Reads record n. Beyond the end (and for n below 1) and after a failed read the record is all zero
    /// bytes; a record cut off by the end keeps the bytes that are there.
    EsitoLettura leggi(int n, R& record) const {
        const int letti = leggiBlocco(n, std::span(&record, 1));
        return letti < 0 ? EsitoLettura::Guasta : letti == 1 ? EsitoLettura::Letta : EsitoLettura::Manca;
    }
    R leggi(int n) const {
        R record;
        leggi(n, record);
        return record;
    }

    /// Writes record n at its own place, which extends the file where needed, whatever odd bytes a torn write
    /// left at its end. False when it could not be written or n is below 1.
    bool scrivi(int n, const R& record) {
        return n >= 1 && scriviBytes(posizione(n), std::as_bytes(std::span(&record, 1)));
    }

    /// Reads consecutive records from number n on with one system call; how many of them were whole on file,
    /// or -1 when the read failed. The bytes of the others that are not on file are zero.
    int leggiBlocco(int n, std::span<R> records) const {
        const auto bytes = std::as_writable_bytes(records);
        if (n < 1) {
            std::ranges::fill(bytes, std::byte{0});
            return 0;
        }
        const qint64 letti = leggiBytes(posizione(n), bytes);
        return letti < 0 ? -1 : static_cast<int>(letti / qint64{sizeof(R)});
    }

    /// Calls `visita(numero, record)` for the records from `primo` to `ultimo`, reading many at a time. A
    /// visit that returns false ends the pass; so does a read that fails, and only then is the result false.
    template <class Visita>
    bool scorri(int primo, int ultimo, Visita visita) const {
        constexpr int perBlocco = std::max<int>(1, 256 * 1024 / static_cast<int>(sizeof(R)));
        std::vector<R> blocco(static_cast<std::size_t>(std::clamp(ultimo - primo + 1, 0, perBlocco)));
        for (int n = primo; n <= ultimo; n += perBlocco) {
            const auto quanti = static_cast<std::size_t>(std::min(perBlocco, ultimo - n + 1));
            if (leggiBlocco(n, std::span(blocco).first(quanti)) < 0)
                return false;
            for (std::size_t i = 0; i < quanti; ++i) {
                if (!visita(n + static_cast<int>(i), blocco[i]))
                    return true;
            }
        }
        return true;
    }

    /// Where record n begins, in bytes.
    static qint64 posizione(int n) { return qint64{n - 1} * qint64{sizeof(R)}; }
};

} // namespace bor
