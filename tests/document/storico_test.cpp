// What a customer has had: his documents, the sales of an article from the lines files, and the index that
// spares reading them twice.
#include "document/borftex.h"
#include "document/programma.h"
#include "document/storico.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QDataStream>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

IndiceStorico esempio() {
    IndiceStorico indice;
    indice["f1"] = {.tempi = {1700000000000, 19000},
                    .conIva = true,
                    .righe = {{3, 10, -5, 2.5, 1250.75}, {4, 0, 0, 1, 2}}};
    indice["ftr12.a15"] = {.tempi = {5, 6}, .conIva = false, .righe = {}};
    return indice;
}

TEST(IndiceStorico, TornaComEraEQualunqueGuastoValeNessuno) {
    const QByteArray buono = codifica(esempio());
    EXPECT_EQ(decodificaIndice(buono), esempio());
    for (qsizetype i = 0; i < buono.size(); ++i) {
        QByteArray guasto = buono;
        guasto[i] = static_cast<char>(guasto[i] ^ 4);
        EXPECT_FALSE(decodificaIndice(guasto)) << i;
        EXPECT_FALSE(decodificaIndice(buono.first(i))) << i;
    }
    EXPECT_FALSE(decodificaIndice(buono + 'x'));
    IndiceStorico fuori;
    fuori["f2"].righe = {
        {-3, 0, 0, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}};
    EXPECT_EQ(decodificaIndice(codifica(fuori))->value("f2").righe[0], RigaVenduta());
}

/// Bytes behind a right checksum that are no index, as somebody would make them who wants the program to
/// fall.
TEST(IndiceStorico, ContenutoOstileConImprontaGiusta) {
    const auto chiudi = [](const QByteArray& compresso) {
        return "BORSTO01" + QCryptographicHash::hash(compresso, QCryptographicHash::Blake2b_256) + compresso;
    };
    ASSERT_EQ(decodificaIndice(chiudi(qCompress(QByteArray(4, '\0')))), IndiceStorico());
    EXPECT_FALSE(decodificaIndice(chiudi(QByteArray("\xFF\xFF\xFF\xFF", 4) + "zzzz"))) << "four gigabytes";
    EXPECT_FALSE(decodificaIndice(chiudi({})));
    EXPECT_FALSE(decodificaIndice(chiudi(qCompress(QByteArray(64, '\xFF'))))) << "four milliards of entries";
    QByteArray lungo;
    QDataStream(&lungo, QIODevice::WriteOnly)
        << quint32{1} << QByteArray(33, 'f') << qint64{0} << qint64{0} << false << quint16{0};
    EXPECT_FALSE(decodificaIndice(chiudi(qCompress(lungo))));
    QByteArray molte;
    QDataStream(&molte, QIODevice::WriteOnly)
        << quint32{1} << QByteArray("f1") << qint64{0} << qint64{0} << false << quint16{501};
    EXPECT_FALSE(decodificaIndice(chiudi(qCompress(molte + QByteArray(501 * 22, '\0')))));
    QRandomGenerator caso(11);
    QByteArray corpo;
    const QByteArray vero = codifica(esempio()).sliced(40);
    for (int volta = 0; volta < 3000; ++volta) {
        corpo = qUncompress(vero);
        for (int i = 0; i < 4; ++i)
            corpo[caso.bounded(corpo.size())] = static_cast<char>(caso.bounded(256));
        const auto indice = decodificaIndice(chiudi(qCompress(corpo.first(caso.bounded(corpo.size()) + 1))));
        for (const VenditeFile& vendite : indice.value_or(IndiceStorico())) {
            for (const RigaVenduta& riga : vendite.righe)
                ASSERT_TRUE(riga.recart >= 0 && std::isfinite(riga.prezzo) && std::isfinite(riga.quantita));
        }
    }
}

class StoricoTest : public testing::Test {
protected:
    StoricoTest() {
        azienda.cliente(u"Rossi"_s);
        azienda.cliente(u"Bianchi"_s);
        azienda.articolo(articoloDi(u"VITE"_s, u"Vite"_s, 2, 1));
        // Long after the files of this test were written.
        p.prova.orologio.momento = QDateTime::currentDateTime().addDays(1);
    }
    /// A stored document of 100 and 22, with its lines file.
    int registra(const QString& giorno, double prezzo, std::int16_t tipo = 0, int cliente = 1) {
        CoppiaFte coppia = documentoDi(cliente, QString::number(++m_numero), 100, 22);
        coppia.fte.datadoc.set(giorno);
        coppia.fte.tipo = tipo;
        coppia.fte.nfile = static_cast<float>(m_numero);
        const int record = azienda.documento(coppia);
        scriviRighe(record, prezzo);
        return record;
    }
    void scriviRighe(int record, double prezzo) {
        Documento d;
        d.coppia = p.prova.archivio.leggi(record);
        d.ddd[0] = rigaDi(prezzo, 10);
        d.ddd[3] = {.descrizione = u"altro"_s, .quantita = 1, .prezzo = 9};
        EXPECT_TRUE(scrividoc(d, p.prova.archivio));
    }
    QString prezzi(Storico& storico, int documento = 0) {
        storico.apri({.cliente = 1, .recart = 1, .documento = documento});
        EXPECT_TRUE(storico.avanza(10000));
        QStringList tutti;
        for (const VenditaStorica& v : storico.vendite())
            tutti.append(v.numero + u':' + QString::number(v.riga.prezzo));
        return tutti.join(u' ');
    }

    AziendaDiProva azienda;
    Programma p{azienda};
    QString indice = azienda.percorsi().indiceStorico(7);

private:
    int m_numero = 0;
};

TEST_F(StoricoTest, DocumentiVenditeETotali) {
    registra(u"20140301"_s, 5);
    registra(u"20150301"_s, 6);
    registra(u"20150201"_s, 7, 1);
    registra(u"20150401"_s, 8, 0, 2);
    const int eliminato = registra(u"20150501"_s, 9);
    Fte fte = p.prova.archivio.fte.leggi(eliminato);
    fte.annullata = 1;
    p.prova.archivio.fte.scrivi(eliminato, fte);
    Storico storico(p.prova.contesto, p.sospese, indice);
    EXPECT_EQ(prezzi(storico), u"2:6 1:5") << "newest first; no return, no other customer, nothing deleted";
    EXPECT_EQ(prezzi(storico, 2), u"1:5") << "the open document's own lines are no sale of before";
    EXPECT_EQ(storico.vendite()[0].riga, (RigaVenduta{1, 10, 0, 1, 5}));
    ASSERT_EQ(storico.documenti().size(), 3);
    EXPECT_EQ(storico.documenti()[1].totale, -122);
    EXPECT_EQ(storico.totale(), 122);
    EXPECT_EQ(storico.totale(2014), 122);
    EXPECT_EQ(storico.nomeCliente() + storico.nomeArticolo(), u"RossiVITE - Vite");
}

TEST_F(StoricoTest, UnFileSiLeggeUnaVoltaEDiNuovoSoloSeCambia) {
    const int record = registra(u"20150301"_s, 6);
    const QString file = azienda.percorso(u"f1"_s);
    {
        Storico primo(p.prova.contesto, p.sospese, indice);
        EXPECT_EQ(prezzi(primo), u"1:6");
    }
    EXPECT_EQ(QFileInfo(indice).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    // A file of the same times and length is not opened: what it holds now is not seen.
    const QDateTime scritto = QFileInfo(file).lastModified();
    const QByteArray prima = azienda.leggi(u"f1"_s);
    const auto sostituisci = [&](const QByteArray& bytes) {
        QFile f(file);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
        f.close();
        ASSERT_TRUE(f.open(QIODevice::ReadWrite));
        ASSERT_TRUE(f.setFileTime(scritto, QFileDevice::FileModificationTime));
    };
    sostituisci(QByteArray(prima).replace(" 6 ", " 7 "));
    Storico dopo(p.prova.contesto, p.sospese, indice);
    EXPECT_EQ(prezzi(dopo), u"1:6");
    for (const QByteArray& guasto : {QByteArray("BORSTO01"), QByteArray(), QByteArray(5000, 'x')}) {
        QFile f(indice);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(guasto);
        f.close();
        Storico daCapo(p.prova.contesto, p.sospese, indice);
        EXPECT_EQ(prezzi(daCapo), u"1:7") << "a damaged index is made anew";
    }
    scriviRighe(record, 1234.5);
    EXPECT_EQ(prezzi(dopo), u"1:1234.5");
    QFile::remove(file);
    EXPECT_EQ(prezzi(dopo), u"");
    // A file of this very moment may be written once more within the grain of its time: it is not kept.
    p.prova.orologio.momento = QDateTime::currentDateTime();
    scriviRighe(record, 3);
    QFile::remove(indice);
    {
        Storico subito(p.prova.contesto, p.sospese, indice);
        EXPECT_EQ(prezzi(subito), u"1:3");
    }
    EXPECT_FALSE(QFile::exists(indice));
}

TEST_F(StoricoTest, InterrottaRestaQuelCheSiELetto) {
    for (int i = 0; i < 30; ++i)
        registra(QString::number(20150301 + i), i + 1);
    {
        Storico storico(p.prova.contesto, p.sospese, indice);
        storico.apri({.cliente = 1, .recart = 1});
        EXPECT_EQ(storico.daGuardare(), 30);
        EXPECT_FALSE(storico.avanza(0));
        EXPECT_LT(storico.guardati(), 30);
        EXPECT_EQ(storico.vendite()[0].numero, u"30");
        storico.interrompi();
        EXPECT_TRUE(storico.avanza(0));
    }
    EXPECT_FALSE(leggiIndice(indice).isEmpty());
    Storico storico(p.prova.contesto, p.sospese, indice);
    // Lines without a file wait in the user's folder.
    Tot contatore = p.prova.archivio.leggiTot(Conta::Fte);
    contatore.progressivo = 500;
    p.prova.archivio.scriviTot(Conta::Fte, contatore);
    p.nuovo(u"99"_s);
    p.documento.ddd[0] = rigaDi(77);
    p.documento.estremi.data = u"01/04/2015"_s;
    ASSERT_EQ(p.salva().dopo, DopoSalva::Movimento);
    EXPECT_TRUE(prezzi(storico).startsWith(u"99:77 30:30"_s));
}

TEST_F(StoricoTest, PrezzoEScontiPassanoNellaRiga) {
    p.prova.tabelle.aliquote[1].aliquota = u"22"_s;
    p.documento.recordcliente = 1;
    p.documento.ddd[0] = rigaDi(50);
    Borftex form(p.prova.contesto, p.documento);
    form.attiva();
    EXPECT_EQ(form.storico().recart, 1);
    const VenditaStorica vendita{.riga = {1, 15, 5, 3, 122}, .conIva = true};
    form.prendi(vendita);
    Riga attesa = rigaDi(100, 15);
    attesa.sconto2 = 5;
    EXPECT_EQ(form.righe().riga(1), attesa) << "the price without the tax; the quantity stays";
    form.cambiaOpzione(Borftex::Opzione::Scorporo, true);
    form.prendi(vendita);
    EXPECT_EQ(form.righe().riga(1).prezzo, 122);
    p.prova.operatore.risposte = {false};
    form.esegui(Borftex::Comando::Indietro);
    EXPECT_EQ(p.prova.operatore.domande.size(), 1);
    form.entra({Borftex::Campo::Artic, 3});
    form.prendi({.riga = {1, 0, 0, 1, 10}});
    EXPECT_EQ(form.righe().riga(4).iva, CodiceIva(1)) << "as a price that is typed proposes it";
}

} // namespace
} // namespace bor
