#include "xmlcheck/doppioni.h"

#include "xmlcheck/controllifattura.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// What makes an invoice the same; empty where something of it is missing. The same invoice in the format of
/// 2014 and in today's is made twice, but sent once.
QString identita(Versione versione, const Nodo& venditore, const Nodo& documento) {
    constexpr qsizetype cifreAnno = 4;
    const QString data = documento.valore(u"Data");
    const QStringList parti = {venditore.valore(u"IdPaese"), venditore.valore(u"IdCodice"),
                               documento.figlio(u"Art73") ? data : data.left(cifreAnno),
                               documento.valore(u"Numero")};
    if (parti.contains(QString()))
        return {};
    const bool nota = documento.valore(u"TipoDocumento") == u"TD04";
    return parti.join(u'\n') + (nota ? u'C' : u'F') + (versione == Versione::V10 ? u'0' : u'1');
}

} // namespace

void Doppioni::controlla(Controllo& c, const Nodo& radice, const QString& nomeFile) {
    const Nodo* venditore = discendente(
        radice, {u"FatturaElettronicaHeader", u"CedentePrestatore", u"DatiAnagrafici", u"IdFiscaleIVA"});
    for (const Nodo& corpo : radice.figli) {
        const Nodo* documento = discendente(corpo, {u"DatiGenerali", u"DatiGeneraliDocumento"});
        const QString questa =
            venditore && documento ? identita(c.versione, *venditore, *documento) : QString();
        if (questa.isEmpty())
            continue;
        const QString prima = m_file.value(questa);
        if (prima.isEmpty())
            m_file.insert(questa, nomeFile);
        else
            c.errore(
                prima == nomeFile ? u"00409"_s : u"00404"_s, *documento->figlio(u"Numero"),
                u"Una fattura dello stesso venditore con questo numero e anno c'è già nel file %1."_s.arg(
                    prima),
                u"Spedirne una sola, o cambiare il numero"_s);
    }
}

} // namespace bor
