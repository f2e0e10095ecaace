// Stand-ins for the world outside: the operator, the clock, the desktop, the window. They record what they
// were asked and answer what the test set.
#pragma once

#include "common/navigatore.h"
#include "common/operatore.h"
#include "common/orologio.h"
#include "common/sistema.h"

#include <QList>

#include <functional>
#include <utility>

namespace bor {

struct Messaggio {
    QString testo;
    QString titolo;
    Icona icona = Icona::Nessuna;
    Predefinita predefinita = Predefinita::Si; ///< of a question
};

class OperatoreFinto : public Operatore {
public:
    QList<Messaggio> messaggi;
    QList<Messaggio> domande;
    QList<bool> risposte; ///< answers to the next questions, in order; then `rispostaSolita`
    bool rispostaSolita = true;
    std::function<void()> suDomanda; ///< happens once, while the next question stands on the screen
    QString fileScelto;
    int attese = 0; ///< wait cursors not yet taken away
    int eventiLasciati = 0;

    void messaggio(const QString& testo, const QString& titolo, Icona icona) override {
        messaggi.append({testo, titolo, icona});
    }
    bool chiedi(const QString& testo, const QString& titolo, Icona icona, Predefinita predefinita) override {
        domande.append({testo, titolo, icona, predefinita});
        if (const auto intanto = std::exchange(suDomanda, nullptr))
            intanto();
        return risposte.isEmpty() ? rispostaSolita : risposte.takeFirst();
    }
    void attesa(bool inizio) override { attese += inizio ? 1 : -1; }
    void lasciaEventi() override { ++eventiLasciati; }
    QString scegliFile(const QString&, const QString&) override { return fileScelto; }
};

class OrologioFermo : public Orologio {
public:
    QDateTime momento{QDate(2015, 3, 15), QTime(10, 30)};
    QDateTime adesso() const override { return momento; }
};

class SistemaFinto : public Sistema {
public:
    EsitoApri esitoApri = EsitoApri::Riuscito;
    bool esitoAvvia = true;
    QStringList aperti;
    QList<QStringList> avviati; ///< program and arguments of each start

    EsitoApri apri(const QString& percorso) override {
        aperti.append(percorso);
        return esitoApri;
    }
    bool avvia(const QString& programma, const QStringList& argomenti) override {
        avviati.append(QStringList{programma} + argomenti);
        return esitoAvvia;
    }
};

class NavigatoreFinto : public Navigatore {
public:
    QList<Schermo> mostrati;
    bool terminato = false;

    void mostra(Schermo schermo) override { mostrati.append(schermo); }
    void termina() override { terminato = true; }
};

} // namespace bor
