#include "document/borftex.h"

#include "archive/contesto.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "document/avvisi.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString vocetassata(int riga, const RigaAliquota& r) {
    QString voce = CodiceIva(riga).testo() + u" Iva "_s + r.aliquota.trimmed() + u'%';
    if (valore(r.ritenuta) != 0.0)
        voce += u" - Rit.Acconto "_s + r.ritenuta.trimmed() + u'%';
    return voce;
}

/// The first row, from 1, that neither counts nor prints; 0 when all are in use.
int primaLibera(const TabellaRighe& righe) {
    const auto libera = [](const Riga& r) {
        return r.recart == 0 && r.codice.isEmpty() && r.descrizione.isEmpty() && r.quantita == 0.0 &&
               r.prezzo == 0.0;
    };
    const auto trovata = std::ranges::find_if(righe, libera);
    return trovata == righe.end() ? 0 : postoDi(righe, trovata) + 1;
}

} // namespace

Borftex::Borftex(Contesto& contesto, Documento& documento)
    : m_contesto(contesto), m_documento(documento), m_righe(contesto, documento), m_articoli(contesto) {}

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

QString Borftex::titolo() const {
    return m_documento.notaCredito() ? u"Ristampa nota credito"_s : u"Ristampa fattura"_s;
}

QString Borftex::numfat() const {
    return testoDecimale(valore(m_documento.estremi.numero.trimmed()));
}

QString Borftex::link() const {
    const double nfile = m_documento.coppia.fte.nfile;
    return nfile > 0 ? u"Link:"_s + testoDecimale(nfile) : QString();
}

QString Borftex::testo(Cella cella) const {
    if (cella.campo == Campo::Artic && cella.linea == m_lineafuoco && m_digitato)
        return *m_digitato;
    return m_righe.testo(riga(cella.linea), cella.campo);
}

QString Borftex::avviso(Cella cella) const {
    return m_errata == cella ? u"Articolo non esistente"_s : QString();
}

QString Borftex::totale(Totale quale) const {
    const TotaliRighe& totali = m_righe.totali();
    const Valuta valuta = m_contesto.valuta();
    const auto importo = [&valuta](double x) {
        return u' ' + (valuta.euro ? testoItaliano(x, 2) : valuta.importotesto(x));
    };
    switch (quale) {
    case Totale::Imponibile:
        return importo(totali.totimp);
    case Totale::Complessivo:
        return importo(totali.totale);
    case Totale::Pezzi:
        return u' ' + testoDecimale(totali.pezzi);
    case Totale::AliquotaRitenuta:
        return testoDecimale(totali.aliquotarit);
    case Totale::Ritenuta:
        return testoDecimale(totali.importorit);
    }
    return {};
}

QStringList Borftex::vociIva() const {
    const Tabelle& tabelle = m_contesto.tabelle;
    QStringList voci;
    for (int i = 1; i <= righeIva; ++i)
        voci.append(vocetassata(i, tabelle.aliquote[i]));
    for (int i = 1; i <= righeIva; ++i)
        voci.append(CodiceIva::diEsente(i).testo() + u' ' + tabelle.esenzioni[i].descrizione());
    return voci;
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
    m_ancora.reset();
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

void Borftex::apriLista() {
    if (m_articoli.apri())
        vaiA(Campo::Artic, m_lineafuoco);
}

void Borftex::pagina(int verso) {
    scorri(m_finestra.pagina(verso));
    vaiA(Campo::Artic, m_lineafuoco);
}

void Borftex::indietro() {
    if (!m_modificato || uscireSenzaRegistrare(m_contesto))
        m_contesto.navigatore.mostra(Schermo::Borftea);
}

void Borftex::esegui(Comando comando) {
    switch (comando) {
    case Comando::Conferma:
        m_righe.riporta();
        return m_contesto.navigatore.mostra(Schermo::Borftea);
    case Comando::Indietro:
        return indietro();
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
        return apriLista();
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
