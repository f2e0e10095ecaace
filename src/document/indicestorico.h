// What the lines files of a company say of its sales, kept between runs so that no file is read twice. The
// file lies in the user's cache, never in the company's folder: it may be deleted at any time, and one that
// is damaged or of another version counts as none. docs/storico.md tells its form.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>
#include <vector>

namespace bor {

/// A sale of an article, as a goods line has it.
struct RigaVenduta {
    int recart = 0; ///< `art` record
    int sconto1 = 0;
    int sconto2 = 0;
    double quantita = 0;
    double prezzo = 0;

    friend bool operator==(const RigaVenduta&, const RigaVenduta&) = default;
};

/// When a file was written, and how long it is: of one that has both as before nothing is read again.
struct TempiFile {
    qint64 scritto = 0; ///< milliseconds of the epoch
    qint64 lunghezza = 0;

    friend bool operator==(const TempiFile&, const TempiFile&) = default;
};

/// The sales of one lines file.
struct VenditeFile {
    TempiFile tempi;
    bool conIva = false; ///< the prices include VAT
    std::vector<RigaVenduta> righe;

    friend bool operator==(const VenditeFile&, const VenditeFile&) = default;
};

/// By the name of the lines file.
using IndiceStorico = QHash<QByteArray, VenditeFile>;

QByteArray codifica(const IndiceStorico& indice);
/// Nothing for bytes that are no index of this version; what comes out is within what lines can hold.
std::optional<IndiceStorico> decodificaIndice(QByteArrayView bytes);

/// An empty index where the file is missing or no index.
IndiceStorico leggiIndice(const QString& percorso);
/// Replaces the file as a whole, for the user's eyes alone; false when it could not be written.
bool scriviIndice(const QString& percorso, const IndiceStorico& indice);

} // namespace bor
