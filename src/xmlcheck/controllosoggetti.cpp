#include "common/codicifiscali.h"
#include "xmlcheck/controllifattura.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Whether a code is in the tax register nobody knows from here: wrong check digits are a hint, under the
/// code that the receiving system would use.
void avvisaCifre(Controllo& c, const QString& codiceScarto, const Nodo& nodo, const QString& motivo) {
    c.avviso(nodo, motivo, u"Ricontrollare il codice"_s, codiceScarto);
}

/// Codes of one of the parties under which the receiving system refuses it.
struct CodiciParte {
    QString partitaIva;
    QString codiceFiscale;
};

void controllaIdItaliano(Controllo& c, const Nodo& padre, QStringView nome, bool (*valido)(QStringView),
                         const QString& codiceScarto) {
    const Nodo* id = padre.figlio(nome);
    const Nodo* codice = id ? id->figlio(u"IdCodice") : nullptr;
    const QString testo = codice ? codice->testo.trimmed() : QString();
    if (!testo.isEmpty() && id->valore(u"IdPaese") == u"IT" && !valido(testo))
        avvisaCifre(c, codiceScarto, *codice,
                    u"Non è un codice italiano valido: cifre mancanti o cifre di controllo errate."_s);
}

void controllaParte(Controllo& c, const Nodo& dati, const CodiciParte& codici) {
    controllaIdItaliano(c, dati, u"IdFiscaleIVA", partitaIvaValida, codici.partitaIva);
    const Nodo* fiscale = dati.figlio(u"CodiceFiscale");
    const Nodo* id = dati.figlio(u"IdFiscaleIVA");
    const bool italiana = !id || id->valore(u"IdPaese") == u"IT";
    // Abroad a tax code has another form.
    if (fiscale && italiana && !fiscale->testo.trimmed().isEmpty() &&
        !codiceFiscaleValido(fiscale->testo.trimmed()))
        avvisaCifre(c, codici.codiceFiscale, *fiscale, u"Le cifre di controllo del codice non tornano."_s);
}

void controllaDestinatario(Controllo& c, const Nodo& radice, const Nodo& trasmissione, const Nodo* cliente) {
    const Nodo* codice = trasmissione.figlio(u"CodiceDestinatario");
    const Nodo* formato = trasmissione.figlio(u"FormatoTrasmissione");
    if (!codice || !formato)
        return;
    const QString testo = codice->testo.trimmed();
    for (const Attributo& a : radice.attributi)
        if (a.nome == u"versione" && a.valore != formato->testo.trimmed())
            c.errore(u"00428"_s, *formato,
                     u"Il formato di trasmissione non è quello che il file dichiara in testa (%1)."_s.arg(
                         a.valore),
                     u"Correggere"_s);
    const bool pubblica = formato->testo.trimmed() == u"FPA12";
    if ((pubblica && testo.size() == 7) || (!pubblica && testo.size() == 6))
        c.errore(u"00427"_s, *codice,
                 pubblica ? u"A un ufficio pubblico si spedisce con un codice di 6 caratteri."_s
                          : u"A un privato si spedisce con un codice di 7 caratteri."_s,
                 u"Correggere"_s);
    const Nodo* id = cliente ? cliente->figlio(u"IdFiscaleIVA") : nullptr;
    if (testo == u"XXXXXXX" && (!id || id->valore(u"IdPaese") == u"IT"))
        c.errore(u"00313"_s, *codice,
                 u"Il codice XXXXXXX è solo per clienti esteri con la loro partita IVA."_s, u"Correggere"_s);
    const Nodo* pec = trasmissione.figlio(u"PECDestinatario");
    if (pec && pec->testo.trimmed().endsWith(u"@pec.fatturapa.it", Qt::CaseInsensitive))
        c.errore(u"00330"_s, *pec, u"È la casella del sistema di interscambio, non del cliente."_s,
                 u"Correggere"_s);
    else if (pec && testo != u"0000000")
        c.avviso(*pec, u"La PEC conta solo con il codice destinatario 0000000."_s, u"Toglierla"_s);
}

} // namespace

void controllaSoggetti(Controllo& c, const Nodo& radice) {
    const Nodo* testata = radice.figlio(u"FatturaElettronicaHeader");
    if (!testata)
        return;
    const Nodo* cliente = discendente(*testata, {u"CessionarioCommittente", u"DatiAnagrafici"});
    if (const Nodo* trasmissione = testata->figlio(u"DatiTrasmissione")) {
        controllaIdItaliano(c, *trasmissione, u"IdTrasmittente", codiceFiscaleValido, u"00300"_s);
        if (c.versione == Versione::V123)
            controllaDestinatario(c, radice, *trasmissione, cliente);
    }
    if (const Nodo* cedente = discendente(*testata, {u"CedentePrestatore", u"DatiAnagrafici"}))
        controllaParte(c, *cedente, {u"00301"_s, u"00302"_s});
    if (!cliente)
        return;
    controllaParte(c, *cliente, {u"00305"_s, u"00306"_s});
    if (!cliente->figlio(u"IdFiscaleIVA") && cliente->valore(u"CodiceFiscale").isEmpty())
        c.errore(u"00417"_s, *cliente, u"Mancano sia la partita IVA sia il codice fiscale."_s,
                 u"Compilarne almeno uno"_s);
}

} // namespace bor
