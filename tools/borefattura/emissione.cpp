#include "borefattura/emissione.h"

#include "common/portemute.h"
#include "document/apridoc.h"
#include "document/righeinsospeso.h"
#include "fatturapa/generafattura.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace bor::emette {

namespace {

class OrologioDiSistema : public Orologio {
public:
    QDateTime adesso() const override { return QDateTime::currentDateTime(); }
};

/// Everything that documents are read with.
struct Ambiente {
    explicit Ambiente(const Emissione& richiesta)
        : percorsi(QDir(richiesta.unita).absolutePath(), QString()),
          archivio(percorsi, disco, richiesta.azienda) {}

    /// Only a company that exists: opening would make an empty one.
    bool apri() {
        if (!QFileInfo::exists(archivio.reale(archivio.borlano(u"tot"))))
            return false;
        archivio.apri();
        impostazioni.valuta = leggiValuta(archivio);
        tabelle = leggiTabelle(archivio);
        return true;
    }

    Percorsi percorsi;
    Disco disco;
    Archivio archivio;
    Sessione sessione;
    Impostazioni impostazioni;
    Tabelle tabelle;
    SenzaOperatore operatore;
    OrologioDiSistema orologio;
    SenzaSistema sistema;
    SenzaSchermi schermi;
    Contesto contesto{sessione, archivio, impostazioni, tabelle, operatore, orologio, sistema, schermi};
};

/// Documents of which the names are given out together: the file of names is written anew for each such lot,
/// and only one lot is in memory.
constexpr std::size_t perVolta = 100;

/// Documents on their way to their files.
class Partita {
public:
    Partita(GeneratoreFel& generatore, const Racconto& racconta)
        : m_generatore(generatore), m_racconta(racconta) {}

    void aggiungi(Contesto& contesto, int record) {
        RigheInSospeso nessuna;
        auto aperto = documentoEsistente(contesto, record, nessuna);
        if (!aperto)
            return m_racconta(
                {u"documento del record %1, non scritto"_s.arg(record),
                 {{.motivo = u"i suoi dati non si possono leggere"_s,
                   .rimedio = u"verificare disco, rete e permessi della cartella dell'azienda"_s}}});
        m_documenti.push_back(*std::move(aperto));
        if (m_documenti.size() == perVolta)
            chiudi();
    }

    void chiudi() {
        const std::vector<EsitoFel> esiti = m_generatore.genera(m_documenti);
        for (std::size_t i = 0; i < esiti.size(); ++i) {
            const Documento& documento = m_documenti[i];
            const QString nome = esiti[i].stato == EsitoFel::Stato::Scritta
                                     ? esiti[i].percorso
                                     : u"documento n. %1 del %2 (record %3), non scritto"_s.arg(
                                           documento.estremi.numero, documento.estremi.data,
                                           QString::number(documento.recordfattura));
            m_racconta({nome, esiti[i].rilievi});
        }
        m_documenti.clear();
    }

private:
    GeneratoreFel& m_generatore;
    const Racconto& m_racconta;
    std::vector<Documento> m_documenti;
};

} // namespace

QString emetti(const Emissione& richiesta, const Racconto& racconta) {
    if (!QFileInfo(richiesta.cartella).isDir())
        return u"%1: la cartella non c'è."_s.arg(richiesta.cartella);
    Ambiente ambiente(richiesta);
    if (!ambiente.apri())
        return u"%1: qui non c'è l'archivio dell'azienda %2."_s.arg(richiesta.unita).arg(richiesta.azienda);
    const int ultimo = ambiente.archivio.leggiTot(Conta::Fte).numero;
    if (richiesta.documento > ultimo)
        return u"Il documento %1 non c'è: l'ultimo è il %2."_s.arg(richiesta.documento).arg(ultimo);
    GeneratoreFel generatore(ambiente.contesto, QDir(richiesta.cartella).absolutePath());
    Partita partita(generatore, racconta);
    const int primo = richiesta.documento > 0 ? richiesta.documento : 1;
    for (int record = primo; record <= (richiesta.documento > 0 ? primo : ultimo); ++record)
        if (ambiente.archivio.fte.leggi(record).annullata == 0)
            partita.aggiungi(ambiente.contesto, record);
    partita.chiudi();
    return {};
}

} // namespace bor::emette
