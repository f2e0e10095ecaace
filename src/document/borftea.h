// The document form: numbers and dates, the twelve VAT rows, totals, instalments, revenue split, and the
// panels of withholding, deferred VAT and yearly communication. Its commands store, delete, print and post.
#pragma once

#include "archive/contesto.h"
#include "common/registroposta.h"
#include "document/comandiesterni.h"
#include "document/dato.h"
#include "document/documento.h"
#include "document/importiiva.h"
#include "document/numeriusati.h"
#include "document/salvadoc.h"

#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

namespace bor {

class Borftea {
public:
    using Comando = ComandoTea;

    /// The panels that share one place: `Frame4`, `ivadiff`, `Frame5` and `Frame6`.
    enum class Prospetto { RigheIva, IvaDifferita, Ritenute, Spesometro };
    /// The lists to choose from.
    enum class Lista { Pagamenti, Ricavi, Tributi, ClassiNoleggio };

    Borftea(Contesto& contesto, Documento& documento, Registrazioni& registrazioni, RigheInSospeso& sospese,
            ComandiEsterni comandi);

    /// Fills the form at its first activation; after a trip to the lines it starts again at its first field.
    /// A form still open stays as it is.
    void attiva();
    /// The document was taken up from a draft: the next activation shows it as it is.
    void riprendi();
    QString titolo() const;
    Bordata bordata() const { return m_contesto.bordata(); }

    /// What a box shows. Members lead to it from `Estremi`, `Scadenze` or `Prospetti`, places in an array
    /// among them: `dato(&Scadenze::rate, 0, &Rata::importo)`.
    template <class T, class Parte, class... Altri>
    const auto& dato(T Parte::*primo, Altri... altri) const {
        return std::as_const(datoIn(m_documento, primo, altri...));
    }
    /// The operator typed or chose: stores it, and works out what follows from it.
    template <class Valore, class T, class Parte, class... Altri>
    void cambia(const Valore& valore, T Parte::*primo, Altri... altri) {
        auto& dove = datoIn(m_documento, primo, altri...);
        dove = valore;
        cambiato(&dove);
    }
    QStringList voci(Lista lista) const;

    void lasciaNumero();
    /// Which other document of the year and VAT register has the number; empty for none.
    QString avvisoNumero() const;
    void lasciaData();
    /// False where the company's VAT regime does not allow deferred VAT.
    bool esigAbilitato() const { return m_contesto.tabelle.regimeiva() != 0; }

    ImportiIva& importiIva() { return m_importiIva; }
    /// A fee bill has advances, which the customer pays beside the instalments.
    bool anticipazioniFuori() const;

    // The panels.
    Prospetto prospetto() const { return m_prospetto; }
    /// False when the panel is refused.
    bool mostraProspetto(Prospetto prospetto);

    /// A fee bill's lines still carry the tax of other regimes.
    bool regimiCambiati() const { return m_documento.parcella() && m_contesto.sessione.regimicambiati; }
    QString integrata() const; ///< `Label3`; empty when it is hidden
    bool pdfVisibile() const { return m_pdfVisibile; }

    /// The mails that the document went out with, the latest first.
    std::vector<VocePosta> posta() const;

    bool abilitato(Comando comando) const;
    /// Runs a command; a disabled one does nothing.
    void esegui(Comando comando);
    /// The box that the last event sends the operator to; asking takes the wish away.
    std::optional<PostoTea> prendiFuoco();

private:
    void cambiato(const void* dato);
    bool nuovo() const { return m_documento.recordfattura == 0; }
    void apri();
    bool modificato() const; ///< since the document was opened
    void chiudi();
    void lascia();
    void esci();
    void stampa();
    void salva();
    void righe();
    void elimina();
    void testata();
    void copia(Copia come);
    bool prendiCopia(Copia come);
    void inizia();
    void registraCollegata();
    void fatturaElettronica();

    Contesto& m_contesto;
    Documento& m_documento;
    Registrazioni& m_registrazioni;
    RigheInSospeso& m_sospese;
    ComandiEsterni m_comandi;
    Documento m_aperto;                          ///< the document as it was opened
    QString m_numeroletto;                       ///< the number as last shown or warned about
    QString m_dataletta;                         ///< the date of issue that the due dates follow
    mutable std::optional<NumeriUsati> m_numeri; ///< read when first asked
    std::optional<PostoTea> m_fuoco;
    Prospetto m_prospetto = Prospetto::RigheIva;
    ImportiIva m_importiIva;
    bool m_pdfVisibile = false; ///< `Picture1`
};

} // namespace bor
