// The whole program without a window: start-up, and everything a run consists of.
#pragma once

#include "archive/contesto.h"
#include "archive/rapportodicorsa.h"
#include "common/stampante.h"
#include "document/borftea.h"
#include "document/borftek.h"
#include "document/borftem.h"
#include "document/borftex.h"
#include "document/custodebozze.h"
#include "document/documento.h"
#include "document/righeinsospeso.h"
#include "document/storico.h"
#include "einvoice/borftepa.h"
#include "fatturapa/borftel.h"
#include "lotto/scelti.h"
#include "posting/borftec.h"
#include "posting/registrazionicontabili.h"
#include "prospetti/datimensili.h"
#include "prospetti/scadenzario.h"
#include "register/borfte.h"
#include "register/borsel.h"

#include <memory>

namespace bor {

class Modulo {
public:
    /// The ports that the outside world is reached through; they outlive the module.
    struct Porte {
        Operatore& operatore;
        Orologio& orologio;
        Sistema& sistema;
        Navigatore& navigatore;
        Stampante& stampante;
    };

    /// From the command line to a filled register. Nothing when this is no start by the suite's launcher;
    /// only an older launcher is told so to the operator.
    static std::unique_ptr<Modulo> avvia(const QString& rigaComando, Percorsi percorsi, Porte porte);
    /// A company opened up to its register, which is still to be filled. Uses none of the ports.
    static std::unique_ptr<Modulo> apri(double codiceazienda, Percorsi percorsi, Porte porte);
    /// Tells the operator what the opening found.
    void avvisa() const;
    /// Tells that the launcher is older than this module.
    static void avvisaSuiteVecchia(Operatore& operatore);

    Contesto& contesto() { return m_contesto; }
    Borfte& borfte() { return m_borfte; }
    Borftem& borftem() { return m_borftem; }
    Borsel& borsel() { return m_borsel; }
    Borftea& borftea() { return m_borftea; }
    Borftex& borftex() { return m_borftex; }
    Borftek& borftek() { return m_borftek; }
    Borftec& borftec() { return m_borftec; }
    Borftepa& borftepa() { return m_borftepa; }
    Borftel& borftel() { return m_borftel; }
    Scelti& scelti() { return m_scelti; }
    Scadenzario& scadenzario() { return m_scadenzario; }
    DatiMensili& datiMensili() { return m_datiMensili; }
    Storico& storico() { return m_storico; }
    CustodeBozze& bozze() { return m_bozze; }
    Documento& documento() { return m_documento; }

private:
    Modulo(double codiceazienda, Percorsi percorsi, Porte porte);
    ComandiEsterni comandi(Stampante& stampante);

    Percorsi m_percorsi;
    Disco m_disco;
    Sessione m_sessione;
    Archivio m_archivio;
    Impostazioni m_impostazioni;
    Tabelle m_tabelle;
    RapportoDiCorsa m_rapporto;
    NavigatoreConBozze m_navigatore;
    Contesto m_contesto;
    Documento m_documento;
    RigheInSospeso m_sospese;
    Storico m_storico;
    Borfte m_borfte;
    Borftem m_borftem;
    Borsel m_borsel;
    Borftex m_borftex;
    Borftek m_borftek;
    Borftec m_borftec;
    RegistrazioniContabili m_registrazioni;
    Borftea m_borftea;
    Borftepa m_borftepa;
    Borftel m_borftel;
    Scelti m_scelti;
    Scadenzario m_scadenzario;
    DatiMensili m_datiMensili;
    CustodeBozze m_bozze;
};

} // namespace bor
