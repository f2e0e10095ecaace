// The list of the register as an operator wants it: which documents, which columns. Kept for each company
// among the user's own data, never in the suite's records.
#pragma once

#include "archive/archivio.h"
#include "common/periodo.h"
#include "register/colonneelenco.h"

#include <vector>

namespace bor {

/// A fee bill that is a credit note is one of the credit notes.
enum class GenereDocumento { Tutti, Fatture, NoteDiCredito, Parcelle, Pa };

/// The date of a document that a period goes by.
enum class DataPeriodo { Documento, Registrazione };

inline constexpr int massimaLarghezzaColonna = 200; ///< characters

struct ColonnaScelta {
    Colonna colonna = Colonna::Registrazione;
    int caratteri = 0; ///< its width; 0 for its own

    friend bool operator==(const ColonnaScelta&, const ColonnaScelta&) = default;
};

/// Which documents; made without a choice, all of them.
struct DocumentiScelti {
    Periodo periodo;
    DataPeriodo data = DataPeriodo::Documento;
    GenereDocumento genere = GenereDocumento::Tutti;
    bool eliminati = true;

    /// "marzo 2015 (data di registrazione), note di credito, senza eliminati"; empty for all.
    QString descrizione() const;

    friend bool operator==(const DocumentiScelti&, const DocumentiScelti&) = default;
};

/// Tells of each record whether it is among the documents, with the days worked out once.
class Vaglio {
public:
    explicit Vaglio(const DocumentiScelti& documenti);

    bool passa(const Fte& fte, const F2e& f2e) const;

private:
    bool nelPeriodo(const Text<8>& giorno) const;

    DataPeriodo m_data;
    GenereDocumento m_genere;
    bool m_eliminati;
    QByteArray m_dal; ///< `yyyymmdd`; empty for an open end
    QByteArray m_al;
};

struct VistaRegistro {
    DocumentiScelti documenti;
    std::vector<ColonnaScelta> colonne; ///< from left to right; none for those of a list without choices

    /// From left to right, each once; never none.
    std::vector<ColonnaScelta> mostrate() const;

    friend bool operator==(const VistaRegistro&, const VistaRegistro&) = default;
};

/// Where the choice stands that was made last; what cannot be read of it counts as not chosen, what cannot be
/// written is not remembered.
class MemoriaVista {
public:
    MemoriaVista(const Percorsi& percorsi, double codiceazienda);

    VistaRegistro leggi() const;
    void segna(const VistaRegistro& vista) const;

private:
    QString m_file;
};

/// Items of a list to choose from, in the order of the enumerators.
QStringList generiDocumento();

} // namespace bor
