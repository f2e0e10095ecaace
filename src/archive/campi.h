// The field types that record layouts are built of: little-endian numbers and fixed-width text, all
// unaligned.
#pragma once

#include "common/testo.h"

#include <boost/endian/arithmetic.hpp>
#include <boost/endian/buffers.hpp>

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace bor {

using Intero = boost::endian::little_int16_t;
using Singolo = boost::endian::little_float32_t;
using Reale = boost::endian::little_float64_t;

/// A number that fits the two bytes of an `Intero`.
constexpr std::int16_t breve(int numero) {
    return static_cast<std::int16_t>(numero);
}

/// A text field of N raw bytes. Bytes that nobody assigned stay what they were, NULs too.
template <std::size_t N>
struct Text {
    std::array<char, N> bytes;

    QByteArrayView raw() const { return {bytes.data(), qsizetype{N}}; }
    /// All N characters.
    QString text() const { return daCp1252(raw()); }
    /// What a person reads of it, on paper, screen or in a message: without the blanks around it and without
    /// the bytes of a place never written.
    QString trimmed() const { return puliscitesto(text()); }
    /// Encodes, cuts at N and pads with blanks.
    void set(QStringView testo) {
        const QByteArray codici = inCp1252(testo.left(qsizetype{N}));
        bytes.fill(' ');
        std::copy(codici.begin(), codici.end(), bytes.begin());
    }
    void blank() { bytes.fill(' '); }

    friend bool operator==(const Text&, const Text&) = default;
};

/// A record as it lies on file: every byte of the struct is a byte of the file.
template <class R>
inline constexpr bool disposizioneDiFile = std::is_trivially_copyable_v<R>&& std::is_standard_layout_v<R> &&
                                           alignof(R) == 1;

/// A record whose bytes are all zero, which is what a place beyond the end of a file reads as.
template <class R>
R vuoto() {
    static_assert(disposizioneDiFile<R>);
    std::array<std::byte, sizeof(R)> zeri{};
    return std::bit_cast<R>(zeri);
}

/// Holds a field to its place on file. A macro, since `offsetof` takes a member's name.
#define BOR_POSTO(R, campo, offset) static_assert(offsetof(R, campo) == (offset), #R "::" #campo)

} // namespace bor
