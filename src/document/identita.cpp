#include "document/identita.h"

#include "common/date.h"
#include "common/testo.h"
#include "document/documento.h"

namespace bor {

Identita identitaDi(int record, const Fte& fte) {
    return {record, fte.numero, fte.datadoc, fte.cliente, fte.stamp, fte.nfile};
}

bool stesso(const Identita& inteso, const Identita& suFile) {
    if (inteso.numero.bytes != suFile.numero.bytes || inteso.datadoc.bytes != suFile.datadoc.bytes ||
        inteso.cliente != suFile.cliente)
        return false;
    if (inteso.stamp != 0.0)
        return inteso.stamp == suFile.stamp;
    return inteso.nfile <= 0.0F || inteso.nfile == suFile.nfile;
}

QString numeroEData(const Identita& documento) {
    return QStringLiteral("n. %1 del %2")
        .arg(puliscitesto(documento.numero.text()), dataDaAnnoMeseGiorno(documento.datadoc.text()));
}

DocumentoPosta perPosta(const Documento& documento) {
    return {documento.estremi.numero.trimmed(), documento.estremi.data, documento.coppia.fte.stamp};
}

} // namespace bor
