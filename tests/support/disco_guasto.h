// A disk that fails at one of its writes, or takes the whole process down right after it.
#pragma once

#include "archive/disco.h"

#include <unistd.h>

namespace bor {

class DiscoGuasto : public Disco {
public:
    static constexpr int uscitaPerCaduta = 9;

    int guasto = 0; ///< write that fails, counted from 1; 0 none
    int caduta = 0; ///< write after which the process ends; 0 none
    int scritture = 0;

protected:
    bool scriviBytes(int descrittore, qint64 posizione, QByteArrayView bytes) override {
        return scrittura([&] { return Disco::scriviBytes(descrittore, posizione, bytes); });
    }
    bool sostituisci(const QString& percorso, QByteArrayView contenuto) override {
        return scrittura([&] { return Disco::sostituisci(percorso, contenuto); });
    }
    bool rimuovi(const QString& percorso) override {
        return scrittura([&] { return Disco::rimuovi(percorso); });
    }

private:
    template <class Scrittura>
    bool scrittura(Scrittura esegui) {
        if (++scritture == guasto)
            return false;
        const bool riuscita = esegui();
        if (scritture == caduta)
            ::_exit(uscitaPerCaduta);
        return riuscita;
    }
};

} // namespace bor
