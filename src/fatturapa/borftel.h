// Today's electronic invoice of a stored document: shows what goes out and what speaks against it, keeps what
// the suite's records have no place for, writes the file. Opened from the document form and from the
// register, to which it returns.
#pragma once

#include "archive/contesto.h"
#include "document/dato.h"
#include "document/documento.h"
#include "fatturapa/generafattura.h"
#include "fatturapa/rilievifel.h"
#include "fatturapa/uscitafel.h"

#include <functional>
#include <optional>
#include <utility>

namespace bor {

class RigheInSospeso;

class Borftel {
public:
    using Prospetto = ProspettoFel;

    /// `cartellaPdf` tells the folder of the PDFs, a DOS path: the files lie beside them where the company
    /// names no folder of its own.
    Borftel(Contesto& contesto, Documento& documento, RigheInSospeso& sospese,
            std::function<QString()> cartellaPdf);

    /// Shows the document as it is stored. One that cannot be read is told, and the screen left, as it is for
    /// a document that is not stored.
    void attiva();
    /// Back to where the operator came from; asks first where something typed would be lost.
    void lascia();
    Bordata bordata() const { return m_contesto.bordata(); }

    /// What a box shows. Members lead to it from `DatiFel`, a VAT code among them:
    /// `dato(&DatiFel::nature, 18)`.
    template <class... Passi>
    const auto& dato(Passi... passi) const {
        return datoIn(m_dati, passi...);
    }
    /// The operator typed or chose: what goes out is composed anew.
    template <class Valore, class... Passi>
    void cambia(const Valore& valore, Passi... passi) {
        datoIn(m_dati, passi...) = valore;
        componi();
    }
    /// "18 Art. 8 DPR 633/72": a VAT code, 1 to 24, that bears no tax, and that the company or the document
    /// uses. Empty for any other.
    QString codiceSenzaImposta(int codice) const;

    Prospetto prospetto() const { return m_prospetto; }
    void mostra(Prospetto prospetto) { m_prospetto = prospetto; }

    const UscitaFel& uscita() const { return m_uscita; }
    /// Grows with every composition.
    int edizione() const { return m_edizione; }

    const RilieviFel& rilievi() const { return m_rilievi; }
    /// Whether the invoice can go out, in a sentence.
    QString esito() const;
    /// What is on disk of it, in a sentence.
    QString statoFile() const;
    /// Goes to the place of the next finding, round and round.
    void vaiAlRilievo();
    /// The place that the last event sends the operator to; asking takes the wish away.
    std::optional<PostoFel> prendiFuoco() { return std::exchange(m_fuoco, std::nullopt); }

    /// Something was typed that is not stored.
    bool modificato() const { return m_dati != m_letti; }
    /// Stores what was typed. False when that failed, which the operator is told.
    bool registra();
    /// Stores what was typed and writes the file.
    void genera();
    /// The receiving system has refused the file: on request the next one gets a new name.
    void scartata();
    /// There is a file on disk.
    bool generato() const { return m_suDisco != FileDocumento::Assente; }
    /// Path on this machine of the document's file; empty as long as it has no name.
    QString percorso() const;
    /// The file as it would be written now, without its attachment; nothing for a document that is refused,
    /// which the operator is told.
    std::optional<QByteArray> daLeggere();
    void apriCartella();

private:
    void esci();
    void rileggi();
    void componi();
    void controllaCartella();
    void racconta(const EsitoFel& esito);
    bool chiedeNatura(int codice) const;
    bool usato(int codice) const;

    Contesto& m_contesto;
    Documento& m_documento;
    RigheInSospeso& m_sospese;
    std::function<QString()> m_cartellaPdf;
    std::optional<GeneratoreFel> m_generatore; ///< none while the screen is not in view
    Documento m_registrato;                    ///< the document on file
    DatiFel m_dati;                            ///< as typed
    DatiFel m_letti;                           ///< as stored
    ProvaFel m_prova;
    UscitaFel m_uscita;
    RilieviFel m_rilievi;
    FileDocumento m_suDisco = FileDocumento::Assente;
    Prospetto m_prospetto = Prospetto::Documento;
    std::optional<PostoFel> m_fuoco;
    std::size_t m_seguente = 0; ///< finding that `vaiAlRilievo` goes to next
    int m_edizione = 0;
};

} // namespace bor
