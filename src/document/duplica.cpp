#include "document/duplica.h"

#include "archive/contesto.h"
#include "document/apridoc.h"
#include "document/filerighe.h"
#include "document/righeiva.h"
#include "document/scadenze.h"
#include "document/totali.h"
#include "document/totaliparcella.h"

#include <QDir>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr float daAssegnare = -1.0F; ///< number of a lines file that the first save gives

/// The head without what belongs to the original's one delivery.
Testata testataPer(const Documento& originale) {
    Testata testata = originale.testata;
    testata.trasporto.ddt.clear();
    testata.trasporto.inizio.clear();
    testata.trasporto.ora.clear();
    return testata;
}

void copiaImporti(CoppiaFte& nuova, const CoppiaFte& coppia) {
    for (int riga = 1; riga <= righeIva; ++riga)
        for (const VoceIva voce : {VoceIva::Imponibile, VoceIva::Imposta, VoceIva::Esente})
            mettiImportoIva(nuova, voce, riga, importoIva(coppia, voce, riga));
}

void copiaEstremi(Estremi& nuovi, const Estremi& estremi) {
    nuovi.registro = estremi.registro;
    nuovi.esig = estremi.esig;
    nuovi.voce1 = estremi.voce1;
    nuovi.voce2 = estremi.voce2;
    nuovi.voce3 = estremi.voce3;
    nuovi.quota2 = estremi.quota2;
    nuovi.quota3 = estremi.quota3;
}

Prospetti prospettiPer(const Prospetti& originali) {
    Prospetti prospetti = originali;
    for (Ritenuta& ritenuta : prospetti.ritenute) {
        ritenuta.rascad.clear();
        ritenuta.ravers.clear();
    }
    prospetti.differita = {};
    prospetti.terminemese.clear();
    prospetti.termineanno.clear();
    return prospetti;
}

void copiaScadenze(Documento& nuovo, const Documento& originale, const Contesto& contesto) {
    Scadenze& scadenze = nuovo.scadenze;
    scadenze.pagamento = originale.scadenze.pagamento;
    scadenze.rib = originale.scadenze.rib;
    scadenze.provaliq = originale.scadenze.provaliq;
    scadenze.provimp = originale.scadenze.provimp;
    calcolascadenze(nuovo, contesto);
    ricalcolaDocumento(nuovo, contesto);
}

Documento rifai(const Contesto& contesto, const Documento& originale, Copia copia) {
    const int tipo = copia == Copia::NotaDiCredito ? 1 : originale.tipodocumento();
    Documento nuovo = nuovoDocumento(contesto, tipo, originale.recordcliente);
    Fte& fte = nuovo.coppia.fte;
    fte.parcella = originale.coppia.fte.parcella;
    fte.nfile = daAssegnare;
    copiaImporti(nuovo.coppia, originale.coppia);
    nuovo.testata = testataPer(originale);
    copiaEstremi(nuovo.estremi, originale.estremi);
    nuovo.prospetti = prospettiPer(originale.prospetti);
    nuovo.ddd = originale.ddd;
    nuovo.dddp = originale.dddp;
    nuovo.scorporo = originale.scorporo;
    copiaScadenze(nuovo, originale, contesto);
    return nuovo;
}

template <class Tabella>
bool senzaRighe(const Tabella& righe) {
    using Riga = typename Tabella::value_type;
    return std::ranges::all_of(righe, [](const Riga& riga) { return riga == Riga(); });
}

/// Puts a line before all others. False, and nothing changes, when the last place is in use.
template <class Tabella>
bool mettiPrima(Tabella& righe, const typename Tabella::value_type& riga) {
    if (righe.back() != typename Tabella::value_type())
        return false;
    std::ranges::copy_backward(righe.begin(), righe.end() - 1, righe.end());
    righe.front() = riga;
    return true;
}

/// The lines of a fee bill are ten characters shorter.
bool mettiRiferimento(Documento& nota) {
    const auto& [numero, data] = nota.collegata;
    if (nota.parcella())
        return mettiPrima(
            nota.dddp,
            {.data = {}, .descrizione = u"Storno della parcella n. %1 del %2"_s.arg(numero, data)});
    Riga commento;
    commento.descrizione = u"Nota di credito su fattura n. %1 del %2"_s.arg(numero, data);
    return mettiPrima(nota.ddd, commento);
}

/// The VAT rows are those that the lines come to with the rates of today.
bool totaliDalleRighe(const Documento& documento, const Contesto& contesto) {
    const TabellaIva iva =
        documento.parcella()
            ? totaliParcella(documento.dddp, documento.testata.pratica, contesto.tabelle, contesto.valuta())
                  .iva
            : ricalcola(documento.ddd, documento.scorporo, contesto.tabelle, contesto.valuta()).iva;
    const auto uguale = [&](VoceIva voce, int riga, double calcolato) {
        return contesto.valuta().arrotonda(importoIva(documento.coppia, voce, riga)) ==
               contesto.valuta().arrotonda(calcolato);
    };
    for (int riga = 1; riga <= righeIva; ++riga)
        if (!uguale(VoceIva::Imponibile, riga, iva.imponibili[riga]) ||
            !uguale(VoceIva::Imposta, riga, iva.imposte[riga]) ||
            !uguale(VoceIva::Esente, riga, iva.esenti[riga]))
            return false;
    return true;
}

void avvisa(const Contesto& contesto, Copia copia, const QString& testo, Icona icona) {
    contesto.operatore.messaggio(
        testo, copia == Copia::NotaDiCredito ? u"Nota di credito"_s : u"Duplica documento"_s, icona);
}

/// Why the original cannot be the model of another document; empty when it can.
QString rifiuto(const Contesto& contesto, const std::optional<Documento>& originale, Copia copia) {
    if (!originale)
        return u"Non è stato possibile leggere il file \"%1\": senza tutto il suo contenuto il documento non "
               u"si può "
               u"rifare. Verificate il disco e i permessi della cartella."_s.arg(
                   QDir::toNativeSeparators(contesto.archivio.disco().nonLetto()));
    if (originale->coppia.fte.annullata == 1)
        return u"Il documento è stato eliminato, e con lui le sue righe: non si può rifare."_s;
    if (copia == Copia::NotaDiCredito && originale->notaCredito())
        return u"Questo documento è già una nota di credito: se ne fa una da una fattura o da una parcella."_s;
    if (originale->cliente.eliminato == 1)
        return u"Il cliente del documento è stato eliminato dall'archivio: per lui non si fanno altri documenti."_s;
    return {};
}

QStringList avvisi(const Contesto& contesto, const Documento& nuovo, int originale) {
    const Fte fte = contesto.archivio.fte.leggi(originale);
    QStringList tutti;
    if (!senzaRighe(nuovo.ddd) || !senzaRighe(nuovo.dddp)) {
        if (!totaliDalleRighe(nuovo, contesto))
            tutti.append(
                u"Gli imponibili sono quelli del documento di partenza, ma dalle righe con le aliquote di "
                u"oggi ne verrebbero altri. Per ricalcolarli aprite le righe e confermatele."_s);
    } else if (fte.nfile > 0.0F && !righeSuFile(contesto.archivio, fte)) {
        tutti.append(u"Le righe del documento di partenza non sono su file: il nuovo documento non ne ha."_s);
    }
    return tutti;
}

} // namespace

std::optional<Documento> copiaDocumento(const Contesto& contesto, int recordfattura, Copia copia,
                                        RigheInSospeso& sospese) {
    const auto originale = documentoEsistente(contesto, recordfattura, sospese);
    if (const QString motivo = rifiuto(contesto, originale, copia); !motivo.isEmpty()) {
        avvisa(contesto, copia, motivo, Icona::Esclamazione);
        contesto.archivio.disco().dimentica();
        return std::nullopt;
    }
    Documento nuovo = rifai(contesto, *originale, copia);
    QStringList daDire = avvisi(contesto, nuovo, recordfattura);
    if (copia == Copia::NotaDiCredito) {
        nuovo.collegata = {originale->estremi.numero, originale->estremi.data};
        if (!mettiRiferimento(nuovo))
            daDire.append(
                u"Le righe sono tutte in uso: quella che dice quale documento si corregge non c'è entrata. "
                u"Nella fattura elettronica il riferimento c'è."_s);
    }
    if (!daDire.isEmpty())
        avvisa(contesto, copia, daDire.join(u"\n\n"_s), Icona::Informazione);
    return nuovo;
}

} // namespace bor
