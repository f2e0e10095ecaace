// The goods lines form: twelve lines on the 500 rows of a document, with the article list beside them.
#pragma once

#include "document/appuntirighe.h"
#include "document/cella.h"
#include "document/documento.h"
#include "document/elencoarticoli.h"
#include "document/finestrarighe.h"
#include "document/righemerce.h"
#include "document/storico.h"
#include "document/testimerce.h"

#include <optional>

namespace bor {

struct Contesto;

class Borftex {
public:
    using Campo = RigheMerce::Campo;
    using Cella = CellaDi<Campo>;

    static constexpr int linee = 12;

    enum class Comando {
        Indietro,
        Conferma,
        InserisciRiga,
        EliminaRiga,
        Riordina,
        ApriLista,
        CercaDescrizione, ///< F1 in a description; again, the next article that fits
        PaginaSu,
        PaginaGiu,
        RigaSu, ///< the same box of the row above
        RigaGiu,
        PrimaLibera, ///< the first free row
        ChiudiIva
    };
    /// The first two are `prezz(0)` and `prezz(1)`.
    enum class Opzione { Listino1, Listino2, Scorporo, Barcode };

    Borftex(Contesto& contesto, Documento& documento);

    /// Takes the rows of the document and the article list anew.
    void attiva();
    /// The next activation takes these lines in place of the document's: they were typed and not confirmed
    /// when a run was interrupted.
    void riprendi(TabellaRighe righe) { m_righe.riprendi(std::move(righe)); }

    // What the screen shows.
    const TestiMerce& testi() const { return m_testi; }
    const FinestraRighe& finestra() const { return m_finestra; } ///< `VScroll1`
    const RigheMerce& righe() const { return m_righe; }
    QString testo(Cella cella) const;
    /// Why a box is marked; empty for one that nothing is wrong with.
    QString avviso(Cella cella) const;
    const QString& listx() const { return m_listx; } ///< status line: the article of the line last entered
    /// `Combo1`: position of the code of the line with the focus; nothing while the list is closed.
    std::optional<int> listaIva() const;
    const ElencoArticoli& articoli() const { return m_articoli; }
    bool opzione(Opzione quale) const;
    /// The box that the last event sends the operator to; asking takes the wish away.
    std::optional<Cella> prendiFuoco();

    // What the operator does.
    void entra(Cella cella);
    void lascia(Cella cella);
    void cambia(Cella cella, const QString& testo);
    void invio(Cella cella);
    void scegliIva(int posizione);
    void scorri(int prima);
    void scegliArticolo(int posizione); ///< a click in the list
    void cambiaOpzione(Opzione quale, bool accesa);
    void esegui(Comando comando);

    /// Rows that are chosen, copied and pasted.
    AppuntiRighe& appunti() { return m_appunti; }

    /// The customer, and the article of the line last entered.
    DomandaStorico storico() const;
    /// Price and discounts of a sale of before go into the line last entered.
    void prendi(const VenditaStorica& vendita);

private:
    struct Ricerca {
        QString testo;
        int trovato; ///< `art` record
        TabellaRighe prima;
    };

    int riga(int linea) const { return m_finestra.riga(linea); }
    int rigaFuoco() const { return riga(m_lineafuoco); }
    void vaiA(Campo campo, int linea) { m_fuoco = Cella{campo, linea}; }
    void vaiARiga(Campo campo, int riga);
    void prossimaLinea(int linea);
    void muovi(int verso);
    AppuntiRighe::Form perAppunti();
    void pagina(int verso);
    void cambiaBarcode(bool acceso);
    void cambiaArticolo(int linea, const QString& testo);
    void invioArticolo(int linea);
    void cercaDescrizione();
    void mettiArticolo(int recart, RigheMerce::Da da);
    void articoloNonEsistente(Campo campo);
    /// Leaving will ask, and F1 begins anew.
    void modificato();

    Contesto& m_contesto;
    Documento& m_documento;
    RigheMerce m_righe;
    TestiMerce m_testi{m_contesto, m_documento, m_righe};
    AppuntiRighe m_appunti;
    ElencoArticoli m_articoli;
    FinestraRighe m_finestra{linee, righeMerce - linee + 1};
    QString m_listx;
    std::optional<QString> m_digitato; ///< text being typed in the article box of the line with the focus
    std::optional<Cella> m_fuoco;
    std::optional<Cella> m_errata;    ///< the box whose article does not exist
    std::optional<Ricerca> m_ricerca; ///< of a description, while F1 goes on with it
    int m_lineafuoco = 0;             ///< the line last entered
    Campo m_campofuoco{};             ///< the box last entered
    bool m_listaIva = false;
    bool m_barcode = false;
    bool m_barcodeScelto = false; ///< by the operator, for the rest of the run
    bool m_modificato = false;    ///< something was typed since the lines were opened
};

} // namespace bor
