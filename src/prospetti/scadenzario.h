// The due list on screen: every instalment of the documents, chosen by period, customer and way of payment.
// The archive does not know what was paid, so an amount is "in scadenza", never owed.
#pragma once

#include "prospetti/elencoscadenze.h"
#include "prospetti/limitiscadenze.h"
#include "prospetti/memoriaprospetti.h"
#include "prospetti/prospetto.h"

#include <functional>

namespace bor {

/// Columns of the list, in their order on screen.
enum class ColonnaScadenze { Scadenza, Cliente, Documento, Data, Genere, Rata, Pagamento, Riba, Importo };
inline constexpr int colonneScadenze = 9;

class Scadenzario : public Prospetto {
public:
    /// `apri` shows a document, if it is still the one that was meant.
    Scadenzario(Contesto& c, std::function<void(const Identita&)> apri);

    LimitiScadenze& limiti() { return m_limiti; }
    /// The other choices.
    const SceltaScadenze& scelta() const { return m_scelta; }
    void cambiaCliente(const QString& testo);
    /// Position in `pagamenti`.
    void cambiaPagamento(int posto);
    int postoPagamento() const;
    /// "Tutte", then the payment types that documents have.
    QStringList pagamenti() const;
    void cambiaRiba(SceltaRiba riba);
    void cambiaGruppi(GruppiScadenze gruppi);

    int righe() const override { return quantiIn(m_elenco.righe()); }
    QString testo(int riga, ColonnaScadenze colonna) const;
    bool totale(int riga) const override;
    /// The row that the operator was on, also after another choice or order; where it is not listed any more,
    /// the first one due from today on.
    int rigaCorrente() const;
    void cambiaRiga(int riga);
    /// Opens the document of a row; a total has none.
    void apri(int riga);

    /// "In scadenza: 12 rate, 1.250,00", what has no date apart, and which limit is no date.
    QString riepilogo() const;
    Bordata bordata() const { return contesto.bordata(); }

    Tabella tabella() const override;

private:
    void svuota() override { m_elenco.svuota(); }
    void prendi(int record, const Fte& fte, const F2e& f2e) override { m_elenco.aggiungi(record, fte, f2e); }
    void completa() override;
    void scegli() override;
    void ricorda();
    QString testoTotale(const ElencoScadenze::Riga& riga, ColonnaScadenze colonna) const;
    QString nomeGruppo(const ElencoScadenze::Riga& riga) const;
    QString giorno(const RataDovuta& rata) const;
    QString modalita(int pagamento) const;
    QString nome(int cliente) const;
    QString conta(const ContoRate& conto) const;
    QString filtro() const;
    void celle(const ElencoScadenze::Riga& riga, CelleRiga& celle) const;

    std::function<void(const Identita&)> m_apri;
    ElencoScadenze m_elenco;
    SceltaScadenze m_scelta;
    LimitiScadenze m_limiti;
    MemoriaProspetti m_memoria;
    ScelteScadenzario m_ricordate;
    ElencoScadenze::Chi m_corrente;
};

} // namespace bor
