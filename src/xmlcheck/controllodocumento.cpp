#include "xmlcheck/controllifattura.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

struct Parti {
    QString cedente; ///< country and VAT number
    QString cessionario;
    QString paeseCedente;
    QString paeseCessionario;
};

QString idDi(const Nodo* id) {
    return id ? id->valore(u"IdPaese") + id->valore(u"IdCodice") : QString();
}

Parti partiDi(const Nodo& radice) {
    const Nodo* cedente = discendente(
        radice, {u"FatturaElettronicaHeader", u"CedentePrestatore", u"DatiAnagrafici", u"IdFiscaleIVA"});
    const Nodo* cessionario = discendente(
        radice, {u"FatturaElettronicaHeader", u"CessionarioCommittente", u"DatiAnagrafici", u"IdFiscaleIVA"});
    return {idDi(cedente), idDi(cessionario), cedente ? cedente->valore(u"IdPaese") : QString(),
            cessionario ? cessionario->valore(u"IdPaese") : QString()};
}

bool fra(const QString& tipo, const char16_t* tipi) {
    return QStringView(tipi).split(u' ').contains(tipo);
}

/// What the kind of document asks of seller and buyer.
void controllaParti(Controllo& c, const Nodo& tipo, const Parti& parti) {
    const QString td = tipo.testo.trimmed();
    const bool stessi = !parti.cedente.isEmpty() && parti.cedente == parti.cessionario;
    const auto errore = [&](const QString& codice, const QString& motivo) {
        c.errore(codice, tipo, motivo, u"Scegliere il tipo giusto"_s);
    };
    if (stessi && fra(td, u"TD01 TD02 TD03 TD06 TD16 TD17 TD18 TD19 TD20 TD24 TD25 TD28 TD29"))
        errore(u"00471"_s,
               u"Con questo tipo di documento chi vende e chi compra non possono essere gli stessi."_s);
    if (!stessi && fra(td, u"TD21 TD27"))
        errore(u"00472"_s, u"Con questo tipo di documento chi vende e chi compra sono gli stessi."_s);
    if ((fra(td, u"TD17 TD18 TD19") && parti.paeseCedente == u"IT") ||
        (td == u"TD28" && parti.paeseCedente != u"SM") || (td == u"TD29" && parti.paeseCedente != u"IT"))
        errore(u"00473"_s, u"Il paese di chi vende non va con questo tipo di documento."_s);
    if (parti.cessionario.isEmpty() && fra(td, u"TD16 TD17 TD18 TD19 TD20 TD22 TD23 TD28 TD29"))
        errore(u"00475"_s, u"Con questo tipo di documento ci vuole la partita IVA di chi compra."_s);
    if (!parti.paeseCedente.isEmpty() && parti.paeseCedente != u"IT" && !parti.paeseCessionario.isEmpty() &&
        parti.paeseCessionario != u"IT")
        errore(u"00476"_s, u"Né chi vende né chi compra è italiano."_s);
}

void controllaDate(Controllo& c, const Nodo& generali, const Nodo& documento) {
    const Nodo* data = documento.figlio(u"Data");
    const QDate giorno = data ? QDate::fromString(data->testo.trimmed(), Qt::ISODate) : QDate();
    if (!giorno.isValid())
        return;
    if (c.oggi.isValid() && giorno > c.oggi)
        c.errore(u"00403"_s, *data, u"La data del documento è nel futuro."_s, u"Correggere"_s);
    if (documento.valore(u"TipoDocumento") != u"TD04")
        return;
    for (const Nodo& collegata : generali.figli) {
        if (collegata.nome != u"DatiFattureCollegate")
            continue;
        const QDate sua = QDate::fromString(collegata.valore(u"Data"), Qt::ISODate);
        if (sua.isValid() && sua > giorno)
            c.errore(u"00418"_s, collegata,
                     u"La nota di credito ha una data precedente alla fattura che corregge."_s,
                     u"Correggere"_s);
    }
}

/// A protocol of 17 digits and one of 6, apart by "-" or "/".
void controllaIntento(Controllo& c, const Nodo& beni) {
    static const QRegularExpression forma(u"\\A[0-9]{17}[-/][0-9]{6}\\z"_s);
    for (const Nodo& linea : beni.figli) {
        for (const Nodo& dati : linea.figli) {
            if (dati.nome != u"AltriDatiGestionali" || dati.valore(u"TipoDato") != u"INTENTO")
                continue;
            if (!forma.match(dati.valore(u"RiferimentoTesto")).hasMatch())
                c.errore(u"00477"_s, dati,
                         u"Il protocollo della dichiarazione di intento sono 17 cifre, \"-\" e 6 cifre."_s,
                         u"Correggere"_s);
        }
    }
}

void controllaAliquoteZero(Controllo& c, const QString& tipo, const Nodo& beni) {
    if (tipo != u"TD21")
        return;
    for (const Nodo& linea : beni.figli)
        if (linea.nome == u"DettaglioLinee" && linea.valore(u"AliquotaIVA").toDouble() == 0)
            c.errore(u"00474"_s, linea, u"Con questo tipo di documento le linee portano l'IVA."_s,
                     u"Correggere il codice IVA"_s);
}

void controllaDocumento(Controllo& c, const Parti& parti, const Nodo& corpo) {
    const Nodo* generali = corpo.figlio(u"DatiGenerali");
    const Nodo* documento = generali ? generali->figlio(u"DatiGeneraliDocumento") : nullptr;
    if (!documento)
        return;
    const Nodo* numero = documento->figlio(u"Numero");
    if (numero && std::ranges::none_of(numero->testo, [](QChar x) { return x >= u'0' && x <= u'9'; }))
        c.errore(u"00425"_s, *numero, u"Il numero del documento deve avere almeno una cifra."_s,
                 u"Correggere"_s);
    controllaDate(c, *generali, *documento);
    if (c.versione == Versione::V10)
        return;
    if (const Nodo* tipo = documento->figlio(u"TipoDocumento"))
        controllaParti(c, *tipo, parti);
    if (const Nodo* beni = corpo.figlio(u"DatiBeniServizi")) {
        controllaIntento(c, *beni);
        controllaAliquoteZero(c, documento->valore(u"TipoDocumento"), *beni);
    }
}

} // namespace

void controllaDocumenti(Controllo& c, const Nodo& radice) {
    const Parti parti = partiDi(radice);
    for (const Nodo& corpo : radice.figli)
        if (corpo.nome == u"FatturaElettronicaBody")
            controllaDocumento(c, parti, corpo);
}

} // namespace bor
