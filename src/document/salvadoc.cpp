#include "document/salvadoc.h"

#include "archive/contesto.h"
#include "archive/raffica.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "document/avvisi.h"
#include "document/filerighe.h"
#include "document/recorddoc.h"
#include "document/registrazioni.h"
#include "document/righeinsospeso.h"
#include "document/totali.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr float ultimoNfile = 1000000000.0F;

EsitoSalva rifiuta(const Contesto& contesto, const QString& motivo, PostoTea posto) {
    contesto.operatore.messaggio(motivo, u"Attenzione"_s, Icona::Stop);
    return {DopoSalva::Resta, posto};
}

bool frazionamentoAccettato(const Documento& documento, const Contesto& contesto) {
    const Valuta valuta = contesto.valuta();
    double somma = 0;
    for (const Rata& rata : documento.scadenze.rate)
        somma += valore(rata.importo);
    return valuta.arrotonda(somma) == valuta.arrotonda(totali(documento).nettodoc) ||
           contesto.operatore.chiedi(
               u"Il frazionamento in scadenze non coincide con il totale della fattura. Continuare?"_s,
               u"Attenzione"_s);
}

/// What keeps the document from being stored; nothing when it may be. Only a new document is asked about its
/// split.
std::optional<EsitoSalva> controlla(const Documento& documento, const Contesto& contesto) {
    if (!dataValida(documento.estremi.data))
        return rifiuta(contesto, u"La data del documento non è valida"_s, {CampoTea::Data});
    if (!dataValida(documento.estremi.datareg))
        return rifiuta(contesto, u"La data di registrazione del documento non è valida"_s,
                       {CampoTea::DataReg});
    for (int i = 0; i < quantiIn(documento.scadenze.rate); ++i) {
        const Rata& rata = elemento(documento.scadenze.rate, i);
        if (valore(rata.importo) != 0.0 && !dataValida(rata.scadenza))
            return rifiuta(contesto, u"Una o più date di scadenza non sono valide"_s,
                           {CampoTea::Scadenza, i});
    }
    if (documento.recordfattura == 0 && !frazionamentoAccettato(documento, contesto))
        return EsitoSalva{};
    return std::nullopt;
}

/// Counts on in single precision, as the field is on file: near its end the numbers repeat, which the suite
/// accepts. A counter that holds no number starts again.
void assegnaNfile(Fte& fte, Tot& contatore) {
    if (fte.nfile != -1.0F)
        return;
    const float successivo = contatore.progressivo + 1.0F;
    contatore.progressivo = successivo >= 1.0F && successivo <= ultimoNfile ? successivo : 1.0F;
    fte.nfile = contatore.progressivo;
}

/// The number that the next new document starts from; one that the counter cannot hold leaves it as it is.
void ricordaNumero(Tot& contatore, const QString& numero) {
    const double n = std::nearbyint(valore(numero));
    using Limiti = std::numeric_limits<std::int16_t>;
    if (n >= Limiti::min() && n <= Limiti::max())
        contatore.ultimonumero = static_cast<std::int16_t>(n);
}

/// What a save has written of the document itself.
struct Registrato {
    EsitoRaffica esito = EsitoRaffica::Riuscita;
    int record = 0;
    bool righe = true;           ///< the lines file is written too; a new document has none yet
    bool righeMagazzino = false; ///< the archive holds warehouse rows
};

bool scriviRighe(const Documento& documento, const Contesto& contesto, RigheInSospeso& sospese) {
    if (documento.coppia.fte.nfile == 0.0F)
        return true;
    if (!scrividoc(documento, contesto.archivio))
        return false;
    sospese.dimentica(documento);
    return true;
}

/// Writes the records and counts them, and behind them the lines of a document that is not new.
Registrato scriviDocumento(Documento& documento, const Contesto& contesto, RigheInSospeso& sospese) {
    const Attesa attesa(contesto.operatore);
    Archivio& archivio = contesto.archivio;
    Raffica raffica(archivio, nomeDocumento(documento));
    Tot contatore = raffica.leggiTot(Conta::Fte);
    const bool nuovo = documento.recordfattura == 0;
    Registrato r;
    r.record = nuovo ? raffica.prossimo(contatore) : documento.recordfattura;
    CoppiaFte coppia = riempiRecord(documento, timbro(contesto.orologio.adesso(), r.record));
    r.righeMagazzino = raffica.leggiTot(Conta::Mag).numero >= 1;
    assegnaNfile(coppia.fte, contatore);
    contatore.modificato = 1;
    if (nuovo) {
        contatore.numero = breve(r.record);
        ricordaNumero(contatore, documento.estremi.numero);
    }
    raffica.scrivi(archivio.fte, r.record, coppia.fte);
    raffica.scrivi(archivio.f2e, r.record, coppia.f2e);
    raffica.scriviTot(Conta::Fte, contatore);
    r.esito = raffica.esegui([&] {
        documento.coppia = coppia;
        r.righe = nuovo || scriviRighe(documento, contesto, sospese);
    });
    return r;
}

/// Asks whether the warehouse rows are to follow the lines, and replaces them.
EsitoRaffica aggiornaMagazzino(const Documento& documento, const Contesto& contesto,
                               Registrazioni& registrazioni) {
    if (documento.coppia.fte.stamp == 0.0 || documento.parcella() ||
        !contesto.operatore.chiedi(u"Desideri aggiornare anche gli eventuali movimento di magazzino?"_s,
                                   u"Modifica fattura"_s))
        return EsitoRaffica::Riuscita;
    const Attesa attesa(contesto.operatore);
    Raffica raffica(contesto.archivio, u"movimenti di magazzino, "_s + nomeDocumento(documento));
    registrazioni.togliscarico(documento, raffica);
    registrazioni.mettiscarico(documento, raffica);
    return raffica.esegui();
}

} // namespace

EsitoSalva salvadoc(Documento& documento, const Contesto& contesto, Registrazioni& registrazioni,
                    RigheInSospeso& sospese) {
    if (const auto rifiuto = controlla(documento, contesto))
        return *rifiuto;
    const auto nonRegistrato = [&contesto](EsitoRaffica esito) {
        avvisaRecuperi(contesto);
        avvisaNonRegistrato(contesto, esito);
        return EsitoSalva{};
    };

    const bool nuovo = documento.recordfattura == 0;
    const Registrato registrato = scriviDocumento(documento, contesto, sospese);
    if (registrato.esito != EsitoRaffica::Riuscita)
        return nonRegistrato(registrato.esito);
    avvisaRecuperi(contesto);

    if (nuovo) {
        if (!sospese.tieni(documento))
            avvisaRigheNonTenute(contesto, sospese.cartella());
        // Prepared while the document still counts as new: it has no earlier movement to ask about.
        registrazioni.preparaMovimento(documento);
        documento.recordfattura = registrato.record;
        return {DopoSalva::Movimento, std::nullopt, false};
    }
    if (!registrato.righe)
        return nonRegistrato(EsitoRaffica::NonScritta);
    if (registrato.righeMagazzino) {
        const EsitoRaffica esito = aggiornaMagazzino(documento, contesto, registrazioni);
        if (esito != EsitoRaffica::Riuscita)
            return nonRegistrato(esito);
        avvisaRecuperi(contesto);
    }
    if (!contesto.operatore.chiedi(u"Desideri aggiornare l'eventuale movimento contabile?"_s,
                                   u"Modifica fattura"_s))
        return {DopoSalva::Registro, std::nullopt};
    registrazioni.preparaMovimento(documento);
    return {DopoSalva::Movimento, std::nullopt, true};
}

} // namespace bor
