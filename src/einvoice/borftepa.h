// The electronic invoice of a document to a public administration: what it needs beyond the document is
// entered here, and the XML file made. Opened from the document form, to which it returns.
#pragma once

#include "archive/contesto.h"
#include "archive/fpa.h"
#include "common/serie.h"
#include "document/documento.h"
#include "einvoice/campifpa.h"
#include "einvoice/filefpa.h"
#include "einvoice/listefpa.h"
#include "einvoice/riepilogofpa.h"
#include "xmlcheck/controlloxml.h"

#include <array>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace bor {

class Borftepa {
public:
    Borftepa(Contesto& contesto, Documento& documento);

    /// Proposes the data from the document, or restores those entered before. Where the company's own data
    /// were never compiled it says so and returns to the document.
    void attiva();
    Bordata bordata() const { return m_contesto.bordata(); }
    /// Returns to the document.
    void lascia(); ///< `comando(4)`

    const QString& testo(PostoFpa posto) const { return m_testi[indiceFpa(posto)]; }
    void cambia(PostoFpa posto, const QString& testo);
    /// A text that is no date gives way to today's.
    void lasciaData(DataFpa data);
    /// The box holds a whole date: typing goes on in the next one.
    bool dataCompleta(DataFpa data) const;
    void invio(PostoFpa posto);
    /// The customer's boxes only show: who enters one is sent to the first that may be written.
    void entraCliente() { m_fuoco = TestoFpa::Numero; }
    /// The box that the last event sends the operator to; asking takes the wish away.
    std::optional<PostoFpa> prendiFuoco() { return std::exchange(m_fuoco, std::nullopt); }

    /// Positions count from 0; -1 is no selection.
    int scelta(ListaFpa lista) const { return m_scelte[lista]; }
    void scegli(ListaFpa lista, int posizione) { m_scelte[lista] = posizione; }
    QStringList vettori() const; ///< `Combo1`
    int vettore() const { return m_vettore; }
    void scegliVettore(int posizione);
    QString nomeVettore() const { return m_fpadoc.vettorenome.trimmed(); }

    /// The customer as his record has him, on a form that does not change him.
    const Cli& cliente() const { return m_cliente; }

    bool art73 = false;
    bool esig = false; ///< deferred VAT

    /// Writes the XML file and the data of company and document, and tells where the file is.
    void genera(); ///< `comando(1)`
    bool generato() const { return m_generata.has_value(); }
    /// What is wrong with the file generated last: that the disk does not have it as the form shows it, or
    /// what the receiving system would refuse in it. Nothing when there is no such file, which the operator
    /// is told.
    std::optional<std::vector<Rilievo>> controlla();

private:
    using SceltaListe = Serie<int, ListaFpa::TipoDocumento, ListaFpa::Modalita>;
    /// What the operator can enter.
    using Compilata = std::tuple<std::array<QString, numeroPostiFpa>, SceltaListe, int, bool, bool>;
    /// What `genera` did last.
    struct Generata {
        Compilata compilata;
        QString nome;
        QString percorso; ///< empty when the name is none of a file
        QByteArray xml;
        std::vector<Rilievo> nonScritti; ///< of the other files
    };

    void apriAzienda();
    void vuotaCampi();
    void proponi();
    void proponiPagamento();
    LetturaFpa apriDocumento();
    void ripristina();
    void raccogli();
    QByteArray componiXml();
    std::vector<Rilievo> scriviDati();
    double nuovoProgressivo();
    Compilata compilata() const { return {m_testi, m_scelte, m_vettore, art73, esig}; }
    QString fileDocumento() const;
    QString voce(ListaFpa lista) const;
    void scegliCodice(ListaFpa lista, QStringView codice);
    void scegliSeEsiste(ListaFpa lista, int posizione);

    Contesto& m_contesto;
    Documento& m_documento;
    Cli m_cliente = vuoto<Cli>();
    Fpa m_fpaazienda = vuoto<Fpa>();
    Fpa m_fpadoc = vuoto<Fpa>();
    TabellaRighe m_righepa;
    RiepilogoFpa m_riepilogo;
    std::array<QString, numeroPostiFpa> m_testi; ///< as typed, of texts and dates
    SceltaListe m_scelte;
    std::optional<PostoFpa> m_fuoco;
    int m_vettore = -1;
    std::optional<Generata> m_generata;
};

} // namespace bor
