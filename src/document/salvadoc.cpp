#include "document/salvadoc.h"

#include "archive/contesto.h"
#include "common/numeri.h"
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
    for (int i = 0; i < static_cast<int>(documento.scadenze.rate.size()); ++i) {
        const Rata& rata = documento.scadenze.rate[static_cast<std::size_t>(i)];
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

/// Writes the records and counts them. The number of the record, or 0; `coppia` gets the number of its lines
/// file.
int scriviRecord(Archivio& archivio, CoppiaFte& coppia, const Documento& documento) {
    const BloccoByte blocco = archivio.bloccaContatori();
    Tot contatore = archivio.leggiTot(Conta::Fte);
    const bool nuovo = documento.recordfattura == 0;
    const int n = nuovo ? Archivio::prossimo(contatore) : documento.recordfattura;
    assegnaNfile(coppia.fte, contatore);
    if (n == 0 || !archivio.scrivi(n, coppia))
        return 0;
    contatore.modificato = 1;
    if (nuovo) {
        contatore.numero = static_cast<std::int16_t>(n);
        ricordaNumero(contatore, documento.estremi.numero);
    }
    return archivio.scriviTot(Conta::Fte, contatore) ? n : 0;
}

bool scriviRighe(const Documento& documento, const Contesto& contesto, RigheInSospeso& sospese) {
    if (documento.coppia.fte.nfile == 0.0F)
        return true;
    const Attesa attesa(contesto.operatore);
    if (!scrividoc(documento, contesto.archivio))
        return false;
    sospese.dimentica(documento);
    return true;
}

/// Asks whether the warehouse rows are to follow the lines; false only when they could not be written.
bool aggiornaMagazzino(const Documento& documento, const Contesto& contesto, Registrazioni& registrazioni) {
    if (documento.coppia.fte.stamp == 0.0 || documento.parcella() ||
        contesto.archivio.leggiTot(Conta::Mag).numero < 1 ||
        !contesto.operatore.chiedi(u"Desideri aggiornare anche gli eventuali movimento di magazzino?"_s,
                                   u"Modifica fattura"_s))
        return true;
    const Attesa attesa(contesto.operatore);
    return registrazioni.togliscarico(documento) && registrazioni.mettiscarico(documento);
}

} // namespace

EsitoSalva salvadoc(Documento& documento, const Contesto& contesto, Registrazioni& registrazioni,
                    RigheInSospeso& sospese) {
    if (const auto rifiuto = controlla(documento, contesto))
        return *rifiuto;
    contesto.archivio.disco().dimentica();
    const auto nonScritto = [&contesto] {
        avvisaNonScritto(contesto);
        return EsitoSalva{};
    };

    const bool nuovo = documento.recordfattura == 0;
    CoppiaFte coppia = riempiRecord(documento, contesto);
    int n = 0;
    {
        const Attesa attesa(contesto.operatore);
        n = scriviRecord(contesto.archivio, coppia, documento);
    }
    if (n == 0)
        return nonScritto();
    documento.coppia = coppia;

    if (nuovo) {
        sospese.tieni(documento);
        // Prepared while the document still counts as new: it has no earlier movement to ask about.
        registrazioni.preparaMovimento(documento);
        documento.recordfattura = n;
        return {DopoSalva::Movimento, std::nullopt, false};
    }
    if (!scriviRighe(documento, contesto, sospese) || !aggiornaMagazzino(documento, contesto, registrazioni))
        return nonScritto();
    if (!contesto.operatore.chiedi(u"Desideri aggiornare l'eventuale movimento contabile?"_s,
                                   u"Modifica fattura"_s))
        return {DopoSalva::Registro, std::nullopt};
    registrazioni.preparaMovimento(documento);
    return {DopoSalva::Movimento, std::nullopt, true};
}

} // namespace bor
