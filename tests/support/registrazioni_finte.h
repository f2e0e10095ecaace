// Posting that only notes what a save or a delete asked of it.
#pragma once

#include "archive/raffica.h"
#include "document/registrazioni.h"

#include <QStringList>

namespace bor {

class RegistrazioniFinte : public Registrazioni {
public:
    QStringList chiamate;
    bool magazzinoPieno = false;

    void togliscarico(const Documento&, Raffica&) override { chiamate.append(QStringLiteral("togli")); }
    void mettiscarico(const Documento&, Raffica& raffica) override {
        chiamate.append(QStringLiteral("metti"));
        Tot contatore = vuoto<Tot>();
        contatore.numero = magazzinoPieno ? Archivio::massimo : 0;
        raffica.prossimo(contatore);
    }
    void stornaconti(const Gio&, Raffica&) override { chiamate.append(QStringLiteral("storna")); }
    void preparaMovimento(const Documento&) override { chiamate.append(QStringLiteral("movimento")); }
};

} // namespace bor
