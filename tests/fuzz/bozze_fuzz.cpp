// Drafts of hostile bytes, with a checksum that is right: whatever they hold, the document that comes of them
// can be shown, and a save of it writes nothing but its own record and lines file.
#include "document/bozza.h"
#include "document/righeinsospeso.h"
#include "document/riscontrobozza.h"
#include "document/salvadoc.h"
#include "document/totali.h"
#include "support/azienda.h"
#include "support/registrazioni_finte.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLoggingCategory>

#include <cstdint>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

QByteArray conImpronta(const char* marca, const QByteArray& corpo) {
    return marca + QCryptographicHash::hash(corpo, QCryptographicHash::Sha256) + corpo;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    using namespace bor;
    QLoggingCategory::setFilterRules(u"bor.*=false"_s);
    static AziendaDiProva azienda;
    static ContestoDiProva prova(azienda);
    static const int altrui = azienda.documento(documentoDi(azienda.cliente(u"Rossi"_s), u"1"_s, 100, 22));
    static const QByteArray suo = azienda.leggi(u"borlano.fte"_s);

    const QByteArray bytes(reinterpret_cast<const char*>(dati), static_cast<qsizetype>(quanti));
    (void)decodificaBozza(bytes);
    (void)decodificaRighe(conImpronta("BORRIG01", bytes));
    auto bozza = decodificaBozza(conImpronta("BORBOZ01", bytes));
    if (!bozza)
        return 0;
    if (decodificaBozza(codifica(*bozza))->documento.estremi.numero != bozza->documento.estremi.numero)
        std::abort();
    (void)bozza->scritta.toString(u"HH:mm dd/MM/yyyy"_s);
    (void)prova.contesto.valuta().importotesto(totali(bozza->documento).totaledoc);
    (void)riscontra(*bozza, prova.contesto);
    const int record = bozza->documento.recordfattura;
    if (record != 0 && record != altrui)
        std::abort();
    RegistrazioniFinte registrazioni;
    RigheInSospeso sospese;
    (void)salvadoc(bozza->documento, prova.contesto, registrazioni, sospese);
    if (record == 0 && azienda.leggi(u"borlano.fte"_s).first(suo.size()) != suo)
        std::abort();
    Tot contatore = prova.archivio.leggiTot(Conta::Fte);
    contatore.numero = 1;
    prova.archivio.scriviTot(Conta::Fte, contatore);
    prova.archivio.scrivi(1, documentoDi(1, u"1"_s, 100, 22));
    return 0;
}
