#include "lotto/apertura.h"

#include "archive/contesto.h"
#include "document/apridoc.h"
#include "document/filerighe.h"
#include "lotto/candidati.h"
#include "lotto/lettura.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// What keeps the document from being the one that was chosen; empty for nothing.
QString mancanza(const Archivio& archivio, const Identita& scelto, Fte& fte) {
    const EsitoLettura letta = archivio.fte.leggi(scelto.record, fte);
    if (letta == EsitoLettura::Guasta)
        return motivoIlleggibile;
    if (letta == EsitoLettura::Manca || scelto.record > archivio.leggiTot(Conta::Fte).numero)
        return motivoSparito;
    const Identita suFile = identitaDi(scelto.record, fte);
    if (!stesso(scelto, suFile))
        return nonPiuLui(suFile);
    return fte.annullata == 1 ? motivoEliminato : QString();
}

bool vuoteLeRighe(const Documento& documento) {
    return std::ranges::all_of(documento.ddd, [](const Riga& riga) { return riga == Riga(); }) &&
           std::ranges::all_of(documento.dddp, [](const Rigap& riga) { return riga == Rigap(); });
}

} // namespace

Aperto apriScelto(const Contesto& contesto, RigheInSospeso& sospese, const Identita& scelto) {
    Archivio& archivio = contesto.archivio;
    const BloccoLettura blocco(archivio);
    if (blocco.occupato())
        return {.documento = {}, .motivo = {}, .occupato = true};
    Fte fte = vuoto<Fte>();
    if (const QString motivo = mancanza(archivio, scelto, fte); !motivo.isEmpty())
        return {.documento = {}, .motivo = motivo};
    Aperto aperto{.documento = documentoEsistente(contesto, scelto.record, sospese), .motivo = {}};
    if (!aperto.documento) {
        aperto.motivo =
            u"il file \"%1\" non si può leggere"_s.arg(QDir::toNativeSeparators(archivio.disco().nonLetto()));
    } else if (fte.nfile > 0.0F && vuoteLeRighe(*aperto.documento) && !righeSuFile(archivio, fte)) {
        aperto.documento.reset();
        aperto.motivo = u"le sue righe non sono su file: aprirlo e salvarlo"_s;
    }
    return aperto;
}

} // namespace bor
