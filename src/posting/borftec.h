// The movement editor: the operator confirms or changes the accounting movement of a document, and only then
// is it written.
#pragma once

#include "archive/contesto.h"
#include "archive/raffica.h"
#include "common/serie.h"
#include "document/cella.h"
#include "document/documento.h"
#include "posting/movimento.h"

#include <array>
#include <optional>
#include <unordered_map>
#include <utility>

namespace bor {

class Borftec {
public:
    static constexpr int righe = 10;

    /// The boxes of a line, in the order of the screen.
    enum class Campo { Mastro, Conto, Sottoconto, Dare, Avere };
    /// Characters of a group of the account; 0 for an amount.
    static constexpr Serie<int, Campo::Mastro, Campo::Avere> caratteri{{2, 2, 4, 0, 0}};
    /// What stands under the lines.
    enum class Totale {
        Dare,
        Avere,
        Sbilancio, ///< debit less credit; 0 when they agree to the cent
        Documento,
        Differenza ///< of the customer's side from what the document asks for; 0 when they agree to the cent
    };
    /// A line of the screen is a row of the movement.
    using Cella = CellaDi<Campo>;

    Borftec(Contesto& contesto, const Documento& documento);

    /// Puts a prepared movement on screen, before it is shown.
    void prepara(Movimento movimento) { m_movimento = std::move(movimento); }
    void attiva();
    QString titolo() const;
    Bordata bordata() const { return m_contesto.bordata(); }

    QString testo(Cella cella) const;
    /// A change of an account also moves the list to the first account that begins so, and a full group sends
    /// the operator on.
    void cambia(Cella cella, const QString& testo);
    void entra(Cella cella) { m_lineafuoco = cella.linea; }
    QString descrizioneConto(int linea) const; ///< `ds`
    /// From the last box of the last line Enter leads back to the first.
    void invio(Cella cella);
    /// The box that the last event sends the operator to; asking takes the wish away.
    std::optional<Cella> prendiFuoco() { return std::exchange(m_fuoco, std::nullopt); }

    /// A head text: `Text1(0)`, `Text2` or `Text1(1)`.
    const QString& dato(QString Movimento::*testo) const { return m_movimento.*testo; }
    void cambia(const QString& valore, QString Movimento::*testo);

    /// Accounts as "MM CC SSSS descrizione".
    const QStringList& conti() const { return m_conti; }
    /// Grows with every filling of that list.
    int edizione() const { return m_edizione; }
    int contoScelto() const { return m_contoScelto; }
    /// Moves the list to the first account whose name begins with the text.
    void cerca(const QString& testo); ///< `ccerca`
    /// Takes an account of the list into the current line.
    void prendiConto(int posizione);

    void togliRiga();     ///< `bottone(3)`
    void inserisciRiga(); ///< `bottone(4)`
    /// Writes the movement and returns to the register; stays on a date or account that is not valid, or on a
    /// failed write.
    void salva();
    /// Returns to the register without a movement. Asks first where something was typed, and tells that a new
    /// document stays without one.
    void lascia();

    double totale(Totale quale) const;
    QString importo(double x) const { return m_contesto.valuta().importotesto(x); }

private:
    double somma(QString RigaMovimento::*importo) const;
    double totaleDocumento() const;
    double differenza() const;
    bool salvamovimento();
    /// Writes the movement and the balances, unless an account is missing.
    EsitoRaffica registra(bool& contiTrovati);
    bool trovaConti(Raffica& raffica);
    void aggiornaConti(Raffica& raffica, int vecchiomovimento);
    void scriviMovimento(Raffica& raffica, int vecchiomovimento);
    RigaMovimento& riga(int i) { return elemento(m_movimento.righe, i); }
    const RigaMovimento& riga(int i) const { return elemento(m_movimento.righe, i); }

    Contesto& m_contesto;
    const Documento& m_documento;
    Movimento m_movimento;
    std::array<int, righe> m_contoriga{}; ///< `con` record of each line
    QStringList m_conti;
    std::unordered_map<double, QString> m_nomi; ///< names of the accounts by the value of their code
    int m_contoScelto = -1;
    int m_edizione = 0;
    int m_lineafuoco = 0;      ///< the line last entered
    bool m_modificato = false; ///< something was typed since the movement came on screen
    std::optional<Cella> m_fuoco;
};

} // namespace bor
