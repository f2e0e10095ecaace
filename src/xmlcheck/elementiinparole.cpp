#include "xmlcheck/elementiinparole.h"

#include "xmlcheck/controllifattura.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

struct Parola {
    QStringView elemento;
    QStringView testo;
};

/// Whose the elements of a group are.
constexpr auto gruppi =
    std::to_array<Parola>({{u"DatiTrasmissione", u"della trasmissione"},
                           {u"CedentePrestatore", u"di chi vende"},
                           {u"CessionarioCommittente", u"del cliente"},
                           {u"RappresentanteFiscale", u"del rappresentante fiscale"},
                           {u"TerzoIntermediarioOSoggettoEmittente", u"di chi emette il file"},
                           {u"DatiGeneraliDocumento", u"del documento"},
                           {u"DatiRitenuta", u"della ritenuta"},
                           {u"DatiBollo", u"del bollo"},
                           {u"DatiCassaPrevidenziale", u"della cassa"},
                           {u"ScontoMaggiorazione", u"dello sconto"},
                           {u"DatiOrdineAcquisto", u"dell'ordine"},
                           {u"DatiContratto", u"del contratto"},
                           {u"DatiConvenzione", u"della convenzione"},
                           {u"DatiRicezione", u"della ricezione"},
                           {u"DatiFattureCollegate", u"della fattura collegata"},
                           {u"DatiDDT", u"del documento di trasporto"},
                           {u"DatiTrasporto", u"del trasporto"},
                           {u"DettaglioLinee", u"della riga"},
                           {u"DatiRiepilogo", u"del riepilogo IVA"},
                           {u"DettaglioPagamento", u"della rata"},
                           {u"Allegati", u"dell'allegato"}});

/// Names that are no Italian words with capitals in front.
constexpr auto nomi = std::to_array<Parola>({{u"IdPaese", u"paese"},
                                             {u"IdCodice", u"codice fiscale o partita IVA"},
                                             {u"IdDocumento", u"numero"},
                                             {u"NumItem", u"posizione"},
                                             {u"CodEORI", u"codice EORI"},
                                             {u"AlCassa", u"aliquota"},
                                             {u"Art73", u"art. 73"},
                                             {u"Quantita", u"quantità"},
                                             {u"UnitaMisura", u"unità di misura"},
                                             {u"ModalitaPagamento", u"modalità di pagamento"},
                                             {u"EsigibilitaIVA", u"esigibilità IVA"}});

QString cerca(std::span<const Parola> parole, QStringView elemento) {
    const auto trovata = std::ranges::find(parole, elemento, &Parola::elemento);
    return trovata == parole.end() ? QString() : trovata->testo.toString();
}

/// "CodiceCUP": "codice CUP".
QString parole(const QString& elemento) {
    static const QRegularExpression confine(u"(?<=[a-z])(?=[A-Z])|(?<=[A-Z])(?=[A-Z][a-z])"_s);
    QStringList tutte = elemento.split(confine);
    for (QString& parola : tutte)
        if (parola != parola.toUpper())
            parola = parola.toLower();
    return tutte.join(u' ');
}

} // namespace

QString elementoInParole(const QString& percorso) {
    static const QRegularExpression numero(u"\\[[0-9]+\\]"_s);
    QStringList passi = QString(percorso).remove(numero).split(u'/', Qt::SkipEmptyParts);
    if (passi.isEmpty())
        return {};
    const QString elemento = passi.takeLast();
    const QString nome = cerca(nomi, elemento);
    QString testo = nome.isEmpty() ? parole(elemento) : nome;
    if (passi.contains(u"Sede"_s))
        testo += u" della sede"_s;
    while (!passi.isEmpty())
        if (const QString diChi = cerca(gruppi, passi.takeLast()); !diChi.isEmpty())
            return testo + u' ' + diChi;
    return testo;
}

QString motivoInParole(const Rilievo& rilievo) {
    QString nome = elementoInParole(rilievo.elemento);
    if (nome.isEmpty() || rilievo.codice != codiceForma)
        return rilievo.motivo;
    nome[0] = nome[0].toUpper();
    return u"%1 (%2). %3"_s.arg(nome, rilievo.elemento.section(u'/', -1), rilievo.motivo);
}

} // namespace bor
