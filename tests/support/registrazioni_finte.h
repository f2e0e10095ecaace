// Posting that only notes what a save or a delete asked of it.
#pragma once

#include "document/registrazioni.h"

#include <QStringList>

namespace bor {

class RegistrazioniFinte : public Registrazioni {
public:
    QStringList chiamate;
    bool esito = true;

    bool togliscarico(const Documento&) override {
        chiamate.append(QStringLiteral("togli"));
        return esito;
    }
    bool mettiscarico(const Documento&) override {
        chiamate.append(QStringLiteral("metti"));
        return esito;
    }
    void preparaMovimento(const Documento&) override { chiamate.append(QStringLiteral("movimento")); }
};

} // namespace bor
