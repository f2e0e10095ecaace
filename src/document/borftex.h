// The goods lines form: twelve visible rows on the 500 lines of a document, with the article list beside them
// and the totals always up to date. Its work reaches the document when the operator confirms.
#pragma once

#include "document/articoli.h"
#include "document/documento.h"
#include "document/totaliriga.h"

#include <optional>

namespace bor {

struct Contesto;

class Borftex {
public:
    /// The columns of the grid, in Tab order.
    enum class Campo { Artic, Ds, Um, Quantita, Sc1, Sc2, Prezzo, Civ };

    /// A box of the grid; visible rows count from 0.
    struct Cella {
        Campo campo = Campo::Artic;
        int r = 0;

        friend bool operator==(const Cella&, const Cella&) = default;
    };

    static constexpr int righeVisibili = 12;
    static constexpr int ultimaPrimariga = 489;

    Borftex(Contesto& contesto, Documento& documento);

    /// Takes the lines of the document and the article list anew.
    void attiva();

    // What the screen shows.
    QString titolo() const;
    QString numfat() const; ///< number of the document
    QString link() const;   ///< number of the document's detail-lines file; empty for none
    int primariga() const { return m_primariga; }
    /// Line shown in a visible row, counted from 0.
    const Riga& riga(int r) const { return m_righe[indice(r)]; }
    QString testo(Cella cella) const;
    const TotaliRighe& totali() const { return m_totali; }
    QString tota(int indice) const; ///< 0 taxable, 1 total, 2 pieces, each with a blank in front
    QString alr() const;            ///< withholding rate
    QString imr() const;            ///< withholding
    const QString& listx() const { return m_listx; } ///< status line: the article of the row last entered
    QStringList vociIva() const;                     ///< items of `Combo1`; item k is code k + 1
    bool combo1Visibile() const { return m_combo1; }
    int combo1Posizione() const; ///< of the row with the focus, from 0
    bool listaVisibile() const { return m_listaVisibile; }
    const ListaArticoli& lista() const { return m_lista; }
    /// Grows with every loading of the list.
    int edizioneLista() const { return m_edizioneLista; }
    int posizioneLista() const { return m_posizioneLista; } ///< -1 for none
    int listino() const { return m_listino; }               ///< 1 or 2: `prezz(0)` or `prezz(1)`
    bool barcode() const { return m_barcode; }
    bool scorporo() const { return m_documento.scorporo; }
    /// The box that the last event sends the operator to; asking takes the wish away.
    std::optional<Cella> prendiFuoco();

    // What the operator does in the grid.
    void entra(Cella cella);
    void lascia(Cella cella);
    void cambia(Cella cella, const QString& testo);
    void invio(Cella cella);
    void cercaDescrizione(); ///< F1 in a description
    void scegliIva(int posizione);
    void chiudiIva() { m_combo1 = false; }
    void scorri(int primariga);
    /// Page keys: so many lines up or down.
    void pagina(int righe);

    // Around the grid.
    void scegliArticolo(int posizione); ///< a click in the list
    void apriLista();
    void cambiaBarcode(bool acceso);
    void cambiaListino(int listino) { m_listino = listino; }
    void cambiaScorporo(bool acceso);
    void riordina();
    void inserisciRiga();
    void eliminaRiga();
    void conferma();
    void indietro();

private:
    std::size_t indice(int r) const { return static_cast<std::size_t>(m_primariga + r - 1); }
    Riga& rigaDi(int r) { return m_righe[indice(r)]; }
    bool artNonVuoto() const;
    void caricaLista();
    void mostraStato();
    void ricalcolaTutto();
    void riportaPeso();
    int ivaPredefinita() const;

    void cambiaArticolo(int r, const QString& testo);
    void cambiaPrezzo(Riga& riga, const QString& testo);
    void proponiSconti(Riga& riga);
    void invioArticolo(int r);
    void prossimaRiga(int r);

    enum class Da { Casella, Lista };
    void mettiArticolo(int recart, Da da);
    void mettiTestoAggiuntivo(int recart);
    double prezzoListino(const Riga& riga, Da da) const;
    void articoloNonEsistente();
    void salvarighe();

    Contesto& m_contesto;
    Documento& m_documento;
    TabellaRighe m_righe;
    TotaliRighe m_totali;
    ListaArticoli m_lista;
    Art m_articolo = vuoto<Art>(); ///< the article last read
    QString m_listx;
    std::optional<QString> m_digitato; ///< text being typed in the article box of the row with the focus
    std::optional<Cella> m_fuoco;
    int m_primariga = 1;
    int m_rigafocus = 0; ///< visible row last entered
    int m_posizioneLista = -1;
    int m_edizioneLista = 0;
    int m_listino = 1;
    bool m_listaCaricata = false;
    bool m_listaVisibile = false;
    bool m_combo1 = false;
    bool m_barcode = false;
};

} // namespace bor
