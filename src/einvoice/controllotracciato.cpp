#include "einvoice/controllifattura.h"
#include "einvoice/tracciatofattura.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString sotto(const QString& percorso, const QString& nome) {
    return percorso.isEmpty() ? nome : percorso + u'/' + nome;
}

void controllaValore(const Nodo& nodo, const Elemento& elemento, std::vector<Rilievo>& rilievi) {
    const Forma& forma = elemento.forma;
    if (!nodo.figli.empty())
        rilievi.push_back(rilievoA(nodo.percorso, nodo,
                                   u"L'elemento contiene altri elementi al posto di un valore."_s,
                                   u"Correggere"_s));
    else if (nodo.testo.isEmpty())
        rilievi.push_back(rilievoA(nodo.percorso, nodo,
                                   u"L'elemento è vuoto: ci vuole %1."_s.arg(forma.attesa), u"Compilare"_s));
    else if (!forma.regola.match(nodo.testo).hasMatch())
        rilievi.push_back(
            rilievoA(nodo.percorso, nodo, u"Ci vuole %1."_s.arg(forma.attesa), u"Correggere"_s));
    else if (forma.cifreControllo && !forma.cifreControllo(nodo.testo))
        rilievi.push_back(rilievoA(nodo.percorso, nodo, u"Le cifre di controllo del codice non tornano."_s,
                                   u"Ricontrollare il codice"_s));
}

void controllaElemento(const Nodo& nodo, const Elemento& elemento, std::vector<Rilievo>& rilievi);

/// Walks the children beside the layout; gives how often each of the layout's elements stood there.
std::vector<int> controllaSequenza(const Nodo& nodo, const Elemento& elemento,
                                   std::vector<Rilievo>& rilievi) {
    const std::vector<Elemento>& previsti = elemento.figli;
    std::vector<int> volte(previsti.size());
    std::size_t raggiunto = 0;
    for (const Nodo& figlio : nodo.figli) {
        const auto trovato = std::find_if(previsti.begin(), previsti.end(),
                                          [&figlio](const Elemento& e) { return e.nome == figlio.nome; });
        if (trovato == previsti.end()) {
            rilievi.push_back(rilievoA(figlio.percorso, figlio, u"L'elemento qui non è previsto."_s,
                                       u"Togliere dal file, o correggere"_s));
            continue;
        }
        const auto indice = static_cast<std::size_t>(trovato - previsti.begin());
        if (indice < raggiunto)
            rilievi.push_back(
                rilievoA(figlio.percorso, figlio,
                         u"L'elemento è fuori ordine: va prima di %1."_s.arg(previsti[raggiunto].nome),
                         u"Spostare nel file, o correggere"_s));
        raggiunto = std::max(raggiunto, indice);
        if (++volte[indice] == 2 && (trovato->volte == Volte::Una || trovato->volte == Volte::AlPiuUna))
            rilievi.push_back(rilievoA(figlio.percorso, figlio, u"L'elemento c'è più di una volta."_s,
                                       u"Lasciarne uno solo"_s));
        controllaElemento(figlio, *trovato, rilievi);
    }
    return volte;
}

void controllaElemento(const Nodo& nodo, const Elemento& elemento, std::vector<Rilievo>& rilievi) {
    if (elemento.liberi)
        return;
    if (elemento.figli.empty()) {
        controllaValore(nodo, elemento, rilievi);
        return;
    }
    const std::vector<int> volte = controllaSequenza(nodo, elemento, rilievi);
    for (std::size_t i = 0; i < volte.size(); ++i) {
        const Elemento& previsto = elemento.figli[i];
        if (volte[i] == 0 && previsto.obbligatorio()) {
            const Nodo mancante{
                .nome = previsto.nome, .percorso = {}, .testo = {}, .riga = nodo.riga, .figli = {}};
            rilievi.push_back(rilievoA(sotto(nodo.percorso, previsto.nome), mancante,
                                       u"L'elemento manca ed è obbligatorio."_s, u"Compilare"_s));
        }
    }
}

} // namespace

void controllaTracciato(const Nodo& radice, std::vector<Rilievo>& rilievi) {
    controllaElemento(radice, tracciatoFattura(), rilievi);
}

Rilievo rilievoA(const QString& percorso, const Nodo& nodo, const QString& motivo, const QString& azione) {
    return {.elemento = percorso,
            .riga = nodo.riga,
            .valore = nodo.testo,
            .motivo = motivo,
            .rimedio = u"%1 %2."_s.arg(azione, doveSiCompila(percorso))};
}

} // namespace bor
