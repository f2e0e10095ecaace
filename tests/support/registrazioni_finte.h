// Posting that only notes what a save or a delete asked of it.
#pragma once

#include "document/registrazioni.h"

#include <QStringList>

#include <functional>

namespace bor {

class RegistrazioniFinte : public Registrazioni {
public:
    QStringList chiamate;
    bool esito = true;
    std::function<bool(const Gio&)> storno; ///< what taking a movement back does, where a test needs it

    bool togliscarico(const Documento&) override {
        chiamate.append(QStringLiteral("togli"));
        return esito;
    }
    bool mettiscarico(const Documento&) override {
        chiamate.append(QStringLiteral("metti"));
        return esito;
    }
    void preparaMovimento(const Documento&) override { chiamate.append(QStringLiteral("movimento")); }
    bool stornaconti(const Gio& movimento) override {
        chiamate.append(QStringLiteral("storna"));
        return storno ? storno(movimento) : esito;
    }
};

} // namespace bor
