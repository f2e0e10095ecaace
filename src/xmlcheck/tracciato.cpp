#include "xmlcheck/tracciato.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

struct DatiVersione {
    QStringView spazio;
    QString maschera; ///< caption of the form whose fields the table names
    std::span<const RigaTracciato> righe;
};

DatiVersione datiVersione(Versione versione) {
    if (versione == Versione::V10)
        return {u"http://www.fatturapa.gov.it/sdi/fatturapa/v1.0", u"Fattura elettronica PA"_s,
                righeTracciato10()};
    return {u"http://ivaservizi.agenziaentrate.gov.it/docs/xsd/fatture/v1.2", u"Fattura elettronica"_s,
            righeTracciato123()};
}

/// Puts the place into a row of the table whose parent has its own already.
void colloca(Elemento& elemento, const Elemento& padre, const QString& maschera) {
    if (!elemento.riga.dove) {
        elemento.dove = padre.dove;
        elemento.campo = padre.campo;
        return;
    }
    const QString testo = QString::fromUtf16(elemento.riga.dove);
    elemento.campo = testo.startsWith(u'@') ? testo.mid(1) : QString();
    elemento.dove = elemento.campo.isEmpty()
                        ? testo
                        : u"nella maschera \"%1\", campo \"%2\""_s.arg(maschera, elemento.campo);
}

/// Takes the rows deeper than `padre` off the front.
void aggiungiFigli(Elemento& padre, std::span<const RigaTracciato>& righe, const QString& maschera) {
    while (!righe.empty() && righe.front().livello > padre.riga.livello) {
        const RigaTracciato riga = righe.front();
        righe = righe.subspan(1);
        padre.figli.push_back({riga, QString::fromUtf16(riga.elemento), {}, {}, {}});
        colloca(padre.figli.back(), padre, maschera);
        aggiungiFigli(padre.figli.back(), righe, maschera);
    }
}

Elemento costruisci(Versione versione) {
    const DatiVersione dati = datiVersione(versione);
    std::span<const RigaTracciato> righe = dati.righe;
    Elemento radice{{0, u"FatturaElettronica", Volte::Una, Forma::Gruppo},
                    u"FatturaElettronica"_s,
                    u"generando di nuovo il file dalla maschera \"%1\""_s.arg(dati.maschera),
                    {},
                    {}};
    aggiungiFigli(radice, righe, dati.maschera);
    return radice;
}

QStringView senzaNumero(QStringView passo) {
    const qsizetype numero = passo.indexOf(u'[');
    return numero < 0 ? passo : passo.first(numero);
}

} // namespace

const Elemento& tracciato(Versione versione) {
    static const Elemento v10 = costruisci(Versione::V10);
    static const Elemento v123 = costruisci(Versione::V123);
    return versione == Versione::V10 ? v10 : v123;
}

QStringView spazioNomi(Versione versione) {
    return datiVersione(versione).spazio;
}

namespace {

const Elemento& elementoDi(Versione versione, const QString& percorso) {
    const Elemento* elemento = &tracciato(versione);
    for (const QStringView passo : QStringView(percorso).split(u'/')) {
        const auto figlio = std::ranges::find(elemento->figli, senzaNumero(passo), &Elemento::nome);
        if (figlio == elemento->figli.end())
            break;
        elemento = &*figlio;
    }
    return *elemento;
}

} // namespace

QString doveSiCompila(Versione versione, const QString& percorso) {
    return elementoDi(versione, percorso).dove;
}

QString campoDiMaschera(Versione versione, const QString& percorso) {
    return elementoDi(versione, percorso).campo;
}

} // namespace bor
