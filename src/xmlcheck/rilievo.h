// One finding about an electronic invoice. The checks of a file and the composition of a new one give them;
// screens and programs show them.
#pragma once

#include <QString>

#include <vector>

namespace bor {

enum class Gravita {
    Errore, ///< the receiving system would refuse the file
    Avviso, ///< it would take the file, but somebody should look
};

struct Rilievo {
    QString elemento; ///< path below the root, "FatturaElettronicaBody/DatiGenerali/..."; empty for the whole
                      ///< file
    int riga = 0;     ///< line in the file from 1; 0 when it has none
    QString valore;   ///< what stands there, empty when nothing does
    QString motivo;   ///< what is wrong with it
    QString rimedio;  ///< what to change, and where
    QString codice;   ///< under which the receiving system refuses it, "00423"; empty when it has no code
    Gravita gravita = Gravita::Errore;
};

/// "Scarto 00423.", of a hint "Possibile scarto 00301."; empty without a code.
QString scartoDi(const Rilievo& rilievo);

/// The finding as a paragraph of a few lines.
QString testoRilievo(const Rilievo& rilievo);

/// "nessun rilievo", "1 rilievo", "3 rilievi, 1 avviso".
QString contoRilievi(const std::vector<Rilievo>& rilievi);

} // namespace bor
