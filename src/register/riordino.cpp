#include "register/riordino.h"

#include "common/numeri.h"
#include "common/posti.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>

namespace bor {

namespace {

constexpr int documentiPerBlocco = 512;
constexpr qsizetype lunghezzaChiave = 10;
constexpr qsizetype lunghezzaRecord = 7;

/// The number under which the suite's operators know an error of the system.
int numeroErrore() {
    constexpr int senzaFile = 53;
    constexpr int guasto = 57;
    constexpr int discoPieno = 61;
    constexpr int negato = 70;
    switch (errno) {
    case EAGAIN:
    case EACCES:
    case EPERM:
    case EBUSY:
        return negato;
    case ENOSPC:
    case EDQUOT:
        return discoPieno;
    case ENOENT:
        return senzaFile;
    default:
        return guasto;
    }
}

QByteArray chiaveNumero(double numero) {
    return zeriDavanti(testoDecimale(numero), lunghezzaChiave).toLatin1();
}

/// The entries of the live documents, sorted, and how many are deleted.
struct Elenco {
    std::vector<QByteArray> voci;
    int eliminati = 0;
};

Elenco leggiElenco(Raffica& raffica, TipoRiordino tipo, int numero, const Avanzamento& avanzamento) {
    Elenco elenco;
    elenco.voci.reserve(postoDaZero(std::max(numero, 0)));
    raffica.scorri(raffica.archivio().fte, 1, numero, [&](int n, const Fte& fte) {
        if (n % documentiPerBlocco == 0)
            avanzamento(n);
        if (fte.annullata == 1)
            ++elenco.eliminati;
        else
            elenco.voci.push_back(voceRiordino(tipo, fte, n));
        return true;
    });
    std::ranges::sort(elenco.voci);
    return elenco;
}

/// Copies the two files and takes them for this program alone. When that fails they stay closed, and whatever
/// the operator begins next says that it cannot read them, until the program is started again.
bool duplica(Archivio& archivio) {
    const QString fte = archivio.fte.percorso();
    const QString f2e = archivio.f2e.percorso();
    archivio.fte.chiudi();
    archivio.f2e.chiudi();
    return archivio.disco().copia(fte, archivio.reale(archivio.borlano(u"$$$"))) &&
           archivio.disco().copia(f2e, archivio.reale(archivio.borlano(u"$2$"))) &&
           archivio.fte.apri(fte, Apertura::Esclusiva) && archivio.f2e.apri(f2e, Apertura::Esclusiva);
}

/// All records of a copy, read at once; nothing when they could not be read.
template <class R>
std::optional<std::vector<R>> tutti(const RecordFile<R>& copia) {
    std::vector<R> records(
        postoDaZero(std::min<qint64>(copia.lunghezza() / qint64{sizeof(R)} + 1, Archivio::massimo + 1)));
    return copia.leggiBlocco(1, records) < 0 ? std::nullopt : std::optional(std::move(records));
}

template <class R>
R preso(const std::vector<R>& records, int n) {
    return n >= 1 && n <= quantiIn(records) ? elemento(records, n - 1) : vuoto<R>();
}

/// Plans the record where the order changes it; the others stay as they are.
template <class R>
void prevedi(Raffica& raffica, RecordFile<R>& file, const std::vector<R>& vecchie, int n, const R& record) {
    const R vecchia = preso(vecchie, n);
    if (std::memcmp(&vecchia, &record, sizeof(R)) != 0)
        raffica.scrivi(file, n, record);
}

bool riscrivi(Raffica& raffica, const RecordFile<Fte>& copiaFte, const RecordFile<F2e>& copiaF2e,
              const std::vector<QByteArray>& voci, const Avanzamento& avanzamento) {
    const auto vecchieFte = tutti(copiaFte);
    const auto vecchieF2e = tutti(copiaF2e);
    if (!vecchieFte || !vecchieF2e)
        return false;
    Archivio& archivio = raffica.archivio();
    for (int i = 0; i < quantiIn(voci); ++i) {
        const int n = elemento(voci, i).last(lunghezzaRecord).toInt();
        F2e coda = preso(*vecchieF2e, n);
        if (coda.marca != F2e::marcaValida)
            coda = f2eVuoto();
        prevedi(raffica, archivio.fte, *vecchieFte, i + 1, preso(*vecchieFte, n));
        prevedi(raffica, archivio.f2e, *vecchieF2e, i + 1, coda);
        if (i % documentiPerBlocco == 0)
            avanzamento(i);
    }
    return raffica.esegui() == EsitoRaffica::Riuscita;
}

} // namespace

QByteArray voceRiordino(TipoRiordino tipo, const Fte& fte, int record) {
    QByteArray chiave;
    switch (tipo) {
    case TipoRiordino::PerNumero:
        chiave = chiaveNumero(valore(fte.numero.text()));
        break;
    case TipoRiordino::PerData:
        chiave = fte.datareg.raw().toByteArray().leftJustified(lunghezzaChiave);
        break;
    case TipoRiordino::PerProtocollo:
        chiave = chiaveNumero(fte.protocollo);
        break;
    }
    return chiave + QByteArray::number(record).rightJustified(lunghezzaRecord, '0');
}

EsitoRiordino riordina(Archivio& archivio, TipoRiordino tipo, const Avanzamento& avanzamento) {
    errno = 0;
    Raffica raffica(archivio, QStringLiteral("riordino dell'archivio"));
    Tot contatore = raffica.leggiTot(Conta::Fte);
    EsitoRiordino esito{.documenti = contatore.numero};
    const auto fallito = [&](FaseRiordino fase) {
        esito.fase = fase;
        esito.errore = numeroErrore();
        esito.occupato = raffica.esito() == EsitoRaffica::Occupata;
        return esito;
    };
    const Elenco elenco = leggiElenco(raffica, tipo, contatore.numero, avanzamento);
    // Files that another computer holds read as blank records: put in order, they would hide what they are.
    if (!raffica.riuscita())
        return fallito(FaseRiordino::Caricamento);
    if (!duplica(archivio))
        return fallito(FaseRiordino::Duplicazione);
    RecordFile<Fte> copiaFte(archivio.disco());
    RecordFile<F2e> copiaF2e(archivio.disco());
    if (!copiaFte.apri(archivio.reale(archivio.borlano(u"$$$")), Apertura::Esclusiva) ||
        !copiaF2e.apri(archivio.reale(archivio.borlano(u"$2$")), Apertura::Esclusiva))
        return fallito(FaseRiordino::Apertura);
    contatore.numero = breve(contatore.numero - elenco.eliminati);
    raffica.scriviTot(Conta::Fte, contatore);
    if (!riscrivi(raffica, copiaFte, copiaF2e, elenco.voci, avanzamento))
        return fallito(FaseRiordino::Salvataggio);
    esito.documenti = contatore.numero;
    return esito;
}

} // namespace bor
