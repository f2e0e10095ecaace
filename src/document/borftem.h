// The head form: finds the customer of a document, shows his data, and holds the transport or practice data
// of the document's head.
#pragma once

#include "archive/contesto.h"
#include "document/dato.h"
#include "document/documento.h"
#include "document/storico.h"
#include "document/vocitestata.h"

#include <utility>

namespace bor {

/// The frame that shares its place with two others.
enum class RiquadroTestata {
    Contabili,  ///< `Frame3`: accounts of the customer
    Spedizione, ///< `Frame4`: transport of a goods invoice
    Pratica     ///< `Frame5`: regimes and practice of a fee bill
};

class Borftem {
public:
    Borftem(Contesto& contesto, Documento& documento);

    void attiva();
    /// The document was taken up from a draft: its head texts stay with the customer that it names.
    void riprendi();
    Bordata bordata() const { return m_contesto.bordata(); }

    /// The bar was moved to this position of the customer index.
    void cambiaPosizione(int posizione);
    void cambiaNome(const QString& testo);
    /// Enter in `nome`, or `b_cerca`.
    void cerca();
    /// Shows the customer picker for the text in `nome`.
    void lista();
    /// The carrier list was clicked; positions count from 0.
    void cambiaVettore(int posizione);
    /// On to the document with the customer in view; without effect when he is deleted or there is none.
    void avanti();
    /// Leaves the screen: as `avanti`, and where that has no effect back to where the operator came from,
    /// with the customer that the document had.
    void lascia();

    RiquadroTestata riquadro() const;
    /// Value of the scroll bar, which runs from 1 to `numeroClienti()`.
    int posizione() const { return m_poscliente; }
    int numeroClienti() const { return m_numero; }
    /// `cli` record of the customer in view; 0 for none.
    int recordCorrente() const { return m_recordcorrente; }
    DomandaStorico storico() const { return {.cliente = m_recordcorrente}; }
    bool clienteEliminato() const { return m_documento.cliente.eliminato == 1; }
    const QString& nome() const { return m_nome; }
    int vettore() const { return m_vettore; }
    /// What a box shows, and what the operator types over for this document. Members lead to it from
    /// `DatiCliente`, `Trasporto` or `Pratica`, places in an array among them:
    /// `dato(&DatiCliente::sede, &SedeTesti::cap)`.
    template <class T, class Parte, class... Altri>
    const auto& dato(T Parte::*primo, Altri... altri) const {
        return std::as_const(datoIn(m_documento, primo, altri...));
    }
    template <class Valore, class T, class Parte, class... Altri>
    void cambia(const Valore& valore, T Parte::*primo, Altri... altri) {
        auto& dove = datoIn(m_documento, primo, altri...);
        if (dove == valore)
            return;
        dove = valore;
        cambiato(&dove);
    }

    VociTestata voci() const { return VociTestata(m_contesto.tabelle); }

private:
    void cambiato(const void* dato);
    void mostraCliente();
    void prendi(int record);
    bool puoProseguire() const { return m_documento.cliente.eliminato == 0 && m_recordcorrente > 0; }

    Contesto& m_contesto;
    Documento& m_documento;
    QString m_nome;
    int m_poscliente = 1;
    int m_recordcorrente = 0;
    int m_numero = 0; ///< customers counted when the screen was activated
    int m_vettore = 0;
};

} // namespace bor
