#include "document/borftex.h"

#include "archive/contesto.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "document/articoli.h"
#include "document/avvisi.h"
#include "document/testorighe.h"

#include <algorithm>
#include <span>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

using Campo = Borftex::Campo;

/// The first row, from 1, that neither counts nor prints; 0 when all are in use.
int primaLibera(const TabellaRighe& righe) {
    const auto libera = [](const Riga& r) {
        return r.recart == 0 && r.codice.isEmpty() && r.descrizione.isEmpty() && r.quantita == 0.0 &&
               r.prezzo == 0.0;
    };
    const auto trovata = std::ranges::find_if(righe, libera);
    return trovata == righe.end() ? 0 : postoDi(righe, trovata) + 1;
}

/// Price and discounts of a sale go into the row; the price becomes one with VAT, or without it, as those of
/// the document are.
void mettiVendita(RigheMerce& righe, int n, const VenditaStorica& vendita, const Contesto& contesto) {
    // The price proposes a VAT code to a row that has none.
    righe.cambia(n, Campo::Prezzo, testoDecimale(vendita.riga.prezzo));
    const CodiceIva codice = codiceContato(righe.riga(n));
    if (vendita.conIva != righe.scorporo() && codice.tassato()) {
        const double conImposta = contesto.tabelle.aliquota(codice.numero()) + 100;
        const double prezzo =
            vendita.conIva ? vendita.riga.prezzo * 100 / conImposta : vendita.riga.prezzo * conImposta / 100;
        righe.cambia(n, Campo::Prezzo, testoDecimale(contesto.valuta().arrotondaprezzo(prezzo)));
    }
    righe.cambia(n, Campo::Sc1, QString::number(vendita.riga.sconto1));
    righe.cambia(n, Campo::Sc2, QString::number(vendita.riga.sconto2));
}

} // namespace

Borftex::Borftex(Contesto& contesto, Documento& documento)
    : m_contesto(contesto), m_documento(documento), m_righe(contesto, documento), m_appunti(perAppunti()),
      m_articoli(contesto) {}

void Borftex::attiva() {
    const Archivio& archivio = m_contesto.archivio;
    m_documento.cliente = archivio.cli.leggi(m_documento.recordcliente);
    if (!m_barcodeScelto)
        m_barcode = m_contesto.impostazioni.gnr.barcode != 0;
    m_righe.cambiaListino(m_documento.cliente.listino.text() == u"1" ? 2 : 1);
    m_articoli.dimentica();
    if (!m_barcode)
        m_articoli.apri();
    m_modificato = m_righe.prendi();
    scorri(1);
    m_lineafuoco = 0;
    m_campofuoco = Campo::Artic;
    m_listx.clear();
    vaiA(Campo::Artic, 0);
}

QString Borftex::testo(Cella cella) const {
    if (cella.campo == Campo::Artic && cella.linea == m_lineafuoco && m_digitato)
        return *m_digitato;
    return m_righe.testo(riga(cella.linea), cella.campo);
}

QString Borftex::avviso(Cella cella) const {
    return m_errata == cella ? u"Articolo non esistente"_s : QString();
}

std::optional<int> Borftex::listaIva() const {
    if (!m_listaIva)
        return std::nullopt;
    return std::clamp(m_righe.riga(rigaFuoco()).iva.numero(), 1, CodiceIva::ultimo) - 1;
}

bool Borftex::opzione(Opzione quale) const {
    switch (quale) {
    case Opzione::Listino1:
        return m_righe.listino() == 1;
    case Opzione::Listino2:
        return m_righe.listino() == 2;
    case Opzione::Scorporo:
        return m_righe.scorporo();
    case Opzione::Barcode:
        return m_barcode;
    }
    return false;
}

std::optional<Borftex::Cella> Borftex::prendiFuoco() {
    return std::exchange(m_fuoco, std::nullopt);
}

void Borftex::scorri(int prima) {
    m_finestra.scorri(prima);
    m_appunti.lascia();
    m_digitato.reset();
    m_errata.reset();
    m_ricerca.reset();
    m_listaIva = false;
}

void Borftex::cambiaOpzione(Opzione quale, bool accesa) {
    switch (quale) {
    case Opzione::Listino1:
        return m_righe.cambiaListino(1);
    case Opzione::Listino2:
        return m_righe.cambiaListino(2);
    case Opzione::Scorporo:
        modificato();
        return m_righe.cambiaScorporo(accesa);
    case Opzione::Barcode:
        return cambiaBarcode(accesa);
    }
}

void Borftex::cambiaBarcode(bool acceso) {
    m_barcode = acceso;
    m_barcodeScelto = true;
    m_articoli.chiudi();
    if (!acceso)
        m_articoli.apri();
    vaiA(Campo::Artic, m_lineafuoco);
}

AppuntiRighe::Form Borftex::perAppunti() {
    const auto perCodice = [this](const QString& codice) -> ArticoloTrovato {
        const Archivio& archivio = m_contesto.archivio;
        int recart = m_articoli.perCodice(codice);
        if (recart == 0 && m_barcode)
            recart = cercabarcode(archivio, codice);
        return {recart, testoAggiuntivo(archivio, recart)};
    };
    return {
        .righe = righeMerce,
        .fuoco = [this] { return rigaFuoco(); },
        // Whoever passes through the descriptions takes the rows their articles.
        .vaiA = [this](int riga) { vaiARiga(Campo::Artic, riga); },
        .testo =
            [this](int prima, int ultima) {
                const std::span righe(m_righe.tutte());
                return testoRighe(righe.subspan(postoDaZero(prima - 1), postoDaZero(ultima - prima + 1)));
            },
        .prova =
            [this, perCodice](int posto, const QString& testo) {
                RigheMerce prova = m_righe;
                return incollaMerce(prova, posto, testo, perCodice);
            },
        .metti =
            [this, perCodice](int posto, const QString& testo) {
                modificato();
                return incollaMerce(m_righe, posto, testo, perCodice);
            },
    };
}

DomandaStorico Borftex::storico() const {
    return {m_documento.recordcliente, m_righe.riga(rigaFuoco()).recart, m_documento.recordfattura};
}

void Borftex::prendi(const VenditaStorica& vendita) {
    modificato();
    mettiVendita(m_righe, rigaFuoco(), vendita, m_contesto);
    vaiA(Campo::Prezzo, m_lineafuoco);
}

void Borftex::pagina(int verso) {
    scorri(m_finestra.pagina(verso));
    vaiA(Campo::Artic, m_lineafuoco);
}

void Borftex::esegui(Comando comando) {
    switch (comando) {
    case Comando::Conferma:
        m_righe.riporta();
        return m_contesto.navigatore.mostra(Schermo::Borftea);
    case Comando::Indietro:
        if (!m_modificato || uscireSenzaRegistrare(m_contesto))
            m_contesto.navigatore.mostra(Schermo::Borftea);
        return;
    case Comando::InserisciRiga:
        modificato();
        m_righe.inserisci(rigaFuoco());
        return vaiA(Campo::Artic, m_lineafuoco);
    case Comando::EliminaRiga:
        modificato();
        m_righe.elimina(rigaFuoco());
        return vaiA(Campo::Artic, m_lineafuoco);
    case Comando::Riordina:
        modificato();
        m_righe.ordina();
        return vaiA(Campo::Artic, 0);
    case Comando::ApriLista:
        if (m_articoli.apri())
            vaiA(Campo::Artic, m_lineafuoco);
        return;
    case Comando::CercaDescrizione:
        return cercaDescrizione();
    case Comando::PaginaSu:
        return pagina(-1);
    case Comando::PaginaGiu:
        return pagina(1);
    case Comando::RigaSu:
        return muovi(-1);
    case Comando::RigaGiu:
        return muovi(1);
    case Comando::PrimaLibera:
        if (const int libera = primaLibera(m_righe.tutte()); libera > 0)
            vaiARiga(Campo::Artic, libera);
        return;
    case Comando::ChiudiIva:
        m_listaIva = false;
        return;
    }
}

} // namespace bor
