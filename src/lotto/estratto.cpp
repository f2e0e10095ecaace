#include "lotto/estratto.h"

#include "common/posti.h"
#include "common/testo.h"
#include "lotto/candidati.h"
#include "lotto/lettura.h"

#include <chrono>
#include <memory>
#include <numeric>
#include <thread>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// A registration lasts some milliseconds; what stays longer is not waited for.
std::unique_ptr<BloccoLettura> blocco(const Archivio& archivio) {
    constexpr int prove = 25;
    auto preso = std::make_unique<BloccoLettura>(archivio);
    for (int i = 0; i < prove && preso->occupato(); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        preso = std::make_unique<BloccoLettura>(archivio);
    }
    return preso;
}

QDate giorno(const Text<8>& campo) {
    return QDate::fromString(campo.text(), u"yyyyMMdd"_s);
}

template <class Importi>
double somma(const Importi& importi) {
    return std::accumulate(importi.begin(), importi.end(), 0.0);
}

RigaEstratto rigaDi(int record, const CoppiaFte& coppia) {
    const auto& [fte, f2e] = coppia;
    const double segno = fte.tipo == 1 ? -1 : 1;
    return {.record = record,
            .registrazione = giorno(fte.datareg),
            .genere = fte.tipo == 1       ? u"nota di credito"_s
                      : fte.parcella != 0 ? u"parcella"_s
                                          : u"fattura"_s,
            .numero = puliscitesto(fte.numero.text()),
            .data = giorno(fte.datadoc),
            .imponibile = segno * (somma(fte.impon) + somma(f2e.impon)),
            .imposta = segno * (somma(fte.iva) + somma(f2e.iva)),
            .esente = segno * (somma(fte.esen) + somma(f2e.esen)),
            .ritenuta = segno * somma(f2e.raimp),
            .pa = f2e.fatturaPa() && !f2e.fpaGuasto(),
            .pdf = f2e.pdf.trimmed()};
}

/// Reads the record; why its document is not in the table, or empty.
QString leggi(const Archivio& archivio, const Identita& scelto, int ultimo, CoppiaFte& coppia) {
    if (scelto.record < 1 || scelto.record > ultimo)
        return motivoSparito;
    const auto preso = blocco(archivio);
    if (preso->occupato())
        return u"l'archivio è impegnato da un altro computer"_s;
    if (!archivio.leggi(scelto.record, coppia))
        return motivoIlleggibile;
    const Identita suFile = identitaDi(scelto.record, coppia.fte);
    if (!stesso(scelto, suFile))
        return nonPiuLui(suFile);
    return coppia.fte.annullata == 1 ? motivoEliminato : QString();
}

void celle(const RigaEstratto& r, CelleRiga& celle) {
    celle.numero(r.record);
    celle.data(r.registrazione);
    celle.testo(r.genere);
    celle.testo(r.numero);
    celle.data(r.data);
    celle.testo(r.cliente);
    celle.testo(r.partitaiva);
    celle.importo(r.imponibile);
    celle.importo(r.imposta);
    celle.importo(r.esente);
    celle.importo(r.imponibile + r.imposta + r.esente);
    celle.importo(r.ritenuta);
    celle.testo(r.pa ? u"PA" : u"");
    celle.testo(r.pdf);
}

} // namespace

Estratto estrai(const Archivio& archivio, const std::vector<Identita>& scelti) {
    const int ultimo = archivio.leggiTot(Conta::Fte).numero;
    std::unordered_map<int, Cli> clienti;
    Estratto estratto;
    estratto.fuori.titolo = u"Esportazione dei documenti scelti"_s;
    for (const Identita& scelto : scelti) {
        CoppiaFte coppia = vuoto<CoppiaFte>();
        const QString motivo = leggi(archivio, scelto, ultimo, coppia);
        const auto [cliente, nuovo] = clienti.try_emplace(scelto.cliente, vuoto<Cli>());
        if (nuovo && scelto.cliente > 0)
            cliente->second = archivio.cli.leggi(scelto.cliente);
        const QString nome = puliscitesto(cliente->second.sede.ragione1.text());
        if (!motivo.isEmpty()) {
            estratto.fuori.righe.push_back(
                {scelto, u"documento "_s + numeroEData(scelto), nome, EsitoRiga::NonFatta, motivo});
            continue;
        }
        estratto.righe.push_back(rigaDi(scelto.record, coppia));
        estratto.righe.back().cliente = nome;
        estratto.righe.back().partitaiva = puliscitesto(cliente->second.partitaiva.text());
    }
    return estratto;
}

Tabella Estratto::tabella(int decimali) const {
    using enum GenereColonna;
    Tabella tabella{.titolo = u"Documenti scelti"_s,
                    .filtro = u"Documenti: %1"_s.arg(righe.size()),
                    .colonne = {{u"Registr."_s, Numero, 6, u"registrazione"_s},
                                {u"Data reg."_s, Data, 10, u"datareg"_s},
                                {u"Tipo"_s, Testo, 14, u"tipo"_s},
                                {u"Numero"_s, Testo, 8, u"numero"_s},
                                {u"Data"_s, Data, 10, u"data"_s},
                                {u"Cliente"_s, Testo, 30, u"cliente"_s},
                                {u"Partita IVA"_s, Testo, 11, u"partitaiva"_s},
                                {u"Imponibile"_s, Importo, 12, u"imponibile"_s},
                                {u"Imposta"_s, Importo, 11, u"imposta"_s},
                                {u"Esente"_s, Importo, 11, u"esente"_s},
                                {u"Importo"_s, Importo, 12, u"importo"_s},
                                {u"Ritenuta"_s, Importo, 11, u"ritenuta"_s},
                                {u"PA"_s, Testo, 3, u"pa"_s},
                                {u"PDF"_s, Testo, 20, u"pdf"_s}},
                    .righe = quantiIn(righe),
                    .decimali = decimali};
    tabella.riga = [this](int riga, CelleRiga& riceve) { celle(elemento(righe, riga), riceve); };
    tabella.totali = [this](CelleRiga& riceve) {
        RigaEstratto totale;
        for (const RigaEstratto& r : righe) {
            totale.imponibile += r.imponibile;
            totale.imposta += r.imposta;
            totale.esente += r.esente;
            totale.ritenuta += r.ritenuta;
        }
        riceve.testo(u"Totali");
        for (int vuote = 0; vuote < 6; ++vuote)
            riceve.vuota();
        for (const double importo : {totale.imponibile, totale.imposta, totale.esente,
                                     totale.imponibile + totale.imposta + totale.esente, totale.ritenuta})
            riceve.importo(importo);
    };
    return tabella;
}

} // namespace bor
