// Writes today's electronic invoices of a company without a window.
#pragma once

#include "borxmlcheck/resoconto.h"

#include <functional>

namespace bor::emette {

struct Emissione {
    QString unita;     ///< folder that stands for the drive's root
    int azienda = 1;   ///< 0 to 999
    QString cartella;  ///< folder for the files, which must exist
    int documento = 0; ///< record number; 0 for all live documents
};

using Racconto = std::function<void(const resoconto::RilieviFile&)>;

/// Writes the files, a hundred documents at a time, and gives each one's findings to `racconta`; a document
/// that was refused comes under its number and day. A reason when nothing could be begun, else empty.
QString emetti(const Emissione& richiesta, const Racconto& racconta);

} // namespace bor::emette
