#include "borefattura/emissione.h"

#include "document/apridoc.h"
#include "document/righeinsospeso.h"
#include "fatturapa/generafattura.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace bor::emette {

namespace {

/// Ports for a run without anybody to talk to.
class SenzaOperatore : public Operatore {
public:
    void messaggio(const QString&, const QString&, Icona) override {}
    bool chiedi(const QString&, const QString&, Icona, Predefinita) override { return false; }
    void attesa(bool) override {}
    void lasciaEventi() override {}
    QString scegliFile(const QString&, const QString&) override { return {}; }
};

class OrologioDiSistema : public Orologio {
public:
    QDateTime adesso() const override { return QDateTime::currentDateTime(); }
};

class SenzaSistema : public Sistema {
public:
    int apri(const QString&) override { return 2; }
    bool avvia(const QString&, const QStringList&) override { return false; }
};

class SenzaSchermi : public Navigatore {
public:
    void mostra(Schermo) override {}
    void termina() override {}
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

resoconto::RilieviFile emettiUno(GeneratoreFel& generatore, Contesto& contesto, int record) {
    RigheInSospeso nessuna;
    const auto aperto = documentoEsistente(contesto, record, nessuna);
    if (!aperto)
        return {u"documento del record %1, non scritto"_s.arg(record),
                {{.motivo = u"i suoi dati non si possono leggere"_s,
                  .rimedio = u"verificare disco, rete e permessi della cartella dell'azienda"_s}}};
    const Documento& documento = *aperto;
    const EsitoFel esito = generatore.genera(documento);
    const QString nome = esito.stato == EsitoFel::Stato::Scritta
                             ? esito.percorso
                             : u"documento n. %1 del %2 (record %3), non scritto"_s.arg(
                                   documento.estremi.numero, documento.estremi.data, QString::number(record));
    return {nome, esito.rilievi};
}

} // namespace

QString emetti(const Emissione& richiesta,
               const std::function<void(const resoconto::RilieviFile&)>& racconta) {
    if (!QFileInfo(richiesta.cartella).isDir())
        return u"%1: la cartella non c'è."_s.arg(richiesta.cartella);
    Ambiente ambiente(richiesta);
    if (!ambiente.apri())
        return u"%1: qui non c'è l'archivio dell'azienda %2."_s.arg(richiesta.unita).arg(richiesta.azienda);
    const int ultimo = ambiente.archivio.leggiTot(Conta::Fte).numero;
    if (richiesta.documento > ultimo)
        return u"Il documento %1 non c'è: l'ultimo è il %2."_s.arg(richiesta.documento).arg(ultimo);
    GeneratoreFel generatore(ambiente.contesto, QDir(richiesta.cartella).absolutePath());
    const int primo = richiesta.documento > 0 ? richiesta.documento : 1;
    for (int record = primo; record <= (richiesta.documento > 0 ? primo : ultimo); ++record)
        if (ambiente.archivio.fte.leggi(record).annullata == 0)
            racconta(emettiUno(generatore, ambiente.contesto, record));
    return {};
}

} // namespace bor::emette
