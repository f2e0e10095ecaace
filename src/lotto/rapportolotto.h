// What became of each document of a command on many: shown while it runs and when it is done.
#pragma once

#include "document/identita.h"

#include <QString>

#include <vector>

namespace bor {

enum class EsitoRiga {
    Attesa, ///< its turn has not come
    Fatta,
    ConRilievi, ///< done, but somebody should look
    NonFatta
};

struct RigaLotto {
    Identita documento;
    QString nome;    ///< "fattura 12 del 15/03/2015"
    QString cliente; ///< first line of his name
    EsitoRiga esito = EsitoRiga::Attesa;
    QString testo = {}; ///< what was done, or why it was not
};

struct RapportoLotto {
    QString titolo;
    std::vector<RigaLotto> righe;
    bool interrotto = false;

    int quante(EsitoRiga esito) const;
    /// "36 fatti, 1 con rilievi, 3 non fatti".
    QString conto() const;
};

/// The outcome in a word, as a table shows it.
QString nomeEsito(EsitoRiga esito);

} // namespace bor
