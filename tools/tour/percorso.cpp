#include "tour/giro.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

void registro(Giro& giro) {
    giro.foto(u"registro"_s);
    giro.premi(u"visua(1)"_s);
    giro.tasto(Qt::Key_F6);
    giro.foto(u"registro-riordino"_s);
    giro.tasto(Qt::Key_F9);
    giro.foto(u"registro-ordinato"_s);
}

void testata(Giro& giro) {
    giro.tasto(Qt::Key_F2);
    giro.riga(u"Mangimi"_s);
    giro.foto(u"cliente"_s);
    giro.premi(u"b_lista"_s);
    giro.foto(u"elenco-clienti"_s);
    giro.tasto(Qt::Key_Escape);
    giro.tasto(Qt::Key_Escape);
}

} // namespace

void percorri(Giro& giro) {
    registro(giro);
    testata(giro);
}

} // namespace bor
