#include "archive/promemoria.h"
#include "common/installazione.h"
#include "lanciatore/scelta.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>
#include <QTimer>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace bor::lancia {
namespace {

void scrivi(const QString& percorso, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(percorso).path());
    QFile file(percorso);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

void programma(const QString& percorso, const QByteArray& righe) {
    scrivi(percorso, "#!/bin/sh\n" + righe);
    QFile::setPermissions(percorso, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

/// A drive with the companies 7 and 12, and with folders that only look like one.
class Unita {
public:
    Unita() {
        scrivi(suite(u"boraz0.012/borlano.int"_s), "Citt\xe0 Verde & C. \x80\r\nVia Roma 1\r\n");
        scrivi(suite(u"BORAZ0.007/Borlano.INT"_s), "\r\nVia Po 2\r\n");
        for (const QString& nome : {u"borlano.cli"_s, u"borlano.tab"_s}) {
            scrivi(suite(u"boraz0.012/"_s + nome), {});
            scrivi(suite(u"BORAZ0.007/"_s + nome.toUpper()), {});
        }
        for (const QString& nome : {u"boraz0.12"_s, u"boraz0.0123"_s, u"boraz0.01a"_s, u"xboraz0.001"_s})
            QDir().mkpath(suite(nome));
        scrivi(suite(u"boraz0.500"_s), "a file, no folder");
    }
    QString radice() const { return m_cartella.path(); }
    QString suite(const QString& nome) const { return m_cartella.filePath(u"Suprok/suprok/"_s + nome); }
    Percorsi percorsi() const { return {radice(), QString()}; }

private:
    QTemporaryDir m_cartella;
};

} // namespace

TEST(Aziende, ElencaLeCartelleDelleAziendePerCodice) {
    const Unita unita;
    const QList<Azienda> aziende = elencaAziende(unita.percorsi());
    ASSERT_EQ(aziende.size(), 2);
    EXPECT_EQ(aziende[0].codice, 7);
    EXPECT_EQ(aziende[0].nome, QString());
    EXPECT_EQ(aziende[1].codice, 12);
    EXPECT_EQ(aziende[1].nome, u"Città Verde & C. €"_s);
    EXPECT_TRUE(elencaAziende({unita.suite(u"boraz0.012"_s), QString()}).isEmpty());
}

TEST(Aziende, IlModuloParteConLAziendaInUnSoloArgomento) {
    const Comando comando = comandoModulo(u"/opt/bor"_s, 7);
    EXPECT_EQ(comando.programma, u"/opt/bor/borfte"_s);
    EXPECT_EQ(comando.argomenti, QStringList{u"$$qv#m0070"_s});
    EXPECT_EQ(comandoModulo(u"/opt/bor"_s, 999).argomenti, QStringList{u"$$qv#m9990"_s});
}

TEST(Aziende, UnAziendaIncompletaNonSiApre) {
    const Unita unita;
    EXPECT_EQ(ostacolo(unita.percorsi(), 7), QString());
    EXPECT_TRUE(ostacolo(unita.percorsi(), 8).startsWith(u"L'azienda 8 non c'è in "_s));
    QFile::remove(unita.suite(u"boraz0.012/borlano.cli"_s));
    EXPECT_TRUE(ostacolo(unita.percorsi(), 12).startsWith(u"All'azienda 12 manca il file borlano.cli in "_s));

    SceltaAzienda finestra(unita.radice(), u"/opt/bor"_s, [](const Percorsi&, int) {
        ADD_FAILURE() << "opened";
        return true;
    });
    finestra.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    auto* elenco = finestra.findChild<QTreeWidget*>(u"elenco"_s);
    QTest::keyClick(elenco, Qt::Key_Down);
    QString detto;
    QTimer::singleShot(0, &finestra, [&detto] {
        auto* messaggio = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(messaggio);
        detto = messaggio->text();
        messaggio->accept();
    });
    QTest::keyClick(elenco, Qt::Key_Return);
    EXPECT_TRUE(detto.contains(u"borlano.cli"_s)) << qPrintable(detto);
    EXPECT_FALSE(QFileInfo::exists(unita.suite(u"boraz0.012/borlano.cli"_s)));
}

/// Runs a program of the build as on a machine without display, in an empty folder.
int senzaSchermo(const QTemporaryDir& cartella, const QString& programma, const QStringList& argomenti,
                 QString* errori = nullptr) {
    QProcess processo;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    for (const QString& nome : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
        ambiente.remove(nome);
    ambiente.insert(u"XDG_DATA_HOME"_s, cartella.filePath(u"dati"_s));
    ambiente.insert(u"XDG_RUNTIME_DIR"_s, u"/nonexistent"_s);
    processo.setProcessEnvironment(ambiente);
    processo.setWorkingDirectory(cartella.path());
    processo.start(QStringLiteral(BOR_BIN_DIR "/") + programma, argomenti);
    EXPECT_TRUE(processo.waitForFinished());
    if (errori)
        *errori = QString::fromUtf8(processo.readAllStandardError());
    EXPECT_EQ(processo.exitStatus(), QProcess::NormalExit);
    EXPECT_TRUE(QDir(cartella.path()).isEmpty()) << "something was written";
    return processo.exitCode();
}

TEST(Avvio, ChiNonPuoPartireNonScriveNullaENonChiedeUnoSchermo) {
    const QTemporaryDir vuota;
    EXPECT_EQ(senzaSchermo(vuota, u"borfte"_s, {}), 0);
    EXPECT_EQ(senzaSchermo(vuota, u"borfte"_s, {u"altro"_s}), 0);
    QString errori;
    EXPECT_EQ(
        senzaSchermo(vuota, u"lanciatore"_s, {u"--unita"_s, u"nessuna"_s, u"--dimostrazione"_s}, &errori), 1);
    EXPECT_TRUE(errori.contains(u"non esiste"_s)) << qPrintable(errori);
    EXPECT_EQ(senzaSchermo(vuota, u"lanciatore"_s, {u"--unita"_s, u"nessuna"_s}, &errori), 1);
    EXPECT_TRUE(errori.contains(u"non esiste"_s)) << qPrintable(errori);
    EXPECT_EQ(senzaSchermo(vuota, u"lanciatore"_s, {u"/srv/contabilita"_s}, &errori), 1);
    EXPECT_TRUE(errori.contains(u"non è un'opzione"_s)) << qPrintable(errori);
    EXPECT_EQ(senzaSchermo(vuota, u"lanciatore"_s, {u"--azienda"_s, u"7"_s}, &errori), 1);
    EXPECT_TRUE(errori.contains(u"L'azienda 7 non c'è"_s)) << qPrintable(errori);
}

TEST(Aziende, LaFinestraRicordaLUnitaSceltaEGliAltriAvviiNo) {
    const QTemporaryDir dati;
    qputenv("XDG_DATA_HOME", QFile::encodeName(dati.path()));
    const QString propria = dati.filePath(u"borfte/unita"_s);
    EXPECT_EQ(unitaDellaFinestra(), propria);
    const Unita unita;
    ricordaUnita(unita.radice());
    EXPECT_EQ(unitaDellaFinestra(), unita.radice());
    EXPECT_EQ(unitaPredefinita(), propria) << "there the demo company is made";
    ricordaUnita(dati.filePath(u"tolta"_s));
    EXPECT_EQ(unitaDellaFinestra(), propria);
}

TEST(Aziende, IlModuloParteNellUnita) {
    const Unita unita;
    const QTemporaryDir programmi;
    programma(programmi.filePath(u"borfte"_s), "echo \"$PWD $*\" > prova.tmp && mv prova.tmp prova\n");
    ASSERT_TRUE(avviaModulo(unita.percorsi(), programmi.path(), 12));

    QFile esito(unita.radice() + u"/prova"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return esito.exists(); }));
    ASSERT_TRUE(esito.open(QIODevice::ReadOnly));
    EXPECT_EQ(esito.readAll().trimmed(), unita.radice().toUtf8() + " $$qv#m0120");
    EXPECT_FALSE(avviaModulo(unita.percorsi(), programmi.filePath(u"altrove"_s), 12));
}

TEST(Aziende, IlProgrammaDeiPdfSiTrovaNellaSuite) {
    const Unita unita;
    const QTemporaryDir programmi;
    EXPECT_FALSE(collegaBorxpdf(unita.percorsi(), programmi.path()));
    scrivi(programmi.filePath(u"borxpdf"_s), "nuovo");
    QFile::link(u"/nonexistent/borxpdf"_s, unita.suite(u"borxpdf"_s));
    EXPECT_TRUE(collegaBorxpdf(unita.percorsi(), programmi.path()));
    EXPECT_EQ(QFileInfo(unita.suite(u"borxpdf"_s)).symLinkTarget(), programmi.filePath(u"borxpdf"_s));

    QFile::remove(unita.suite(u"borxpdf"_s));
    scrivi(unita.suite(u"BORXPDF"_s), "della suite");
    EXPECT_TRUE(collegaBorxpdf(unita.percorsi(), programmi.path()));
    EXPECT_FALSE(QFileInfo::exists(unita.suite(u"borxpdf"_s)));
}

/// Where links cannot be made the suite's folder has a copy, which would otherwise stay for ever.
TEST(Aziende, DelProgrammaDeiPdfSiRinnovaSoloLaCopiaDiUnaVersionePiuVecchia) {
    const Unita unita;
    const QTemporaryDir programmi;
    const QByteArray nostro(reinterpret_cast<const char*>(identificatore.utf16()), identificatore.size() * 2);
    const QString posto = unita.suite(u"borxpdf"_s);
    scrivi(programmi.filePath(u"borxpdf"_s), nostro + " 2");
    const auto dopo = [&](const QByteArray& copia, int giorni) {
        scrivi(posto, copia);
        QFile file(posto);
        EXPECT_TRUE(
            file.open(QIODevice::ReadWrite) &&
            file.setFileTime(QDateTime::currentDateTime().addDays(giorni), QFile::FileModificationTime));
        file.close();
        EXPECT_TRUE(collegaBorxpdf(unita.percorsi(), programmi.path()));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    EXPECT_EQ(dopo(nostro + " 1", -1), nostro + " 2");
    EXPECT_EQ(QFileInfo(posto).lastModified(), QFileInfo(programmi.filePath(u"borxpdf"_s)).lastModified());
    EXPECT_EQ(dopo(nostro + " 3", 1), nostro + " 3");
    EXPECT_EQ(dopo("altrui", -1), "altrui");
    EXPECT_EQ(QDir(unita.suite({})).entryList({u"*.nuovo"_s}), QStringList());
}

TEST(SceltaAzienda, InvioApreLAziendaSceltaEdEscChiude) {
    const Unita unita;
    QList<int> aperte;
    SceltaAzienda finestra(unita.radice(), u"/opt/bor"_s, [&](const Percorsi& percorsi, int codice) {
        EXPECT_EQ(percorsi.radiceCorrente(), unita.radice());
        aperte.append(codice);
        return true;
    });
    finestra.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    auto* elenco = finestra.findChild<QTreeWidget*>(u"elenco"_s);
    EXPECT_EQ(elenco->topLevelItem(0)->text(0), u"007"_s);
    EXPECT_EQ(elenco->topLevelItem(0)->text(1), u"(senza nome)"_s);
    EXPECT_EQ(elenco->topLevelItem(1)->text(1), u"Città Verde & C. €"_s);

    QTest::keyClick(elenco, Qt::Key_Down);
    QTest::keyClick(elenco, Qt::Key_Return);
    EXPECT_EQ(aperte, QList<int>{12});
    QTest::keyClick(&finestra, Qt::Key_F5);
    EXPECT_EQ(elenco->currentItem()->text(0), u"012"_s);
    QTest::keyClick(elenco, Qt::Key_Escape);
    EXPECT_FALSE(finestra.isVisible());
}

TEST(SceltaAzienda, SenzaAziendeInvioCreaLaDimostrativa) {
    const QTemporaryDir dati;
    qputenv("XDG_DATA_HOME", QFile::encodeName(dati.path()));
    const QTemporaryDir programmi;
    programma(programmi.filePath(u"borcrea"_s), "cd \"$2\" && mkdir -p suprok/suprok/boraz0.001\n");

    SceltaAzienda finestra(unitaPredefinita(), programmi.path(), [](const Percorsi&, int) { return true; });
    finestra.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    auto* pagine = finestra.findChild<QStackedWidget*>();
    EXPECT_EQ(pagine->currentIndex(), 1);
    EXPECT_FALSE(finestra.findChild<QPushButton*>(u"apri"_s)->isEnabled());
    QTest::keyClick(&finestra, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return pagine->currentIndex() == 0; }));
    EXPECT_EQ(finestra.findChild<QTreeWidget*>(u"elenco"_s)->topLevelItem(0)->text(0), u"001"_s);
}

TEST(SceltaAzienda, InUnaCartellaSceltaSenzaAziendeInvioNonCreaNulla) {
    const QTemporaryDir dati;
    qputenv("XDG_DATA_HOME", QFile::encodeName(dati.path()));
    const QTemporaryDir scollegata;
    const Unita unita;
    SceltaAzienda finestra(unita.radice(), u"/opt/bor"_s, [](const Percorsi&, int) { return true; });
    finestra.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    finestra.cambiaUnita(scollegata.path());
    EXPECT_TRUE(finestra.findChild<QLabel*>(u"invito"_s)->text().contains(u"non è collegato"_s));
    EXPECT_EQ(finestra.focusWidget()->objectName(), u"altraUnita"_s);
    EXPECT_FALSE(finestra.findChild<QPushButton*>(u"crea"_s)->isDefault());
    EXPECT_TRUE(finestra.findChild<QPushButton*>(u"altraUnita"_s)->isDefault());

    finestra.cambiaUnita(unita.radice());
    EXPECT_TRUE(finestra.findChild<QPushButton*>(u"apri"_s)->isDefault());
    finestra.cambiaUnita(unitaPredefinita());
    EXPECT_TRUE(finestra.findChild<QPushButton*>(u"crea"_s)->isDefault());
}

TEST(SceltaAzienda, LaCopiaVaAvantiDietroLaFinestraESiPuoInterrompere) {
    const Unita unita;
    const QTemporaryDir programmi;
    qputenv("XDG_DATA_HOME", QFile::encodeName(programmi.filePath(u"dati"_s)));
    // Waits for the file "via", then notes the copy as the tool does; a signal ends it with nothing done.
    // Where an installation has it, seen from the launcher.
    const QString interni = programmi.filePath(u"libexec/borfte"_s);
    QDir().mkpath(interni);
    QDir().mkpath(programmi.filePath(u"bin"_s));
    programma(programmi.filePath(u"bin/borcopia"_s),
              "trap 'exit 2' TERM\necho avanzamento 40\nwhile [ ! -e \"$6/via\" ]; do sleep 0.02; done\n"
              "printf 'azienda=12\\nquando=2026-11-23T17:00:00Z\\nerrori=1\\n' > "
              "\"$2/Suprok/suprok/boraz0.012/borlano.cop\"\necho /copie/x.tar.zst\n");
    SceltaAzienda finestra(unita.radice(), interni, [](const Percorsi&, int) { return true; });
    finestra.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    auto* elenco = finestra.findChild<QTreeWidget*>(u"elenco"_s);
    auto* copia = finestra.findChild<QPushButton*>(u"copia"_s);
    auto* annulla = finestra.findChild<QPushButton*>(u"annullaCopia"_s);
    auto* avanzamento = finestra.findChild<QProgressBar*>(u"avanzamentoCopia"_s);
    auto* esito = finestra.findChild<QLabel*>(u"esitoCopia"_s);
    EXPECT_EQ(elenco->topLevelItem(1)->text(2), u"mai"_s);
    QTest::keyClick(elenco, Qt::Key_Down);

    finestra.copia(programmi.path());
    ASSERT_TRUE(QTest::qWaitFor([&] { return avanzamento->value() == 40; }));
    EXPECT_FALSE(copia->isEnabled());
    QTest::mouseClick(annulla, Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return copia->isEnabled(); }));
    EXPECT_TRUE(esito->text().contains(u"interrotta"_s)) << qPrintable(esito->text());
    EXPECT_EQ(elenco->topLevelItem(1)->text(2), u"mai"_s);

    scrivi(programmi.filePath(u"via"_s), {});
    finestra.copia(programmi.path());
    ASSERT_TRUE(QTest::qWaitFor([&] { return copia->isEnabled(); }));
    EXPECT_TRUE(esito->text().endsWith(u"/copie/x.tar.zst"_s)) << qPrintable(esito->text());
    EXPECT_EQ(elenco->topLevelItem(1)->text(2), QDateTime(QDate(2026, 11, 23), QTime(17, 0), QTimeZone::utc())
                                                        .toLocalTime()
                                                        .toString(u"dd/MM/yyyy HH:mm") +
                                                    u" (errori: 1)"_s);
    EXPECT_EQ(Promemoria(Percorsi::predefiniti(unita.radice()), 12).cartellaCopie(), programmi.path());
    EXPECT_TRUE(esito->isVisible());
    finestra.cambiaUnita(programmi.path());
    EXPECT_FALSE(esito->isVisible()) << "of the other drive";
}

} // namespace bor::lancia
