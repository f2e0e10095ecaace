#include "archive/raffica.h"

#include "common/posti.h"

#include <algorithm>

namespace bor {

namespace {

/// One number for a file and a record of it.
std::size_t chiave(std::size_t file, int n) {
    return file << 16 | postoDaZero(n);
}

} // namespace

Raffica::Raffica(Archivio& archivio, const QString& documento)
    : m_archivio(archivio), m_file(archivio), m_diario{documento, {}} {
    archivio.disco().dimentica();
    m_blocco.emplace(archivio.tot, byteContatori);
    if (m_blocco->occupato())
        fallisci(EsitoRaffica::Occupata);
    else if (!m_file.apri())
        fallisci(EsitoRaffica::NonScritta);
    else
        fallisci(m_file.recupera());
}

int Raffica::prossimo(const Tot& contatore) {
    const int n = std::max<int>(contatore.numero, 0) + 1;
    if (n <= Archivio::massimo)
        return n;
    fallisci(EsitoRaffica::Piena);
    return 0;
}

const VoceDiario* Raffica::trova(const FileCasuale& file, int n) const {
    if (m_diario.voci.empty())
        return nullptr;
    const auto voce = m_indice.find(chiave(m_archivio.posizioneFile(file), n));
    return voce == m_indice.end() ? nullptr : &m_diario.voci[voce->second];
}

void Raffica::prevedi(FileCasuale& file, int n, QByteArrayView bytes) {
    if (n < 1 || n > Archivio::massimo)
        fallisci(EsitoRaffica::Piena);
    if (!riuscita())
        return;
    const std::size_t quale = m_archivio.posizioneFile(file);
    const auto [voce, nuova] = m_indice.try_emplace(chiave(quale, n), m_diario.voci.size());
    if (!nuova) {
        m_diario.voci[voce->second].dopo = bytes.toByteArray();
        return;
    }
    QByteArray prima(bytes.size(), '\0');
    if (file.leggiBytes(qint64{n - 1} * bytes.size(), std::as_writable_bytes(std::span(prima))) < 0)
        fallisci(EsitoRaffica::NonLetta);
    m_diario.voci.push_back({quale, n, std::move(prima), bytes.toByteArray()});
}

void Raffica::fallisci(EsitoRaffica esito) {
    if (!riuscita() || esito == EsitoRaffica::Riuscita)
        return;
    m_esito = esito;
    m_blocco.reset();
}

EsitoRaffica Raffica::esegui(const std::function<void()>& seguito) {
    if (riuscita() && !m_diario.voci.empty()) {
        if (m_file.scrivi(m_diario) && scriviTutto()) {
            // A log that could not be emptied names writes that are all on disk: the next burst finds nothing
            // to do in it.
            m_archivio.tieniFinito(m_file.svuota() ? QByteArray() : codifica(m_diario));
        } else {
            m_file.annulla(m_diario);
            fallisci(EsitoRaffica::NonScritta);
        }
    }
    if (riuscita() && seguito)
        seguito();
    m_blocco.reset();
    return m_esito;
}

bool Raffica::scriviTutto() {
    const std::vector<VoceDiario>& voci = m_diario.voci;
    std::vector<bool> scritte(voci.size());
    std::array<bool, fileDiRaffica.size()> toccati{};
    for (std::size_t i = 0; i < voci.size(); ++i) {
        if (scritte[i])
            continue;
        const VoceDiario& prima = voci[i];
        QByteArray insieme;
        for (int n = prima.record;; ++n) {
            const auto voce = m_indice.find(chiave(prima.file, n));
            if (voce == m_indice.end() || scritte[voce->second])
                break;
            insieme += voci[voce->second].dopo;
            scritte[voce->second] = true;
        }
        if (!m_archivio.fileDiRecord(prima.file)
                 .scriviBytes(qint64{prima.record - 1} * prima.dopo.size(),
                              std::as_bytes(std::span(insieme))))
            return false;
        toccati[prima.file] = true;
    }
    for (std::size_t i = 0; i < toccati.size(); ++i) {
        if (toccati[i] && !m_archivio.fileDiRecord(i).scarica())
            return false;
    }
    return true;
}

} // namespace bor
