#include "fatturapa/postifel.h"

#include "xmlcheck/elementiinparole.h"
#include "xmlcheck/tracciato.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// In the order of `PostoFel`.
constexpr std::array<QStringView, numeroPostiFel> nomi = {u"Codice destinatario",
                                                          u"PEC",
                                                          u"Scissione dei pagamenti",
                                                          u"Dichiarazione di intento",
                                                          u"Tipo documento",
                                                          u"Bollo",
                                                          u"Fattura collegata",
                                                          u"Ordine",
                                                          u"Contratto",
                                                          u"Codice CUP",
                                                          u"Codice CIG",
                                                          u"Documento di trasporto",
                                                          u"Tipo ritenuta",
                                                          u"Causale ritenuta",
                                                          u"Modalità pagamento",
                                                          u"IBAN",
                                                          u"PDF allegato",
                                                          u"Cassa",
                                                          u"Natura del contributo C.I.",
                                                          u"Nature IVA",
                                                          u"Destinatario",
                                                          u"Documento",
                                                          u"Righe",
                                                          u"Riepilogo",
                                                          u"Pagamento",
                                                          u"Azienda",
                                                          u"File"};

} // namespace

QString nomePosto(PostoFel posto) {
    return nomi[static_cast<std::size_t>(posto)].toString();
}

ProspettoFel prospettoDi(PostoFel posto) {
    using enum PostoFel;
    switch (posto) {
    case Righe:
    case Riepilogo:
        return ProspettoFel::Righe;
    case Iban:
    case Pdf:
    case Cassa:
    case NaturaCi:
    case Nature:
    case Azienda:
        return ProspettoFel::Azienda;
    default:
        return ProspettoFel::Documento;
    }
}

PostoFel postoDi(const Rilievo& rilievo) {
    const QString campo = campoDiMaschera(Versione::V123, rilievo.elemento);
    const auto nome = std::ranges::find(nomi, QStringView(campo));
    if (!campo.isEmpty() && nome != nomi.end())
        return static_cast<PostoFel>(nome - nomi.begin());
    constexpr std::array<std::pair<QStringView, PostoFel>, 7> parti = {
        {{u"FatturaElettronicaHeader/CessionarioCommittente", PostoFel::Destinatario},
         {u"FatturaElettronicaHeader/", PostoFel::Azienda},
         {u"FatturaElettronicaBody/DatiGenerali", PostoFel::Documento},
         {u"FatturaElettronicaBody/DatiBeniServizi/DettaglioLinee", PostoFel::Righe},
         {u"FatturaElettronicaBody/DatiBeniServizi", PostoFel::Riepilogo},
         {u"FatturaElettronicaBody/DatiPagamento", PostoFel::Pagamento},
         {u"FatturaElettronicaBody/Allegati", PostoFel::Pdf}}};
    const auto parte =
        std::ranges::find_if(parti, [&](const auto& p) { return rilievo.elemento.startsWith(p.first); });
    return parte == parti.end() ? PostoFel::File : parte->second;
}

QString rilievoInBreve(const Rilievo& rilievo) {
    static const QRegularExpression linea(u"/DettaglioLinee\\[([0-9]+)\\]"_s);
    QStringList parti;
    if (const auto trovata = linea.match(rilievo.elemento); trovata.hasMatch())
        parti << u"Riga %1:"_s.arg(trovata.captured(1));
    if (rilievo.gravita == Gravita::Avviso)
        parti << u"Avviso."_s;
    if (!rilievo.codice.isEmpty())
        parti << scartoDi(rilievo);
    parti << motivoInParole(rilievo);
    if (!rilievo.valore.isEmpty())
        parti << u"(\"%1\")"_s.arg(rilievo.valore.left(60));
    parti << rilievo.rimedio;
    return parti.join(u' ');
}

} // namespace bor
