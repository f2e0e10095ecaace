#include "document/riscontrobozza.h"

#include "archive/contesto.h"
#include "common/date.h"
#include "document/filerighe.h"

#include <QFileInfo>

#include <cstring>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr float daAssegnare = -1.0F; ///< number of a lines file that the next save gives

template <class R>
bool stessiBytes(const R& a, const R& b) {
    static_assert(disposizioneDiFile<R>);
    return std::memcmp(&a, &b, sizeof(R)) == 0;
}

/// Older documents have no stamp, and no reorder finds them again by it.
bool stessoDocumento(const Fte& a, const Fte& b) {
    return a.stamp != 0.0 ? a.stamp == b.stamp
                          : b.stamp == 0.0 && a.numero == b.numero && a.datadoc == b.datadoc;
}

/// The record of the document now; 0 when the archive does not hold it.
int cerca(const Archivio& archivio, const Fte& cercato, int prima) {
    const int documenti = archivio.leggiTot(Conta::Fte).numero;
    if (prima <= documenti && stessoDocumento(cercato, archivio.fte.leggi(prima)))
        return prima;
    int trovato = 0;
    archivio.fte.scorri(1, documenti, [&](int n, const Fte& fte) {
        if (stessoDocumento(cercato, fte))
            trovato = n;
        return trovato == 0;
    });
    return trovato;
}

/// Another live document of this kind, number and year.
bool numeroUsato(const Archivio& archivio, const Documento& documento) {
    const QString numero = documento.estremi.numero.trimmed();
    const QString anno = pezzo(documento.estremi.data, postoAnno);
    bool usato = false;
    archivio.fte.scorri(1, archivio.leggiTot(Conta::Fte).numero, [&](int, const Fte& fte) {
        usato = fte.annullata != 1 && fte.tipo == documento.tipodocumento() &&
                puliscitesto(fte.numero.text()) == numero && fte.datadoc.text().left(4) == anno;
        return !usato;
    });
    return usato && !numero.isEmpty();
}

void riscontraNuovo(Documento& documento, const Contesto& contesto, QStringList& cambiato) {
    Fte& fte = documento.coppia.fte;
    fte.tipo = fte.tipo == 1 ? 1 : 0;
    if (fte.nfile != 0.0F)
        fte.nfile = daAssegnare;
    if (numeroUsato(contesto.archivio, documento))
        cambiato.append(
            u"Il numero %1 è già di un altro documento dell'anno: controllate che non sia questo, "
            u"già registrato."_s.arg(documento.estremi.numero.trimmed()));
}

void riscontraEsistente(Bozza& bozza, int record, const Contesto& contesto, QStringList& cambiato) {
    const Archivio& archivio = contesto.archivio;
    const CoppiaFte ora = archivio.leggi(record);
    if (ora.fte.annullata == 1)
        cambiato.append(u"Il documento è stato eliminato: registrandolo torna valido."_s);
    else if (!stessiBytes(ora, bozza.suFile))
        cambiato.append(u"Il documento registrato è cambiato dopo che è stato aperto: quello che è sullo "
                        u"schermo, se lo registrate, ne prende il posto."_s);
    Documento& documento = bozza.documento;
    documento.recordfattura = record;
    Fte& fte = documento.coppia.fte;
    fte.stamp = ora.fte.stamp;
    fte.tipo = ora.fte.tipo;
    fte.parcella = ora.fte.parcella;
    const bool conRighe =
        ora.fte.nfile > 0.0F && QFileInfo::exists(archivio.reale(percorsoRighe(archivio, ora.fte)));
    if (conRighe || fte.nfile != daAssegnare)
        fte.nfile = ora.fte.nfile;
}

} // namespace

QStringList riscontra(Bozza& bozza, const Contesto& contesto) {
    QStringList cambiato;
    Documento& documento = bozza.documento;
    const Archivio& archivio = contesto.archivio;
    if (documento.recordfattura > 0) {
        const int record = cerca(archivio, bozza.suFile.fte, documento.recordfattura);
        if (record > 0) {
            riscontraEsistente(bozza, record, contesto, cambiato);
        } else {
            documento.recordfattura = 0;
            cambiato.append(u"Il documento non si trova più nell'archivio: registrandolo diventa nuovo."_s);
        }
    }
    if (documento.recordfattura == 0)
        riscontraNuovo(documento, contesto, cambiato);
    const Cli cliente = archivio.cli.leggi(documento.recordcliente);
    if (documento.recordcliente > 0 && !stessiBytes(cliente, documento.cliente))
        cambiato.append(u"I dati del cliente sono cambiati nell'archivio: nel documento restano quelli di "
                        u"prima."_s);
    documento.cliente = cliente;
    return cambiato;
}

} // namespace bor
