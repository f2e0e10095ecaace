#include "register/riordino.h"

#include "common/numeri.h"

#include <algorithm>
#include <cerrno>

namespace bor {

namespace {

constexpr int documentiPerBlocco = 512;
constexpr qsizetype lunghezzaChiave = 10;
constexpr qsizetype lunghezzaRecord = 7;

/// The number under which the suite's operators know an error of the system.
int numeroErrore() {
    switch (errno) {
    case EAGAIN:
    case EACCES:
    case EPERM:
    case EBUSY:
        return 70;
    case ENOSPC:
    case EDQUOT:
        return 61;
    case ENOENT:
        return 53;
    default:
        return 57;
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

Elenco leggiElenco(const Archivio& archivio, TipoRiordino tipo, int numero, const Avanzamento& avanzamento) {
    Elenco elenco;
    elenco.voci.reserve(static_cast<std::size_t>(std::max(numero, 0)));
    archivio.fte.scorri(1, numero, [&](int n, const Fte& fte) {
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

/// Copies the two files and takes them for this program alone.
bool duplica(Archivio& archivio) {
    const QString fte = archivio.fte.percorso();
    const QString f2e = archivio.f2e.percorso();
    archivio.fte.chiudi();
    archivio.f2e.chiudi();
    return archivio.disco().copia(fte, archivio.reale(archivio.borlano(u"$$$"))) &&
           archivio.disco().copia(f2e, archivio.reale(archivio.borlano(u"$2$"))) &&
           archivio.fte.apri(fte, Apertura::Esclusiva) && archivio.f2e.apri(f2e, Apertura::Esclusiva);
}

/// All records of a copy, read at once.
template <class R>
std::vector<R> tutti(const RecordFile<R>& copia) {
    std::vector<R> records(static_cast<std::size_t>(
        std::min<qint64>(copia.lunghezza() / qint64{sizeof(R)} + 1, Archivio::massimo + 1)));
    copia.leggiBlocco(1, records);
    return records;
}

template <class R>
R preso(const std::vector<R>& records, int n) {
    const auto i = static_cast<std::size_t>(n - 1);
    return i < records.size() ? records[i] : vuoto<R>();
}

template <class R>
bool scriviBlocco(RecordFile<R>& file, int primo, const std::vector<R>& records) {
    return file.scriviBytes(qint64{primo - 1} * qint64{sizeof(R)}, std::as_bytes(std::span(records)));
}

bool riscrivi(Archivio& archivio, const RecordFile<Fte>& copiaFte, const RecordFile<F2e>& copiaF2e,
              const std::vector<QByteArray>& voci, const Avanzamento& avanzamento) {
    const std::vector<Fte> vecchieFte = tutti(copiaFte);
    const std::vector<F2e> vecchieF2e = tutti(copiaF2e);
    if (copiaFte.erroreLettura() || copiaF2e.erroreLettura())
        return false;
    std::vector<Fte> teste;
    std::vector<F2e> code;
    for (std::size_t i = 0; i < voci.size();) {
        const int primo = static_cast<int>(i) + 1;
        teste.clear();
        code.clear();
        for (; i < voci.size() && std::ssize(teste) < documentiPerBlocco; ++i) {
            const int n = voci[i].last(lunghezzaRecord).toInt();
            teste.push_back(preso(vecchieFte, n));
            code.push_back(preso(vecchieF2e, n));
            if (code.back().marca != F2e::marcaValida)
                inizializza2(code.back());
        }
        if (!scriviBlocco(archivio.fte, primo, teste) || !scriviBlocco(archivio.f2e, primo, code))
            return false;
        avanzamento(static_cast<int>(i));
    }
    return true;
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

EsitoRiordino riordina(Archivio& archivio, TipoRiordino tipo, Tot& contatore,
                       const Avanzamento& avanzamento) {
    const Elenco elenco = leggiElenco(archivio, tipo, contatore.numero, avanzamento);
    contatore.numero = static_cast<std::int16_t>(contatore.numero - elenco.eliminati);
    errno = 0;
    // Files that another computer holds read as blank records: put in order, they would hide what they are.
    if (!archivio.scriviTot(Conta::Fte, contatore) || archivio.fte.erroreLettura())
        return {FaseRiordino::Caricamento, numeroErrore()};
    if (!duplica(archivio))
        return {FaseRiordino::Duplicazione, numeroErrore()};
    RecordFile<Fte> copiaFte(archivio.disco());
    RecordFile<F2e> copiaF2e(archivio.disco());
    if (!copiaFte.apri(archivio.reale(archivio.borlano(u"$$$")), Apertura::Esclusiva) ||
        !copiaF2e.apri(archivio.reale(archivio.borlano(u"$2$")), Apertura::Esclusiva))
        return {FaseRiordino::Apertura, numeroErrore()};
    if (!riscrivi(archivio, copiaFte, copiaF2e, elenco.voci, avanzamento))
        return {FaseRiordino::Salvataggio, numeroErrore()};
    return {};
}

} // namespace bor
