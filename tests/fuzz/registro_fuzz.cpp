// An archive of hostile bytes and counts: the register shows, exports, sorts and reorders it without harm.
#include "register/borfte.h"
#include "support/azienda.h"

#include <QBuffer>
#include <QLoggingCategory>

#include <cstdint>

using namespace Qt::StringLiterals;

namespace {

/// Mostly counts near what the files hold, and the largest one.
std::int16_t conteggio(std::uint8_t byte) {
    return byte == 127 ? std::int16_t{32767} : static_cast<std::int8_t>(byte);
}

void guarda(bor::Borfte& registro) {
    for (int riga = -1; riga <= qMin(registro.righeGriglia(), 100); ++riga)
        for (int colonna = 0; colonna < bor::colonneElenco; ++colonna) {
            (void)registro.testo(riga, static_cast<bor::Colonna>(colonna));
            (void)registro.colore(riga, static_cast<bor::Colonna>(colonna));
        }
    QBuffer uscita;
    uscita.open(QIODevice::WriteOnly);
    (void)bor::scriviCsv(registro.tabella(), uscita);
    (void)bor::scriviJson(registro.tabella(), uscita);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    QLoggingCategory::setFilterRules(u"bor.*=false"_s);
    if (quanti < 3)
        return 0;
    // A short input, repeated, still makes some records, the last of them torn.
    QByteArray bytes(reinterpret_cast<const char*>(dati) + 2, static_cast<qsizetype>(quanti) - 2);
    bytes = bytes.repeated(4000 / bytes.size() + 1);

    const bor::AziendaDiProva azienda;
    for (const QString& estensione : {u"fte"_s, u"f2e"_s, u"cli"_s})
        azienda.scrivi(u"borlano."_s + estensione, bytes);
    bor::ContestoDiProva contesto(azienda);
    bor::Tot contatore{};
    contatore.numero = conteggio(dati[0]);
    contesto.archivio.scriviTot(bor::Conta::Fte, contatore);
    contatore.numero = conteggio(dati[1]);
    contesto.archivio.scriviTot(bor::Conta::Cli, contatore);

    bor::Documento documento;
    bor::Borfte registro(contesto.contesto, documento);
    registro.carica();
    guarda(registro);
    for (int colonna = 0; colonna < bor::colonneElenco; ++colonna)
        registro.ordina(static_cast<bor::Colonna>(colonna));
    registro.opzioni().cambiaFiltro(bor::FiltroFatture::SoloPa);
    guarda(registro);
    registro.opzioni().cambiaSelvis(bor::Selvis::Ultime1000);
    registro.apertura().cella(0, bor::Colonna::Numero);
    registro.apertura().cella(0, bor::Colonna::NomePdf);
    for (const auto tipo :
         {bor::TipoRiordino::PerNumero, bor::TipoRiordino::PerData, bor::TipoRiordino::PerProtocollo})
        registro.riordino(tipo);
    guarda(registro);
    return 0;
}
