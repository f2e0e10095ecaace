// Keeps registrations of other programs out while something is read that must be of one moment.
#pragma once

#include "archive/archivio.h"
#include "archive/blocchi.h"

#include <fcntl.h>

namespace bor {

/// Shared with every other reader, and never waited for. Where the file system knows no locks, the read goes
/// on without.
class BloccoLettura {
public:
    explicit BloccoLettura(const Archivio& archivio) : m_descrittore(archivio.tot.descrittore()) {
        if (archivio.tot.aperto())
            m_esito = blocca(m_descrittore, F_RDLCK, byteContatori);
    }
    ~BloccoLettura() {
        if (m_esito == EsitoBlocco::Preso)
            blocca(m_descrittore, F_UNLCK, byteContatori);
    }
    BloccoLettura(const BloccoLettura&) = delete;
    BloccoLettura& operator=(const BloccoLettura&) = delete;

    /// A program is registering right now.
    bool occupato() const { return m_esito == EsitoBlocco::Occupato; }

private:
    int m_descrittore;
    EsitoBlocco m_esito = EsitoBlocco::Impossibile;
};

} // namespace bor
