#include "xmlcheck/controlloxml.h"

#include "xmlcheck/controllifattura.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// More than this nobody reads: the rest is only counted.
constexpr std::size_t rilieviMassimi = 500;

void controllaNomeFile(const QString& nome, std::vector<Rilievo>& rilievi) {
    static const QRegularExpression forma(u"\\A[A-Z]{2}[A-Za-z0-9]{2,28}_[A-Za-z0-9]{1,5}\\.xml\\z"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    if (!forma.match(nome).hasMatch())
        rilievi.push_back(
            {.valore = nome,
             .motivo =
                 u"Il nome del file deve essere paese e codice fiscale, \"_\" e da 1 a 5 lettere o cifre, "
                 "poi \".xml\"."_s,
             .rimedio =
                 u"Dare un altro nome al file prima dell'invio: dopo \"_\" viene il campo \"Numero\" della "
                 "maschera \"Fattura elettronica PA\", il resto dai quadri azienda del \"Kit Fatture "
                 "elettroniche PA\"."_s,
             .codice = u"00001"_s});
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
    static const Nodo senzaTestata;
    const Nodo* testata = radice.figlio(u"FatturaElettronicaHeader");
    for (const Nodo& corpo : radice.figli) {
        if (corpo.nome != u"FatturaElettronicaBody")
            continue;
        controllaDocumento(c, testata ? *testata : senzaTestata, corpo);
        controllaConti(c, corpo);
    }
}

/// Findings of the reader name no place: only the layout knows where an element is entered.
void completaRimedi(std::vector<Rilievo>& rilievi, Versione versione) {
    for (Rilievo& r : rilievi)
        if (!r.rimedio.endsWith(u'.'))
            r.rimedio += u' ' + doveSiCompila(versione, r.elemento) + u'.';
}

void limita(std::vector<Rilievo>& rilievi) {
    if (rilievi.size() <= rilieviMassimi)
        return;
    const std::size_t altri = rilievi.size() - rilieviMassimi;
    rilievi.resize(rilieviMassimi);
    rilievi.push_back(
        {.motivo = altri == 1 ? u"C'è un altro rilievo."_s : u"Ci sono altri %1 rilievi."_s.arg(altri),
         .rimedio = u"Correggere questi e ricontrollare il file."_s});
}

} // namespace

void Controllo::errore(const QString& codice, const QString& percorso, const Nodo& nodo,
                       const QString& motivo, const QString& azione) {
    rilievi.push_back({.elemento = percorso,
                       .riga = nodo.riga,
                       .valore = nodo.testo.trimmed(),
                       .motivo = motivo,
                       .rimedio = u"%1 %2."_s.arg(azione, doveSiCompila(versione, percorso)),
                       .codice = codice});
}

void Controllo::avviso(const QString& percorso, const Nodo& nodo, const QString& motivo,
                       const QString& azione) {
    errore({}, percorso, nodo, motivo, azione);
    rilievi.back().gravita = Gravita::Avviso;
}

const Nodo* discendente(const Nodo& nodo, std::initializer_list<QStringView> passi) {
    const Nodo* n = &nodo;
    for (const QStringView passo : passi)
        if (n)
            n = n->figlio(passo);
    return n;
}

std::vector<Rilievo> controllaXml(const QByteArray& contenuto, const QString& nomeFile, QDate oggi) {
    std::vector<Rilievo> rilievi;
    controllaNomeFile(nomeFile, rilievi);
    LetturaXml lettura = leggiXml(contenuto);
    const auto versione = lettura.radice ? versioneDi(*lettura.radice) : std::nullopt;
    completaRimedi(lettura.rilievi, versione.value_or(Versione::V123));
    if (versione) {
        Controllo c{*versione, oggi, lettura.rilievi};
        controllaFattura(c, *lettura.radice);
    } else if (lettura.radice) {
        lettura.rilievi.push_back(
            {.riga = lettura.radice->riga,
             .valore = lettura.radice->nome,
             .motivo = u"Il file non comincia come una fattura elettronica delle versioni 1.0 o 1.2."_s,
             .rimedio = u"Scegliere il file giusto, o generarlo di nuovo."_s,
             .codice = u"00200"_s});
    }
    std::ranges::stable_sort(lettura.rilievi, {}, &Rilievo::riga);
    rilievi.insert(rilievi.end(), lettura.rilievi.begin(), lettura.rilievi.end());
    limita(rilievi);
    return rilievi;
}

} // namespace bor
