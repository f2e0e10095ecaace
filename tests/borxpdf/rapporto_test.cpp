#include "borxpdf/paginestampate.h"
#include "output/scritturarapporto.h"
#include "prova.h"

using namespace Qt::StringLiterals;
using namespace bor;
using namespace bor::pdf;

namespace {

const QByteArray firma = "#FILEFORMAT=QLM-RTO\r\n";

} // namespace

TEST(Rapporto, LeggeCiascunComandoERaccoglieLePagine) {
    QString errore;
    const auto letto = PagineStampate::leggi(
        firma +
            " 0 \r\n 1.5 \r\n 2 \r\n 41 \r\n 22 \r\n 0 \r\n 0 \r\n\\suprok\\logo.png\r\n\r\n 0 \r\n 0 \r\n" +
            " 2 \r\n-3 \r\n 4 \r\n 5 \r\n 6 \r\n 0 \r\n 16711935 \r\n\r\n\r\n 1 \r\n 0 \r\n" + finePagina() +
            " 3 \r\n 10 \r\n 20 \r\n 0 \r\n 0 \r\n 1 \r\n-5 \r\n  Perch\xe9 9 \r\nTimes New Roman\r\n 1 \r\n "
            "1 \r\n" +
            finePagina(),
        errore);

    ASSERT_TRUE(letto) << qPrintable(errore);
    ASSERT_EQ(letto->pagine.size(), 2u);
    const RecordRapporto& immagine = letto->pagine[0][0];
    EXPECT_EQ(immagine.comando, ComandoRapporto::Immagine);
    EXPECT_EQ(immagine.x1, 1.5);
    EXPECT_EQ(immagine.y2, 22);
    EXPECT_EQ(immagine.testo, u"\\suprok\\logo.png"_s);
    const RecordRapporto& riquadro = letto->pagine[0][1];
    EXPECT_EQ(riquadro.x1, -3);
    EXPECT_EQ(riquadro.colore, 0xFF00FF);
    EXPECT_TRUE(riquadro.grassetto);
    const RecordRapporto& testo = letto->pagine[1][0];
    EXPECT_EQ(testo.testo, u"  Perché 9 "_s);
    EXPECT_EQ(testo.carattere, u"Times New Roman"_s);
    EXPECT_EQ(testo.colore, 0) << "a colour of the desktop's palette is black";
    EXPECT_TRUE(testo.corsivo);
}

TEST(Rapporto, LeggeCioCheLaStampaScrive) {
    bor::ScritturaRapporto scritto;
    scritto.immagine(1, 2, 3, 4, u"logo.png"_s);
    scritto.linea(0.5, 58.25, 200, 58.25, 255);
    scritto.riquadro(120, 20, 200, 45, 0xF0E0D0, true);
    scritto.testo(12.3456, 22, u"Più IVA 22% €"_s, {u"Arial"_s, 8.5, true, false}, 128);
    scritto.finePagina();
    QString errore;
    const auto letto = PagineStampate::leggi(scritto.bytes(), errore);
    ASSERT_TRUE(letto) << qPrintable(errore);
    const Pagina& pagina = letto->pagine.at(0);
    ASSERT_EQ(pagina.size(), 4u);
    EXPECT_EQ(pagina[1].x1, 0.5);
    EXPECT_EQ(pagina[1].y2, 58.25);
    EXPECT_EQ(pagina[2].colore, 0xF0E0D0);
    EXPECT_EQ(pagina[3].x1, 12.3456);
    EXPECT_EQ(pagina[3].testo, u"Più IVA 22% €"_s);
    EXPECT_EQ(pagina[3].dimensione, 8.5);
    EXPECT_TRUE(pagina[3].grassetto);
}

TEST(Rapporto, RifiutaUnFileCheNonÈUnaStampaIntera) {
    const QByteArray testo = rigaDiTesto("20", "30", "Rossi");
    const struct {
        const char* caso;
        QByteArray dati;
        const char16_t* parola;
    } casi[] = {
        {"empty", {}, u"riconosciuto"},
        {"another format", "#FILEFORMAT=ALTRO\r\n" + testo + finePagina(), u"riconosciuto"},
        {"no page", firma, u"pagine"},
        {"cut in a record", firma + testo + finePagina() + testo.first(20), u"incompleto"},
        {"no end of the last page", firma + finePagina() + testo, u"incompleto"},
        {"a line missing", firma + QByteArray(testo).replace("Arial\r\n", "") + testo + finePagina(),
         u"riga 13"},
        {"unknown code", firma + QByteArray(testo).replace(" 3 ", " 7 ") + finePagina(), u"riga 2"},
        {"empty code", firma + testo + QByteArray(testo).replace(" 3 ", "") + finePagina(), u"riga 13"},
        {"not a number", firma + QByteArray(testo).replace(" 20 ", "nan") + finePagina(), u"riga 2"},
        {"garbage", firma + QByteArray(3 << 20, '\xff'), u"incompleto"},
        {"millions of pages", firma + finePagina().repeated(10001), u"troppe"},
    };
    for (const auto& caso : casi) {
        QString errore;
        EXPECT_FALSE(PagineStampate::leggi(caso.dati, errore)) << caso.caso;
        EXPECT_TRUE(errore.contains(QStringView(caso.parola))) << caso.caso << ": " << qPrintable(errore);
    }
}

TEST(Rapporto, TieneLeMisureEnormiEntroIlDisegnabile) {
    QString errore;
    const auto letto = PagineStampate::leggi(
        firma + QByteArray(rigaDiTesto("1E300", "-99999999", "x")).replace(" 10 ", " 1E9 ") + finePagina(),
        errore);
    ASSERT_TRUE(letto);
    EXPECT_EQ(letto->pagine[0][0].x1, 2000);
    EXPECT_EQ(letto->pagine[0][0].y1, -2000);
    EXPECT_EQ(letto->pagine[0][0].dimensione, 300);
}
