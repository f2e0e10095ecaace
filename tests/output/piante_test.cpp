// The plans of the printed pages against each other and against the tables of docs/moduli.md and of the
// guide.
#include "output/pianta.h"
#include "support/azienda.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

struct Tratto {
    int primo;
    int ultimo;

    friend auto operator<=>(const Tratto&, const Tratto&) = default;
};

/// What is told of a kind of document: its plan, its column in the tables of the page, and its own numbers.
struct Stampato {
    const char* nome;
    const Pianta& pianta;
    qsizetype colonna;
    bool parcella;
    Tratto voci;
    Tratto ultimaPagina;
    Tratto righeIva;
    std::vector<int> senzaVoce; ///< numbers that the suite's layouts leave empty
    std::vector<int> aDestra;   ///< items and columns with their right edge at their place
};

void PrintTo(const Stampato& stampato, std::ostream* uscita) {
    *uscita << stampato.nome;
}

/// The numbers "18-22" or "17" in a column of the tables, in ascending order.
std::vector<Tratto> trattiDocumentati(const QString& documento, qsizetype colonna) {
    QFile file(QStringLiteral(BOR_SOURCE_DIR "/docs/") + documento);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression numeri(u"^(\\d+)(?:-(\\d+))?$"_s);
    std::vector<Tratto> tratti;
    for (const QString& linea : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const auto trovati = numeri.match(linea.split(u'|').value(colonna).trimmed());
        if (!trovati.hasMatch())
            continue;
        const int primo = trovati.captured(1).toInt();
        tratti.push_back({primo, trovati.hasCaptured(2) ? trovati.captured(2).toInt() : primo});
    }
    std::ranges::sort(tratti);
    return tratti;
}

class PiantaTest : public testing::TestWithParam<Stampato> {
protected:
    const Stampato& stampato = GetParam();
    const Pianta& pianta = stampato.pianta;
};

TEST_P(PiantaTest, OgniNumeroHaUnaVoceSola) {
    std::vector<int> voci;
    for (const GruppoVoci& gruppo : pianta.voci) {
        for (int i = 0; i < gruppo.quante; ++i)
            voci.push_back(gruppo.prima + i);
    }
    std::vector<int> attese;
    for (int i = stampato.voci.primo; i <= stampato.voci.ultimo; ++i) {
        if (std::ranges::find(stampato.senzaVoce, i) == stampato.senzaVoce.end())
            attese.push_back(i);
    }
    EXPECT_EQ(voci, attese) << "all of them, in the order of their numbers";
}

TEST_P(PiantaTest, IlCorpoStaDietroLeVoci) {
    EXPECT_EQ(pianta.rigaSopra, stampato.voci.ultimo + 1);
    int riga = pianta.rigaSopra;
    EXPECT_EQ(pianta.rigaSotto, ++riga);
    for (const ColonnaCorpo& colonna : pianta.colonne)
        EXPECT_EQ(colonna.riga, ++riga);
    EXPECT_LT(riga, 99) << "this row draws the template";
}

TEST_P(PiantaTest, ModuliMdELaGuidaElencanoGliStessiNumeri) {
    std::vector<Tratto> tratti;
    for (const GruppoVoci& gruppo : pianta.voci)
        tratti.push_back({gruppo.prima, gruppo.prima + gruppo.quante - 1});
    tratti.push_back({pianta.rigaSopra, pianta.rigaSotto});
    tratti.push_back({pianta.colonne.front().riga, pianta.colonne.back().riga});
    for (const QString& documento : {u"moduli.md"_s, u"guida/stampa.md"_s})
        EXPECT_EQ(tratti, trattiDocumentati(documento, stampato.colonna)) << qPrintable(documento);
}

TEST_P(PiantaTest, SoloIConteggiAspettanoLUltimaPagina) {
    const auto [prima, ultima] = stampato.ultimaPagina;
    for (const GruppoVoci& gruppo : pianta.voci) {
        const bool attesa = gruppo.prima >= prima && gruppo.prima + gruppo.quante - 1 <= ultima;
        EXPECT_EQ(gruppo.pagine == SuPagine::Ultima, attesa) << gruppo.prima;
        EXPECT_FALSE(gruppo.prima < prima && gruppo.prima + gruppo.quante > prima) << gruppo.prima;
    }
}

TEST_P(PiantaTest, NumeriEImportiStannoADestra) {
    std::vector<int> destra;
    for (const GruppoVoci& gruppo : pianta.voci) {
        for (int i = 0; i < gruppo.quante; ++i) {
            if (gruppo.aDestra(i))
                destra.push_back(gruppo.prima + i);
        }
    }
    for (const ColonnaCorpo& colonna : pianta.colonne) {
        if (colonna.lato == Lato::Destra)
            destra.push_back(colonna.riga);
    }
    EXPECT_EQ(destra, stampato.aDestra);
}

TEST_P(PiantaTest, OgniGruppoDaUnTestoAOgniVoce) {
    const AziendaDiProva azienda;
    ContestoDiProva prova(azienda);
    Documento documento;
    documento.coppia.fte.parcella = stampato.parcella ? 1 : 0;
    const DatiStampa senzaIva = datiStampa(documento, prova.contesto);
    for (const GruppoVoci& gruppo : pianta.voci) {
        const bool iva = gruppo.prima >= stampato.righeIva.primo && gruppo.prima <= stampato.righeIva.ultimo;
        EXPECT_EQ(gruppo.testi(senzaIva).size(), iva ? 0 : gruppo.quante) << gruppo.prima;
    }
    documento.ddd[0] = {.descrizione = u"Vite"_s, .iva = 1, .quantita = 1, .prezzo = 10};
    documento.ddd[1] = {.descrizione = u"Bollo"_s, .iva = 15, .quantita = 1, .prezzo = 2};
    documento.dddp[0] = {{}, u"Consulenza"_s, 50, 0, 1000};
    documento.testata.pratica.ivaspe = 1;
    const DatiStampa dati = datiStampa(documento, prova.contesto);
    for (const GruppoVoci& gruppo : pianta.voci) {
        const bool iva = gruppo.prima >= stampato.righeIva.primo && gruppo.prima <= stampato.righeIva.ultimo;
        EXPECT_EQ(gruppo.testi(dati).size(), iva ? 2 * gruppo.quante : gruppo.quante) << gruppo.prima;
    }
}

/// A document that has a text of its own at every item.
class VociTest : public testing::Test {
protected:
    VociTest() {
        azienda.scrivi(u"borlano.int"_s, "Ditta\r\nVia Po\r\n\r\n");
        prova.impostazioni.gnr.annonumero.set(u"1");
        prova.tabelle.aliquote[1] = {u"22"_s, u"20"_s, u"2"_s, u"4"_s};
        prova.tabelle.tipopagamenti[2].descrizione = u"Bonifico"_s;
        prova.tabelle.vettori[1] = {u"Vendita"_s, u"A vista"_s, {}, {}};
        documento.estremi.numero = u"12"_s;
        documento.estremi.data = u"15/03/2015"_s;
        documento.estremi.esig = true;
        documento.cliente.banca1.set(u"IT60");
        documento.cliente.abi.set(u"01234");
        documento.cliente.cab.set(u"56789");
        documento.cliente.contocorrente.set(u"99");
        documento.cliente.banca.set(u"Banca A");
        documento.testata.cliente = {
            .sede = {u"Rossi"_s, u"e figli"_s, u"Via A"_s, u"20100"_s, u"Milano"_s},
            .codicefiscale = u"RSS"_s,
            .nazione = u"IT"_s,
            .partitaiva = u"077"_s,
            .amministrazione = {u"Uff"_s, u"Amm"_s, u"Via B"_s, u"00100"_s, u"Roma"_s},
            .telefono = {u"t1"_s, u"t2"_s, u"t3"_s},
            .vettore = {u"v1"_s, u"v2"_s, u"v3"_s},
            .nota = {u"n1"_s, u"n2"_s},
            .banca = u"Banca B"_s};
        for (std::size_t i = 0; i < 6; ++i)
            documento.scadenze.rate[i] = {u"scade %1"_s.arg(i + 1), QString::number(i + 1)};
        documento.scadenze.rate[5].importo = u"0"_s;
        documento.scadenze.pagamento = 1;
        documento.scadenze.provaliq = u"5"_s;
        documento.scadenze.provimp = u"7.5"_s;
        documento.prospetti.terminemese = u"04"_s;
        documento.prospetti.termineanno = u"2016"_s;
    }

    /// Texts of the items from one number to another, without those of the VAT rows, a "|" between two.
    QString testi(const Pianta& pianta, int da, int a) {
        const DatiStampa dati = datiStampa(documento, prova.contesto);
        QStringList tutti;
        for (const GruppoVoci& gruppo : pianta.voci) {
            if (gruppo.prima >= da && gruppo.prima <= a)
                tutti += gruppo.testi(dati);
        }
        return tutti.join(u'|');
    }

    AziendaDiProva azienda;
    ContestoDiProva prova{azienda};
    Documento documento;
};

TEST_F(VociTest, DiUnaFattura) {
    documento.testata.trasporto = {.ddt = u"ddt"_s,
                                   .ordine = u"oda"_s,
                                   .colli = u"3"_s,
                                   .peso = u"kg 8"_s,
                                   .inizio = u"16/03/2015"_s,
                                   .ora = u"9.30"_s,
                                   .causale = 0,
                                   .aspetto = 0,
                                   .spedizione = Mezzo::Destinatario};
    documento.ddd[0] = {.descrizione = u"Vite"_s, .iva = 1, .quantita = 4, .prezzo = 25};
    documento.ddd[1] = {.descrizione = u"Bollo"_s, .iva = 15, .quantita = Riga::soloPrezzo, .prezzo = 2};
    documento.coppia.f2e.fpa = 1.0F;
    riportaTotali(documento, ricalcola(documento.ddd, false, prova.tabelle, prova.contesto.valuta()).iva, 100,
                  20, prova.contesto);
    const Pianta& p = piantaFattura();
    EXPECT_TRUE(testi(p, 1, 2).startsWith(u"Ditta|Via Po||"));
    EXPECT_TRUE(testi(p, 17, 17).startsWith(u"'Iva per cassa': documento"_s));
    EXPECT_EQ(
        testi(p, 18, 35),
        u"Rossi|e figli|Via A|20100|Milano|IT077|RSS|Uff|Amm|Via B|00100|Roma|t1|t2|t3|12/2015|15/03/2015");
    EXPECT_EQ(testi(p, 36, 51), u"Vendita|3|kg 8|A vista|IT60.01234.56789.99|Banca A|Destinatario|"
                                u"v1|v2|v3|16/03/2015|9.30|ddt|oda|Bonifico|Banca B");
    EXPECT_EQ(testi(p, 60, 66), u"01|Iva 22%|15||100,00|22|22,00|||||2,00||");
    EXPECT_EQ(testi(p, 67, 74), u"100,00|22,00|2,00|124,00|100,00|20,00|104,00|4");
    EXPECT_EQ(testi(p, 79, 84), u"5% 5,10|04/2016|COPIA DOCUMENTO AD USO INTERNO|FATTURA|n1|n2");
}

TEST_F(VociTest, CampiMaiScrittiNonSonoQuadratini) {
    documento.cliente = vuoto<Cli>();
    documento.cliente.abi.set(u"01234");
    for (const Pianta* pianta : {&piantaFattura(), &piantaParcella()}) {
        const QString tutti = testi(*pianta, 1, 99);
        EXPECT_TRUE(tutti.contains(u"|.01234..|"_s)) << qPrintable(tutti);
        EXPECT_FALSE(tutti.contains(QChar::Null));
    }
}

TEST_F(VociTest, DiUnaParcella) {
    documento.coppia.fte.parcella = 1;
    documento.testata.pratica.descrizione = {u"d1"_s, u"d2"_s, u"d3"_s, u"d4"_s};
    prova.tabelle.aliquote[2].aliquota = u"10"_s;
    documento.testata.pratica.ivaspe = 1;
    documento.dddp[0] = {{}, u"Consulenza"_s, 50, 30, 1000};
    const Pianta& p = piantaParcella();
    EXPECT_EQ(testi(p, 36, 42), u"d1|d2|d3|d4|IT60.01234.56789.99|Banca A|Bonifico");
    EXPECT_EQ(testi(p, 43, 54), u"1,00|scade 1|2,00|scade 2|3,00|scade 3|4,00|scade 4|5,00|scade 5||");
    EXPECT_EQ(testi(p, 62, 72),
              u"30,00|50,00|1.000,00|20,00|40,00|1.090,00|233,80|1.373,80|1.040,00|208,00|1.165,80");
    EXPECT_EQ(testi(p, 73, 79), u"5% 7,50|04/2016|Banca B|PARCELLA|n1|n2");
}

const Stampato fattura = {
    .nome = "Fattura",
    .pianta = piantaFattura(),
    .colonna = 2,
    .parcella = false,
    .voci = {1, 84},
    .ultimaPagina = {52, 82},
    .righeIva = {60, 66},
    .senzaVoce = {35},
    .aDestra = {52, 54, 56, 58, 62, 63, 64, 65, 67, 68, 69, 70, 71, 72, 73, 74, 75, 77, 89, 91, 92, 93, 95}};
const Stampato parcella = {.nome = "Parcella",
                           .pianta = piantaParcella(),
                           .colonna = 3,
                           .parcella = true,
                           .voci = {1, 79},
                           .ultimaPagina = {42, 76},
                           .righeIva = {55, 61},
                           .senzaVoce = {35, 76},
                           .aDestra = {43, 45, 47, 49, 51, 53, 57, 58, 59, 60, 62, 63,
                                       64, 65, 66, 67, 68, 69, 70, 71, 72, 84, 85, 86}};

INSTANTIATE_TEST_SUITE_P(Stampati, PiantaTest, testing::Values(fattura, parcella),
                         [](const auto& caso) { return std::string(caso.param.nome); });

} // namespace
} // namespace bor
