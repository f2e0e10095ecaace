// The guide keeps to the program: captions and messages it quotes, keys and names it tells stand there, its
// links and pictures exist.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <map>

using namespace Qt::StringLiterals;

namespace {

const QString radice = QStringLiteral(BOR_SOURCE_DIR "/");
const QString cartella = radice + u"docs/guida/"_s;
const QRegularExpression spazi(u"\\s+"_s);

QString leggi(const QString& nome) {
    QFile file(nome);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Texts of the chapters by their names, without the blocks of commands and settings.
std::map<QString, QString> capitoli() {
    static const QRegularExpression blocco(u"^    .*$"_s, QRegularExpression::MultilineOption);
    std::map<QString, QString> testi;
    for (const QString& nome : QDir(cartella).entryList({u"*.md"_s}))
        testi[nome] = leggi(cartella + nome).remove(blocco);
    return testi;
}

QStringList presi(const QString& testo, const QString& forma) {
    QStringList tutti;
    for (const auto& trovato : QRegularExpression(forma).globalMatch(testo))
        tutti.append(trovato.captured(1));
    return tutti;
}

/// The string literals of a source file, a line each; neighbours are one, and the letters underlined are not
/// told.
QString letterali(const QString& sorgente) {
    static const QRegularExpression forma(
        u"'(?:\\\\.|[^'\\\\\n])'|(?:u8|u|L)?\"((?:[^\"\\\\\n]|\\\\.)*)\"(?:_s|_L1)?"_s);
    QString tutti;
    qsizetype fine = -1;
    for (const auto& trovato : forma.globalMatch(sorgente)) {
        if (!trovato.hasCaptured(1))
            continue;
        const bool vicino =
            fine >= 0 &&
            QStringView(sorgente).sliced(fine, trovato.capturedStart() - fine).trimmed().isEmpty();
        tutti += vicino ? QString() : u"\n"_s;
        tutti += trovato.captured(1).replace(u"\\n"_s, u" "_s).replace(u"\\\""_s, u"\""_s).remove(u'&');
        fine = trovato.capturedEnd();
    }
    return tutti;
}

struct Programma {
    QString testi; ///< what it says, a text a line
    QString nomi;  ///< all that stands in its sources, and the names of its files
};

Programma leggiProgramma() {
    Programma programma;
    for (const QString& parte : {u"src"_s, u"tools"_s, u"demo"_s}) {
        QDirIterator file(radice + parte, {u"*.h"_s, u"*.cpp"_s, u"*.csv"_s, u"borlano.*"_s}, QDir::Files,
                          QDirIterator::Subdirectories);
        while (file.hasNext()) {
            const QString testo = leggi(file.next());
            programma.testi += parte == u"demo" ? testo : letterali(testo);
            programma.nomi += testo + file.fileName() + u'\n';
        }
        programma.nomi += QDir(radice + parte).entryList().join(u'\n');
    }
    for (const QString& nome : QDir(radice + u"docs"_s).entryList({u"*.md"_s}))
        programma.nomi += u"docs/"_s + nome + u'\n' + leggi(radice + u"docs/"_s + nome);
    return programma;
}

/// Options and extensions of files stand in the sources without what goes before them.
bool nomina(const Programma& programma, const QString& nome) {
    static const QRegularExpression conPrefisso(u"^(?:--|borlano\\.)([a-z]+)$"_s);
    const auto trovato = conPrefisso.match(nome);
    return programma.nomi.contains(nome) ||
           (trovato.hasMatch() && programma.nomi.contains(u"u\"%1\""_s.arg(trovato.captured(1))));
}

} // namespace

TEST(Guida, CitaSoloCioCheIlProgrammaDice) {
    const Programma programma = leggiProgramma();
    int citazioni = 0;
    for (const auto& [nome, testo] : capitoli()) {
        for (const QString& citata : presi(testo, u"«([^»]*)»"_s)) {
            ++citazioni;
            // Dots stand for what changes from time to time.
            QString forma = QRegularExpression::escape(QString(citata).replace(spazi, u" "_s));
            forma.replace(QRegularExpression::escape(u"…"_s), u".*"_s);
            EXPECT_TRUE(programma.testi.contains(QRegularExpression(forma)))
                << qPrintable(nome + u": "_s + citata);
        }
    }
    EXPECT_GT(citazioni, 300);
}

/// Longest part of a text between the places that are filled in.
QString parteFissa(const QString& testo) {
    static const QRegularExpression posto(u"%\\d"_s);
    QString lunga;
    for (const QString& parte : testo.split(posto))
        lunga = parte.size() > lunga.size() ? parte : lunga;
    static const QRegularExpression orlo(u"^[\\s\"(,.]+|[\\s\"(,.]+$"_s);
    return lunga.remove(orlo);
}

TEST(Guida, DiceOgniRilievoDelControllo) {
    const QString capitolo = capitoli().at(u"controllo.md"_s).replace(spazi, u" "_s);
    const QDir verifica(radice + u"tools/borverifica"_s);
    // What is no finding: options, remedies, and the line of a finding.
    const QStringList altri{u"main.cpp"_s, u"rimedio.cpp"_s, u"verifica.cpp"_s};
    int rilievi = 0;
    for (const QString& nome : verifica.entryList({u"*.cpp"_s})) {
        if (altri.contains(nome))
            continue;
        for (const QString& testo : letterali(leggi(verifica.filePath(nome))).split(u'\n')) {
            const QString detto = parteFissa(testo);
            if (detto.count(u' ') < 3)
                continue;
            ++rilievi;
            EXPECT_TRUE(capitolo.contains(detto)) << qPrintable(nome + u": "_s + detto);
        }
    }
    EXPECT_GT(rilievi, 30);
}

TEST(Guida, NominaSoloTastiEFileCheCiSono) {
    static const QRegularExpression tasto(u"^((Ctrl|Maiusc|Alt)\\+){0,2}(F\\d+|[A-Z0-9,]|Fine)$"_s);
    const Programma programma = leggiProgramma();
    const std::map<QString, QString> tutti = capitoli();
    const QString& tasti = tutti.at(u"tasti.md"_s);
    for (const auto& [nome, testo] : tutti) {
        for (const QString& citato : presi(testo, u"`([^`]+)`"_s)) {
            const bool detto = tasto.match(citato).hasMatch() ? tasti.contains(u'`' + citato + u'`')
                                                              : nomina(programma, citato);
            EXPECT_TRUE(detto) << qPrintable(nome + u": "_s + citato);
        }
    }
}

TEST(Guida, CollegamentiEImmaginiCiSono) {
    const QDir guida(cartella);
    QSet<QString> usate;
    QSet<QString> dallIndice;
    for (const auto& [nome, testo] : capitoli()) {
        for (const QString& meta : presi(testo, u"\\]\\(([^)]+)\\)"_s)) {
            EXPECT_TRUE(guida.exists(meta)) << qPrintable(nome + u": "_s + meta);
            usate.insert(meta);
            if (nome == u"indice.md")
                dallIndice.insert(meta);
        }
        EXPECT_TRUE(testo.startsWith(u"# ")) << qPrintable(nome);
    }
    for (const QString& immagine : QDir(cartella + u"img"_s).entryList(QDir::Files))
        EXPECT_TRUE(usate.contains(u"img/"_s + immagine)) << qPrintable(immagine);
    for (const auto& [nome, testo] : capitoli())
        EXPECT_TRUE(nome == u"indice.md" || dallIndice.contains(nome)) << qPrintable(nome);
}
