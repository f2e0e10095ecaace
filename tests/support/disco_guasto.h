// A disk that fails, or stands still as after a kill, at one of its writes, and that can note them all.
#pragma once

#include "archive/disco.h"

#include <cerrno>
#include <vector>

namespace bor {

/// Something that was asked of a disk.
struct Operazione {
    enum class Tipo { Scrittura, Scarico, Sostituzione, Rimozione, Copia };
    Tipo tipo;
    QString percorso;
    qint64 posizione = 0;
    QByteArray bytes;
    QString origine; ///< of a copy
};

/// Counts writes, flushes, replacements, removals and copies alike, from 1. Flushes are noted and, unless
/// asked for, not done: what a power cut would lose is worked out from the notes.
class DiscoGuasto : public Disco {
public:
    int guasto = 0;         ///< operation that fails; 0 none
    bool perSempre = false; ///< ... and all that follow it
    bool corta = false;     ///< a write that fails has written half its bytes
    int errore = ENOSPC;
    int caduta = 0;      ///< operation after which nothing reaches the disk any more; 0 none
    QString illeggibile; ///< reads of files whose name ends so fail
    int scritture = 0;
    bool annota = false;
    bool scaricaDavvero = false;
    std::vector<Operazione> operazioni;

    void ripara() {
        guasto = caduta = scritture = 0;
        perSempre = corta = false;
        illeggibile.clear();
    }

protected:
    qint64 leggiBytes(int descrittore, qint64 posizione, std::span<std::byte> bytes,
                      const QString& percorso) override {
        if (!illeggibile.isEmpty() && percorso.endsWith(illeggibile)) {
            errno = EIO;
            return -1;
        }
        return Disco::leggiBytes(descrittore, posizione, bytes, percorso);
    }
    bool scriviBytes(int descrittore, qint64 posizione, QByteArrayView bytes,
                     const QString& percorso) override {
        const auto scrivi = [&](QByteArrayView parte) {
            return Disco::scriviBytes(descrittore, posizione, parte, percorso);
        };
        return operazione(
            {Operazione::Tipo::Scrittura, percorso, posizione, bytes.toByteArray(), {}},
            [&] { return scrivi(bytes); }, [&] { scrivi(bytes.first(bytes.size() / 2)); });
    }
    bool scaricaBytes(int descrittore, const QString& percorso) override {
        return operazione(
            {Operazione::Tipo::Scarico, percorso, 0, {}, {}},
            [&] { return !scaricaDavvero || Disco::scaricaBytes(descrittore, percorso); }, [] {});
    }
    bool sostituisci(const QString& percorso, QByteArrayView contenuto) override {
        return operazione(
            {Operazione::Tipo::Sostituzione, percorso, 0, contenuto.toByteArray(), {}},
            [&] { return Disco::sostituisci(percorso, contenuto); }, [] {});
    }
    bool rimuovi(const QString& percorso) override {
        return operazione(
            {Operazione::Tipo::Rimozione, percorso, 0, {}, {}}, [&] { return Disco::rimuovi(percorso); },
            [] {});
    }
    bool duplica(const QString& da, const QString& a) override {
        return operazione(
            {Operazione::Tipo::Copia, a, 0, {}, da}, [&] { return Disco::duplica(da, a); }, [] {});
    }

private:
    template <class Esegui, class MezzaScrittura>
    bool operazione(Operazione cosa, Esegui esegui, MezzaScrittura mezza) {
        ++scritture;
        if (guasto > 0 && (scritture == guasto || (perSempre && scritture > guasto))) {
            if (corta)
                mezza();
            errno = errore;
            return false;
        }
        if (annota)
            operazioni.push_back(std::move(cosa));
        return caduta > 0 && scritture > caduta ? true : esegui();
    }
};

} // namespace bor
