#include "common/numeri.h"
#include "xmlcheck/contifattura.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr double centesimo = 0.01;
constexpr double unEuro = 1;
/// Differences of doubles that stand for the same cents.
constexpr double briciola = 0.000001;
/// Each line may be rounded twice.
constexpr double arrotondamentoLinea = 0.015;

void controllaAliquota(Controllo& c, const Nodo& aliquota) {
    const double percento = valore(aliquota.testo);
    if (percento > 0 && percento < 1)
        c.errore(u"00424"_s, aliquota, u"L'aliquota è una frazione: il 22 per cento si scrive 22.00."_s,
                 u"Correggere l'aliquota"_s);
}

void controllaImposta(Controllo& c, const Nodo& riepilogo) {
    const Nodo* imposta = riepilogo.figlio(u"Imposta");
    const double attesa = numero(riepilogo, u"ImponibileImporto") * numero(riepilogo, u"AliquotaIVA") / 100;
    if (imposta && std::abs(valore(imposta->testo) - attesa) > centesimo + briciola)
        c.errore(u"00421"_s, *imposta,
                 u"L'imposta non è l'aliquota sull'imponibile, che dà %1."_s.arg(testoFisso(attesa, 2)),
                 u"Ricontrollare l'IVA"_s);
}

void controllaEsigibilita(Controllo& c, const Nodo& riepilogo) {
    const Nodo* esigibilita = riepilogo.figlio(u"EsigibilitaIVA");
    if (esigibilita && esigibilita->testo.trimmed() == u"S" && riepilogo.valore(u"Natura").startsWith(u"N6"))
        c.errore(u"00420"_s, *esigibilita, u"Con l'inversione contabile non c'è scissione dei pagamenti."_s,
                 u"Correggere"_s);
}

/// The summaries of one key: their base against the lines.
struct Riepilogati {
    const Nodo* primo = nullptr;
    double imponibile = 0;
    double altro = 0; ///< rounding and accessory expenses
};

void controllaImponibile(Controllo& c, const Riepilogati& r, const Somma& linee) {
    const Nodo* imponibile = r.primo->figlio(u"ImponibileImporto");
    const double atteso = linee.imponibile + r.altro;
    const double differenza = std::abs(r.imponibile - atteso);
    if (!imponibile)
        return;
    const QString motivo = u"L'imponibile non è la somma delle linee di questa aliquota, che dà %1."_s.arg(
        testoFisso(atteso, 2));
    const QString azione = u"Correggere prezzi, sconti o codici IVA"_s;
    if (differenza > unEuro + briciola)
        c.errore(u"00422"_s, *imponibile, motivo, azione);
    else if (differenza > centesimo + linee.voci * arrotondamentoLinea)
        c.avviso(*imponibile, motivo, azione);
}

void controllaMancanti(Controllo& c, const Nodo& beni, const Somme& somme,
                       const std::map<QString, Riepilogati>& riepilogati) {
    for (const auto& [chiave, somma] : somme)
        if (!riepilogati.contains(chiave))
            c.manca(chiave.contains(u'N') ? u"00444"_s : u"00443"_s, beni, u"DatiRiepilogo",
                    u"Manca il riepilogo delle linee con IVA %1, per %2."_s.arg(
                        chiave.trimmed(), testoFisso(somma.imponibile, 2)),
                    u"Correggere i codici IVA"_s);
    for (const auto& [chiave, r] : riepilogati)
        if (!somme.contains(chiave))
            c.errore(chiave.contains(u'N') ? u"00444"_s : u"00443"_s, *r.primo,
                     u"Nessuna linea ha l'IVA %1 di questo riepilogo."_s.arg(chiave.trimmed()),
                     u"Correggere i codici IVA"_s);
}

} // namespace

double numero(const Nodo& nodo, QStringView nome) {
    return valore(nodo.valore(nome));
}

QString chiaveIva(const Nodo& nodo) {
    const double aliquota = numero(nodo, u"AliquotaIVA");
    const QString chiave = testoFisso(aliquota, 2);
    return aliquota > 0 ? chiave : chiave + u' ' + nodo.valore(u"Natura");
}

void controllaNatura(Controllo& c, const Nodo& nodo, const CodiciNatura& codici) {
    const Nodo* aliquota = nodo.figlio(u"AliquotaIVA");
    if (!aliquota)
        return;
    controllaAliquota(c, *aliquota);
    const bool zero = valore(aliquota->testo) == 0;
    const Nodo* natura = nodo.figlio(u"Natura");
    const QString testo = natura ? natura->testo.trimmed() : QString();
    if (zero && !natura)
        c.manca(codici.manca, nodo, u"Natura", u"Con aliquota zero ci vuole la natura dell'esenzione."_s,
                u"Scegliere nelle righe un codice di esenzione, o dargli la natura"_s);
    else if (!zero && natura)
        c.errore(codici.avanza, *natura, u"La natura è ammessa solo con aliquota zero."_s,
                 u"Correggere il codice IVA"_s);
    if (c.versione == Versione::V123 && (testo == u"N2" || testo == u"N3" || testo == u"N6"))
        c.errore(u"00445"_s, *natura, u"La natura %1 vuole oggi il suo sottocodice."_s.arg(testo),
                 u"Scegliere il sottocodice"_s);
}

void controllaRiepiloghi(Controllo& c, const Nodo& beni, const Somme& somme) {
    std::map<QString, Riepilogati> riepilogati;
    for (const Nodo& riepilogo : beni.figli) {
        if (riepilogo.nome != u"DatiRiepilogo")
            continue;
        controllaNatura(c, riepilogo, {u"00429"_s, u"00430"_s});
        controllaImposta(c, riepilogo);
        controllaEsigibilita(c, riepilogo);
        Riepilogati& r = riepilogati[chiaveIva(riepilogo)];
        r.primo = r.primo ? r.primo : &riepilogo;
        r.imponibile += numero(riepilogo, u"ImponibileImporto");
        r.altro += numero(riepilogo, u"SpeseAccessorie") + numero(riepilogo, u"Arrotondamento");
    }
    for (const auto& [chiave, r] : riepilogati)
        if (const auto linee = somme.find(chiave); linee != somme.end())
            controllaImponibile(c, r, linee->second);
    controllaMancanti(c, beni, somme, riepilogati);
}

} // namespace bor
