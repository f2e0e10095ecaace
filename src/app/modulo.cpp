#include "app/modulo.h"

#include "common/avvio.h"
#include "document/avvisi.h"
#include "fatturapa/archiviofel.h"
#include "output/generapdf.h"
#include "output/layout.h"
#include "output/stampafattura.h"

namespace bor {

std::unique_ptr<Modulo> Modulo::avvia(const QString& rigaComando, Percorsi percorsi, Porte porte) {
    const Avvio avvio = controllaAvvio(rigaComando);
    if (avvio.esito == EsitoAvvio::SuiteVecchia)
        avvisaSuiteVecchia(porte.operatore);
    if (avvio.esito != EsitoAvvio::Valido)
        return nullptr;
    auto modulo = apri(avvio.codiceazienda, std::move(percorsi), porte);
    modulo->avvisa();
    modulo->borfte().riempi();
    return modulo;
}

std::unique_ptr<Modulo> Modulo::apri(double codiceazienda, Percorsi percorsi, Porte porte) {
    return std::unique_ptr<Modulo>(new Modulo(codiceazienda, std::move(percorsi), porte));
}

void Modulo::avvisa() const {
    avvisaRecuperi(m_contesto);
}

void Modulo::avvisaSuiteVecchia(Operatore& operatore) {
    operatore.messaggio(
        QStringLiteral("Questo modulo non è compatibile con la versione di Borlano in esecuzione"),
        QStringLiteral("Attenzione"), Icona::Esclamazione);
}

Modulo::Modulo(double codiceazienda, Percorsi percorsi, Porte porte)
    : m_percorsi(std::move(percorsi)), m_sessione{.codiceazienda = codiceazienda},
      m_archivio(m_percorsi, m_disco, codiceazienda), m_rapporto(m_percorsi),
      m_navigatore(porte.navigatore), m_contesto{m_sessione,    m_archivio,      m_impostazioni,
                                                 m_tabelle,     porte.operatore, porte.orologio,
                                                 porte.sistema, m_navigatore,    m_rapporto.nome()},
      m_sospese(m_percorsi.cartellaBozze(codiceazienda)),
      m_storico(m_contesto, m_sospese, m_percorsi.indiceStorico(codiceazienda)),
      m_borfte(m_contesto, m_documento), m_borftem(m_contesto, m_documento), m_borsel(m_contesto, m_borftem),
      m_borftex(m_contesto, m_documento), m_borftek(m_contesto, m_documento),
      m_borftec(m_contesto, m_documento), m_registrazioni(m_contesto, m_borftec),
      m_borftea(m_contesto, m_documento, m_registrazioni, m_sospese, comandi(porte.stampante)),
      m_borftepa(m_contesto, m_documento),
      m_borftel(m_contesto, m_documento, m_sospese, [this] { return caricaTestiPdf(m_archivio).cartella(); }),
      m_scelti(m_contesto, m_sospese, porte.stampante),
      m_scadenzario(m_contesto, [this](const Identita& d) { m_borfte.apertura().documento(d); }),
      m_datiMensili(m_contesto),
      m_bozze(m_contesto, m_documento, {m_borftem, m_borftea, m_borftex, m_borftek}, m_sospese.cartella()) {
    m_navigatore.affida(m_bozze);
    m_impostazioni = caricaimpostazioni(m_archivio);
    m_archivio.apri();
    recupera(m_archivio);
    m_tabelle = leggiTabelle(m_archivio);
    m_borfte.prepara();
}

ComandiEsterni Modulo::comandi(Stampante& stampante) {
    return {.stampa =
                [this, &stampante] {
                    const EsitoStampa esito = stampaDocumento(m_documento, m_contesto, stampante);
                    if (esito == EsitoStampa::ConRapporto)
                        generapdf(m_documento, m_contesto);
                    return esito != EsitoStampa::Niente;
                },
            .anteprima =
                [this, &stampante] {
                    if (preparaRapporto(m_documento, m_contesto, stampante))
                        bor::anteprima(m_documento, m_contesto);
                },
            .scegliPdf = [this] { bor::scegliPdf(m_documento, m_contesto); },
            .fatturaPa = [this] { m_contesto.navigatore.mostra(Schermo::Borftepa); },
            .fatturaElettronica = [this] { m_contesto.navigatore.mostra(Schermo::Borftel); },
            .registraCollegata =
                [this](const Collegata& collegata) {
                    ArchivioFel propri(m_archivio);
                    return propri.collega(m_documento.coppia.fte, collegata.numero, collegata.data);
                }};
}

} // namespace bor
