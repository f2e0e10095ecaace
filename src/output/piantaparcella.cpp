// The page of fee bills.
#include "common/numeri.h"
#include "common/posti.h"
#include "output/voci.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

using enum Lato;
using enum SuPagine;

QStringList oggetto(const DatiStampa& dati) {
    const auto& linee = dati.documento.testata.pratica.descrizione;
    return {linee.begin(), linee.end()};
}

QStringList rate(const DatiStampa& dati) {
    return voci::rate(dati, 1, 6);
}

QStringList importi(const DatiStampa& dati) {
    const TotaliParcella& t = dati.parcella;
    return dati.importi({t.totanticipazioni, t.totspese, t.totonorari, t.contributoci, t.contributocp,
                         t.imponibile, t.imposta, t.totaledocumento});
}

QStringList ritenuta(const DatiStampa& dati) {
    const TotaliParcella& t = dati.parcella;
    return dati.importi({t.baseritenuta, t.ritenuta, t.nettodocumento});
}

QStringList titolo(const DatiStampa&) {
    return {u"PARCELLA"_s};
}

constexpr std::array gruppi = voci::conComuni(std::array{
    GruppoVoci{36, 4, Tutte, Sinistra, oggetto},
    GruppoVoci{40, 2, Tutte, Sinistra, voci::bancaCliente},
    GruppoVoci{42, 1, Ultima, Sinistra, voci::pagamento},
    GruppoVoci{43, 12, Ultima, Coppie, rate},
    GruppoVoci{55, 2, Ultima, Sinistra, voci::ivaCodici},
    GruppoVoci{57, 4, Ultima, Destra, voci::ivaImporti},
    GruppoVoci{61, 1, Ultima, Sinistra, voci::ivaRiferimenti},
    GruppoVoci{62, 8, Ultima, Destra, importi},
    GruppoVoci{70, 3, Ultima, Destra, ritenuta},
    GruppoVoci{73, 1, Ultima, Sinistra, voci::provvigione},
    GruppoVoci{74, 1, Ultima, Sinistra, voci::termineIva},
    GruppoVoci{75, 1, Ultima, Sinistra, voci::bancaPagamento},
    GruppoVoci{77, 1, Tutte, Sinistra, titolo},
    GruppoVoci{78, 2, Tutte, Sinistra, voci::note},
});

constexpr qsizetype caratteriData = 10;
constexpr qsizetype caratteriDescrizione = 50;

const Rigap& riga(const DatiStampa& dati, int linea) {
    return elemento(dati.documento.dddp, linea - 1);
}

QString data(const DatiStampa& dati, int linea) {
    return puliscitesto(riga(dati, linea).data.left(caratteriData));
}

QString descrizione(const DatiStampa& dati, int linea) {
    return puliscitesto(riga(dati, linea).descrizione.left(caratteriDescrizione));
}

QString anticipazioni(const DatiStampa& dati, int linea) {
    return dati.importo(riga(dati, linea).anticipazioni);
}

QString spese(const DatiStampa& dati, int linea) {
    return dati.importo(riga(dati, linea).spese);
}

QString onorari(const DatiStampa& dati, int linea) {
    return dati.importo(riga(dati, linea).onorari);
}

constexpr std::array colonne = {
    ColonnaCorpo{82, Sinistra, data},        ColonnaCorpo{83, Sinistra, descrizione},
    ColonnaCorpo{84, Destra, anticipazioni}, ColonnaCorpo{85, Destra, spese},
    ColonnaCorpo{86, Destra, onorari},
};

} // namespace

const Pianta& piantaParcella() {
    static constexpr Pianta pianta{.voci = gruppi,
                                   .rigaSopra = 80,
                                   .rigaSotto = 81,
                                   .colonne = colonne,
                                   .linee = righeParcella,
                                   .descrizione = descrizione};
    return pianta;
}

} // namespace bor
