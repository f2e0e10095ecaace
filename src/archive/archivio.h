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
#include "archive/recupero.h"
#include "archive/tot.h"
#include "common/percorsi.h"

#include <memory>
#include <utility>
#include <vector>

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

    EsitoLettura leggiTot(Conta quale, Tot& contatore) const;
    /// A counter that could not be read is all zeros: nothing may be written on the strength of it.
    Tot leggiTot(Conta quale) const;
    bool scriviTot(Conta quale, const Tot& contatore);

    /// The open files that bursts of writes change, in the order of `fileDiRaffica`.
    const FileCasuale& fileDiRecord(std::size_t posizione) const;
    FileCasuale& fileDiRecord(std::size_t posizione);
    std::size_t posizioneFile(const FileCasuale& file) const;

    /// Notes that a burst of an earlier run was completed; `prendiRecuperi` gives what was noted, once.
    void annota(const Recupero& recupero) { m_recuperi.push_back(recupero); }
    std::vector<Recupero> prendiRecuperi() { return std::exchange(m_recuperi, {}); }

    /// The log of a burst that failed and could not be put back yet: should it be found again in this run, it
    /// is put back and not completed.
    const QByteArray& daAnnullare() const { return m_daAnnullare; }
    void tieniDaAnnullare(const QByteArray& diario) { m_daAnnullare = diario; }
    /// The log of a burst that was written whole but whose log could not be emptied: nothing to tell anybody.
    const QByteArray& finito() const { return m_finito; }
    void tieniFinito(const QByteArray& diario) { m_finito = diario; }

    /// Reads document n. A second half that was never written comes out in its empty state. False when a half
    /// could not be read: the document must not be stored then.
    bool leggi(int n, CoppiaFte& coppia) const;
    CoppiaFte leggi(int n) const;
    /// Writes document n, head first.
    bool scrivi(int n, const CoppiaFte& coppia);

    Disco& disco() const { return m_disco; }
    const Percorsi& percorsi() const { return m_percorsi; }

    /// Counters and record numbers are 16 bits wide on file.
    static constexpr int massimo = 32767;

private:
    const Percorsi& m_percorsi;
    Disco& m_disco;
    QString m_cartella;
    std::vector<Recupero> m_recuperi;
    QByteArray m_daAnnullare;
    QByteArray m_finito;

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
