// What every screen and every procedure of one run works with. Made once at start, handed on by reference.
#pragma once

#include "archive/archivio.h"
#include "archive/impostazioni.h"
#include "archive/tabelle.h"
#include "common/bordata.h"
#include "common/date.h"
#include "common/navigatore.h"
#include "common/operatore.h"
#include "common/orologio.h"
#include "common/rapporto.h"
#include "common/sessione.h"
#include "common/sistema.h"

namespace bor {

struct Contesto {
    Sessione& sessione;
    Archivio& archivio;
    Impostazioni& impostazioni;
    const Tabelle& tabelle;
    Operatore& operatore;
    Orologio& orologio;
    Sistema& sistema;
    Navigatore& navigatore;
    /// DOS path of the report file that prints of this run leave.
    QString rapporto = fileRapporto.toString();

    const Valuta& valuta() const { return impostazioni.valuta; }
    Bordata bordata() const { return {sessione, orologio}; }
};

} // namespace bor
