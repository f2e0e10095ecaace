// A recovery log of hostile bytes: whatever it names, only records of its seven files are ever written, and
// none of these grows beyond the last record number.
#include "archive/raffica.h"
#include "support/azienda.h"
#include "support/disco_guasto.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLoggingCategory>

#include <cstdint>
#include <cstdlib>

using namespace bor;
using namespace Qt::StringLiterals;

namespace {

const QByteArray altrui = "not a record of the log\r\n";

void pretendi(bool vero) {
    if (!vero)
        std::abort();
}

QString nome(const FileDiRaffica& file) {
    return u"borlano."_s + file.estensione.toString();
}

QStringList nomi(const AziendaDiProva& azienda) {
    return QDir(azienda.percorso({})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

/// Few bytes in each file, so that places before and beyond its end are both near.
void prepara(const AziendaDiProva& azienda) {
    for (const FileDiRaffica& file : fileDiRaffica)
        azienda.scrivi(nome(file), QByteArray(3 * file.lunghezza + 1, '\0'));
    for (const QString& altro : {u"borlano.cli"_s, u"f1"_s})
        azienda.scrivi(altro, altrui);
}

void confronta(const AziendaDiProva& azienda, const QStringList& prima) {
    pretendi(nomi(azienda) == prima);
    for (const FileDiRaffica& file : fileDiRaffica)
        pretendi(QFileInfo(azienda.percorso(nome(file))).size() <= Archivio::massimo * file.lunghezza);
    for (const QString& altro : {u"borlano.cli"_s, u"f1"_s})
        pretendi(azienda.leggi(altro) == altrui);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    QLoggingCategory::setFilterRules(u"bor.*=false"_s);
    static const AziendaDiProva azienda;
    if (quanti < 1)
        return 0;
    QByteArray bytes(reinterpret_cast<const char*>(dati) + 1, static_cast<qsizetype>(quanti) - 1);
    // Mostly with a good checksum: what lies behind a bad one is never looked at.
    if (dati[0] != 0)
        bytes = "BORRIP01" + QCryptographicHash::hash(bytes, QCryptographicHash::Blake2b_256) + bytes;
    const auto diario = decodifica(bytes);
    if (!diario)
        return 0; // a log that is not whole names nothing
    const auto ancora = decodifica(codifica(*diario));
    pretendi(ancora && ancora->documento == diario->documento && ancora->voci.size() == diario->voci.size());

    prepara(azienda);
    azienda.scrivi(u"borlano.rip"_s, bytes);
    DiscoGuasto disco; // leaves out the flushes
    Archivio archivio(azienda.percorsi(), disco, 7);
    archivio.apri();
    const QStringList prima = nomi(azienda);
    const auto esito = recupera(archivio);
    pretendi(esito == EsitoRaffica::Riuscita);
    confronta(azienda, prima);
    pretendi(!decodifica(azienda.leggi(u"borlano.rip"_s)));
    return 0;
}
