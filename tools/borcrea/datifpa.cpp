#include "borcrea/datifpa.h"

#include "borcrea/bianco.h"
#include "borcrea/tabellatesto.h"
#include "common/posti.h"

#include <QFile>

namespace bor::crea {

using namespace Qt::StringLiterals;

namespace {

/// Calls `f(name, field)` for each field of the company's image that a person fills.
template <class F>
void campiAzienda(Fpa& r, F f) {
    f(u"idpaese", r.idpaese);
    f(u"idcodice", r.idcodice);
    f(u"codfiscale", r.codfiscale);
    f(u"partitaiva", r.partitaiva);
    f(u"regimefiscale", r.regimefiscale);
    f(u"formasocieta", r.formasocieta);
    f(u"iscrizionerea", r.iscrizionerea);
    f(u"reaufficio", r.reaufficio);
    f(u"reanumero", r.reanumero);
    f(u"capitalesociale", r.capitalesociale);
    f(u"sociounico", r.sociounico);
    f(u"statoliquidazione", r.statoliquidazione);
    f(u"denominazione", r.denominazione);
    f(u"cognome", r.cognome);
    f(u"nome", r.nome);
    f(u"sedeindirizzo", r.sede.indirizzo);
    f(u"sedecap", r.sede.cap);
    f(u"sedecomune", r.sede.comune);
    f(u"sedeprovincia", r.sede.provincia);
    f(u"sedenazione", r.sede.nazione);
    f(u"soindirizzo", r.stabile.indirizzo);
    f(u"socap", r.stabile.cap);
    f(u"socomune", r.stabile.comune);
    f(u"soprovincia", r.stabile.provincia);
    f(u"sonazione", r.stabile.nazione);
    f(u"telefono", r.telefono);
    f(u"fax", r.fax);
    f(u"email", r.email);
    f(u"progressivoinvio", r.progressivoinvio);
    f(u"cartellaxml", r.cartellaxml);
}

template <class F>
void riferimento(const QString& prefisso, RiferimentoFpa& r, F f) {
    f(prefisso + u"numero"_s, r.numero);
    f(prefisso + u"data"_s, r.data);
    f(prefisso + u"item"_s, r.item);
    f(prefisso + u"commessa"_s, r.commessa);
}

/// The same for a document's image.
template <class F>
void campiDocumento(Fpa& r, F f) {
    f(u"tipodocpa", r.tipodocpa);
    f(u"progressivoinvio", r.progressivoinvio);
    f(u"numeroddt", r.numeroddt);
    f(u"dataddt", r.dataddt);
    riferimento(u"ordine"_s, r.ordine, f);
    riferimento(u"contratto"_s, r.contratto, f);
    riferimento(u"convenzione"_s, r.convenzione, f);
    riferimento(u"ricezione"_s, r.ricezione, f);
    f(u"codicecup", r.codicecup);
    f(u"codicecig", r.codicecig);
    f(u"vettorepaese", r.vettorepaese);
    f(u"vettorecodice", r.vettorecodice);
    f(u"vettorecf", r.vettorecf);
    f(u"vettorenome", r.vettorenome);
    f(u"tiporitenuta", r.tiporitenuta);
    f(u"causalepagamento", r.causalepagamento);
    f(u"condizionipagamento", r.condizionipagamento);
    f(u"modalitapagamento", r.modalitapagamento);
    f(u"art73flag", r.art73flag);
}

} // namespace

std::optional<Fpa> leggiFpaAzienda(const QString& cartella, Problemi& problemi) {
    const QString nome = u"fpa_azienda.csv"_s;
    if (!QFile::exists(cartella + u'/' + nome))
        return std::nullopt;
    const TabellaTesto foglio(cartella, nome, {u"campo"_s, u"valore"_s}, problemi);
    Fpa fpa = bianco<Fpa>();
    fpa.statoquadri.set(QString::number(Fpa::compilato));
    for (const RigaTabella& riga : foglio.righe()) {
        const QString campo = riga.obbligatorio(u"campo", 40);
        bool trovato = false;
        campiAzienda(fpa, [&](QStringView nomeCampo, auto& testo) {
            if (nomeCampo != campo)
                return;
            trovato = true;
            testo.set(riga.testo(u"valore", quantiIn(testo.bytes)));
        });
        if (!trovato)
            riga.problema(u"campo: \"%1\" non esiste."_s.arg(campo));
    }
    return fpa;
}

QStringList colonneFpa() {
    QStringList colonne = {u"documento"_s};
    Fpa fpa = bianco<Fpa>();
    campiDocumento(fpa, [&](QStringView nome, auto&) { colonne.append(nome.toString()); });
    return colonne;
}

Fpa leggiFpaDocumento(const RigaTabella& riga) {
    Fpa fpa = bianco<Fpa>();
    campiDocumento(
        fpa, [&](QStringView nome, auto& testo) { testo.set(riga.testo(nome, quantiIn(testo.bytes))); });
    return fpa;
}

bool scriviFpa(Archivio& archivio, const QString& nome, const Fpa& fpa) {
    RecordFile<Fpa> file(archivio.disco());
    return file.apri(archivio.reale(archivio.file(nome))) && file.scrivi(1, fpa);
}

} // namespace bor::crea
