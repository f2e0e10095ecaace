#include "document/borftem.h"

#include "document/clienti.h"

using namespace Qt::StringLiterals;

namespace bor {

Borftem::Borftem(Contesto& contesto, Documento& documento) : m_contesto(contesto), m_documento(documento) {}

void Borftem::attiva() {
    Sessione& sessione = m_contesto.sessione;
    if (sessione.modoselezione == ModoSelezione::Scelto) {
        sessione.modoselezione = ModoSelezione::Nessuno;
        cerca();
        return;
    }
    m_numero = m_contesto.archivio.leggiTot(Conta::Cli).numero;
    m_poscliente = 1;
    if (!sessione.testataletta) {
        if (m_documento.recordfattura == 0)
            m_documento.testata = {};
        mostraCliente();
    } else if (m_documento.recordcliente > 0) {
        // The bar moves without showing: what was typed over the customer's data stays. Only a customer that
        // was looked at and not chosen gives way to the document's own, also when the index does not hold
        // him.
        m_poscliente = std::max(posizionecliente(m_contesto.archivio, m_documento.recordcliente), 1);
        if (m_recordcorrente != m_documento.recordcliente)
            prendi(m_documento.recordcliente);
    }
    sessione.testataletta = true;
}

void Borftem::cambiato(const void* dato) {
    const Pratica& pratica = m_documento.testata.pratica;
    if (dato == &pratica.ivaono || dato == &pratica.ivaspe)
        m_contesto.sessione.regimicambiati = true;
}

void Borftem::riprendi() {
    m_recordcorrente = m_documento.recordcliente;
    m_contesto.sessione.testataletta = true;
    m_contesto.sessione.documentoletto = false;
}

RiquadroTestata Borftem::riquadro() const {
    // The document form offers the lines of every stored document, and with them its transport or practice
    // data; a new one has none before it is saved.
    if (m_documento.recordfattura == 0)
        return RiquadroTestata::Contabili;
    return m_documento.parcella() ? RiquadroTestata::Pratica : RiquadroTestata::Spedizione;
}

void Borftem::prendi(int record) {
    m_recordcorrente = record;
    prendiCliente(m_documento, m_contesto.archivio, record);
}

void Borftem::mostraCliente() {
    prendi(m_contesto.archivio.src.leggi(m_poscliente).recordcli);
}

void Borftem::cambiaPosizione(int posizione) {
    if (m_numero < 2)
        return;
    m_poscliente = posizione;
    mostraCliente();
}

void Borftem::cambiaNome(const QString& testo) {
    m_nome = testo;
}

void Borftem::cerca() {
    const int trovata = cercacliente(m_contesto.archivio, m_nome);
    if (trovata > 0)
        m_poscliente = trovata;
    else
        m_contesto.operatore.messaggio(u"Anagrafica non trovata"_s, u"Attenzione"_s, Icona::Esclamazione);
    mostraCliente();
    m_nome.clear();
}

void Borftem::lista() {
    m_contesto.sessione.modoselezione = ModoSelezione::PerTestata;
    m_contesto.navigatore.mostra(Schermo::Borsel);
}

void Borftem::cambiaVettore(int posizione) {
    m_vettore = posizione;
    // The row is that of the transport cause in `Combo3`, not the one just clicked: both lists have the same
    // rows, and offices have filled their tables for it.
    const int riga = m_documento.testata.trasporto.causale + 1;
    const auto& vettori = m_contesto.tabelle.vettori;
    if (!vettori.contiene(riga))
        return;
    for (std::size_t k = 0; k < m_documento.testata.cliente.vettore.size(); ++k) {
        const QString testo = vettori[riga].vettore[k].trimmed();
        if (testo != u"*")
            m_documento.testata.cliente.vettore[k] = testo;
    }
}

void Borftem::avanti() {
    if (!puoProseguire())
        return;
    m_contesto.sessione.righelette = false;
    m_documento.recordcliente = m_recordcorrente;
    m_contesto.navigatore.mostra(Schermo::Borftea);
}

void Borftem::lascia() {
    if (puoProseguire()) {
        avanti();
    } else if (m_documento.recordfattura == 0) {
        m_contesto.navigatore.mostra(Schermo::Borfte);
    } else {
        if (m_recordcorrente != m_documento.recordcliente)
            prendi(m_documento.recordcliente);
        m_contesto.navigatore.mostra(Schermo::Borftea);
    }
}

} // namespace bor
