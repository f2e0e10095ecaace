#include "borcopia/fonte.h"

#include "archive/diario.h"
#include "borcopia/appunti.h"
#include "common/percorsi.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace bor::copia {

namespace {

namespace fs = std::filesystem;

constexpr QStringView archivioAzienda = u"borlano.";

qint64 nanosecondi(const timespec& t) {
    return qint64{t.tv_sec} * 1'000'000'000 + t.tv_nsec;
}

Identita identitaDi(const struct stat& s) {
    return {static_cast<qint64>(s.st_dev), static_cast<qint64>(s.st_ino), qint64{s.st_size},
            nanosecondi(s.st_mtim), nanosecondi(s.st_ctim)};
}

bool diRaffica(const QString& nome) {
    return nome.startsWith(archivioAzienda, Qt::CaseInsensitive) &&
           std::ranges::any_of(fileDiRaffica, [resto = QStringView(nome).sliced(archivioAzienda.size())](
                                                  const FileDiRaffica& file) {
               return resto.compare(file.estensione, Qt::CaseInsensitive) == 0;
           });
}

bool tralasciato(const QString& nome) {
    return nome.compare(QStringView(u"borlano.rip"), Qt::CaseInsensitive) == 0 ||
           nome.compare(nomeUltimaCopia, Qt::CaseInsensitive) == 0;
}

/// The programs of the suite and their passwords stay where they are.
bool dellaSuite(const QString& nome) {
    static const QStringList figure{u"png"_s, u"jpg"_s, u"jpeg"_s, u"bmp"_s, u"gif"_s, u"svg"_s};
    return nome.startsWith(archivioAzienda, Qt::CaseInsensitive) ||
           figure.contains(QFileInfo(nome).suffix().toLower());
}

bool diRigheDaRegistrare(const QString& nome) {
    return nome.endsWith(u".righe"_s);
}

/// What follows a part's name; nothing for a name of another part, or one in a folder below it.
std::optional<QString> nellaParte(const QString& nome, QStringView parte) {
    const QString resto = nome.mid(parte.size());
    return nome.startsWith(parte) && !resto.contains(u'/') ? std::optional(resto) : std::nullopt;
}

class Raccolta {
public:
    explicit Raccolta(QDeadlineTimer scadenza) : m_scadenza(scadenza) {}

    /// Adds the regular files of a folder that `ammessi` takes; a folder that is not there has none.
    template <class Ammessi>
    void aggiungi(const QString& cartella, const QString& parte, bool conSottocartelle, Ammessi ammessi) {
        const fs::path radice(QFile::encodeName(cartella).toStdString());
        std::error_code errore;
        if (cartella.isEmpty() || !fs::is_directory(radice, errore))
            return;
        fs::recursive_directory_iterator voce(radice, errore);
        for (; !errore && voce != fs::recursive_directory_iterator(); voce.increment(errore)) {
            if (m_scadenza.hasExpired()) {
                intera = false;
                return;
            }
            if (!conSottocartelle)
                voce.disable_recursion_pending();
            const QString percorso = QFile::decodeName(voce->path().c_str());
            const QString nome = percorso.mid(cartella.size() + 1);
            struct stat s {};
            // A name that is gone by now, or a link to nowhere, has nothing to copy.
            if (!ammessi(nome) || ::stat(voce->path().c_str(), &s) != 0 || !S_ISREG(s.st_mode))
                continue;
            file.push_back({percorso, parte + nome, identitaDi(s), voce.depth() == 0 && diRaffica(nome)});
        }
        intera = intera && !errore;
    }

    std::vector<FileFonte> file;
    bool intera = true;

private:
    QDeadlineTimer m_scadenza;
};

} // namespace

std::optional<Identita> identita(int descrittore) {
    struct stat s {};
    return ::fstat(descrittore, &s) == 0 ? std::optional(identitaDi(s)) : std::nullopt;
}

QString parteAzienda(int codice) {
    return cartellaAzienda(codice).mid(1).replace(u'\\', u'/') + u'/';
}

bool nomeDiCopia(const QString& nome, int codice) {
    const QStringList parti = nome.split(u'/');
    const bool piano = !nome.contains(QChar(0)) && !nome.contains(u'\n') && !nome.contains(u'\\') &&
                       std::ranges::none_of(parti, [](const QString& parte) {
                           return parte.isEmpty() || parte == u"." || parte == u"..";
                       });
    const QString azienda = parteAzienda(codice);
    const auto suite = nellaParte(nome, parteSuite);
    const auto righe = nellaParte(nome, parteRighe);
    return piano && codice >= 0 &&
           ((nome.startsWith(azienda) && !tralasciato(nome.mid(azienda.size()))) ||
            (suite && dellaSuite(*suite)) || (righe && diRigheDaRegistrare(*righe)));
}

std::optional<std::vector<FileFonte>> elencaFonte(const Percorsi& percorsi, int codice,
                                                  QDeadlineTimer scadenza) {
    Raccolta raccolta(scadenza);
    raccolta.aggiungi(percorsi.reale(cartellaAzienda(codice)).value_or(QString()), parteAzienda(codice), true,
                      [](const QString& nome) { return !tralasciato(nome); });
    raccolta.aggiungi(percorsi.reale(radiceSuite.chopped(1)).value_or(QString()), parteSuite.toString(),
                      false, dellaSuite);
    raccolta.aggiungi(percorsi.cartellaBozze(codice), parteRighe.toString(), false, diRigheDaRegistrare);
    return raccolta.intera ? std::optional(std::move(raccolta.file)) : std::nullopt;
}

} // namespace bor::copia
