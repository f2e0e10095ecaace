// A printer that remembers what was drawn. Every character is two millimetres wide.
#pragma once

#include "common/stampante.h"

#include <QStringList>

namespace bor {

class StampanteFinta : public Stampante {
public:
    bool presente = true;
    int pagine = 0;
    bool terminata = false;
    QStringList testi;
    QStringList immagini;

    bool inizia(const QString&) override { return presente; }
    double larghezza(const QString& testo, const Carattere&) override {
        return 2.0 * static_cast<double>(testo.size());
    }
    void testo(double, double, const QString& testo, const Carattere&, int) override { testi.append(testo); }
    void linea(double, double, double, double, int) override {}
    void riquadro(double, double, double, double, int, bool) override {}
    void immagine(double, double, double, double, const QString& percorso) override {
        immagini.append(percorso);
    }
    void nuovaPagina() override { ++pagine; }
    void termina() override { terminata = true; }
};

} // namespace bor
