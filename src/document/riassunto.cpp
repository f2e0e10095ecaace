#include "document/riassunto.h"

#include "archive/contesto.h"
#include "document/avvisi.h"
#include "document/totali.h"
#include "document/totaliparcella.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString nome(const Documento& documento) {
    QString testo = nomeDocumento(documento);
    testo[0] = testo[0].toUpper();
    return documento.fatturaPa() ? testo + u" (PA)"_s : testo;
}

QString netto(const Documento& documento, const Contesto& contesto) {
    const double importo = documento.parcella() ? totaliParcella(documento.dddp, documento.testata.pratica,
                                                                 contesto.tabelle, contesto.valuta())
                                                      .nettodocumento
                                                : totali(documento).nettodoc;
    // Nothing stands to be paid while the lines of a new document are not confirmed: their own totals count.
    const QString testo = contesto.valuta().importotesto(importo);
    return testo.isEmpty() ? QString() : u"netto a pagare "_s + testo;
}

} // namespace

QString riassunto(const Documento& documento, const Contesto& contesto) {
    const SedeTesti& sede = documento.testata.cliente.sede;
    QStringList nominativo{sede.ragione1, sede.citta};
    nominativo.removeAll(QString());
    QStringList parti{nome(documento), nominativo.join(u", "_s), netto(documento, contesto)};
    parti.removeAll(QString());
    return parti.join(u" - "_s);
}

} // namespace bor
