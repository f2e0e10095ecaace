#include "einvoice/filefpa.h"

#include "archive/archivio.h"

#include <cerrno>

namespace bor {

namespace {

QString percorsoDi(const Archivio& archivio, QStringView nome) {
    return archivio.reale(archivio.file(nome));
}

} // namespace

LetturaFpa leggiFpa(const Archivio& archivio, QStringView nome, Fpa& fpa) {
    RecordFile<Fpa> file(archivio.disco());
    if (!file.apri(percorsoDi(archivio, nome), Apertura::SolaLettura))
        return errno == ENOENT ? LetturaFpa::Assente : LetturaFpa::Illeggibile;
    return file.leggi(1, fpa) == EsitoLettura::Guasta ? LetturaFpa::Illeggibile : LetturaFpa::Letta;
}

bool scriviFpa(const Archivio& archivio, QStringView nome, const Fpa& fpa) {
    return archivio.disco().scriviFile(percorsoDi(archivio, nome),
                                       {reinterpret_cast<const char*>(&fpa), qsizetype{sizeof fpa}});
}

bool riscriviFpa(const Archivio& archivio, QStringView nome) {
    Fpa fpa = vuoto<Fpa>();
    if (leggiFpa(archivio, nome, fpa) != LetturaFpa::Letta)
        return false;
    RecordFile<Fpa> file(archivio.disco());
    return file.apri(percorsoDi(archivio, nome)) && file.scrivi(1, fpa);
}

} // namespace bor
