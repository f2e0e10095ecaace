// The record files of one company, open for the whole run.
#pragma once

#include "archive/age.h"
#include "archive/art.h"
#include "archive/cli.h"
#include "archive/disco.h"
#include "archive/f2e.h"
#include "archive/fte.h"
#include "archive/gio.h"
#include "archive/recordfile.h"
#include "archive/tot.h"
#include "common/percorsi.h"

#include <memory>

namespace bor {

/// One document: the two records of the same number.
struct CoppiaFte {
    Fte fte;
    F2e f2e;
};

class Archivio {
public:
    Archivio(const Percorsi& percorsi, Disco& disco, double codiceazienda);

    /// Opens every file of the company, in the order the suite fixes. A missing file is made empty; one that
    /// cannot be opened stays closed and reads as blank records.
    void apri(Apertura apertura = Apertura::Condivisa);
    void chiudi();

    /// DOS path of a file in the company's folder: `file(u"f12")` gives "\suprok\suprok\boraz0.007\f12".
    QString file(QStringView nome) const;
    /// DOS path of one of the company's archive files: `borlano.` and the extension.
    QString borlano(QStringView estensione) const;
    /// Path of this machine for a DOS path; empty when the path is not allowed.
    QString reale(QStringView dos) const;

    Tot leggiTot(Conta quale) const;
    bool scriviTot(Conta quale, const Tot& contatore);

    /// Keeps other running programs from reading a counter to write it back until the result goes away. It is
    /// held for the few writes of one append, never while an operator thinks.
    [[nodiscard]] BloccoByte bloccaContatori() const { return BloccoByte(tot, byteContatori); }

    /// Writes the record behind the last one in use and then counts it, in that order: a crash in between
    /// leaves a spare record that the next append overwrites. The new record's number; 0 when it could not be
    /// written or the count has reached `massimo`, and the file is then as it was.
    template <class R>
    int aggiungi(RecordFile<R>& records, Conta quale, const R& record) {
        const BloccoByte blocco = bloccaContatori();
        Tot contatore = leggiTot(quale);
        const int n = prossimo(contatore);
        if (n == 0 || !records.scrivi(n, record))
            return 0;
        contatore.modificato = 1;
        contatore.numero = static_cast<std::int16_t>(n);
        return scriviTot(quale, contatore) ? n : 0;
    }

    /// Writes an existing record and marks its file as changed.
    template <class R>
    bool cambia(RecordFile<R>& records, Conta quale, int n, const R& record) {
        if (!records.scrivi(n, record))
            return false;
        const BloccoByte blocco = bloccaContatori();
        Tot contatore = leggiTot(quale);
        contatore.modificato = 1;
        return scriviTot(quale, contatore);
    }

    /// The number that follows the counter's last one; 0 when the file is full. A count below 0 is taken for
    /// 0.
    static int prossimo(const Tot& contatore);

    /// Reads document n. A second half that was never written comes out in its empty state.
    CoppiaFte leggi(int n) const;
    /// Writes document n, head first.
    bool scrivi(int n, const CoppiaFte& coppia);

    Disco& disco() { return m_disco; }
    const Percorsi& percorsi() const { return m_percorsi; }

    /// Counters and record numbers are 16 bits wide on file.
    static constexpr int massimo = 32767;

private:
    const Percorsi& m_percorsi;
    Disco& m_disco;
    QString m_cartella;

public:
    RecordFile<Tot> tot;
    RecordFile<Cli> cli;
    RecordFile<Src> src;
    RecordFile<Art> art;
    RecordFile<Sra> sra;
    RecordFile<Srb> srb;
    RecordFile<Con> con;
    RecordFile<Fte> fte;
    RecordFile<F2e> f2e;
    RecordFile<Mag> mag;
    RecordFile<Gio> gio;
    RecordFile<Age> age;
    RecordFile<Prx> prx;
    RecordFile<BloccoArt> artBlocchi; ///< `art` once more, twenty records a block
};

} // namespace bor
