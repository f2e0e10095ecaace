// Every member of a document, named once for the reader and the writer of what is kept of it outside the
// archive. A struct that gets another member no longer fits its list here, and does not compile.
#pragma once

#include "archive/tabelle.h"
#include "common/posti.h"
#include "document/documento.h"
#include "document/limitato.h"

#include <concepts>
#include <type_traits>

namespace bor {

template <class T, class U>
concept Tale = std::same_as<std::remove_const_t<T>, U>;

inline constexpr int tipiPagamento = decltype(Tabelle::tipopagamenti)::ultimo;
inline constexpr int vociRicavo = decltype(Tabelle::ricavi)::ultimo;
inline constexpr int vociTestata = decltype(Tabelle::vettori)::ultimo;
inline constexpr int scontoMinimo = -32768;
inline constexpr int scontoMassimo = 32767;

void visita(auto& a, Tale<SedeTesti> auto& x) {
    auto& [ragione1, ragione2, indirizzo, cap, citta] = x;
    a(ragione1, ragione2, indirizzo, cap, citta);
}

void visita(auto& a, Tale<ContoTesti> auto& x) {
    auto& [mastro, conto, sottoconto] = x;
    a(mastro, conto, sottoconto);
}

void visita(auto& a, Tale<DatiCliente> auto& x) {
    auto& [sede, codicefiscale, nazione, partitaiva, amministrazione, telefono, email, vettore, nota,
           pagamento, banca, coordinate, contocliente, contoricavi, contoiva, contoesenti] = x;
    a(sede, codicefiscale, nazione, partitaiva, amministrazione, telefono, email, vettore, nota,
      posizione(pagamento, tipiPagamento), banca, coordinate, contocliente, contoricavi, contoiva,
      contoesenti);
}

void visita(auto& a, Tale<Trasporto> auto& x) {
    auto& [ddt, ordine, colli, peso, inizio, ora, causale, aspetto, spedizione] = x;
    a(ddt, ordine, colli, peso, inizio, ora, posizione(causale, vociTestata), posizione(aspetto, vociTestata),
      limitato(spedizione, 0, ordinale(Mezzo::Mittente), 0));
}

void visita(auto& a, Tale<Pratica> auto& x) {
    auto& [ivaono, ivaspe, ivaant, descrizione] = x;
    a(limitato(ivaono, 0, righeIva - 1, 0), limitato(ivaspe, 0, righeIva - 1, 0),
      limitato(ivaant, 0, righeIva - 1, 0), descrizione);
}

void visita(auto& a, Tale<Testata> auto& x) {
    auto& [cliente, trasporto, pratica] = x;
    a(cliente, trasporto, pratica);
}

void visita(auto& a, Tale<Estremi> auto& x) {
    auto& [numero, data, datareg, protocollo, registro, esig, voce1, voce2, voce3, quota2, quota3, pdf,
           postael] = x;
    a(numero, data, datareg, protocollo, limitato(registro, 0, ultimoRegistro, 0), esig,
      posizione(voce1, vociRicavo), posizione(voce2, vociRicavo), posizione(voce3, vociRicavo), quota2,
      quota3, pdf, postael);
}

void visita(auto& a, Tale<Rata> auto& x) {
    auto& [scadenza, importo] = x;
    a(scadenza, importo);
}

void visita(auto& a, Tale<Scadenze> auto& x) {
    auto& [pagamento, rate, rib, provaliq, provimp] = x;
    a(posizione(pagamento, tipiPagamento), rate, rib, provaliq, provimp);
}

void visita(auto& a, Tale<Ritenuta> auto& x) {
    auto& [raimpo, raimp, rascad, ravers] = x;
    a(raimpo, raimp, rascad, ravers);
}

void visita(auto& a, Tale<IvaDifferita> auto& x) {
    auto& [mese, anno, pagato, quota] = x;
    a(mese, anno, pagato, quota);
}

void visita(auto& a, Tale<Prospetti> auto& x) {
    auto& [ritenute, tributo, differita, terminemese, termineanno, spesometro, noleggio, classenoleggio,
           ivanonesp, autofattura, riepilogativo] = x;
    a(ritenute, posizione(tributo, Archivio::massimo), differita, terminemese, termineanno, spesometro,
      noleggio, posizione(classenoleggio, 5), ivanonesp, autofattura, riepilogativo);
}

void visita(auto& a, Tale<Riga> auto& x) {
    auto& [recart, codice2, codice, descrizione, um, sconto1, sconto2, iva, quantita, prezzo, peso] = x;
    a(limitato(recart, 0, Archivio::massimo, 0), codice2, codice, descrizione, um,
      limitato(sconto1, scontoMinimo, scontoMassimo, 0), limitato(sconto2, scontoMinimo, scontoMassimo, 0),
      limitato(iva, 0, CodiceIva::ultimo, 0), quantita, prezzo, peso);
}

void visita(auto& a, Tale<Rigap> auto& x) {
    auto& [data, descrizione, spese, anticipazioni, onorari] = x;
    a(data, descrizione, spese, anticipazioni, onorari);
}

void visita(auto& a, Tale<Collegata> auto& x) {
    auto& [numero, data] = x;
    a(numero, data);
}

void visita(auto& a, Tale<Documento> auto& x) {
    auto& [recordfattura, recordcliente, recordfpa, coppia, cliente, testata, estremi, scadenze, prospetti,
           ddd, dddp, scorporo, integrata, collegata] = x;
    a(limitato(recordfattura, 0, Archivio::massimo, 0), limitato(recordcliente, 0, Archivio::massimo, 0),
      recordfpa, coppia, cliente, testata, estremi, scadenze, prospetti, tabellaFissa(ddd, righeMerce),
      tabellaFissa(dddp, righeParcella), scorporo,
      limitato(integrata, 0, ordinale(Integrata::Intracomunitaria), 0), collegata);
}

} // namespace bor
