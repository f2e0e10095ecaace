#include "einvoice/controlloxml.h"

#include "einvoice/controllifattura.h"
#include "einvoice/tracciatofattura.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// The receiving system takes files of five million bytes at most.
constexpr qsizetype byteMassimi = 5'000'000;

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
                 "elettroniche PA\"."_s});
}

void controllaRadice(const LetturaXml& lettura, std::vector<Rilievo>& rilievi) {
    const bool nome = lettura.radice->nome == tracciatoFattura().nome;
    if (!nome || !lettura.spazioNomi.startsWith(u"http://www.fatturapa.gov.it/sdi/fatturapa/v1."))
        rilievi.push_back({.riga = lettura.radice->riga,
                           .valore = lettura.radice->nome,
                           .motivo = u"Il file non comincia come una fattura elettronica PA."_s,
                           .rimedio =
                               u"Scegliere il file giusto, o generarlo dalla maschera \"Fattura elettronica "
                               "PA\"."_s});
    else
        controllaTracciato(*lettura.radice, rilievi);
}

/// Findings of the reader name no screen: only the layout knows where an element is entered.
void completaRimedi(std::vector<Rilievo>& rilievi) {
    for (Rilievo& r : rilievi)
        if (!r.rimedio.endsWith(u'.'))
            r.rimedio += u' ' + doveSiCompila(r.elemento) + u'.';
}

void limita(std::vector<Rilievo>& rilievi) {
    if (rilievi.size() <= rilieviMassimi)
        return;
    const std::size_t altri = rilievi.size() - rilieviMassimi;
    rilievi.resize(rilieviMassimi);
    rilievi.push_back({.motivo = u"Ci sono altri %1 rilievi."_s.arg(altri),
                       .rimedio = u"Correggere questi e ricontrollare il file."_s});
}

} // namespace

std::vector<Rilievo> controllaXml(const QByteArray& contenuto, const QString& nomeFile) {
    std::vector<Rilievo> rilievi;
    controllaNomeFile(nomeFile, rilievi);
    if (contenuto.size() > byteMassimi) {
        rilievi.push_back({.valore = u"%1 byte"_s.arg(contenuto.size()),
                           .motivo = u"Il file supera i 5.000.000 di byte ammessi."_s,
                           .rimedio = u"Dividere il documento in più documenti."_s});
        return rilievi;
    }
    LetturaXml lettura = leggiXml(contenuto);
    completaRimedi(lettura.rilievi);
    if (lettura.radice) {
        controllaRadice(lettura, lettura.rilievi);
        for (const Nodo& parte : lettura.radice->figli) {
            if (parte.nome == u"FatturaElettronicaHeader")
                controllaSoggetti(parte, lettura.rilievi);
            else if (parte.nome == u"FatturaElettronicaBody")
                controllaConti(parte, lettura.rilievi);
        }
    }
    std::stable_sort(lettura.rilievi.begin(), lettura.rilievi.end(),
                     [](const Rilievo& a, const Rilievo& b) { return a.riga < b.riga; });
    rilievi.insert(rilievi.end(), lettura.rilievi.begin(), lettura.rilievi.end());
    limita(rilievi);
    return rilievi;
}

QString testoRilievo(const Rilievo& rilievo) {
    QString testo = rilievo.riga > 0 ? u"Riga %1: "_s.arg(rilievo.riga) : QString();
    testo += (rilievo.elemento.isEmpty() ? u"file"_s : rilievo.elemento) + u'\n';
    if (!rilievo.valore.isEmpty())
        testo += u"  Valore: "_s + rilievo.valore + u'\n';
    return testo + u"  "_s + rilievo.motivo + u"\n  "_s + rilievo.rimedio + u'\n';
}

} // namespace bor
