// Thousands of random documents: each file has the form of the schema, and its amounts agree by the sums of
// the receiving system, which are taken here from the file alone.
#include "fatturapa/documentofel.h"
#include "support/schemi.h"
#include "xmlcheck/controlloxml.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class Caso {
public:
    explicit Caso(unsigned seme) : m_caso(seme) {}

    int fra(int minimo, int massimo) { return std::uniform_int_distribution<int>(minimo, massimo)(m_caso); }
    bool uno(int su) { return fra(1, su) == 1; }
    /// An amount of up to `decimali` decimals.
    double importo(int massimo, int decimali) {
        const double unita = std::pow(10, decimali);
        return std::round(fra(0, massimo * 100) * unita / 100 + fra(0, static_cast<int>(unita))) / unita;
    }

private:
    std::mt19937 m_caso;
};

const QString& testoStrano(Caso& caso) {
    static const QStringList testi = {
        u"Vite"_s,     u"Viti & bulloni <M8>"_s, u"“Caffè” – 10 €"_s, u"a\tb\x01"_s, u"n° 5 m²"_s, u"ščž Ž"_s,
        u"]]> <!-- "_s};
    return testi[caso.fra(0, static_cast<int>(testi.size()) - 1)];
}

void tabelleCasuali(DocumentoDiProva& d, Caso& caso) {
    static constexpr std::array aliquote = {u"22", u"10", u"4", u"5", u"21", u"20"};
    static constexpr std::array percentuali = {u"", u"2", u"4", u"5"};
    const auto una = [&](const auto& da) {
        return QStringView(da[static_cast<std::size_t>(caso.fra(0, static_cast<int>(da.size()) - 1))]);
    };
    for (int riga = 1; riga <= 12; ++riga)
        d.aliquota(riga, una(aliquote),
                   caso.uno(3)   ? QStringView(u"20")
                   : caso.uno(5) ? QStringView(u"23")
                                 : QStringView(),
                   una(percentuali), una(percentuali));
    static const QStringList nature = u"N1 N2.1 N2.2 N3.1 N3.2 N3.5 N4 N5 N6.3 N6.7 N7"_s.split(u' ');
    for (std::size_t codice = 13; codice <= 24; ++codice)
        d.propri.nature[codice] = nature[static_cast<qsizetype>(codice) % nature.size()];
    d.valuta.decimaliprezzo = caso.fra(2, 5);
    d.propri.cliente.splitpayment = caso.uno(5) ? u"SI"_s : QString();
    d.documento.estremi.esig = caso.uno(5);
}

void merceCasuale(DocumentoDiProva& d, Caso& caso) {
    d.documento.scorporo = caso.uno(4);
    const int righe = caso.uno(20) ? 500 : caso.fra(1, 12);
    for (int i = 0; i < righe; ++i) {
        Riga& r = d.riga(static_cast<std::size_t>(i));
        r.descrizione = testoStrano(caso);
        if (i > 0 && caso.uno(6))
            continue;
        r.codice = caso.uno(2) ? u"ART%1"_s.arg(i) : QString();
        r.um = caso.uno(2) ? u"m²"_s : u"pz"_s;
        r.iva = caso.uno(8) ? 0 : caso.fra(1, caso.uno(2) ? 3 : 24);
        r.sconto1 = caso.uno(2) ? caso.fra(0, 60) : 0;
        r.sconto2 = caso.uno(3) ? caso.fra(0, 30) : 0;
        r.quantita = caso.uno(10)   ? Riga::soloPrezzo
                     : caso.uno(10) ? 0
                                    : caso.importo(50, 3) * (caso.uno(12) ? -1 : 1);
        r.prezzo = caso.importo(300, caso.fra(2, 5));
    }
}

void parcellaCasuale(DocumentoDiProva& d, Caso& caso) {
    d.documento.coppia.fte.parcella = 1;
    d.documento.testata.pratica.ivaono = caso.fra(0, 11);
    d.documento.testata.pratica.ivaspe = caso.uno(2) ? d.documento.testata.pratica.ivaono : caso.fra(0, 11);
    for (int i = 0; i < caso.fra(1, 6); ++i) {
        Rigap& r = d.documento.dddp[static_cast<std::size_t>(i)];
        r.data = caso.uno(2) ? u"08/12/2014"_s : QString();
        r.descrizione = testoStrano(caso);
        r.onorari = caso.uno(4) ? 0 : caso.importo(2000, 2);
        r.spese = caso.uno(2) ? caso.importo(200, 2) : 0;
        r.anticipazioni = caso.uno(3) ? caso.importo(100, 2) : 0;
    }
}

/// The numbers of the elements below one of that name.
using Valori = std::map<QString, QString>;

struct Letto {
    std::vector<Valori> linee;
    std::vector<std::vector<double>> sconti;
    std::vector<Valori> riepiloghi;
    std::vector<Valori> casse;
};

Letto leggi(const QByteArray& xml) {
    Letto letto;
    QXmlStreamReader lettore(xml);
    Valori* qui = nullptr;
    while (!lettore.atEnd()) {
        if (lettore.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString nome = lettore.name().toString();
        if (nome == u"DettaglioLinee") {
            qui = &letto.linee.emplace_back();
            letto.sconti.emplace_back();
        } else if (nome == u"DatiRiepilogo") {
            qui = &letto.riepiloghi.emplace_back();
        } else if (nome == u"DatiCassaPrevidenziale") {
            qui = &letto.casse.emplace_back();
        } else if (nome == u"Percentuale") {
            letto.sconti.back().push_back(lettore.readElementText().toDouble());
        } else if (qui &&
                   (nome == u"PrezzoUnitario" || nome == u"Quantita" || nome == u"PrezzoTotale" ||
                    nome == u"AliquotaIVA" || nome == u"Natura" || nome == u"ImponibileImporto" ||
                    nome == u"Imposta" || nome == u"Arrotondamento" || nome == u"ImportoContributoCassa")) {
            (*qui)[nome] = lettore.readElementText();
        }
    }
    return letto;
}

double n(Valori& valori, const char16_t* nome) {
    return valori[QString::fromUtf16(nome)].toDouble();
}

void contiTornano(const QByteArray& xml) {
    Letto letto = leggi(xml);
    ASSERT_FALSE(letto.linee.empty());
    std::map<QString, double> differenze;
    const auto chiave = [](Valori& v) { return v[u"AliquotaIVA"_s] + v[u"Natura"_s]; };
    for (std::size_t i = 0; i < letto.linee.size(); ++i) {
        Valori& l = letto.linee[i];
        double pezzo = n(l, u"PrezzoUnitario");
        for (const double sconto : letto.sconti[i])
            pezzo -= pezzo * sconto / 100;
        const double quantita = l.contains(u"Quantita"_s) ? n(l, u"Quantita") : 1;
        EXPECT_LT(std::abs(n(l, u"PrezzoTotale") - pezzo * quantita), 0.01) << "00423, line " << i + 1;
        differenze[chiave(l)] -= n(l, u"PrezzoTotale");
    }
    for (Valori& c : letto.casse)
        differenze[chiave(c)] -= n(c, u"ImportoContributoCassa");
    for (Valori& r : letto.riepiloghi) {
        EXPECT_LT(std::abs(n(r, u"Imposta") - n(r, u"ImponibileImporto") * n(r, u"AliquotaIVA") / 100), 0.01)
            << "00421";
        ASSERT_TRUE(differenze.contains(chiave(r))) << "00443, a summary without lines";
        differenze[chiave(r)] += n(r, u"ImponibileImporto") - n(r, u"Arrotondamento");
    }
    for (const auto& [quale, differenza] : differenze)
        EXPECT_LT(std::abs(differenza), 1) << "00422, " << quale.toStdString();
}

} // namespace

TEST(Casuali, TremilaDocumentiObbedisconoAlloSchemaEAiConti) {
    constexpr int documenti = 3000;
    const Schemi schemi(u"1.2.3"_s);
    const QTemporaryDir cartella;
    QStringList file;
    for (unsigned i = 1; i <= documenti; ++i) {
        Caso caso(i);
        DocumentoDiProva d;
        tabelleCasuali(d, caso);
        if (caso.uno(3))
            parcellaCasuale(d, caso);
        else
            merceCasuale(d, caso);
        d.documento.coppia.fte.tipo = caso.uno(6) ? 1 : 0;
        const Composta c = d.composta();
        ASSERT_FALSE(c.rifiutata()) << i << testoRilievo(c.rilievi.front()).toStdString();
        const QByteArray xml = scriviFattura(c.fattura);
        const QString nome = u"IT01234567897_%1.xml"_s.arg(i, 5, 10, QChar(u'0'));
        for (const Rilievo& r : controllaXml(xml, nome))
            ASSERT_EQ(r.gravita, Gravita::Avviso) << i << ' ' << testoRilievo(r).toStdString();
        contiTornano(xml);
        ASSERT_FALSE(testing::Test::HasFailure()) << "document " << i;
        if (!schemi.ciSono())
            continue;
        file.append(cartella.filePath(nome));
        QFile f(file.last());
        ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(xml) == xml.size());
    }
    EXPECT_EQ(schemi.validi(file).size(), file.size());
}

} // namespace bor
