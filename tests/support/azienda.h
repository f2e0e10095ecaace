// A company in a temporary folder, made of records that the test writes.
#pragma once

#include "archive/archivio.h"
#include "archive/contesto.h"
#include "archive/raffica.h"
#include "support/porte_finte.h"

#include <QTemporaryDir>

#include <optional>

namespace bor {

/// A drive with the empty folders of company 7.
class AziendaDiProva {
public:
    AziendaDiProva();
    /// The company 7 that already lies on this drive; nothing is removed at the end.
    explicit AziendaDiProva(const QString& radice);

    /// Path of this machine in the company's folder, e.g. `percorso("borlano.fte")`.
    QString percorso(const QString& nome) const;
    QString radice() const { return m_percorsi.radiceCorrente() + QStringLiteral("/suprok/suprok/"); }
    QByteArray leggi(const QString& nome) const;
    void scrivi(const QString& nome, const QByteArray& bytes) const;

    /// Appends a record to its file and counts it; its number.
    int cliente(const QString& ragione);
    int cliente(const Cli& record);
    int articolo(const Art& record);
    int documento(const CoppiaFte& coppia);

    const Percorsi& percorsi() const { return m_percorsi; }

private:
    std::optional<QTemporaryDir> m_cartella;
    Percorsi m_percorsi;
    Disco m_disco;
};

/// What `lavoro` plans, as one burst.
template <class Lavoro>
EsitoRaffica inRaffica(Archivio& archivio, Lavoro lavoro) {
    Raffica raffica(archivio, {});
    lavoro(raffica);
    return raffica.esegui();
}

/// Puts a record behind the last one in use and counts it; its number.
template <class R>
int aggiungi(Archivio& archivio, RecordFile<R>& file, Conta quale, const R& record) {
    Tot contatore = archivio.leggiTot(quale);
    contatore.numero += 1;
    file.scrivi(contatore.numero, record);
    archivio.scriviTot(quale, contatore);
    return contatore.numero;
}

Cli clienteDi(const QString& ragione);
Art articoloDi(const QString& codice, const QString& descrizione, double listino1, int iva);
/// A live document of this number, dates of 15/03/2015, taxable and tax in VAT row 1.
CoppiaFte documentoDi(int cliente, const QString& numero, double imponibile, double imposta);

/// Everything a screen needs, over the company in `azienda`, opened. Tables, settings and counters are those
/// on file at the time it is made.
class ContestoDiProva {
public:
    explicit ContestoDiProva(const AziendaDiProva& azienda);
    /// With a disk of the test's own, for instance one that fails.
    ContestoDiProva(const AziendaDiProva& azienda, Disco& disco);

    OperatoreFinto operatore;
    OrologioFermo orologio;
    SistemaFinto sistema;
    NavigatoreFinto navigatore;
    Sessione sessione;
    Archivio archivio;
    Impostazioni impostazioni;
    Tabelle tabelle;
    Contesto contesto;

private:
    static Disco& discoVero();
};

} // namespace bor
