// The command bar of the screen of today's electronic invoice.
#include "fatturapa/borftel.h"

#include "xmlcheck/elementiinparole.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

const QString titoloForm = u"Fattura elettronica"_s;

const Rilievo* primoErrore(const std::vector<Rilievo>& rilievi) {
    const auto primo = std::ranges::find(rilievi, Gravita::Errore, &Rilievo::gravita);
    return primo == rilievi.end() ? nullptr : &*primo;
}

} // namespace

bool Borftel::registra() {
    if (!m_generatore || !modificato())
        return true;
    ArchivioFel& propri = m_generatore->propri();
    const Fte& fte = m_registrato.coppia.fte;
    const bool registrati = (m_dati.azienda == m_letti.azienda || propri.salva(m_dati.azienda)) &&
                            (m_dati.nature == m_letti.nature || propri.salva(m_dati.nature)) &&
                            (m_dati.cliente == m_letti.cliente ||
                             propri.salva(fte.cliente, m_registrato.cliente, m_dati.cliente)) &&
                            (m_dati.documento == m_letti.documento || propri.salva(fte, m_dati.documento));
    if (registrati)
        rileggi();
    else
        m_contesto.operatore.messaggio(u"I dati non sono stati registrati: il file borlano.fel dell'azienda "
                                       u"non si può scrivere. Quel che "
                                       "si è scritto è ancora sullo schermo."_s,
                                       titoloForm, Icona::Stop);
    return registrati;
}

void Borftel::genera() {
    if (!m_generatore || !registra())
        return;
    EsitoFel esito;
    {
        const Attesa attesa(m_contesto.operatore);
        esito = m_generatore->genera(m_registrato);
        rileggi();
    }
    racconta(esito);
}

/// A file that nothing speaks against is told by the screen; any other by a message.
void Borftel::racconta(const EsitoFel& esito) {
    const Rilievo* primo = primoErrore(esito.rilievi);
    if (!primo)
        return;
    const QString motivo = u"%1\n%2"_s.arg(motivoInParole(*primo), primo->rimedio);
    if (esito.stato == EsitoFel::Stato::Scritta)
        m_contesto.operatore.messaggio(
            u"Il file %1 è stato scritto, ma il sistema di interscambio lo rifiuterebbe (%2).\n\n%3"_s.arg(
                esito.percorso, contoRilievi(esito.rilievi), motivo),
            titoloForm, Icona::Esclamazione);
    else
        m_contesto.operatore.messaggio(u"La fattura elettronica non è stata generata.\n\n%1"_s.arg(motivo),
                                       titoloForm, Icona::Stop);
    m_fuoco = postoDi(*primo);
}

void Borftel::scartata() {
    if (!m_generatore || !registra() || !generato())
        return;
    const QString file = QFileInfo(percorso()).fileName();
    const bool scartata = m_contesto.operatore.chiedi(
        u"Il sistema di interscambio ha scartato il file %1?\n\nAnche il nome di un file scartato vale una "
        u"volta "
        u"sola: il prossimo file del documento ne avrà uno nuovo, e questo resta nella cartella come "
        u"%1.scartata. Per un file accettato, o non ancora trasmesso, rispondere No."_s.arg(file),
        titoloForm, Icona::Domanda, Predefinita::No);
    if (!scartata)
        return;
    const GeneratoreFel::Scarto esito = m_generatore->scarta(m_registrato);
    rileggi();
    if (esito == GeneratoreFel::Scarto::NonScritto)
        m_contesto.operatore.messaggio(
            u"Il nome non è cambiato: il file borlano.fel dell'azienda non si può scrivere."_s, titoloForm,
            Icona::Stop);
    else if (esito == GeneratoreFel::Scarto::FileRimasto)
        m_contesto.operatore.messaggio(u"Il prossimo file avrà un nome nuovo, ma %1 non si è potuto "
                                       u"rinominare: toglierlo dalla cartella a mano."_s.arg(file),
                                       titoloForm, Icona::Esclamazione);
}

QString Borftel::percorso() const {
    return m_generatore ? m_generatore->percorso(m_registrato) : QString();
}

std::optional<QByteArray> Borftel::daLeggere() {
    if (!m_prova.xml.isEmpty())
        return m_prova.xml;
    const Rilievo* primo = primoErrore(m_prova.rilievi);
    if (!primo)
        return std::nullopt;
    m_contesto.operatore.messaggio(
        u"Non c'è ancora una fattura da leggere.\n\n%1\n%2"_s.arg(motivoInParole(*primo), primo->rimedio),
        titoloForm, Icona::Esclamazione);
    m_fuoco = postoDi(*primo);
    return std::nullopt;
}

void Borftel::apriCartella() {
    if (!m_generatore || m_contesto.sistema.apri(m_generatore->cartella()) == EsitoApri::Riuscito)
        return;
    m_contesto.operatore.messaggio(
        u"La cartella %1 non si può aprire: controllare che ci sia."_s.arg(m_generatore->cartella()),
        titoloForm, Icona::Esclamazione);
}

} // namespace bor
