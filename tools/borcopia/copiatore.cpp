#include "borcopia/copiatore.h"

#include "archive/archivio.h"
#include "archive/blocchi.h"
#include "archive/filetesto.h"
#include "archive/raffica.h"
#include "borcopia/appunti.h"
#include "borcopia/elencocopie.h"
#include "borcopia/fileletto.h"
#include "borcopia/fonte.h"
#include "borcopia/nastro.h"
#include "common/testo.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QHash>
#include <QSysInfo>
#include <QThread>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>

using namespace Qt::StringLiterals;

namespace bor::copia {

namespace {

constexpr qsizetype pezzoLetto = qsizetype{1} << 20;
/// A clock of files ticks: what was changed so shortly before may change again without showing it.
constexpr qint64 appenaCambiato = 2'000'000'000;
constexpr int tentativi = 12;
constexpr auto passoTentativi = 50UL;
/// Who wants to register waits five seconds for the lock, then gives up.
constexpr std::chrono::milliseconds bloccoMassimo{2000};
constexpr std::chrono::seconds attesaLettura{5};

/// A file whose bytes wait in memory until the lock is given back.
struct InMemoria {
    Voce voce;
    QByteArray bytes;
};

/// What the copy has of a file.
struct Copiato {
    Identita identita;
    QByteArray impronta;
    qint64 lunghezza = 0;
    bool certo = false; ///< a change since then would show
    int volta = 0;      ///< the last look at the company that found it as it is here
};

/// By which the files that bursts change show whether anybody has registered in between.
struct Registrato {
    std::array<std::optional<Identita>, fileDiRaffica.size()> file;
    bool certo = true; ///< a change since then would show

    friend bool operator==(const Registrato& uno, const Registrato& altro) { return uno.file == altro.file; }
};

class Copiatore {
public:
    Copiatore(const Percorsi& percorsi, int codice, const Avanzamento& avanzamento)
        : m_percorsi(percorsi), m_codice(codice), m_avanzamento(avanzamento),
          m_archivio(percorsi, m_disco, codice) {}

    EsitoCopia esegui(const QString& cartella);

private:
    bool fallisci(const QString& motivo);
    bool avanza(qint64 fatti, qint64 tutti);
    bool controllaAzienda();
    bool controllaCartella(const QString& cartella);
    bool scriviNastro(int descrittore);
    bool senzaBlocco();
    bool nomeCopiabile(const FileFonte& file);
    bool copia(const FileFonte& file);
    bool cogliMomento();
    bool sottoBlocco(bool pronto, std::optional<Registrato>& prima);
    void raccontaRecuperi();
    Registrato registrato() const;
    bool leggiCambiati(QDeadlineTimer scadenza = QDeadlineTimer::Forever);
    std::optional<bool> leggiInMemoria(const FileFonte& file);
    bool scriviInMemoria();
    bool scriviTesto(const QString& nome, const QByteArray& testo);
    QByteArray impronte() const;
    Appunti appunti() const;

    const Percorsi& m_percorsi;
    const int m_codice;
    const Avanzamento& m_avanzamento;
    Disco m_disco;
    Archivio m_archivio;
    std::optional<NastroScritto> m_nastro;
    QHash<QString, Copiato> m_copiati; ///< by their names in the copy
    std::vector<InMemoria> m_inMemoria;
    int m_volta = 0;
    QByteArray m_pezzo;
    EsitoCopia m_esito;
};

bool Copiatore::fallisci(const QString& motivo) {
    if (m_esito.errore.isEmpty())
        m_esito.errore = motivo;
    return false;
}

bool Copiatore::avanza(qint64 fatti, qint64 tutti) {
    const int percento = tutti > 0 ? static_cast<int>(fatti * 100 / tutti) : 100;
    return m_avanzamento(percento) || fallisci(u"La copia è stata interrotta."_s);
}

/// A company folder with its own copies in it would grow with each of them.
bool Copiatore::controllaCartella(const QString& cartella) {
    QString posto = QDir::cleanPath(QDir(cartella).absolutePath());
    while (!QFileInfo::exists(posto))
        posto = QFileInfo(posto).path();
    const QString azienda =
        QFileInfo(m_percorsi.reale(cartellaAzienda(m_codice)).value_or(QString())).canonicalFilePath();
    const QString dove = QFileInfo(posto).canonicalFilePath() + u'/';
    return !dove.startsWith(azienda + u'/') ||
           fallisci(u"Le copie non stanno nella cartella dell'azienda, che la copia seguente conterrebbe: "
                    "scegliete un'altra cartella."_s);
}

bool Copiatore::controllaAzienda() {
    const QString tot = m_archivio.reale(m_archivio.borlano(u"tot"));
    if (!QFileInfo::exists(tot))
        return fallisci(u"%1 non c'è: qui non c'è l'archivio dell'azienda %2."_s.arg(tot).arg(m_codice));
    return true;
}

EsitoCopia Copiatore::esegui(const QString& cartella) {
    if (!controllaAzienda() || !controllaCartella(cartella))
        return m_esito;
    CopiaNuova nuova(cartella, m_codice);
    if (nuova.descrittore() < 0)
        fallisci(u"Non si può scrivere in %1: %2."_s.arg(cartella, nuova.errore()));
    else if (scriviNastro(nuova.descrittore()) && !nuova.conferma())
        fallisci(u"La copia non è stata scritta in %1: %2."_s.arg(cartella, nuova.errore()));
    m_esito.percorso = nuova.percorso();
    return m_esito;
}

bool Copiatore::scriviNastro(int descrittore) {
    m_nastro.emplace(descrittore);
    const bool scritto = scriviTesto(nomeAppunti.toString(), appunti().testo()) && senzaBlocco() &&
                         cogliMomento() && scriviInMemoria() &&
                         scriviTesto(nomeImpronte.toString(), impronte()) && m_nastro->chiudi();
    if (!m_nastro->errore().isEmpty())
        fallisci(u"La copia non si può scrivere: %1."_s.arg(m_nastro->errore()));
    return scritto;
}

Appunti Copiatore::appunti() const {
    const QString intestazione = m_archivio.reale(m_archivio.borlano(u"int"));
    return {m_codice,
            puliscitesto(FileTesto(intestazione).linea()),
            unitaCanonica(m_percorsi.radiceCorrente()),
            QSysInfo::machineHostName(),
            QString(),
            QDateTime::currentDateTime()};
}

bool Copiatore::senzaBlocco() {
    const auto file = elencaFonte(m_percorsi, m_codice);
    if (!file)
        return fallisci(u"La cartella dell'azienda non si può leggere."_s);
    for (std::size_t i = 0; i < file->size(); ++i) {
        if (!avanza(static_cast<qint64>(i), std::ssize(*file)))
            return false;
        if (!(*file)[i].diRaffica && !copia((*file)[i]))
            return false;
    }
    return true;
}

/// A name that is no UTF-8 would not even be found again, as if the file were gone.
bool Copiatore::nomeCopiabile(const FileFonte& fonte) {
    const bool strano = fonte.nome.contains(u'\n') || fonte.nome.contains(u'\\') ||
                        fonte.nome.contains(QChar(QChar::ReplacementCharacter));
    return !strano || fallisci(u"Il nome di %1 ha caratteri che non possono stare in una copia: "
                               "rinominate il file."_s.arg(fonte.percorso));
}

/// A file that is gone by now is none of the company any more.
bool Copiatore::copia(const FileFonte& fonte) {
    if (!nomeCopiabile(fonte))
        return false;
    FileLetto file(fonte.percorso);
    const auto chi = file.chi();
    if (!file.aperto() || !chi)
        return file.errore() == ENOENT ||
               fallisci(u"%1 non si può leggere: %2."_s.arg(fonte.percorso, motivoErrore(file.errore())));
    const qint64 adesso = QDateTime::currentMSecsSinceEpoch() * 1'000'000;
    if (!m_nastro->inizia({fonte.nome, chi->lunghezza, chi->modificato / 1'000'000'000}))
        return false;
    QCryptographicHash impronta(QCryptographicHash::Blake2b_256);
    qint64 resto = chi->lunghezza;
    while (resto > 0) {
        const qint64 letti = file.leggi(m_pezzo, static_cast<qsizetype>(std::min<qint64>(resto, pezzoLetto)));
        if (letti < 0)
            return fallisci(u"%1 non si può leggere: %2."_s.arg(fonte.percorso, motivoErrore(file.errore())));
        if (letti == 0)
            break;
        impronta.addData(m_pezzo);
        if (!m_nastro->scrivi(m_pezzo))
            return false;
        resto -= letti;
    }
    const bool certo = resto == 0 && std::max(chi->modificato, chi->cambiato) < adesso - appenaCambiato;
    m_copiati.insert(fonte.nome, {*chi, impronta.result(), chi->lunghezza, certo});
    return true;
}

/// What was changed is read without the lock; if under it nobody turns out to have registered since it was
/// last held, that is the company of this moment. Only where somebody has, it is read under the lock.
bool Copiatore::cogliMomento() {
    std::optional<Registrato> prima;
    bool pronto = false;
    for (int tentativo = 0; tentativo <= tentativi; ++tentativo) {
        if (sottoBlocco(pronto, prima)) {
            m_copiati.removeIf([this](const auto& copiato) { return copiato.value().volta != m_volta; });
            return true;
        }
        if (!m_esito.errore.isEmpty())
            return false;
        if (tentativo > 0)
            QThread::msleep(passoTentativi);
        pronto = leggiCambiati();
        if (!avanza(99, 100))
            return false;
    }
    return fallisci(u"Altri programmi scrivono nell'archivio senza sosta: ripetere la copia più tardi."_s);
}

/// `pronto`: what was read is whole, and was begun when the lock had found the company as in `prima`, which
/// is brought up to date.
bool Copiatore::sottoBlocco(bool pronto, std::optional<Registrato>& prima) {
    bool letto = false;
    // Open no longer than needed: somebody may want the files alone, for a reorder.
    m_archivio.apri();
    {
        // Who may only read cannot have the lock of the bursts, but can keep others from it.
        std::optional<BloccoDiLettura> lettura;
        if (!QFileInfo(m_archivio.tot.percorso()).isWritable())
            lettura.emplace(m_archivio.tot, BloccoDiLettura::Orario::now() + attesaLettura);
        const Raffica raffica(m_archivio, {});
        QElapsedTimer tempo;
        tempo.start();
        raccontaRecuperi();
        if (raffica.riuscita() && !(lettura && lettura->occupato())) {
            const bool seconda = prima.has_value();
            const Registrato ora = registrato();
            letto = pronto && prima && prima->certo && ora == *prima;
            prima = ora;
            if (!letto && seconda)
                letto = leggiCambiati(QDeadlineTimer(bloccoMassimo));
        } else if (!raffica.riuscita() && raffica.esito() != EsitoRaffica::Occupata) {
            fallisci(
                u"L'archivio non si può prendere per la copia: serve il permesso di scrivere in %1."_s.arg(
                    m_archivio.reale(m_archivio.file(u""))));
        }
        m_esito.blocco = std::max(m_esito.blocco, tempo.elapsed());
    }
    m_archivio.chiudi();
    return letto && m_esito.errore.isEmpty();
}

Registrato Copiatore::registrato() const {
    Registrato adesso;
    const qint64 limite = QDateTime::currentMSecsSinceEpoch() * 1'000'000 - appenaCambiato;
    for (std::size_t i = 0; i < fileDiRaffica.size(); ++i) {
        const auto chi = FileLetto(m_archivio.reale(m_archivio.borlano(fileDiRaffica[i].estensione))).chi();
        adesso.certo = adesso.certo && (!chi || std::max(chi->modificato, chi->cambiato) < limite);
        adesso.file[i] = chi;
    }
    return adesso;
}

void Copiatore::raccontaRecuperi() {
    for (const Recupero& recupero : m_archivio.prendiRecuperi()) {
        m_esito.avvisi.append(u"È stata completata una registrazione rimasta a metà: "_s +
                              recupero.documento);
        for (const QString& record : recupero.lasciati)
            m_esito.avvisi.append(record +
                                  u" è stato cambiato da un altro programma, ed è rimasto com'era"_s);
    }
}

/// Reads what the copy lacks of the company, and marks what it has of it. False without an error when
/// somebody who does not know the lock wrote in between, and when the time is over.
bool Copiatore::leggiCambiati(QDeadlineTimer scadenza) {
    m_inMemoria.clear();
    ++m_volta;
    const auto file = elencaFonte(m_percorsi, m_codice, scadenza);
    if (!file)
        return false;
    std::vector<const FileFonte*> diRaffica;
    for (const FileFonte& fonte : *file) {
        const auto copiato = m_copiati.find(fonte.nome);
        if (!fonte.diRaffica && copiato != m_copiati.end() && copiato->certo &&
            copiato->identita == fonte.identita) {
            copiato->volta = m_volta;
            continue;
        }
        const auto letto = scadenza.hasExpired() ? std::nullopt : leggiInMemoria(fonte);
        if (!letto)
            return false;
        if (*letto && fonte.diRaffica)
            diRaffica.push_back(&fonte);
    }
    return std::ranges::all_of(diRaffica, [](const FileFonte* fonte) {
        return FileLetto(fonte->percorso).chi() == fonte->identita;
    });
}

/// False when the file is gone; nothing after a failure.
std::optional<bool> Copiatore::leggiInMemoria(const FileFonte& fonte) {
    if (!nomeCopiabile(fonte))
        return std::nullopt;
    FileLetto file(fonte.percorso);
    if (!file.aperto() && file.errore() == ENOENT)
        return false;
    InMemoria letto{{fonte.nome, 0, fonte.identita.modificato / 1'000'000'000}, {}};
    letto.bytes.reserve(static_cast<qsizetype>(fonte.identita.lunghezza));
    while (file.aperto() && file.leggi(m_pezzo, pezzoLetto) > 0)
        letto.bytes += m_pezzo;
    if (file.errore() != 0) {
        fallisci(u"%1 non si può leggere: %2."_s.arg(fonte.percorso, motivoErrore(file.errore())));
        return std::nullopt;
    }
    letto.voce.lunghezza = letto.bytes.size();
    m_inMemoria.push_back(std::move(letto));
    return true;
}

/// An entry of the same name further on in a tar archive stands for the one before.
bool Copiatore::scriviInMemoria() {
    for (const auto& [voce, bytes] : m_inMemoria) {
        if (!avanza(99, 100) || !m_nastro->inizia(voce) || !m_nastro->scrivi(bytes))
            return false;
        m_copiati.insert(
            voce.nome,
            {{}, QCryptographicHash::hash(bytes, QCryptographicHash::Blake2b_256), voce.lunghezza, true});
    }
    m_inMemoria.clear();
    return true;
}

bool Copiatore::scriviTesto(const QString& nome, const QByteArray& testo) {
    return m_nastro->inizia({nome, testo.size(), QDateTime::currentSecsSinceEpoch()}) &&
           m_nastro->scrivi(testo);
}

QByteArray Copiatore::impronte() const {
    QStringList nomi = m_copiati.keys();
    nomi.sort();
    QByteArray testo;
    for (const QString& nome : nomi)
        testo += m_copiati.value(nome).impronta.toHex() + "  " + nome.toUtf8() + '\n';
    return testo;
}

} // namespace

EsitoCopia creaCopia(const Percorsi& percorsi, int codice, const QString& cartella,
                     const Avanzamento& avanzamento) {
    return Copiatore(percorsi, codice, avanzamento).esegui(cartella);
}

} // namespace bor::copia
