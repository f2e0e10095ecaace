// Ports for a program that works without anybody to talk to: what it is asked is No, what it is told it
// keeps, and it shows and starts nothing.
#pragma once

#include "common/navigatore.h"
#include "common/operatore.h"
#include "common/sistema.h"

#include <QStringList>

namespace bor {

class SenzaOperatore : public Operatore {
public:
    QStringList messaggi;

    void messaggio(const QString& testo, const QString&, Icona) override { messaggi.append(testo); }
    bool chiedi(const QString&, const QString&, Icona, Predefinita) override { return false; }
    void attesa(bool) override {}
    void lasciaEventi() override {}
    QString scegliFile(const QString&, const QString&) override { return {}; }
};

class SenzaSistema : public Sistema {
public:
    EsitoApri apri(const QString&) override { return EsitoApri::FileMancante; }
    bool avvia(const QString&, const QStringList&) override { return false; }
};

class SenzaSchermi : public Navigatore {
public:
    void mostra(Schermo) override {}
    void termina() override {}
};

} // namespace bor
