#include "document/custodebozze.h"

#include "archive/contesto.h"
#include "common/numeri.h"
#include "document/borftea.h"
#include "document/borftek.h"
#include "document/borftem.h"
#include "document/borftex.h"
#include "document/riscontrobozza.h"
#include "document/totali.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

const QString finaleBozza = u".bozza"_s;
constexpr int bozzeMassime = 99;

bool conDocumento(Schermo schermo) {
    return schermo != Schermo::Borfte && schermo != Schermo::Borftec && schermo != Schermo::Scadenzario &&
           schermo != Schermo::DatiMensili;
}

bool testata(Schermo schermo) {
    return schermo == Schermo::Borftem || schermo == Schermo::Borsel;
}

QString genere(const Documento& documento) {
    if (documento.parcella())
        return u"Parcella"_s;
    return documento.notaCredito() ? u"Nota di credito"_s : u"Fattura"_s;
}

QString descrizione(const Bozza& bozza, const Valuta& valuta) {
    const Documento& d = bozza.documento;
    const QString numero = d.estremi.numero.trimmed();
    const SedeTesti& cliente = d.testata.cliente.sede;
    QStringList parti{genere(d) + (numero.isEmpty() ? u" ancora senza numero"_s : u" n. "_s + numero),
                      cliente.ragione1.isEmpty() ? u"senza cliente"_s
                                                 : (cliente.ragione1 + u' ' + cliente.ragione2).trimmed()};
    // Lines that nobody confirmed are in no total yet.
    if (const QString totale = valuta.importotesto(totali(d).totaledoc); !totale.isEmpty())
        parti << u"totale "_s + totale;
    return parti.join(u", "_s);
}

} // namespace

void NavigatoreConBozze::mostra(Schermo schermo) {
    if (m_custode)
        m_custode->prima(schermo);
    m_vero.mostra(schermo);
    if (m_custode)
        m_custode->dopo(schermo);
}

CustodeBozze::CustodeBozze(Contesto& contesto, Documento& documento, Forme forme, const QString& cartella)
    : m_contesto(contesto), m_documento(documento), m_forme(forme), m_cartella(cartella) {}

Bozza CustodeBozze::bozza() const {
    Bozza bozza;
    bozza.documento = m_documento;
    bozza.suFile = m_suFile;
    if (testata(m_schermo)) {
        bozza.inTestata = !m_contesto.sessione.documentoletto;
        // The head form shows a customer that becomes the document's when the operator goes on.
        const Borftem& form = m_forme.borftem;
        if (form.recordCorrente() > 0 && !form.clienteEliminato())
            bozza.documento.recordcliente = form.recordCorrente();
    }
    if (m_schermo == Schermo::Borftex) {
        const RigheMerce& righe = m_forme.borftex.righe();
        bozza.righe = righe.tutte();
        bozza.documento.scorporo = righe.scorporo();
    }
    if (m_schermo == Schermo::Borftek)
        bozza.righep = m_forme.borftek.righe();
    return bozza;
}

void CustodeBozze::conserva() {
    if (!m_base)
        return;
    const QByteArray ora = contenuto();
    if (ora == m_scritta || (m_scritta.isEmpty() && ora == *m_base) || !prendiPosto())
        return;
    Bozza intera = bozza();
    intera.scritta = m_contesto.orologio.adesso();
    if (m_cartella.scrivi(m_nome, codifica(intera)))
        m_scritta = ora;
}

bool CustodeBozze::prendiPosto() {
    for (int n = 1; n <= bozzeMassime && !m_blocco; ++n) {
        m_nome = QString::number(n) + finaleBozza;
        if (m_cartella.esiste(m_nome))
            continue;
        m_blocco = m_cartella.prendi(m_nome);
        // Another program may have written it between the look and the lock.
        if (m_blocco && m_cartella.esiste(m_nome))
            m_blocco.reset();
    }
    return m_blocco != nullptr;
}

void CustodeBozze::abbandona() {
    m_base.reset();
    m_scritta.clear();
    if (m_blocco)
        m_cartella.elimina(m_nome);
    m_blocco.reset();
}

void CustodeBozze::prima(Schermo schermo) {
    if (!conDocumento(schermo))
        abbandona();
    else
        m_intatto = !m_base || *m_base == contenuto();
    m_schermo = schermo;
}

void CustodeBozze::dopo(Schermo schermo) {
    // A screen that cannot open its document has meanwhile led back to the register.
    if (!conDocumento(schermo) || schermo != m_schermo || !m_intatto)
        return;
    // What a screen fills in by itself is nothing typed. A new document that does not begin at its head is
    // made from another one: all of it counts as typed.
    const bool copia = !m_base && schermo == Schermo::Borftea && m_documento.recordfattura == 0;
    if (!m_base)
        m_suFile = m_documento.recordfattura > 0 ? m_contesto.archivio.leggi(m_documento.recordfattura)
                                                 : vuoto<CoppiaFte>();
    m_base = copia ? QByteArray() : contenuto();
}

bool CustodeBozze::accetta(const Bozza& bozza) const {
    return m_contesto.operatore.chiedi(
        u"Un documento non era ancora registrato quando il programma si è interrotto:\n\n%1,\n"
        u"scritto fino alle %2 del %3.\n\nRiprenderlo?"_s.arg(descrizione(bozza, m_contesto.valuta()),
                                                              bozza.scritta.toString(u"HH:mm"_s),
                                                              bozza.scritta.toString(u"dd/MM/yyyy"_s)),
        u"Documento non registrato"_s);
}

bool CustodeBozze::rinuncia() const {
    return m_contesto.operatore.chiedi(
        u"Eliminare per sempre quanto era stato scritto in questo documento?\n\n"
        "Rispondendo No resta conservato, e la domanda torna al prossimo avvio."_s,
        u"Documento non registrato"_s, Icona::Esclamazione, Predefinita::No);
}

void CustodeBozze::riprendi() {
    for (const QString& nome : m_cartella.nomi(finaleBozza)) {
        auto blocco = m_cartella.prendi(nome);
        if (!blocco)
            continue;
        const auto bytes = m_cartella.leggi(nome);
        auto bozza = bytes ? decodificaBozza(*bytes) : std::nullopt;
        if (!bozza) {
            qCWarning(logArchivio, "%s is no draft of this version", qPrintable(nome));
            continue;
        }
        if (!accetta(*bozza)) {
            if (rinuncia())
                m_cartella.elimina(nome);
            continue;
        }
        m_nome = nome;
        m_blocco = std::move(blocco);
        return apri(*std::move(bozza));
    }
}

void CustodeBozze::riprendiRighe(Bozza& bozza) {
    const bool parcella = m_documento.parcella();
    if (parcella ? !bozza.righep : !bozza.righe)
        return;
    if (parcella)
        m_forme.borftek.riprendi(*std::move(bozza.righep));
    else
        m_forme.borftex.riprendi(*std::move(bozza.righe));
    m_forme.borftea.esegui(Borftea::Comando::Righe);
}

void CustodeBozze::apri(Bozza bozza) {
    const QStringList cambiato = riscontra(bozza, m_contesto);
    m_documento = std::move(bozza.documento);
    m_suFile = bozza.suFile;
    // All of it counts as typed.
    m_base = QByteArray();
    m_forme.borftem.riprendi();
    if (bozza.inTestata) {
        m_contesto.navigatore.mostra(Schermo::Borftem);
    } else {
        m_forme.borftea.riprendi();
        m_contesto.navigatore.mostra(Schermo::Borftea);
        riprendiRighe(bozza);
    }
    if (!cambiato.isEmpty())
        m_contesto.operatore.messaggio(cambiato.join(u"\n\n"_s), u"Documento non registrato"_s,
                                       Icona::Esclamazione);
}

} // namespace bor
