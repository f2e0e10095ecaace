// The document form: numbers and dates, the twelve VAT rows, totals, instalments, revenue split, and the
// panels of withholding, deferred VAT and yearly communication. Its commands store, delete, print and post.
#pragma once

#include "archive/contesto.h"
#include "document/comandiesterni.h"
#include "document/documento.h"
#include "document/righeiva.h"
#include "document/salvadoc.h"

#include <QStringList>

#include <optional>

namespace bor {

class Borftea {
public:
    static constexpr int righeVisibili = 8;
    static constexpr int ultimaPosizione = 5; ///< of the scroll bar

    /// The panels that share one place.
    enum class Prospetto {
        RigheIva,     ///< `Frame4`
        IvaDifferita, ///< `ivadiff`
        Ritenute,     ///< `Frame5`
        Spesometro    ///< `Frame6`
    };
    /// The buttons of the command bar.
    enum class Comando { Esci, Salva, Righe, Pdf, Elimina, Stampa, Anteprima, Testata, FatturaPa };

    Borftea(Contesto& contesto, Documento& documento, Registrazioni& registrazioni, RigheInSospeso& sospese,
            ComandiEsterni comandi);

    /// Fills the form for a new or a stored document at its first activation. After a trip to the lines the
    /// document stays and the form starts again at its first field; a form still open stays as it is.
    void attiva();
    QString titolo() const;

    // What the operator types without a rule behind it.
    Estremi& estremi() { return m_documento.estremi; }
    Scadenze& scadenze() { return m_documento.scadenze; }
    Prospetti& prospetti() { return m_documento.prospetti; }

    // Numbers and dates.
    void lasciaNumero();
    void lasciaData();
    /// False where the company's VAT regime does not allow deferred VAT.
    bool esigAbilitato() const { return m_contesto.tabelle.regimeiva() != 0; }

    // The VAT rows: lines of the screen count from 0.
    int primariga() const { return m_primariga; } ///< `VScroll1`, from 1
    void scorri(int primariga);
    QString etichettaIva(int linea) const;    ///< `iv`
    QString etichettaEsente(int linea) const; ///< `es`
    QString importo(int linea, VoceIva voce) const;
    void cambiaImporto(int linea, VoceIva voce, const QString& testo);
    /// 0 taxable, 1 tax, 2 exempt, 3 the whole document; each with a blank in front.
    QString totale(int indice) const;

    // Schedule, commission, withholding.
    void cambiaPagamento(int posizione);
    void cambiaAliquotaProvvigione(const QString& testo);
    void cambiaRitenuta(int riga, const QString& testo); ///< `raimp`; rows count from 0

    // The panels.
    Prospetto prospetto() const { return m_prospetto; }
    /// False when the panel is refused; the one in view then stays.
    bool mostraProspetto(Prospetto prospetto);

    // Content of the lists.
    QStringList pagamenti() const;
    QStringList ricavi() const;
    QStringList tributi() const { return leggiTributi(m_contesto.archivio); }
    static QStringList classiNoleggio();

    QString integrata() const; ///< `Label3`; empty when it is hidden

    // The PDF selection.
    bool pdfVisibile() const { return m_pdfVisibile; }
    bool scegliPdfAbilitato() const { return static_cast<bool>(m_comandi.scegliPdf); }
    void scegliPdf() { m_comandi.scegliPdf(); }
    void apripdf() const;

    bool abilitato(Comando comando) const;
    /// Runs a command of the bar; a disabled one does nothing.
    void esegui(Comando comando);
    /// The box that the last event sends the operator to; asking takes the wish away.
    std::optional<PostoTea> prendiFuoco();

private:
    int rigaIva(int linea) const { return linea + m_primariga; }
    bool nuovo() const { return m_documento.record == 0; }
    void apriNuovo();
    void apriEsistente();

    void chiudi();
    void esci();
    void salva();
    void righe();
    void elimina();
    void testata();

    Contesto& m_contesto;
    Documento& m_documento;
    Registrazioni& m_registrazioni;
    RigheInSospeso& m_sospese;
    ComandiEsterni m_comandi;
    QString m_numeroletto; ///< the number as last shown or warned about
    std::optional<PostoTea> m_fuoco;
    Prospetto m_prospetto = Prospetto::RigheIva;
    int m_primariga = 1;
    bool m_pdfVisibile = false; ///< `Picture1`
};

} // namespace bor
