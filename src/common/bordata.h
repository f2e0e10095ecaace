// The date dialog of the suite: what it starts from and what it hands back. Every date field asks through it.
#pragma once

#include "common/orologio.h"
#include "common/sessione.h"

namespace bor {

class Bordata {
public:
    Bordata(Sessione& sessione, const Orologio& orologio) : m_sessione(sessione), m_orologio(orologio) {}

    /// Prepares the dialog for a field that holds this text: its date is the one to start from, today's the
    /// one to use when the text is no date.
    void prepara(const QString& testo);
    /// The day that the dialog shows first.
    QDate iniziale() const;
    void scegli(QDate giorno);
    /// The day chosen, as "dd/mm/yyyy"; empty when the dialog was left without a choice.
    const QString& scelta() const;

private:
    Sessione& m_sessione;
    const Orologio& m_orologio;
};

} // namespace bor
