// Page templates, layouts and lines files of hostile bytes: a print of them comes to an end, with whatever
// can be drawn.
#include "document/filerighe.h"
#include "document/righeinsospeso.h"
#include "output/stampafattura.h"
#include "support/azienda.h"
#include "support/stampante_finta.h"

#include <QLoggingCategory>

#include <cstdint>

using namespace bor;
using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    static const AziendaDiProva azienda;
    static ContestoDiProva prova(azienda);
    QLoggingCategory::setFilterRules(u"bor.*=false"_s);
    const QByteArray bytes(reinterpret_cast<const char*>(dati), static_cast<qsizetype>(quanti));
    // The first byte chooses which file is the hostile one.
    static constexpr std::array nomi = {u"borlano.lkf", u"borlano.lyf", u"f1", u"p1", u"borlano.pdf"};
    const std::size_t quale = bytes.isEmpty() ? 0 : static_cast<std::uint8_t>(bytes[0]) % nomi.size();
    azienda.scrivi(QString::fromUtf16(nomi[quale]), bytes.mid(1));

    Documento documento;
    documento.coppia.fte.nfile = 1.0F;
    documento.coppia.fte.parcella = quale == 3 ? 1 : 0;
    documento.ddd[0].descrizione = u"Vite"_s;
    RigheInSospeso sospese;
    leggedoc(documento, prova.archivio, sospese);
    StampanteFinta stampante;
    (void)stampaDocumento(documento, prova.contesto, stampante);
    return 0;
}
