#include "document/borftea.h"

#include "common/numeri.h"
#include "document/caricadoc.h"
#include "document/clienti.h"
#include "document/defaultcliente.h"
#include "document/filerighe.h"
#include "document/integrata.h"
#include "document/scadenze.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

Borftea::Borftea(Contesto& contesto, Documento& documento, Registrazioni& registrazioni,
                 RigheInSospeso& sospese, ComandiEsterni comandi)
    : m_contesto(contesto), m_documento(documento), m_registrazioni(registrazioni), m_sospese(sospese),
      m_comandi(std::move(comandi)) {}

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
        if (sessione.recordfattura == 0)
            apriNuovo();
        else
            apriEsistente();
        m_numeroletto = m_documento.estremi.numero.trimmed();
    }
    m_finestra.scorri(1);
    m_fuoco = PostoTea{CampoTea::Numero};
}

void Borftea::apriNuovo() {
    Sessione& sessione = m_contesto.sessione;
    sessione.tipoparcella = 0;
    Documento documento;
    documento.testata = std::move(m_documento.testata); // typed in the head form, the screen before this one
    m_documento = std::move(documento);
    inizializza2(m_documento.coppia.f2e);
    m_documento.coppia.fte.tipo = static_cast<std::int16_t>(sessione.tipodocumento);
    m_documento.cliente = m_contesto.archivio.cli.leggi(sessione.recordcliente);
    prendiDefaults(m_documento, m_contesto);

    const Tot contatore = m_contesto.archivio.leggiTot(Conta::Fte);
    Estremi& estremi = m_documento.estremi;
    estremi.numero = QString::number(contatore.ultimonumero + 1);
    estremi.protocollo = QString::number(contatore.numero + 1);
    estremi.data = testoData(m_contesto.orologio.oggi());
    estremi.datareg = estremi.data;
    calcolascadenze(m_documento, m_contesto);
}

void Borftea::apriEsistente() {
    Sessione& sessione = m_contesto.sessione;
    m_documento = {};
    m_documento.record = sessione.recordfattura;
    m_documento.coppia = m_contesto.archivio.leggi(m_documento.record);
    const Fte& fte = m_documento.coppia.fte;
    sessione.recordcliente = fte.cliente;
    sessione.recordfpa = m_documento.coppia.f2e.fpa;
    sessione.tipodocumento = fte.tipo;
    sessione.tipodocumentoletto = fte.tipo;
    sessione.tipoparcella = fte.parcella;
    prendiCliente(m_documento, m_contesto.archivio, sessione.recordcliente);
    m_documento.estremi.postael = m_documento.cliente.postael.text() == u"1";
    caricadoc(m_documento, m_contesto);
    leggedoc(m_documento, m_contesto, m_sospese);
    m_documento.integrata = cercaIntegrata(m_documento.coppia, m_contesto.tabelle);
}

QString Borftea::titolo() const {
    const bool nota = m_documento.coppia.fte.tipo == 1;
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

void Borftea::lasciaData() {
    Estremi& estremi = m_documento.estremi;
    estremi.data = completaData(estremi.data);
    const auto data = dataValida(estremi.data);
    if (!data)
        return;
    calcolascadenze(m_documento, m_contesto);
    m_documento.prospetti.terminemese = pezzo(testoData(*data), 4, 2);
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
        for (std::size_t r = 1; r < m_contesto.tabelle.tipopagamenti.size(); ++r)
            testi.append(m_contesto.tabelle.tipopagamenti[r][0].trimmed());
        return testi;
    case Lista::Ricavi:
        for (std::size_t r = 1; r < m_contesto.tabelle.ricavi.size(); ++r)
            testi.append(m_contesto.tabelle.ricavi[r].trimmed());
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

std::optional<PostoTea> Borftea::prendiFuoco() {
    return std::exchange(m_fuoco, std::nullopt);
}

} // namespace bor
