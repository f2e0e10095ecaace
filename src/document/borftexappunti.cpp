// What goes into the goods lines from elsewhere: rows of a text, a sale of before; and rows that are copied
// out.
#include "archive/contesto.h"
#include "document/borftex.h"
#include "document/testorighe.h"

#include <algorithm>
#include <span>

namespace bor {

/// In the first box of the rows: whoever passes through the descriptions takes the rows their articles.
void Borftex::scegli(int verso) {
    const int ancora = m_ancora.value_or(rigaFuoco());
    const int vicina = std::clamp(rigaFuoco() + verso, 1, righeMerce);
    vaiARiga(Campo::Artic, vicina);
    m_ancora = ancora;
}

bool Borftex::scelta(int linea) const {
    if (!m_ancora)
        return false;
    const auto [prima, ultima] = std::minmax({*m_ancora, rigaFuoco()});
    return riga(linea) >= prima && riga(linea) <= ultima;
}

QString Borftex::copia() const {
    const auto [prima, ultima] = std::minmax({m_ancora.value_or(rigaFuoco()), rigaFuoco()});
    return testoRighe(
        std::span(m_righe.tutte()).subspan(postoDaZero(prima - 1), postoDaZero(ultima - prima + 1)));
}

TrovaArticolo Borftex::perCodice() {
    return [this](const QString& codice) {
        const int recart = m_articoli.perCodice(codice);
        return recart == 0 && m_barcode ? cercabarcode(m_contesto.archivio, codice) : recart;
    };
}

Incollate Borftex::provaIncolla(const QString& testo) {
    RigheMerce prova = m_righe;
    return incollaMerce(prova, rigaFuoco(), testo, perCodice());
}

void Borftex::incolla(const QString& testo) {
    modificato();
    const int posto = rigaFuoco();
    const int inserite = incollaMerce(m_righe, posto, testo, perCodice()).inserite;
    vaiARiga(Campo::Artic, std::min(posto + inserite, righeMerce));
}

DomandaStorico Borftex::storico() const {
    return {m_documento.recordcliente, m_righe.riga(rigaFuoco()).recart, m_documento.recordfattura};
}

void Borftex::prendi(const VenditaStorica& vendita) {
    modificato();
    m_righe.prendi(rigaFuoco(), vendita.riga, vendita.conIva);
    vaiA(Campo::Prezzo, m_lineafuoco);
}

} // namespace bor
