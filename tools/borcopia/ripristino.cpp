#include "borcopia/ripristino.h"

#include "archive/disco.h"
#include "borcopia/elencocopie.h"
#include "borcopia/fonte.h"
#include "borcopia/nastro.h"
#include "common/percorsi.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace bor::copia {

namespace {

constexpr std::size_t pezzo = std::size_t{1} << 18;
/// Notes and checksums of a company are shorter.
constexpr qint64 massimoTesto = qint64{64} << 20;
constexpr QStringView cartellaInCorso = u".ripristino-parziale";

struct FileEstratto {
    QByteArray impronta;
    qint64 lunghezza = 0;
};

/// What of a copy is put on disk; all of it is read and compared with the checksums.
enum class Estrai { Tutto, SoloArchivio };

/// Puts the entries of a copy below a folder.
class Estrazione {
public:
    Estrazione(const QString& copia, const QString& cartella, Estrai cosa, const Avanzamento& avanzamento)
        : m_copia(copia), m_cartella(cartella), m_cosa(cosa), m_avanzamento(avanzamento) {}

    EsitoLetturaCopia esegui();
    /// The files of the company's folder in the copy.
    const verifica::ElencoFile& nellAzienda() const { return m_nellAzienda; }

private:
    bool fallisci(const QString& motivo);
    bool avanza();
    bool estraiVoce(const Voce& voce);
    bool leggiFile(const Voce& voce);
    int creaFile(const QString& nome);
    bool nonScritto(const QString& nome);
    std::optional<QByteArray> leggiTesto(const Voce& voce);
    bool confronta(const QByteArray& impronte);

    const QString m_copia;
    const QString m_cartella;
    const Estrai m_cosa;
    const Avanzamento& m_avanzamento;
    NastroLetto m_nastro;
    QHash<QString, FileEstratto> m_estratti;
    verifica::ElencoFile m_nellAzienda;
    std::optional<QByteArray> m_impronte;
    QString m_ultimaCartella;
    std::vector<char> m_pezzo = std::vector<char>(pezzo);
    EsitoLetturaCopia m_esito;
};

bool Estrazione::fallisci(const QString& motivo) {
    if (m_esito.errore.isEmpty())
        m_esito.errore = motivo;
    return false;
}

bool Estrazione::avanza() {
    return m_avanzamento(m_nastro.percento()) || fallisci(u"La lettura della copia è stata interrotta."_s);
}

EsitoLetturaCopia Estrazione::esegui() {
    if (!m_nastro.apri(m_copia)) {
        fallisci(u"%1: %2."_s.arg(m_copia, m_nastro.errore()));
        return m_esito;
    }
    Voce voce;
    while (m_esito.errore.isEmpty() && m_nastro.prossima(voce)) {
        if (avanza())
            estraiVoce(voce);
    }
    if (!m_nastro.errore().isEmpty())
        fallisci(u"%1: %2."_s.arg(m_copia, m_nastro.errore()));
    else if (m_esito.errore.isEmpty() && (!m_impronte || m_esito.appunti.azienda < 0))
        fallisci(u"%1 non è una copia intera."_s.arg(m_copia));
    else if (m_esito.errore.isEmpty())
        confronta(*m_impronte);
    return m_esito;
}

bool Estrazione::estraiVoce(const Voce& voce) {
    if (voce.nome == nomeAppunti) {
        const auto testo = leggiTesto(voce);
        if (const auto appunti = testo ? Appunti::daTesto(*testo) : std::nullopt)
            m_esito.appunti = *appunti;
        return testo.has_value();
    }
    if (voce.nome == nomeImpronte) {
        m_impronte = leggiTesto(voce);
        return m_impronte.has_value();
    }
    // Its notes, which come first, say of which company it is.
    if (!nomeDiCopia(voce.nome, m_esito.appunti.azienda))
        return fallisci(u"%1 contiene un file che non è di una copia: %2."_s.arg(m_copia, voce.nome));
    return leggiFile(voce);
}

std::optional<QByteArray> Estrazione::leggiTesto(const Voce& voce) {
    if (voce.lunghezza < 0 || voce.lunghezza > massimoTesto)
        return std::nullopt;
    QByteArray testo;
    while (true) {
        const qint64 letti = m_nastro.leggi(m_pezzo);
        if (letti < 0 || testo.size() > massimoTesto)
            return std::nullopt;
        if (letti == 0)
            return testo;
        testo.append(m_pezzo.data(), static_cast<qsizetype>(letti));
    }
}

bool Estrazione::nonScritto(const QString& nome) {
    return fallisci(u"%1 non si può scrivere in %2: %3."_s.arg(nome, m_cartella, motivoErrore(errno)));
}

/// The file to write an entry to; -1 when it could not be made.
int Estrazione::creaFile(const QString& nome) {
    const QString percorso = m_cartella + u'/' + nome;
    const QString cartella = percorso.left(percorso.lastIndexOf(u'/'));
    if (cartella != m_ultimaCartella)
        QDir().mkpath(cartella);
    m_ultimaCartella = cartella;
    return ::open(QFile::encodeName(percorso).constData(),
                  O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0666);
}

bool Estrazione::leggiFile(const Voce& voce) {
    const bool voluto = m_cosa == Estrai::Tutto ||
                        QFileInfo(voce.nome).fileName().startsWith(u"borlano.", Qt::CaseInsensitive);
    const int descrittore = voluto ? creaFile(voce.nome) : -1;
    if (voluto && descrittore < 0)
        return nonScritto(voce.nome);
    QCryptographicHash impronta(QCryptographicHash::Blake2b_256);
    Disco disco;
    qint64 lunghezza = 0;
    qint64 letti = 0;
    while (avanza() && (letti = m_nastro.leggi(m_pezzo)) > 0) {
        const QByteArrayView bytes(m_pezzo.data(), static_cast<qsizetype>(letti));
        impronta.addData(bytes);
        if (voluto && !disco.scrivi(descrittore, lunghezza, bytes, voce.nome)) {
            nonScritto(voce.nome);
            break;
        }
        lunghezza += letti;
    }
    if (voluto) {
        const std::array<timespec, 2> tempi{{{voce.quando, 0}, {voce.quando, 0}}};
        (void)::futimens(descrittore, tempi.data());
        if (::close(descrittore) != 0)
            nonScritto(voce.nome);
    }
    m_estratti.insert(voce.nome, {impronta.result(), lunghezza});
    return letti == 0;
}

/// Every file of the list is there and is the one that was copied; what is not in the list was removed while
/// the copy was made, and is removed here.
bool Estrazione::confronta(const QByteArray& impronte) {
    constexpr qsizetype cifre = 64;
    const QString azienda = parteAzienda(m_esito.appunti.azienda);
    for (const QByteArray& linea : impronte.split('\n')) {
        if (linea.isEmpty())
            continue;
        const QString nome = QString::fromUtf8(linea.mid(cifre + 2));
        const auto estratto = m_estratti.constFind(nome);
        if (estratto == m_estratti.constEnd())
            return fallisci(u"%1: manca il file %2."_s.arg(m_copia, nome));
        if (estratto->impronta.toHex() != linea.first(std::min(cifre, linea.size())))
            return fallisci(u"%1: il file %2 non è quello che fu copiato."_s.arg(m_copia, nome));
        if (nome.startsWith(azienda) && !QStringView(nome).sliced(azienda.size()).contains(u'/'))
            m_nellAzienda.insert(nome.mid(azienda.size()), estratto->lunghezza);
        m_estratti.erase(estratto);
        ++m_esito.file;
    }
    for (auto resto = m_estratti.constBegin(); resto != m_estratti.constEnd(); ++resto)
        QFile::remove(m_cartella + u'/' + resto.key());
    return true;
}

/// Puts the files that another computer has not even seen yet among the user's own data.
void ripristinaRighe(const QString& da, const Percorsi& percorsi, int codice) {
    const QStringList nomi = QDir(da).entryList(QDir::Files);
    if (nomi.isEmpty())
        return;
    constexpr QFile::Permissions mio = QFile::ReadOwner | QFile::WriteOwner;
    const QString meta = percorsi.cartellaBozze(codice);
    QDir().mkpath(meta);
    QFile::setPermissions(meta, mio | QFile::ExeOwner);
    for (const QString& nome : nomi) {
        if (QFile::copy(da + u'/' + nome, meta + u'/' + nome))
            QFile::setPermissions(meta + u'/' + nome, mio);
    }
}

/// Why nothing can be restored into a folder; empty when nothing is in it, or it is missing.
QString nonVuota(const QDir& cartella) {
    const QStringList dentro =
        cartella.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    if (dentro.isEmpty())
        return {};
    if (dentro == QStringList{cartellaInCorso.toString()})
        return u"In %1 un ripristino è in corso, o è stato interrotto: se nessuno lo sta facendo, eliminate "
               "la cartella nascosta %2."_s.arg(cartella.path(), dentro.first());
    return u"%1 non è vuota: una copia si ripristina solo in una cartella vuota."_s.arg(cartella.path());
}

/// Waits until the whole file system is on the disk: thousands of files at once.
void scaricaTutto(const QString& cartella) {
    const int descrittore =
        ::open(QFile::encodeName(cartella).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descrittore < 0)
        return;
    (void)::syncfs(descrittore);
    ::close(descrittore);
}

} // namespace

std::optional<Appunti> leggiAppunti(const QString& copia) {
    NastroLetto nastro;
    Voce voce;
    if (!nastro.apri(copia) || !nastro.prossima(voce) || voce.nome != nomeAppunti)
        return std::nullopt;
    std::vector<char> testo(pezzo);
    const qint64 letti = nastro.leggi(testo);
    return letti < 0 ? std::nullopt
                     : Appunti::daTesto(QByteArrayView(testo.data(), static_cast<qsizetype>(letti)));
}

EsitoLetturaCopia ripristina(const QString& copia, const Percorsi& percorsi, const Avanzamento& avanzamento) {
    EsitoLetturaCopia esito;
    const QString& cartella = percorsi.radiceCorrente();
    QDir meta(cartella);
    esito.errore = nonVuota(meta);
    if (!esito.errore.isEmpty())
        return esito;
    const QString inCorso = meta.filePath(cartellaInCorso.toString());
    const QString nonScritta = u"Non si può scrivere in %1."_s.arg(cartella);
    if (!QDir().mkpath(inCorso)) {
        esito.errore = nonScritta;
        return esito;
    }
    esito = Estrazione(copia, inCorso, Estrai::Tutto, avanzamento).esegui();
    if (esito.errore.isEmpty()) {
        scaricaTutto(inCorso);
        if (meta.rename(inCorso + u"/suprok"_s, meta.filePath(u"suprok"_s)))
            ripristinaRighe(inCorso + u'/' + parteRighe.toString(), percorsi, esito.appunti.azienda);
        else
            esito.errore = nonScritta;
    }
    QDir(inCorso).removeRecursively();
    scaricaTutto(cartella);
    return esito;
}

EsitoVerifica verificaCopia(const QString& copia, const Avanzamento& avanzamento) {
    EsitoVerifica esito;
    const QTemporaryDir provvisoria(QDir::tempPath() + u"/borcopia-XXXXXX"_s);
    if (!provvisoria.isValid()) {
        esito.lettura.errore = u"Non si può scrivere in %1."_s.arg(QDir::tempPath());
        return esito;
    }
    Estrazione estrazione(copia, provvisoria.path(), Estrai::SoloArchivio, avanzamento);
    esito.lettura = estrazione.esegui();
    if (!esito.lettura.errore.isEmpty())
        return esito;
    const Percorsi percorsi(provvisoria.path(), QString());
    Disco disco;
    Archivio archivio(percorsi, disco, esito.lettura.appunti.azienda);
    archivio.apri(Apertura::SolaLettura);
    esito.discordanze = verifica::verificaArchivio(archivio, estrazione.nellAzienda());
    return esito;
}

} // namespace bor::copia
