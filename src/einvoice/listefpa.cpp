#include "einvoice/listefpa.h"

#include "common/posti.h"

#include <algorithm>

namespace bor {

using namespace Qt::StringLiterals;

namespace {

const QStringList& causali() {
    // The official form has reasons F and J too; the list of the suite does not.
    static const QStringList voci = {
        u"A prestazioni di lavoro autonomo rientranti nell’esercizio di arte o professione abituale..."_s,
        u"B utilizzazione economica di opere dell’ingegno, di brevetti industriali ecc (autore)..."_s,
        u"C utili derivanti da contratti di associazione in partecipazione..."_s,
        u"D utili spettanti ai soci promotori ed ai soci fondatori delle società di capitali..."_s,
        u"E levata di protesti cambiari da parte dei segretari comunali"_s,
        u"G indennità corrisposte per la cessazione di attività sportiva professionale..."_s,
        u"H indennità corrisposte per la cessazione dei rapporti di agenzia"_s,
        u"I indennità corrisposte per la cessazione da funzioni notarili"_s,
        u"L utilizzazione economica di opere dell’ingegno, di brevetti industriali ecc (non autore)..."_s,
        u"M prestazioni di lavoro autonomo non esercitate abitualmente"_s,
        u"N indennità di trasferta, rimborso forfetario di spese, premi e compensi erogati..."_s,
        u"O prestazioni di lavoro autonomo non esercitate abitualmente (non gestione separata)..."_s,
        u"P compensi corrisposti a soggetti non residenti per l’uso di attrezzature industriali..."_s,
        u"Q provvigioni corrisposte ad agente o rappresentante di commercio monomandatario"_s,
        u"R provvigioni corrisposte ad agente o rappresentante di commercio plurimandatario"_s,
        u"S provvigioni corrisposte a commissionario"_s,
        u"T provvigioni corrisposte a mediatore"_s,
        u"U provvigioni corrisposte a procacciatore di affari"_s,
        u"V provvigioni corrisposte a incaricato per le vendite a domicilio (giornali quotidiani ecc)..."_s,
        u"W corrispettivi erogati nel 2013 per prestazioni relative a contratti d’appalto..."_s,
        u"X canoni corrisposti nel 2004 da soggetti residenti a soggetti situati in altro stato UE..."_s,
        u"Y canoni corrisposti dal 01/01/2005 al 26/07/2005 da soggetti residenti a soggetti situati in altro stato UE..."_s,
        u"Z titolo diverso dai precedenti"_s};
    return voci;
}

const QStringList& modalita() {
    static const QStringList voci = {u"MP01 Contanti"_s,
                                     u"MP02 Assegno"_s,
                                     u"MP03 Assegno circolare"_s,
                                     u"MP04 Contanti tesoreria"_s,
                                     u"MP05 Bonifico"_s,
                                     u"MP06 Vaglia cambiario"_s,
                                     u"MP07 Bollettino bancario"_s,
                                     u"MP08 Carta di credito"_s,
                                     u"MP09 RID"_s,
                                     u"MP10 RID utenze"_s,
                                     u"MP11 RID veloce"_s,
                                     u"MP12 RIBA"_s,
                                     u"MP13 MAV"_s,
                                     u"MP14 Quietanza Erario"_s,
                                     u"MP15 Giroconto"_s,
                                     u"MP16 Domiciliazione bancaria"_s,
                                     u"MP17 Domiciliazione postale"_s};
    return voci;
}

} // namespace

const QStringList& vociFpa(ListaFpa lista) {
    static const QStringList tipi = {u"TD01 Fattura"_s,
                                     u"TD02 Acconto/Anticipo su fattura"_s,
                                     u"TD03 Acconto/Anticipo su parcella"_s,
                                     u"TD04 Nota di credito"_s,
                                     u"TD05 Nota di debito"_s,
                                     u"TD06 Parcella"_s};
    static const QStringList ritenute = {u"RT00 Ritenuta non applicata"_s, u"RT01 Ritenuta persone fisiche"_s,
                                         u"RT02 Ritenuta persone giuridiche"_s};
    static const QStringList condizioni = {u"TP01 Pagamento a rate"_s, u"TP02 Pagamento completo"_s,
                                           u"TP03 Anticipo"_s};
    switch (lista) {
    case ListaFpa::TipoDocumento:
        return tipi;
    case ListaFpa::Causale:
        return causali();
    case ListaFpa::TipoRitenuta:
        return ritenute;
    case ListaFpa::Condizioni:
        return condizioni;
    case ListaFpa::Modalita:
        break;
    }
    return modalita();
}

int posizioneFpa(ListaFpa lista, QStringView inizio) {
    const QStringList& voci = vociFpa(lista);
    const auto trovata =
        std::ranges::find_if(voci, [inizio](const QString& voce) { return voce.startsWith(inizio); });
    return postoDi(voci, trovata);
}

} // namespace bor
