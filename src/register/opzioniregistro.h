// What the operator chooses about the list of the register: which documents, where it opens, what he
// searches.
#pragma once

#include "archive/contesto.h"
#include "register/vistaregistro.h"

#include <functional>
#include <optional>

namespace bor {

/// How many records the list scans.
enum class Selvis { Tutte, Ultime1000, Ultime5000 };
/// Where the list opens: at its first row or at its last.
enum class Visua { DallaPrima, DallUltima };
/// Which documents: by their electronic invoice, or those whose movement does not agree with them.
enum class FiltroFatture { Tutte, Normali, SoloPa, MovimentoDaControllare };

/// Which documents the list shows, and from where on.
struct SceltaVista {
    FiltroFatture filtro = FiltroFatture::Tutte;
    /// Nothing is chosen after a stored preference that names none.
    std::optional<Selvis> selvis;
    std::optional<Visua> visua;
    QString cercato;
};

class OpzioniRegistro {
public:
    /// What a choice asks of the list.
    enum class Effetto { Riempimento, Posizione, Ricerca, Colonne };

    /// `libero`: choices may be made, otherwise they have no effect. `cambiate` hears of each one.
    OpzioniRegistro(Contesto& contesto, std::function<bool()> libero, std::function<void(Effetto)> cambiate);

    /// From the stored preference and what is remembered, without a word to `cambiate`.
    void ripristina();

    void cambiaFiltro(FiltroFatture filtro);
    void cambiaSelvis(Selvis scelta);
    void cambiaVisua(Visua scelta);
    /// The list as the operator wants it; remembered for the company.
    void cambiaVista(const VistaRegistro& vista);
    /// Leaves in the list the documents that answer to the text, as `CercaFatture` tells.
    void cerca(const QString& testo);

    const SceltaVista& scelte() const { return m_scelte; }
    const VistaRegistro& vista() const { return m_vista; }
    /// One line that tells which documents are in the list: "Tutti i documenti", "marzo 2015, fatture".
    QString descrizione() const;
    Bordata bordata() const { return m_contesto.bordata(); }
    QDate oggi() const { return m_contesto.orologio.oggi(); }

private:
    void salva();

    Contesto& m_contesto;
    std::function<bool()> m_libero;
    std::function<void(Effetto)> m_cambiate;
    MemoriaVista m_memoria;
    SceltaVista m_scelte;
    VistaRegistro m_vista;
};

} // namespace bor
