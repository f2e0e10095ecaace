// What the day left on file.
#include "giornata/giornata.h"

#include "borverifica/verifica.h"

#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

long long centesimi(double importo) {
    return std::llround(importo * 100);
}

} // namespace

void Giornata::controllaRate(const FatturaScritta& fattura, const CoppiaFte& coppia) const {
    const std::vector<QDate> date = fattura.scadenze();
    long long somma = 0;
    for (std::size_t i = 0; i < coppia.fte.rata.size(); ++i) {
        const QString atteso = i < date.size() ? date[i].toString(u"ddMMyyyy") : QString();
        EXPECT_EQ(coppia.fte.scad[i].text().trimmed(), atteso);
        somma += centesimi(coppia.fte.rata[i]);
    }
    EXPECT_EQ(somma, fattura.somme().totale());
}

void Giornata::controllaRighe(const FatturaScritta& fattura, const QByteArray& file) const {
    constexpr qsizetype prime = 14; // head texts before the lines
    constexpr qsizetype valori = 10;
    const QList<QByteArray> linee = file.split('\n');
    ASSERT_GE(linee.size(), prime + 500 * valori);
    qsizetype posto = prime;
    for (const RigaScritta& riga : fattura.righe) {
        const auto valore = [&](qsizetype i) { return linee[posto + i].trimmed(); };
        EXPECT_EQ(valore(0).toInt(), riga.articolo + 1);
        EXPECT_EQ(centesimi(valore(8).toDouble()), riga.quantita);
        EXPECT_EQ(centesimi(valore(9).toDouble()), fattura.prezzo(riga));
        if (riga.genere != Genere::Commento) {
            EXPECT_EQ(valore(5).toInt(), fattura.sconto1(riga));
            EXPECT_EQ(valore(6).toInt(), fattura.sconto2(riga));
        }
        const int testi = riga.articolo < 0 ? 0 : articoliNoti[static_cast<std::size_t>(riga.articolo)].testi;
        if (riga.articolo < 0) {
            EXPECT_EQ(QString::fromLatin1(valore(3)), riga.testo);
        }
        posto += valori * (1 + testi);
    }
    EXPECT_TRUE(linee[posto + 3].trimmed().isEmpty()) << "nothing behind the last line";
}

void Giornata::controllaDocumenti(const Archivio& archivio) const {
    ASSERT_EQ(archivio.leggiTot(Conta::Fte).numero, fatture);
    for (int n = 1; n <= fatture; ++n) {
        SCOPED_TRACE(n);
        const FatturaScritta& fattura = scritte[static_cast<std::size_t>(n - 1)];
        const CoppiaFte coppia = archivio.leggi(n);
        const Somme somme = fattura.somme();
        EXPECT_EQ(coppia.fte.numero.text().trimmed(), u"%1/B"_s.arg(n));
        EXPECT_EQ(coppia.fte.cliente, fattura.cliente + 1);
        EXPECT_EQ(coppia.fte.tipo, fattura.nota ? 1 : 0);
        EXPECT_EQ(coppia.fte.datadoc.text(), fattura.data.toString(u"yyyyMMdd"));
        EXPECT_EQ(coppia.fte.datareg.text(), fattura.data.toString(u"yyyyMMdd"));
        for (std::size_t r = 1; r < somme.imponibili.size(); ++r) {
            EXPECT_EQ(centesimi(coppia.fte.impon[r - 1]), somme.imponibili[r]);
            EXPECT_EQ(centesimi(coppia.fte.iva[r - 1]), somme.imposte[r]);
            EXPECT_EQ(centesimi(coppia.fte.esen[r - 1]), somme.esenti[r]);
        }
        controllaRate(fattura, coppia);
        controllaRighe(fattura, azienda.leggi(u"f%1"_s.arg(double{coppia.fte.nfile})));
    }
}

void Giornata::controllaGiornale(const Archivio& archivio) const {
    std::map<QString, std::array<long long, 2>> attesi;
    for (const FatturaScritta& fattura : scritte) {
        const Somme s = fattura.somme();
        const std::size_t cliente = fattura.nota ? 1 : 0;
        attesi[contoCliente(fattura.cliente + 1)][cliente] += s.totale();
        attesi[contoRicavi.toString()][1 - cliente] += s.ricavi() - fattura.diversi;
        attesi[contoRicaviDiversi.toString()][1 - cliente] += fattura.diversi;
        attesi[contoIva.toString()][1 - cliente] += s.imposta();
        attesi[contoEsenti.toString()][1 - cliente] += s.esente();
    }
    EXPECT_EQ(archivio.leggiTot(Conta::Gio).numero, fatture);
    archivio.con.scorri(1, archivio.leggiTot(Conta::Con).numero, [&](int, const Con& conto) {
        const QString codice = conto.codice.text().trimmed();
        EXPECT_EQ(centesimi(conto.progressivodare), attesi[codice][0]) << qPrintable(codice);
        EXPECT_EQ(centesimi(conto.progressivoavere), attesi[codice][1]) << qPrintable(codice);
        return true;
    });
}

void Giornata::controllaMagazzino(const Archivio& archivio) const {
    struct Mosso {
        long long quantita = 0;
        long long valore = 0;
    };
    std::array<Mosso, articoliNoti.size()> mossi{};
    for (const FatturaScritta& fattura : scritte) {
        for (const RigaScritta& riga : fattura.righe) {
            if (riga.articolo < 0)
                continue;
            Mosso& mosso = mossi[static_cast<std::size_t>(riga.articolo)];
            mosso.quantita += (fattura.nota ? -1 : 1) * riga.quantita;
            mosso.valore += fattura.valore(riga);
        }
    }
    for (std::size_t i = 0; i < mossi.size(); ++i) {
        const Art art = archivio.art.leggi(static_cast<int>(i) + 1);
        SCOPED_TRACE(qPrintable(art.codice.text()));
        EXPECT_EQ(centesimi(art.giacenza), giacenzaIniziale * 100LL - mossi[i].quantita);
        EXPECT_EQ(centesimi(art.venduto), mossi[i].quantita);
        EXPECT_EQ(centesimi(art.venduto2), mossi[i].valore);
    }
}

TEST_F(Giornata, QuarantaFattureAllaTastieraLascianoCioCheSiESommatoAMano) {
    for (int numero = 1; numero <= fatture; ++numero) {
        SCOPED_TRACE(numero);
        scriviFattura(numero);
        ASSERT_FALSE(HasFatalFailure());
    }
    EXPECT_GT(mani.sbagliati(), 500);
    EXPECT_GT(girate, 1000);
    chiudiLaGiornata();
    Disco disco;
    Archivio archivio(azienda.percorsi(), disco, 7);
    archivio.apri();
    controllaDocumenti(archivio);
    controllaGiornale(archivio);
    controllaMagazzino(archivio);
    for (const verifica::Discordanza& trovata : verifica::verificaArchivio(archivio))
        EXPECT_EQ(trovata.gravita, verifica::Gravita::Informazione) << qPrintable(trovata.testo());
}

} // namespace bor
