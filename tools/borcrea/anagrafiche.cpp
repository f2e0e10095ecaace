#include "borcrea/anagrafiche.h"

#include "borcrea/bianco.h"
#include "borcrea/tabellatesto.h"
#include "common/codicifiscali.h"
#include "common/posti.h"
#include "document/codiceiva.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace bor::crea {

using namespace Qt::StringLiterals;

namespace {

void segna(Text<1>& campo, bool acceso) {
    campo.set(acceso ? u"1" : u"0");
}

void conto(const RigaTabella& riga, QStringView colonna, Text<8>& campo, const std::vector<Con>& conti) {
    const QString codice = riga.testo(colonna, 8);
    if (!codice.isEmpty() &&
        std::ranges::none_of(conti, [&](const Con& c) { return c.codice.trimmed() == codice; }))
        riga.problema(u"%1: il conto \"%2\" non è in conti.csv."_s.arg(colonna, codice));
    campo.set(codice);
}

void sede(const RigaTabella& riga, const QString& prefisso, Sede& sede) {
    sede.ragione1.set(riga.testo(prefisso + u"ragione1"_s, 40));
    sede.ragione2.set(riga.testo(prefisso + u"ragione2"_s, 40));
    sede.indirizzo.set(riga.testo(prefisso + u"indirizzo"_s, 40));
    sede.citta.set(riga.testo(prefisso + u"citta"_s, 40));
    sede.cap.set(riga.testo(prefisso + u"cap"_s, 5));
}

void fiscali(const RigaTabella& riga, Cli& cli) {
    const QString nazione = riga.testo(u"nazione", 2);
    const QString partitaiva = riga.testo(u"partitaiva", 11);
    const QString codicefiscale = riga.testo(u"codicefiscale", 16);
    const bool italiana = nazione.isEmpty() || nazione == u"IT";
    if (italiana && !partitaiva.isEmpty() && !partitaIvaValida(partitaiva))
        riga.problema(u"partitaiva: \"%1\" è errata, la cifra di controllo non torna."_s.arg(partitaiva));
    if (!codicefiscale.isEmpty() && !codiceFiscaleValido(codicefiscale))
        riga.problema(
            u"codicefiscale: \"%1\" è errato, il carattere di controllo non torna."_s.arg(codicefiscale));
    cli.nazione.set(nazione);
    cli.partitaiva.set(partitaiva);
    cli.codicefiscale.set(codicefiscale);
    const QString ufficio = riga.testo(u"ufficiopa", 6);
    if (!ufficio.isEmpty() && ufficio.size() != 6)
        riga.problema(u"ufficiopa: \"%1\" non ha sei caratteri."_s.arg(ufficio));
    cli.clix2.set(ufficio);
}

void commerciali(const RigaTabella& riga, Cli& cli) {
    cli.pagamento = breve(riga.intero(u"pagamento", 0, 60));
    cli.agente = breve(riga.intero(u"agente", 0, 9999));
    cli.sconto1 = breve(riga.intero(u"sconto1", 0, 100));
    cli.sconto2 = breve(riga.intero(u"sconto2", 0, 100));
    cli.riba = riga.segno(u"riba") ? 1 : 0;
    segna(cli.listino, riga.segno(u"listino"));
    segna(cli.postael, riga.segno(u"postael"));
    segna(cli.nodifferita, riga.segno(u"nodifferita"));
    segna(cli.spesometro, riga.intero(u"spesometro", 0, 1, 1) == 1);
    cli.regimeiva = breve(riga.intero(u"regimeiva", 0, CodiceIva::ultimo));
    cli.vettore1.set(riga.testo(u"vettore1", 40));
    cli.vettore2.set(riga.testo(u"vettore2", 40));
    cli.vettore3.set(riga.testo(u"vettore3", 32));
    cli.nota1.set(riga.testo(u"nota1", 37));
    cli.nota2.set(riga.testo(u"nota2", 37));
    cli.banca.set(riga.testo(u"banca", 36));
    const QString coordinate = riga.testo(u"coordinate", 26);
    qsizetype posto = 0;
    const auto prossime = [&](auto& campo) {
        campo.set(coordinate.mid(posto, quantiIn(campo.bytes)));
        posto += quantiIn(campo.bytes);
    };
    prossime(cli.banca1);
    prossime(cli.abi);
    prossime(cli.cab);
    prossime(cli.contocorrente);
}

Cli cliente(const RigaTabella& riga, const std::vector<Con>& conti) {
    Cli cli = bianco<Cli>();
    cli.clix7 = 0;
    sede(riga, QString(), cli.sede);
    sede(riga, u"a"_s, cli.amministrazione);
    for (int i = 0; i < 3; ++i)
        elemento(cli.telefono, i).set(riga.testo(u"telefono%1"_s.arg(i + 1), 15));
    cli.email.set(riga.testo(u"email", 36));
    fiscali(riga, cli);
    commerciali(riga, cli);
    conto(riga, u"contocliente", cli.contocliente, conti);
    conto(riga, u"contoricavi", cli.contoricavi, conti);
    conto(riga, u"contoiva", cli.contoiva, conti);
    conto(riga, u"contoesenti", cli.contoesenti, conti);
    const bool eliminato = riga.segno(u"eliminato");
    const QString nome = riga.obbligatorio(u"ragione1", eliminato ? 39 : 40);
    // The suite marks the name of a deleted customer with one more character in front.
    cli.sede.ragione1.set(eliminato ? u'*' + nome : nome);
    cli.eliminato = eliminato ? 1 : 0;
    return cli;
}

Prx testoAggiunto(const RigaTabella& riga) {
    Prx prx = vuoto<Prx>();
    if (riga.vuoto(u"testo"))
        return prx;
    const QStringList righe = riga.testo(u"testo", senzaLimite).split(u'|');
    if (quantiIn(righe) > quantiIn(prx.riga))
        riga.problema(u"testo: ci sono %1 righe, ne sono ammesse dieci."_s.arg(righe.size()));
    for (int i = 0; i < quantiIn(prx.riga); ++i) {
        const QString testo = righe.value(i).trimmed();
        if (testo.size() > 50)
            riga.problema(u"testo: la riga \"%1\" ha più di 50 caratteri."_s.arg(testo));
        elemento(prx.riga, i).set(testo);
    }
    prx.marca = Prx::marcaValida;
    return prx;
}

Art articolo(const RigaTabella& riga) {
    Art art = vuoto<Art>();
    art.codice.set(riga.obbligatorio(u"codice", 15));
    art.descrizione.set(riga.obbligatorio(u"descrizione", 40));
    const QString barcode = riga.testo(u"barcode", 13);
    if (barcode.size() == 13 && !ean13Valido(barcode))
        riga.problema(u"barcode: \"%1\" è errato, la cifra di controllo non torna."_s.arg(barcode));
    art.barcode.set(barcode);
    art.um.set(riga.testo(u"um", 2));
    art.iva = breve(riga.intero(u"iva", 1, CodiceIva::ultimo, 1));
    art.listino1 = riga.numero(u"listino1");
    art.listino2 = riga.numero(u"listino2", art.listino1);
    art.giacenza = riga.numero(u"giacenza");
    art.impegnato = riga.numero(u"impegnato");
    art.peso = riga.numero(u"peso");
    art.eliminato = riga.segno(u"eliminato") ? 1 : 0;
    return art;
}

/// Notes the record of a code; a code that comes twice is a problem.
void nota(const RigaTabella& riga, QHash<QString, int>& record, int numero) {
    const QString codice = riga.testo(u"codice", 15);
    if (record.contains(codice))
        riga.problema(u"codice: \"%1\" è già usato da un'altra riga."_s.arg(codice));
    record.insert(codice, numero);
}

void leggiClienti(const QString& cartella, Anagrafiche& a, Problemi& problemi) {
    static const QStringList colonne =
        u"codice ragione1 ragione2 indirizzo cap citta aragione1 aragione2 aindirizzo acap acitta telefono1 "
        u"telefono2 telefono3 email nazione partitaiva codicefiscale ufficiopa pagamento agente sconto1 "
        u"sconto2 riba listino regimeiva nodifferita spesometro postael banca coordinate contocliente "
        u"contoricavi contoiva contoesenti vettore1 vettore2 vettore3 nota1 nota2 eliminato"_s.split(u' ');
    const TabellaTesto foglio(cartella, u"clienti.csv"_s, colonne, problemi, true);
    for (const RigaTabella& riga : foglio.righe()) {
        a.clienti.push_back(cliente(riga, a.conti));
        riga.obbligatorio(u"codice", 15);
        nota(riga, a.recordCliente, quantiIn(a.clienti));
    }
}

void leggiArticoli(const QString& cartella, Anagrafiche& a, Problemi& problemi) {
    static const QStringList colonne =
        u"codice descrizione barcode um iva listino1 listino2 giacenza impegnato peso eliminato testo"_s
            .split(u' ');
    const TabellaTesto foglio(cartella, u"articoli.csv"_s, colonne, problemi);
    for (const RigaTabella& riga : foglio.righe()) {
        a.articoli.push_back(articolo(riga));
        a.testi.push_back(testoAggiunto(riga));
        nota(riga, a.recordArticolo, quantiIn(a.articoli));
    }
}

void leggiConti(const QString& cartella, Anagrafiche& a, Problemi& problemi) {
    const TabellaTesto foglio(cartella, u"conti.csv"_s, {u"codice"_s, u"descrizione"_s}, problemi, true);
    for (const RigaTabella& riga : foglio.righe()) {
        Con con = vuoto<Con>();
        const QString codice = riga.obbligatorio(u"codice", 8);
        if (codice.size() != 8)
            riga.problema(u"codice: \"%1\" non ha otto cifre (mastro, conto, sottoconto)."_s.arg(codice));
        con.codice.set(codice);
        con.descrizione.set(riga.obbligatorio(u"descrizione", 40));
        con.conx4.blank();
        a.conti.push_back(con);
    }
}

void leggiAgenti(const QString& cartella, Anagrafiche& a, Problemi& problemi) {
    static const QStringList colonne =
        u"codice ragione1 indirizzo cap citta telefono partitaiva codicefiscale provvigione"_s.split(u' ');
    const TabellaTesto foglio(cartella, u"agenti.csv"_s, colonne, problemi);
    for (const RigaTabella& riga : foglio.righe()) {
        Age age = bianco<Age>();
        age.agex3 = 0;
        // The head of an agent's record is that of a customer.
        Cli anagrafica = bianco<Cli>();
        sede(riga, QString(), anagrafica.sede);
        anagrafica.telefono[0].set(riga.testo(u"telefono", 15));
        fiscali(riga, anagrafica);
        std::memcpy(age.agenteanag.bytes.data(), &anagrafica, age.agenteanag.bytes.size());
        age.codice.set(zeriDavanti(QString::number(riga.intero(u"codice", 1, 9999)), 4));
        riga.numero(u"provvigione");
        age.provvigione.set(riga.testo(u"provvigione", 4).replace(u',', u'.'));
        a.agenti.push_back(age);
    }
}

/// Writes the records from number 1 on.
template <class R>
bool scriviTutti(RecordFile<R>& file, const std::vector<R>& records) {
    int n = 0;
    return std::ranges::all_of(records, [&](const R& record) { return file.scrivi(++n, record); });
}

template <class R>
bool scrivi(Archivio& archivio, RecordFile<R>& file, Conta conta, const std::vector<R>& records) {
    Tot tot = vuoto<Tot>();
    tot.numero = breve(quantiIn(records));
    return scriviTutti(file, records) && archivio.scriviTot(conta, tot);
}

/// Writes an index: the key and number of each record, sorted by the upper-case key.
template <class Indice, class R, class Chiave>
bool indicizza(RecordFile<Indice>& file, const std::vector<R>& records, Chiave chiave) {
    std::vector<std::pair<QString, Indice>> voci;
    for (const R& record : records) {
        Indice voce;
        const QString testo = chiave(record, voce, breve(quantiIn(voci) + 1));
        voci.emplace_back(maiuscolo(testo), voce);
    }
    std::ranges::stable_sort(voci, {}, &std::pair<QString, Indice>::first);
    std::vector<Indice> ordinate;
    std::ranges::transform(voci, std::back_inserter(ordinate), &std::pair<QString, Indice>::second);
    return scriviTutti(file, ordinate);
}

} // namespace

Anagrafiche leggiAnagrafiche(const QString& cartella, Problemi& problemi) {
    Anagrafiche a;
    leggiConti(cartella, a, problemi);
    leggiClienti(cartella, a, problemi);
    leggiArticoli(cartella, a, problemi);
    leggiAgenti(cartella, a, problemi);
    return a;
}

bool scriviAnagrafiche(Archivio& archivio, const Anagrafiche& a) {
    if (!scriviTutti(archivio.prx, a.testi))
        return false;
    const auto nome = [](const Cli& cli, Src& voce, std::int16_t n) {
        // A deleted customer is found by his name, not by the mark before it.
        voce.chiave.set(cli.sede.ragione1.text().mid(cli.eliminato == 1 ? 1 : 0));
        voce.recordcli = n;
        return voce.chiave.text();
    };
    const auto barcode = [](const Art& art, Srb& voce, std::int16_t n) {
        voce = {art.barcode, n};
        return art.barcode.text();
    };
    const auto codice = [](const Art& art, Sra& voce, std::int16_t n) {
        voce = {art.codice, n};
        return art.codice.text();
    };
    return scrivi(archivio, archivio.cli, Conta::Cli, a.clienti) &&
           scrivi(archivio, archivio.art, Conta::Art, a.articoli) &&
           scrivi(archivio, archivio.con, Conta::Con, a.conti) &&
           scrivi(archivio, archivio.age, Conta::Age, a.agenti) && indicizza(archivio.src, a.clienti, nome) &&
           indicizza(archivio.srb, a.articoli, barcode) && indicizza(archivio.sra, a.articoli, codice);
}

} // namespace bor::crea
