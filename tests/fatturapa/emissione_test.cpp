// Today's files of the whole demo company, as an office would write them.
#include "borcrea/creaazienda.h"
#include "borefattura/emissione.h"
#include "support/schemi.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

struct Demo {
    Demo() {
        problemi = crea::creaAzienda({.sorgente = QStringLiteral(BOR_SOURCE_DIR "/demo"),
                                      .unita = cartella.path(),
                                      .codice = 1,
                                      .documenti = 0});
        QDir(cartella.path()).mkdir(u"xml"_s);
    }
    QString xml() const { return cartella.filePath(u"xml"_s); }

    std::vector<resoconto::RilieviFile> emetti(int documento = 0) {
        std::vector<resoconto::RilieviFile> esiti;
        errore = emette::emetti(
            {.unita = cartella.path(), .azienda = 1, .cartella = xml(), .documento = documento},
            [&](const resoconto::RilieviFile& file) { esiti.push_back(file); });
        return esiti;
    }

    QTemporaryDir cartella;
    crea::Problemi problemi;
    QString errore;
};

QByteArray contenuto(const QString& percorso) {
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(Emissione, OgniDocumentoVivoDellaDemoHaUnFileBuonoEDueSoloUnAvviso) {
    Demo demo;
    ASSERT_TRUE(demo.problemi.isEmpty());
    const auto esiti = demo.emetti();
    EXPECT_EQ(demo.errore, QString());
    EXPECT_GT(esiti.size(), 280U);
    QStringList file;
    int avvisi = 0;
    for (const resoconto::RilieviFile& esito : esiti) {
        file.append(esito.file);
        for (const Rilievo& r : esito.rilievi) {
            EXPECT_EQ(r.gravita, Gravita::Avviso) << testoRilievo(r).toStdString();
            ++avvisi;
        }
    }
    EXPECT_EQ(avvisi, 2) << "two documents of the demo have lost their lines";
    if (const Schemi schemi(u"1.2.3"_s); schemi.ciSono()) {
        EXPECT_EQ(schemi.validi(file).size(), file.size());
    }
}

TEST(Emissione, UnaSecondaVoltaIFileHannoGliStessiNomiEGliStessiByte) {
    Demo demo;
    const auto prima = demo.emetti(30);
    ASSERT_EQ(prima.size(), 1U);
    const QByteArray byte = contenuto(prima[0].file);
    ASSERT_FALSE(byte.isEmpty());
    EXPECT_EQ(QFileInfo(prima[0].file).fileName(), u"IT04127580233_00001.xml");
    const auto altro = demo.emetti(31);
    EXPECT_EQ(QFileInfo(altro[0].file).fileName(), u"IT04127580233_00002.xml");
    EXPECT_EQ(demo.emetti(30)[0].file, prima[0].file);
    EXPECT_EQ(contenuto(prima[0].file), byte);
    EXPECT_EQ(QDir(demo.xml()).entryList(QDir::Files).size(), 2);
}

TEST(Emissione, SenzaCartellaOSenzaAziendaDicePerche) {
    Demo demo;
    QDir(demo.xml()).removeRecursively();
    demo.emetti();
    EXPECT_TRUE(demo.errore.contains(u"cartella"_s));
    const QString errore = emette::emetti(
        {.unita = demo.cartella.path(), .azienda = 2, .cartella = demo.cartella.path(), .documento = 0},
        [](const resoconto::RilieviFile&) {});
    EXPECT_TRUE(errore.contains(u"azienda 2"_s));
    EXPECT_FALSE(QDir(demo.cartella.path()).exists(u"suprok/suprok/boraz0.002"_s)) << "nothing is made";
}

} // namespace bor
