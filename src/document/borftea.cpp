#include "document/borftea.h"

#include "common/date.h"
#include "document/apridoc.h"
#include "document/avvisi.h"
#include "document/duplica.h"
#include "document/scadenze.h"
#include "document/totali.h"
#include "document/totaliparcella.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

Borftea::Borftea(Contesto& contesto, Documento& documento, Registrazioni& registrazioni,
                 RigheInSospeso& sospese, ComandiEsterni comandi)
    : m_contesto(contesto), m_documento(documento), m_registrazioni(registrazioni), m_sospese(sospese),
      m_comandi(std::move(comandi)), m_importiIva(contesto, documento) {}

void Borftea::attiva() {
    Sessione& sessione = m_contesto.sessione;
    if (sessione.righelette)
        return;
    sessione.righelette = true;
    m_pdfVisibile = false;
    // Also on the way back from the lines: a tick that a stored document brought along under a regime without
    // deferred VAT is gone then.
    if (!esigAbilitato())
        m_documento.estremi.esig = false;
    if (!sessione.documentoletto) {
        sessione.documentoletto = true;
        m_prospetto = Prospetto::RigheIva;
        apri();
    }
    m_importiIva.scorri(1);
    m_fuoco = PostoTea{CampoTea::Numero};
}

void Borftea::riprendi() {
    m_contesto.sessione.documentoletto = true;
    m_contesto.sessione.righelette = false;
    m_prospetto = Prospetto::RigheIva;
    inizia();
}

void Borftea::inizia() {
    m_numeroletto = m_documento.estremi.numero.trimmed();
    m_dataletta = m_documento.estremi.data;
    m_numeri.reset();
}

bool Borftea::prendiCopia(Copia come) {
    auto copia = copiaDocumento(m_contesto, m_documento.recordfattura, come, m_sospese);
    if (!copia)
        return false;
    m_documento = *std::move(copia);
    m_contesto.sessione.testataletta = true;
    m_aperto = {}; // leaving would lose all of it
    inizia();
    return true;
}

void Borftea::apri() {
    m_contesto.sessione.regimicambiati = false;
    if (const auto copia = std::exchange(m_contesto.sessione.copia, std::nullopt)) {
        if (!prendiCopia(*copia))
            lascia();
        return;
    }
    if (nuovo()) {
        // What was typed in the head form, the screen before this one, stays.
        Testata testata = std::move(m_documento.testata);
        m_documento = nuovoDocumento(m_contesto, m_documento.tipodocumento(), m_documento.recordcliente);
        m_documento.testata = std::move(testata);
    } else {
        auto letto = documentoEsistente(m_contesto, m_documento.recordfattura, m_sospese);
        if (!letto) {
            avvisaNonRegistrato(m_contesto, EsitoRaffica::NonLetta);
            return esci();
        }
        m_documento = *std::move(letto);
        m_contesto.sessione.testataletta = true;
    }
    inizia();
    m_aperto = m_documento;
}

QString Borftea::titolo() const {
    const bool nota = m_documento.notaCredito();
    if (nuovo())
        return nota ? u"Memorizzazione nota di credito emessa"_s : u"Memorizzazione fattura emessa"_s;
    if (m_documento.fatturaPa())
        return u"Modifica dati fatturaPA emessa"_s;
    return nota ? u"Modifica dati nota di credito emessa"_s : u"Modifica dati fattura emessa"_s;
}

void Borftea::lasciaNumero() {
    const QString numero = m_documento.estremi.numero.trimmed();
    if (numero == m_numeroletto)
        return;
    m_numeroletto = numero;
    if (!nuovo())
        m_contesto.operatore.messaggio(
            u"E' stato modificato il numero del documento. Nel caso abbiate generato un documento PDF, "
            "ristampate il documento moficato oppure selezionate un diverso file PDF"_s,
            u"Attenzione"_s, Icona::Stop);
}

QString Borftea::avvisoNumero() const {
    if (!m_numeri)
        m_numeri.emplace(m_contesto.archivio, m_documento.recordfattura);
    return m_numeri->avviso(m_documento.estremi);
}

void Borftea::lasciaData() {
    Estremi& estremi = m_documento.estremi;
    estremi.data = completaData(estremi.data);
    const auto data = dataValida(estremi.data);
    if (!data)
        return;
    // Who only passes by keeps the due dates that he typed.
    if (std::exchange(m_dataletta, estremi.data) != estremi.data)
        calcolascadenze(m_documento, m_contesto);
    m_documento.prospetti.terminemese = pezzo(testoData(*data), postoMese);
    m_documento.prospetti.termineanno = QString::number(data->year() + 1);
    if (!dataValida(completaData(estremi.datareg)))
        estremi.datareg = estremi.data;
}

bool Borftea::mostraProspetto(Prospetto prospetto) {
    if (prospetto == Prospetto::IvaDifferita && !esigAbilitato()) {
        m_contesto.operatore.messaggio(
            u"Il regime iva preselezionato non prevede l'iva ad esigibilità differita"_s, u"Attenzione"_s,
            Icona::Stop);
        return false;
    }
    m_prospetto = prospetto;
    return true;
}

QStringList Borftea::voci(Lista lista) const {
    QStringList testi;
    switch (lista) {
    case Lista::Pagamenti:
        for (const TipoPagamento& tipo : m_contesto.tabelle.tipopagamenti)
            testi.append(tipo.descrizione.trimmed());
        return testi;
    case Lista::Ricavi:
        for (const QString& ricavo : m_contesto.tabelle.ricavi)
            testi.append(ricavo.trimmed());
        return testi;
    case Lista::Tributi:
        return leggiTributi(m_contesto.archivio);
    case Lista::ClassiNoleggio:
        return {u"Autovettura"_s, u"Caravan"_s, u"Altri veicoli"_s, u"Unità da diporto"_s, u"Aeromobili"_s};
    }
    return testi;
}

QString Borftea::integrata() const {
    switch (m_documento.integrata) {
    case Integrata::ReverseCharge:
        return u"Fattura integrata operazione reverse charge"_s;
    case Integrata::Intracomunitaria:
        return u"Fattura integrata operazione intracomunitaria"_s;
    case Integrata::No:
        break;
    }
    return {};
}

bool Borftea::anticipazioniFuori() const {
    return m_documento.parcella() && sommaParcella(m_documento.dddp).totanticipazioni != 0.0;
}

void Borftea::cambiato(const void* dato) {
    Scadenze& scadenze = m_documento.scadenze;
    if (dato == &scadenze.pagamento) {
        calcolascadenze(m_documento, m_contesto);
        calcolarate(m_documento, m_contesto);
    } else if (dato == &scadenze.provaliq) {
        if (scadenze.provaliq.trimmed().isEmpty())
            scadenze.provimp.clear();
        calcolaProvvigione(m_documento, m_contesto);
    } else if (std::ranges::any_of(m_documento.prospetti.ritenute,
                                   [dato](const Ritenuta& r) { return dato == &r.raimp; })) {
        ricalcolaDocumento(m_documento, m_contesto);
    }
}

std::optional<PostoTea> Borftea::prendiFuoco() {
    return std::exchange(m_fuoco, std::nullopt);
}

} // namespace bor
