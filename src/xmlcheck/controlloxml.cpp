#include "xmlcheck/controlloxml.h"

#include "xmlcheck/controllifattura.h"
#include "xmlcheck/doppioni.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// More than this nobody reads: the rest is only counted.
constexpr std::size_t rilieviMassimi = 500;
/// Of these the first ones of the file are shown. More are not even made: a hostile file has a quarter of a
/// million.
constexpr std::size_t rilieviFatti = 5000;

bool nomeBuono(const QString& nome) {
    static const QRegularExpression forma(u"\\A[A-Z]{2}[A-Za-z0-9]{2,28}_[A-Za-z0-9]{1,5}\\.xml\\z"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    return forma.match(nome).hasMatch();
}

Rilievo rilievoDelNome(const QString& nome, Versione versione) {
    const QString dopo =
        versione == Versione::V10
            ? u"dopo \"_\" viene il campo \"Numero\" della maschera \"Fattura elettronica PA\", il resto dai "
              "quadri azienda del \"Kit Fatture elettroniche PA\"."_s
            : u"la maschera \"Fattura elettronica\" gliene dà uno buono, con paese e codice dei "
              "quadri azienda del \"Kit Fatture elettroniche PA\"."_s;
    return {.valore = nome,
            .motivo =
                u"Il nome del file deve essere paese e codice fiscale, \"_\" e da 1 a 5 lettere o cifre, "
                "poi \".xml\"."_s,
            .rimedio = u"Dare un altro nome al file prima dell'invio: "_s + dopo,
            .codice = u"00001"_s};
}

std::optional<Versione> versioneDi(const Nodo& radice) {
    for (const Versione versione : {Versione::V10, Versione::V123})
        if (radice.nome == tracciato(versione).nome && radice.spazio == spazioNomi(versione))
            return versione;
    return std::nullopt;
}

void controllaFattura(Controllo& c, const Nodo& radice) {
    controllaTracciato(c, radice);
    controllaSoggetti(c, radice);
    controllaDocumenti(c, radice);
    for (const Nodo& corpo : radice.figli)
        if (corpo.nome == u"FatturaElettronicaBody")
            controllaConti(c, corpo);
}

/// Findings of the reader name no place: only the layout knows where an element is entered.
void completaRimedi(std::vector<Rilievo>& rilievi, Versione versione) {
    for (Rilievo& r : rilievi)
        if (!r.rimedio.endsWith(u'.'))
            r.rimedio += u' ' + doveSiCompila(versione, r.elemento) + u'.';
}

/// `altri`: findings that were only counted.
void limita(std::vector<Rilievo>& rilievi, std::size_t altri) {
    if (rilievi.size() <= rilieviMassimi)
        return;
    altri += rilievi.size() - rilieviMassimi;
    rilievi.resize(rilieviMassimi);
    rilievi.push_back(
        {.motivo = altri == 1 ? u"C'è un altro rilievo."_s : u"Ci sono altri %1 rilievi."_s.arg(altri),
         .rimedio = u"Correggere questi e ricontrollare il file."_s});
}

} // namespace

void Controllo::aggiungi(const Nodo& nodo, QStringView figlio, Rilievo rilievo, const QString& azione) {
    if (rilievi.size() >= rilieviFatti) {
        ++altri;
        return;
    }
    rilievo.elemento = nodo.percorso();
    if (figlio.isEmpty())
        rilievo.valore = nodo.testo.trimmed();
    else
        rilievo.elemento.append(rilievo.elemento.isEmpty() ? u"" : u"/").append(figlio);
    rilievo.riga = nodo.riga;
    if (!azione.isEmpty())
        rilievo.rimedio = u"%1 %2."_s.arg(azione, doveSiCompila(versione, rilievo.elemento));
    rilievi.push_back(std::move(rilievo));
}

void Controllo::errore(const QString& codice, const Nodo& nodo, const QString& motivo,
                       const QString& azione) {
    aggiungi(nodo, {}, {.motivo = motivo, .codice = codice}, azione);
}

void Controllo::avviso(const Nodo& nodo, const QString& motivo, const QString& azione,
                       const QString& codice) {
    aggiungi(nodo, {}, {.motivo = motivo, .codice = codice, .gravita = Gravita::Avviso}, azione);
}

void Controllo::manca(const QString& codice, const Nodo& nodo, QStringView figlio, const QString& motivo,
                      const QString& azione) {
    aggiungi(nodo, figlio, {.motivo = motivo, .codice = codice}, azione);
}

void Controllo::nelFile(const Nodo& nodo, const QString& motivo) {
    static const QString rimedio =
        u"Correggere il file, o farlo correggere a chi lo ha emesso: nessuna maschera lo cambia."_s;
    aggiungi(nodo, {}, {.motivo = motivo, .rimedio = rimedio, .codice = codiceForma}, {});
}

const Nodo* discendente(const Nodo& nodo, std::initializer_list<QStringView> passi) {
    const Nodo* n = &nodo;
    for (const QStringView passo : passi)
        if (n)
            n = n->figlio(passo);
    return n;
}

std::vector<Rilievo> controllaXml(const QByteArray& contenuto, const QString& nomeFile, QDate oggi,
                                  Doppioni* doppioni) {
    LetturaXml lettura = leggiXml(contenuto);
    std::size_t altri = 0;
    const auto versione = lettura.radice ? versioneDi(*lettura.radice) : std::nullopt;
    completaRimedi(lettura.rilievi, versione.value_or(Versione::V123));
    if (versione) {
        Controllo c{*versione, oggi, lettura.rilievi};
        controllaFattura(c, *lettura.radice);
        if (doppioni)
            doppioni->controlla(c, *lettura.radice, nomeFile);
        altri = c.altri;
    } else if (lettura.radice) {
        lettura.rilievi.push_back(
            {.riga = lettura.radice->riga,
             .valore = lettura.radice->nome,
             .motivo = u"Il file non comincia come una fattura elettronica delle versioni 1.0 o 1.2."_s,
             .rimedio = u"Scegliere il file giusto, o generarlo di nuovo."_s,
             .codice = codiceForma});
    }
    std::ranges::stable_sort(lettura.rilievi, {}, &Rilievo::riga);
    if (!nomeBuono(nomeFile))
        lettura.rilievi.insert(lettura.rilievi.begin(),
                               rilievoDelNome(nomeFile, versione.value_or(Versione::V123)));
    limita(lettura.rilievi, altri);
    return std::move(lettura.rilievi);
}

} // namespace bor
