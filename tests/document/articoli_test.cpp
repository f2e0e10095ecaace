// The article list and the two searches, on hostile files too.
#include "document/articoli.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class Articoli : public testing::Test {
protected:
    int metti(const QString& codice, const QString& descrizione, int eliminato = 0) {
        Art a = articoloDi(codice, descrizione, 1, 1);
        a.eliminato = static_cast<std::int16_t>(eliminato);
        return azienda.articolo(a);
    }
    ListaArticoli lista(OrdineArticoli ordine = OrdineArticoli::Codice) {
        ListaArticoli l;
        l.carica(contesto.archivio, ordine);
        return l;
    }
    static QList<int> recart(const ListaArticoli& l) {
        QList<int> numeri;
        for (int i = 0; i < l.quanti(); ++i)
            numeri.append(l.recart(i));
        return numeri;
    }

    AziendaDiProva azienda;
    ContestoDiProva contesto{azienda};
};

TEST_F(Articoli, ListaOrdinataSenzaMaiuscole_EliminatiFuori_PariInOrdineDiArticolo) {
    metti(u"b2"_s, u"vite"_s);
    metti(u"B1"_s, u"dado"_s);
    metti(u"A9"_s, u"tolto"_s, 1);
    metti(u"B2"_s, u"Vite"_s);
    metti(u"a"_s, u"zeta"_s);
    metti(u"C"_s, u"marca alta"_s, 256); // only the low byte of the mark counts here
    EXPECT_EQ(recart(lista()), (QList<int>{5, 2, 1, 4, 6}));
    EXPECT_EQ(recart(lista(OrdineArticoli::Descrizione)), (QList<int>{2, 6, 1, 4, 5}));
    EXPECT_EQ(lista().testo(1), u"B1"_s.leftJustified(15) + u" - "_s + u"dado"_s.leftJustified(40));
    EXPECT_EQ(lista(OrdineArticoli::Descrizione).testo(0),
              u"dado"_s.leftJustified(40) + u" - "_s + u"B1"_s.leftJustified(15));
}

TEST_F(Articoli, ListaDaBlocchiDiVenti_AncheConCodiciMaiScritti) {
    for (int i = 0; i < 41; ++i)
        metti(u"K%1"_s.arg(99 - i), u"pezzo"_s);
    Art mai = vuoto<Art>();
    azienda.articolo(mai);
    mai.codice.bytes = {'A', 'B'}; // the rest of the field was never written
    azienda.articolo(mai);
    const ListaArticoli l = lista();
    ASSERT_EQ(l.quanti(), 42);
    EXPECT_EQ(l.recart(0), 43);
    EXPECT_EQ(l.testo(0), u"AB"_s.leftJustified(58).replace(16, 1, u"-"_s));
    EXPECT_EQ(l.recart(1), 41);
    EXPECT_EQ(l.recart(41), 1);
    EXPECT_EQ(l.cerca(QStringView(u"AB\0\0", 4)), 0);
}

TEST_F(Articoli, CercaTrovaLaPrimaVoceCheComincia) {
    metti(u"VITE8"_s, u"x"_s);
    metti(u"vite10"_s, u"x"_s);
    metti(u"dado"_s, u"x"_s);
    const ListaArticoli l = lista();
    EXPECT_EQ(l.cerca(u"v"), 1);
    EXPECT_EQ(l.cerca(u"Vite8"), 2);
    EXPECT_EQ(l.cerca(u"vite9"), -1);
    EXPECT_EQ(l.cerca(u""), 0);
    EXPECT_EQ(l.cerca(QString(59, u'v')), -1);
    EXPECT_EQ(ListaArticoli().cerca(u"v"), -1);
}

TEST_F(Articoli, ContatoriSbagliatiNonFannoDanno) {
    metti(u"A"_s, u"x"_s);
    for (const auto& [numero, attesi] : {std::pair{-1, 0}, {-32768, 0}, {0, 1}, {32767, 1}}) {
        Tot tot = contesto.archivio.leggiTot(Conta::Art);
        tot.numero = static_cast<std::int16_t>(numero);
        contesto.archivio.scriviTot(Conta::Art, tot);
        EXPECT_EQ(lista().quanti(), attesi) << numero;
        EXPECT_EQ(cercabarcode(contesto.archivio, u"8001"), 0) << numero;
        EXPECT_EQ(cercadescrizione(contesto.archivio, u"y"), 0) << numero;
    }
}

TEST_F(Articoli, BarcodeSoloIntero) {
    const QStringList codici{u"8001"_s, u"80012"_s, u"80013"_s, u"AB1"_s, u"Z"_s};
    for (int i = 1; i <= 5; ++i) {
        metti(u"A%1"_s.arg(i), u"x"_s);
        Srb voce = vuoto<Srb>();
        voce.barcode.set(codici[i - 1]);
        voce.recordart = static_cast<std::int16_t>(6 - i);
        contesto.archivio.srb.scrivi(i, voce);
    }
    EXPECT_EQ(cercabarcode(contesto.archivio, u"8001"), 5);
    EXPECT_EQ(cercabarcode(contesto.archivio, u" ab1 "), 2);
    EXPECT_EQ(cercabarcode(contesto.archivio, u"Z"), 1);
    for (const QString& assente : {u"800"_s, u"800122"_s, u"0"_s, u"ZZ"_s})
        EXPECT_EQ(cercabarcode(contesto.archivio, assente), 0) << qPrintable(assente);
}

TEST_F(Articoli, DescrizioneScorreGliArticoliAncheEliminati) {
    metti(u"A"_s, u"Vite lunga"_s);
    metti(u"B"_s, u"Dado città"_s, 1);
    metti(u"C"_s, u"Dado città"_s);
    EXPECT_EQ(cercadescrizione(contesto.archivio, u" dado CITTÀ "), 2);
    EXPECT_EQ(cercadescrizione(contesto.archivio, u""), 1);
    EXPECT_EQ(cercadescrizione(contesto.archivio, u"lunga"), 0);
    EXPECT_EQ(cercadescrizione(contesto.archivio, QString(41, u' ') + QString(41, u'D')), 0);
}

} // namespace
} // namespace bor
