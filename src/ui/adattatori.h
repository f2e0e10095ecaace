// The real operator, clock and desktop.
#pragma once

#include "common/navigatore.h"
#include "common/operatore.h"
#include "common/orologio.h"
#include "common/sistema.h"

class QWidget;

namespace bor {

/// Message boxes over the given window.
class OperatoreQt : public Operatore {
public:
    void usa(QWidget* finestra) { m_finestra = finestra; }

    void messaggio(const QString& testo, const QString& titolo, Icona icona) override;
    bool chiedi(const QString& testo, const QString& titolo, Icona icona, Predefinita predefinita) override;
    void attesa(bool inizio) override;
    void lasciaEventi() override;
    QString scegliFile(const QString& titolo, const QString& filtro) override;

private:
    QWidget* m_finestra = nullptr;
};

/// The window, which comes up after those who lead through it have been made.
class NavigatoreQt : public Navigatore {
public:
    void usa(Navigatore& finestra) { m_finestra = &finestra; }

    void mostra(Schermo schermo) override { m_finestra->mostra(schermo); }
    void termina() override { m_finestra->termina(); }

private:
    Navigatore* m_finestra = nullptr;
};

class OrologioQt : public Orologio {
public:
    QDateTime adesso() const override { return QDateTime::currentDateTime(); }
};

class SistemaQt : public Sistema {
public:
    EsitoApri apri(const QString& percorso) override;
    bool avvia(const QString& programma, const QStringList& argomenti) override;
};

} // namespace bor
