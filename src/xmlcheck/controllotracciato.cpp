#include "xmlcheck/controllifattura.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr QStringView spazioFirma = u"http://www.w3.org/2000/09/xmldsig#";
constexpr QStringView spazioIstanza = u"http://www.w3.org/2001/XMLSchema-instance";

void controllaValore(Controllo& c, const Nodo& nodo, const Elemento& elemento) {
    if (!nodo.figli.empty())
        c.nelFile(nodo, u"L'elemento contiene altri elementi al posto di un valore."_s);
    else if (haForma(elemento.riga, nodo.testo))
        return;
    else if (nodo.testo.isEmpty())
        c.errore(codiceForma, nodo, u"L'elemento è vuoto: %1."_s.arg(formaAttesa(elemento.riga)),
                 u"Compilare"_s);
    else if (haForma(elemento.riga, nodo.testo.trimmed()))
        c.errore(codiceForma, nodo, u"Il valore ha spazi davanti o in coda."_s, u"Toglierli"_s);
    else
        c.errore(codiceForma, nodo, u"Qui %1."_s.arg(formaAttesa(elemento.riga)), u"Correggere"_s);
}

/// Below the root no element has attributes of its own.
void controllaAttributi(Controllo& c, const Nodo& nodo) {
    for (const Attributo& a : nodo.attributi)
        if (a.spazio != spazioIstanza)
            c.nelFile(nodo, u"L'attributo %1 qui non è previsto."_s.arg(a.nome));
}

void controllaSpazio(Controllo& c, const Nodo& nodo) {
    if (!nodo.spazio.isEmpty())
        c.nelFile(nodo, u"L'elemento appartiene a un altro spazio dei nomi (%1)."_s.arg(nodo.spazio));
}

void controllaElemento(Controllo& c, const Nodo& nodo, const Elemento& elemento);

/// Most elements stand in their order: those from `posto` on are looked at first.
auto cercaDa(const std::vector<Elemento>& previsti, std::size_t posto, const QString& nome) {
    const auto meta = previsti.begin() + static_cast<std::ptrdiff_t>(posto);
    const auto dopo = std::find_if(meta, previsti.end(), [&](const Elemento& e) { return e.nome == nome; });
    if (dopo != previsti.end())
        return dopo;
    const auto prima =
        std::find_if(previsti.begin(), meta, [&](const Elemento& e) { return e.nome == nome; });
    return prima == meta ? previsti.end() : prima;
}

/// Walks the children beside the layout; gives how often each of the layout's elements stood there.
std::vector<int> controllaSequenza(Controllo& c, const Nodo& nodo, const Elemento& elemento) {
    const std::vector<Elemento>& previsti = elemento.figli;
    std::vector<int> volte(previsti.size());
    std::size_t raggiunto = 0;
    for (const Nodo& figlio : nodo.figli) {
        const auto trovato = cercaDa(previsti, raggiunto, figlio.nome);
        if (trovato == previsti.end()) {
            c.nelFile(figlio, u"L'elemento qui non è previsto."_s);
            continue;
        }
        const auto indice = static_cast<std::size_t>(trovato - previsti.begin());
        if (indice < raggiunto)
            c.nelFile(figlio, u"L'elemento è fuori ordine: va prima di %1."_s.arg(previsti[raggiunto].nome));
        raggiunto = std::max(raggiunto, indice);
        const bool ripetibile = trovato->riga.volte == Volte::UnaOPiu || trovato->riga.volte == Volte::Libere;
        if (++volte[indice] == 2 && !ripetibile)
            c.nelFile(figlio, u"L'elemento c'è più di una volta."_s);
        controllaElemento(c, figlio, *trovato);
    }
    return volte;
}

/// One of the two ways, and whole.
void controllaAlternative(Controllo& c, const Nodo& nodo, const Elemento& elemento,
                          const std::vector<int>& volte) {
    int previste[2] = {};
    int presenti[2] = {};
    for (std::size_t i = 0; i < volte.size(); ++i) {
        const Volte quante = elemento.figli[i].riga.volte;
        if (quante != Volte::Prima && quante != Volte::Seconda)
            continue;
        const int via = quante == Volte::Prima ? 0 : 1;
        ++previste[via];
        presenti[via] += volte[i] > 0 ? 1 : 0;
    }
    if (previste[0] == 0)
        return;
    const bool prima = presenti[0] == previste[0] && presenti[1] == 0;
    const bool seconda = presenti[1] == previste[1] && presenti[0] == 0;
    if (!prima && !seconda)
        c.errore(codiceForma, nodo, u"Ci vuole o la denominazione o nome e cognome, e non tutti e tre."_s,
                 u"Correggere l'intestazione"_s);
}

void controllaElemento(Controllo& c, const Nodo& nodo, const Elemento& elemento) {
    if (elemento.riga.forma == Forma::Libero) {
        if (nodo.spazio != spazioFirma)
            controllaSpazio(c, nodo);
        return;
    }
    if (elemento.riga.livello > 0) {
        controllaSpazio(c, nodo);
        controllaAttributi(c, nodo);
    }
    if (elemento.figli.empty())
        return controllaValore(c, nodo, elemento);
    if (!nodo.testo.trimmed().isEmpty())
        c.nelFile(nodo, u"Fra gli elementi c'è del testo che non appartiene a nessuno."_s);
    const std::vector<int> volte = controllaSequenza(c, nodo, elemento);
    for (std::size_t i = 0; i < volte.size(); ++i) {
        const Volte quante = elemento.figli[i].riga.volte;
        if (volte[i] == 0 && (quante == Volte::Una || quante == Volte::UnaOPiu))
            c.manca(codiceForma, nodo, elemento.figli[i].nome, u"L'elemento manca ed è obbligatorio."_s,
                    u"Compilare"_s);
    }
    controllaAlternative(c, nodo, elemento, volte);
}

/// The attributes of the root: the version, today also the name of the program that wrote the file.
void controllaRadice(Controllo& c, const Nodo& radice) {
    static const RigaTracciato sistema{0, u"", Volte::AlPiuUna, Forma::Ascii, 1, 10};
    static const RigaTracciato versione10{0, u"", Volte::Una, Forma::Scelta, 0, 0, nullptr, u"1.0"};
    static const RigaTracciato versione123{0, u"", Volte::Una, Forma::Scelta, 0, 0, nullptr, u"FPA12 FPR12"};
    const bool oggi = c.versione == Versione::V123;
    const RigaTracciato& versione = oggi ? versione123 : versione10;
    bool conVersione = false;
    for (const Attributo& a : radice.attributi) {
        if (a.spazio == spazioIstanza)
            continue;
        const bool eVersione = a.nome == u"versione" && a.spazio.isEmpty();
        const bool eSistema = oggi && a.nome == u"SistemaEmittente" && a.spazio.isEmpty();
        conVersione = conVersione || eVersione;
        if (!eVersione && !eSistema)
            c.nelFile(radice, u"L'attributo %1 qui non è previsto."_s.arg(a.nome));
        else if (const RigaTracciato& riga = eVersione ? versione : sistema; !haForma(riga, a.valore))
            c.nelFile(radice, u"L'attributo %1 vale \"%2\": %3."_s.arg(a.nome, a.valore, formaAttesa(riga)));
    }
    if (!conVersione)
        c.nelFile(radice, u"Manca l'attributo versione."_s);
}

} // namespace

void controllaTracciato(Controllo& c, const Nodo& radice) {
    controllaRadice(c, radice);
    controllaElemento(c, radice, tracciato(c.versione));
}

} // namespace bor
