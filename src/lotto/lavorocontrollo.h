// Checks today's electronic invoices of the chosen documents as they would be written now; writes nothing.
#pragma once

#include "fatturapa/generafattura.h"
#include "lotto/lavoro.h"

namespace bor {

class LavoroControllo : public Lavoro {
public:
    explicit LavoroControllo(const Contesto& contesto);

    QString titolo() const override;
    QString proposta(std::vector<Candidato>& candidati) override;
    void prendi(std::size_t riga, Documento documento) override;

private:
    GeneratoreFel m_generatore;
};

} // namespace bor
