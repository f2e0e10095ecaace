#include "archive/diario.h"

#include "common/posti.h"

#include <QCryptographicHash>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace bor {

namespace {

constexpr QByteArrayView marca = "BORRIP01";
constexpr auto algoritmo = QCryptographicHash::Blake2b_256;
constexpr qsizetype massimoTesto = 120;

struct Testa {
    std::array<char, 8> marca;
    std::array<char, 32> impronta; ///< of everything behind it
};
struct Indice {
    boost::endian::little_uint32_t voci;
    boost::endian::little_uint32_t lunghezza; ///< of everything behind it: no more of the file counts
    Text<massimoTesto> documento;
};
struct TestaVoce {
    Text<3> file;
    Intero record;
};
static_assert(sizeof(Testa) == 40 && sizeof(Indice) == 128 && sizeof(TestaVoce) == 5);

template <class T>
void aggiungi(QByteArray& bytes, const T& parte) {
    static_assert(disposizioneDiFile<T>);
    bytes.append(reinterpret_cast<const char*>(&parte), sizeof(T));
}

/// Takes a part off the front; false when there are not so many bytes.
template <class T>
bool prendi(QByteArrayView& bytes, T& parte) {
    static_assert(disposizioneDiFile<T>);
    if (bytes.size() < qsizetype{sizeof(T)})
        return false;
    std::memcpy(&parte, bytes.data(), sizeof(T));
    bytes = bytes.sliced(sizeof(T));
    return true;
}

std::optional<VoceDiario> prendiVoce(QByteArrayView& bytes) {
    TestaVoce testa;
    if (!prendi(bytes, testa))
        return std::nullopt;
    const auto file = std::ranges::find_if(
        fileDiRaffica, [&](const FileDiRaffica& f) { return testa.file.text() == f.estensione; });
    if (file == fileDiRaffica.end() || testa.record < 1 || bytes.size() < 2 * file->lunghezza)
        return std::nullopt;
    VoceDiario voce{postoDaZero(file - fileDiRaffica.begin()), testa.record,
                    bytes.first(file->lunghezza).toByteArray(),
                    bytes.sliced(file->lunghezza, file->lunghezza).toByteArray()};
    bytes = bytes.sliced(2 * file->lunghezza);
    return voce;
}

/// What lies behind the checksum, if it is the right one.
std::optional<QByteArrayView> corpo(QByteArrayView bytes) {
    Testa testa;
    if (!prendi(bytes, testa) || QByteArrayView(testa.marca.data(), marca.size()) != marca)
        return std::nullopt;
    Indice indice;
    QByteArrayView resto = bytes;
    if (!prendi(resto, indice) || indice.lunghezza > resto.size())
        return std::nullopt;
    const QByteArrayView coperti = bytes.first(qsizetype{sizeof(Indice)} + indice.lunghezza);
    if (QCryptographicHash::hash(coperti, algoritmo) !=
        QByteArrayView(testa.impronta.data(), std::ssize(testa.impronta)))
        return std::nullopt;
    return coperti;
}

} // namespace

QByteArray codifica(const Diario& diario) {
    qsizetype lunghezza = 0;
    for (const VoceDiario& v : diario.voci)
        lunghezza += qsizetype{sizeof(TestaVoce)} + v.prima.size() + v.dopo.size();
    Testa testa;
    std::ranges::copy(marca, testa.marca.begin());
    testa.impronta = {};
    Indice indice;
    indice.voci = static_cast<std::uint32_t>(diario.voci.size());
    indice.lunghezza = static_cast<std::uint32_t>(lunghezza);
    indice.documento.set(diario.documento);
    QByteArray bytes;
    bytes.reserve(qsizetype{sizeof(Testa)} + qsizetype{sizeof(Indice)} + lunghezza);
    aggiungi(bytes, testa);
    aggiungi(bytes, indice);
    for (const VoceDiario& v : diario.voci) {
        TestaVoce voce;
        voce.file.set(fileDiRaffica[v.file].estensione);
        voce.record = static_cast<std::int16_t>(v.record);
        aggiungi(bytes, voce);
        bytes += v.prima;
        bytes += v.dopo;
    }
    const QByteArray impronta =
        QCryptographicHash::hash(QByteArrayView(bytes).sliced(sizeof(Testa)), algoritmo);
    std::ranges::copy(impronta, bytes.begin() + offsetof(Testa, impronta));
    return bytes;
}

std::optional<Diario> decodifica(QByteArrayView bytes) {
    auto resto = corpo(bytes);
    Indice indice;
    if (!resto || !prendi(*resto, indice))
        return std::nullopt;
    Diario diario{puliscitesto(indice.documento.text()), {}};
    for (std::uint32_t i = 0; i < indice.voci; ++i) {
        auto voce = prendiVoce(*resto);
        if (!voce)
            return std::nullopt;
        diario.voci.push_back(*std::move(voce));
    }
    return diario;
}

} // namespace bor
