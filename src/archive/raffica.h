// One burst of writes that belong together: a record and its counter, warehouse rows with their stock, a
// movement with its balances. Whatever stops it, the archive is afterwards the one before or the one after.
#pragma once

#include "archive/archivio.h"
#include "archive/diario.h"
#include "archive/recupero.h"
#include "common/posti.h"

#include <cstring>
#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

namespace bor {

/// Holds the lock of the company from its making to `esegui` or its end: no operator may be asked in between.
/// Records are read and written through it; nothing reaches the disk before `esegui`, and reads see what is
/// planned. The first failure stays: reads then give zero bytes, and `esegui` writes nothing.
class Raffica {
public:
    /// Takes the lock, waiting at the most five seconds, and completes what another run left unfinished.
    /// `documento` names what is registered, for the message after a crash.
    Raffica(Archivio& archivio, const QString& documento);
    Raffica(const Raffica&) = delete;
    Raffica& operator=(const Raffica&) = delete;

    EsitoRaffica esito() const { return m_esito; }
    bool riuscita() const { return m_esito == EsitoRaffica::Riuscita; }

    template <class R>
    EsitoLettura leggi(const RecordFile<R>& file, int n, R& record) {
        if (const VoceDiario* prevista = trova(file, n)) {
            std::memcpy(&record, prevista->dopo.constData(), sizeof(R));
            return EsitoLettura::Letta;
        }
        const EsitoLettura esito = file.leggi(n, record);
        if (esito == EsitoLettura::Guasta)
            fallisci(EsitoRaffica::NonLetta);
        return esito;
    }
    template <class R>
    R leggi(const RecordFile<R>& file, int n) {
        R record;
        leggi(file, n, record);
        return record;
    }
    /// Plans the write of record n, 1 to 32767.
    template <class R>
    void scrivi(RecordFile<R>& file, int n, const R& record) {
        prevedi(file, n, {reinterpret_cast<const char*>(&record), qsizetype{sizeof(R)}});
    }
    /// Like `RecordFile::scorri`.
    template <class R, class Visita>
    void scorri(const RecordFile<R>& file, int primo, int ultimo, Visita visita) {
        const bool letti = file.scorri(primo, ultimo, [&](int n, const R& record) {
            return riuscita() && (trova(file, n) ? visita(n, leggi(file, n)) : visita(n, record));
        });
        if (!letti)
            fallisci(EsitoRaffica::NonLetta);
    }

    Tot leggiTot(Conta quale) { return leggi(m_archivio.tot, ordinale(quale)); }
    void scriviTot(Conta quale, const Tot& contatore) { scrivi(m_archivio.tot, ordinale(quale), contatore); }
    /// The number that follows the counter's last one; a full file fails the burst and gives 0.
    int prossimo(const Tot& contatore);

    /// Plans a new record behind the last one in use, and after it the counter; its number, or 0.
    template <class R>
    int aggiungi(RecordFile<R>& file, Conta quale, const R& record) {
        Tot contatore = leggiTot(quale);
        const int n = prossimo(contatore);
        if (n == 0)
            return 0;
        contatore.numero = breve(n);
        contatore.modificato = 1;
        scrivi(file, n, record);
        scriviTot(quale, contatore);
        return n;
    }
    /// Plans the change of an existing record, and after it the mark of its file.
    template <class R>
    void cambia(RecordFile<R>& file, Conta quale, int n, const R& record) {
        Tot contatore = leggiTot(quale);
        contatore.modificato = 1;
        scrivi(file, n, record);
        scriviTot(quale, contatore);
    }

    /// Writes what was planned, each record once and in the order of its first `scrivi`; records one behind
    /// the other go together. Gives the lock back.
    /// `seguito` runs behind a burst that succeeded and still under its lock, for a whole file that belongs
    /// to the records: whoever takes the lock next finds both, or neither.
    EsitoRaffica esegui(const std::function<void()>& seguito = {});

    Archivio& archivio() { return m_archivio; }

private:
    const VoceDiario* trova(const FileCasuale& file, int n) const;
    void prevedi(FileCasuale& file, int n, QByteArrayView bytes);
    void fallisci(EsitoRaffica esito);
    bool scriviTutto();

    Archivio& m_archivio;
    FileDiario m_file;
    std::optional<BloccoByte> m_blocco;
    EsitoRaffica m_esito = EsitoRaffica::Riuscita;
    Diario m_diario;
    std::unordered_map<std::size_t, std::size_t> m_indice; ///< position in the log by file and record
};

} // namespace bor
