#include "archive/f2e.h"

namespace bor {

namespace {

template <std::size_t N>
void azzera(std::array<Reale, N>& importi) {
    importi.fill(0.0);
}

template <class T, std::size_t N>
void sbianca(std::array<T, N>& testi) {
    for (T& testo : testi)
        testo.blank();
}

} // namespace

void inizializza2(F2e& f2e) {
    f2e.marca = F2e::marcaValida;
    azzera(f2e.impon);
    azzera(f2e.iva);
    azzera(f2e.esen);
    azzera(f2e.rata);
    azzera(f2e.impx);
    azzera(f2e.dimp);
    azzera(f2e.diva);
    azzera(f2e.raimp);
    azzera(f2e.raimpo);
    f2e.resy2 = 0.0;
    sbianca(f2e.scad);
    sbianca(f2e.datx);
    sbianca(f2e.dper);
    sbianca(f2e.rascad);
    sbianca(f2e.ravers);
    f2e.resy4.blank();
    f2e.tributo = 1;
}

F2e f2eVuoto() {
    F2e f2e = vuoto<F2e>();
    f2e.pdf.blank();
    f2e.resy1.blank();
    f2e.dtermine.blank();
    f2e.resy3.blank();
    inizializza2(f2e);
    return f2e;
}

} // namespace bor
