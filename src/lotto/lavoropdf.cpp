#include "lotto/lavoropdf.h"

#include "common/comandopdf.h"
#include "common/indirizzoposta.h"
#include "output/destinazionepdf.h"
#include "output/stampafattura.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Documents that one mail takes.
constexpr std::size_t perBusta = 25;
/// Names that go into the archive together: each burst waits for the disk several times.
constexpr std::size_t nomiPerVolta = 25;

} // namespace

LavoroPdf::LavoroPdf(const Contesto& contesto, Stampante& stampante, AvviaStrumento avvia, Posta posta)
    : Lavoro(contesto), m_stampante(stampante), m_avvia(std::move(avvia)), m_posta(posta),
      m_testi(caricaTestiPdf(contesto.archivio)) {
    if (m_posta == Posta::Si)
        m_opzioni = {{u"insieme"_s, u"I documenti di un cliente in un solo messaggio"_s}};
}

QString LavoroPdf::titolo() const {
    return m_posta == Posta::Si ? u"PDF e posta dei documenti scelti"_s : u"PDF dei documenti scelti"_s;
}

void LavoroPdf::scegliPosta(Voce& voce, const Candidato& candidato) const {
    if (m_posta == Posta::No)
        return;
    if (!candidato.postael)
        voce.senzaPosta = u"il cliente non riceve i documenti per posta elettronica"_s;
    else if (!indirizzoValido(candidato.email))
        voce.senzaPosta =
            candidato.email.isEmpty()
                ? u"il cliente non ha un indirizzo di posta elettronica"_s
                : u"l'indirizzo di posta del cliente non è valido: \"%1\""_s.arg(candidato.email);
    else
        voce.indirizzo = candidato.email;
}

QString LavoroPdf::proposta(std::vector<Candidato>& candidati) {
    std::vector<QString> nomi;
    for (Candidato& c : candidati) {
        nomi.push_back(nomePdf(c.numero, c.parcella, m_testi));
        if (c.dentro())
            c.fuori = nomeRifiutato(nomi.back(), contesto().archivio, m_testi);
    }
    escludiPdfAltrui(candidati, nomi, contesto().archivio);
    m_voci.assign(candidati.size(), {});
    QSet<QString> indirizzi;
    int spediti = 0;
    int conPdf = 0;
    for (std::size_t i = 0; i < candidati.size(); ++i) {
        Voce& voce = m_voci[i];
        const Candidato& c = candidati[i];
        voce.pdf = nomi[i];
        scegliPosta(voce, c);
        voce.busta = voce.indirizzo + (c.parcella ? u"\np"_s : u"\nf"_s);
        conPdf += c.dentro() && !c.pdf.isEmpty() ? 1 : 0;
        if (c.dentro() && !voce.indirizzo.isEmpty()) {
            ++spediti;
            indirizzi.insert(voce.indirizzo);
        }
    }
    const int quanti = quantiDentro(candidati);
    QString testo =
        u"Fare il PDF di %1 nella cartella \"%2\"?"_s.arg(contoDocumenti(quanti), m_testi.cartella());
    if (conPdf > 0)
        testo += u"\nHanno già un PDF, che viene sostituito: %1."_s.arg(conPdf);
    if (m_posta == Posta::Si)
        testo += u"\nSi spediscono: %1, a indirizzi diversi: %2. Senza posta, solo il PDF: %3."_s.arg(spediti)
                     .arg(indirizzi.size())
                     .arg(quanti - spediti);
    return testo;
}

std::vector<std::size_t> LavoroPdf::inizia(const std::vector<Candidato>& candidati) {
    std::vector<std::size_t> ordine = Lavoro::inizia(candidati);
    if (m_posta == Posta::No)
        return ordine;
    if (m_opzioni.front().scelta)
        std::ranges::stable_sort(ordine, {}, [this](std::size_t riga) { return m_voci[riga].busta; });
    else
        for (std::size_t riga = 0; riga < m_voci.size(); ++riga)
            m_voci[riga].busta += QString::number(riga);
    return ordine;
}

void LavoroPdf::prendi(std::size_t riga, Documento documento) {
    Voce& voce = m_voci[riga];
    QByteArray rapporto = componiRapporto(documento, contesto(), m_stampante);
    if (rapporto.isEmpty())
        return racconta(riga, EsitoRiga::NonFatta, u"non ha righe: non c'è nulla da stampare"_s);
    voce.posta = perPosta(documento);
    const qsizetype byte = rapporto.size();
    m_preparato = Pdf{.riga = riga,
                      .documento = identitaDi(documento.recordfattura, documento.coppia.fte),
                      .comando = {.layout = layoutStrumento(documento.parcella(), contesto().archivio),
                                  .pdf = voce.pdf,
                                  .byte = byte},
                      .rapporto = std::move(rapporto),
                      .daNominare = documento.estremi.pdf.trimmed() != voce.pdf};
    chiudiBustaPiena();
    manda();
}

bool LavoroPdf::gira() {
    const bool raccolto = raccogli();
    chiudiBustaPiena();
    const bool mandato = manda();
    if (m_concluso && !m_inCorso && !m_preparato)
        nomina();
    return raccolto || mandato;
}

/// Takes the tool's answer to what it has in hand. A tool that ended without one takes only that with it.
bool LavoroPdf::raccogli() {
    if (!m_inCorso && !m_messaggioInCorso)
        return false;
    const auto linea = m_strumento->linea();
    if (!linea && !m_strumento->finito())
        return false;
    const auto risposta = linea ? RispostaLotto::leggi(*linea) : std::nullopt;
    const QString errore =
        risposta ? risposta->errore : u"il programma borxpdf non si avvia o si è interrotto"_s;
    if (!risposta)
        m_strumento.reset();
    if (m_inCorso)
        pdfFinito(errore);
    else
        messaggioFinito(errore);
    return true;
}

/// Gives the tool what comes next, as soon as it has nothing in hand: mails first.
bool LavoroPdf::manda() {
    if (m_inCorso || m_messaggioInCorso)
        return false;
    if (!m_messaggi.empty()) {
        m_messaggioInCorso = std::move(m_messaggi.front());
        m_messaggi.pop_front();
        annota(*m_messaggioInCorso);
        invia(m_messaggioInCorso->comando.linea());
        return true;
    }
    if (!m_preparato)
        return false;
    m_inCorso = std::exchange(m_preparato, std::nullopt);
    invia(m_inCorso->comando.linea() + m_inCorso->rapporto);
    m_inCorso->rapporto.clear();
    return true;
}

void LavoroPdf::invia(const QByteArray& bytes) {
    const Archivio& archivio = contesto().archivio;
    if (!m_strumento || m_strumento->finito())
        m_strumento = m_avvia(strumentoPdf(archivio), archivio.percorsi().radiceCorrente());
    m_strumento->scrivi(bytes);
}

void LavoroPdf::pdfFinito(const QString& errore) {
    const Pdf pdf = *std::exchange(m_inCorso, std::nullopt);
    Voce& voce = m_voci[pdf.riga];
    if (!errore.isEmpty())
        return racconta(pdf.riga, EsitoRiga::NonFatta, errore);
    voce.fatto = u"PDF \"%1\""_s.arg(voce.pdf);
    if (pdf.daNominare)
        m_nomi.push_back({pdf.riga, pdf.documento, voce.pdf});
    if (m_nomi.size() >= nomiPerVolta)
        nomina();
    voce.rilievo = voce.rilievo || !voce.senzaPosta.isEmpty();
    if (!voce.indirizzo.isEmpty() && !m_interrotto)
        return imbusta(pdf.riga);
    const QString perche = voce.indirizzo.isEmpty() ? voce.senzaPosta : u"interrotto"_s;
    riferisci(pdf.riga, perche.isEmpty() ? QString() : u"; non spedito: "_s + perche);
}

void LavoroPdf::riferisci(std::size_t riga, const QString& seguito) {
    Voce& voce = m_voci[riga];
    voce.fatto += seguito;
    racconta(riga, voce.rilievo ? EsitoRiga::ConRilievi : EsitoRiga::Fatta, voce.fatto);
}

void LavoroPdf::imbusta(std::size_t riga) {
    const Voce& voce = m_voci[riga];
    const bool parcella = voce.busta.contains("\np"_L1);
    if (!m_busta)
        m_busta = Messaggio{{},
                            {.layout = layoutStrumento(parcella, contesto().archivio),
                             .pdf = {},
                             .indirizzo = voce.indirizzo,
                             .testo = m_testi.testo(parcella),
                             .allegati = {}}};
    m_busta->righe.push_back(riga);
    m_busta->comando.allegati.append(voce.pdf);
    if (m_busta->righe.size() == perBusta)
        chiudiBusta();
}

/// Closes the mail when no other document of it is on its way.
void LavoroPdf::chiudiBustaPiena() {
    if (!m_busta)
        return;
    const QString& busta = m_voci[m_busta->righe.front()].busta;
    const auto altra = [&](const std::optional<Pdf>& pdf) { return pdf && m_voci[pdf->riga].busta == busta; };
    if (!altra(m_inCorso) && !altra(m_preparato) && (m_preparato || m_concluso))
        chiudiBusta();
}

void LavoroPdf::chiudiBusta() {
    if (m_busta)
        m_messaggi.push_back(*std::exchange(m_busta, std::nullopt));
}

/// What the tool is charged with, before it is.
void LavoroPdf::annota(const Messaggio& messaggio) {
    const RegistroPosta registro(contesto().archivio.percorsi(), contesto().sessione.codiceazienda);
    for (const std::size_t riga : messaggio.righe)
        registro.aggiungi({.quando = contesto().orologio.adesso(),
                           .documento = m_voci[riga].posta,
                           .pdf = m_voci[riga].pdf,
                           .indirizzo = m_voci[riga].indirizzo});
}

void LavoroPdf::messaggioFinito(const QString& errore) {
    const Messaggio messaggio = *std::exchange(m_messaggioInCorso, std::nullopt);
    for (const std::size_t riga : messaggio.righe) {
        m_voci[riga].rilievo = m_voci[riga].rilievo || !errore.isEmpty();
        riferisci(riga, errore.isEmpty() ? u"; spedito a "_s + m_voci[riga].indirizzo
                                         : u"; non spedito: "_s + errore);
    }
}

/// A name that does not reach its record leaves the PDF where it is.
void LavoroPdf::nomina() {
    if (m_nomi.empty())
        return;
    const std::vector<NomePdf> nomi = std::exchange(m_nomi, {});
    registraNomi(contesto().archivio, nomi, [this](std::size_t riga, const QString& motivo) {
        m_voci[riga].rilievo = true;
        riferisci(riga, u"; il suo nome non è registrato nel documento: "_s + motivo);
    });
}

void LavoroPdf::concludi() {
    m_concluso = true;
    chiudiBustaPiena();
}

void LavoroPdf::interrompi() {
    m_interrotto = true;
    if (m_preparato)
        racconta(std::exchange(m_preparato, std::nullopt)->riga, EsitoRiga::NonFatta, motivoInterrotto);
    chiudiBusta();
    for (const Messaggio& messaggio : std::exchange(m_messaggi, {})) {
        for (const std::size_t riga : messaggio.righe) {
            m_voci[riga].rilievo = true;
            riferisci(riga, u"; non spedito: interrotto"_s);
        }
    }
}

bool LavoroPdf::fermo() const {
    return !m_inCorso && !m_preparato && !m_messaggioInCorso && m_messaggi.empty() && !m_busta &&
           m_nomi.empty();
}

} // namespace bor
