// The readable page of an invoice: what a person looks for is on it, and nothing of the file is markup there.
#include "xmlcheck/vistafattura.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

QByteArray fatturaBuona() {
    QFile file(QStringLiteral(BOR_SOURCE_DIR "/tests/xmlcheck/fattura_buona.xml"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(VistaFattura, DiceChiVendeChiCompraRigheERate) {
    const QString pagina = vistaFattura(fatturaBuona());
    for (const QString& testo :
         {u"Fattura n. 12/PA del 31/03/2015"_s, u"Comune di Prova"_s, u"IT 01234567897"_s,
          u"Viti e bulloni"_s, u"<td align=\"right\">90,00</td>"_s, u"N4 Esenti"_s, u"19,80"_s,
          u"MP05 Bonifico"_s, u"RF01 Ordinario"_s, u"RT01 Ritenuta, persone fisiche"_s, u"I immediata"_s,
          u"IT60X0542811101000000123456"_s, u"101,80"_s})
        EXPECT_TRUE(pagina.contains(testo)) << testo.toStdString();
}

TEST(VistaFattura, ITestiDelFileNonSonoMaiMarcatura) {
    QByteArray ostile = fatturaBuona();
    ostile.replace("Viti e", "&lt;script&gt;alert(1)&lt;/script&gt; &quot; onload=&quot;x");
    const QString pagina = vistaFattura(ostile);
    EXPECT_FALSE(pagina.contains(u"<script"_s));
    EXPECT_TRUE(pagina.contains(u"&lt;script&gt;"_s));
    EXPECT_FALSE(pagina.contains(u"\" onload"_s));
}

TEST(VistaFattura, UnFileSmisuratoFinisceDoveLoDice) {
    QByteArray smisurato = fatturaBuona();
    const qsizetype inizio = smisurato.indexOf("<DettaglioLinee>");
    const qsizetype fine = smisurato.indexOf("</DettaglioLinee>") + 17;
    const QByteArray linea = smisurato.sliced(inizio, fine - inizio);
    QByteArray lunga = linea;
    lunga.replace("Viti e", QByteArray(100'000, 'x'));
    smisurato.insert(inizio, lunga + linea.repeated(5'000));
    const QString pagina = vistaFattura(smisurato);
    EXPECT_LT(pagina.count(u"<tr>"_s), 2'010);
    EXPECT_LT(pagina.count(u'x'), 3'000);
    EXPECT_TRUE(pagina.contains(u"altre 3003 voci del file restano fuori"_s));
    EXPECT_TRUE(pagina.contains(u"Riepilogo IVA"_s)) << "what follows the lines is there";
    EXPECT_FALSE(vistaFattura(fatturaBuona()).contains(u"restano fuori"_s));
}

TEST(VistaFattura, DiUnAltroFileDiceCheNonEUnaFattura) {
    for (const QByteArray& altro :
         {QByteArray(), QByteArray("<a/>"), QByteArray("%PDF-1.4"), QByteArray(5'000'001, 'x')})
        EXPECT_TRUE(vistaFattura(altro).contains(u"non è una fattura"_s));
}

} // namespace bor
