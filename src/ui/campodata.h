// The date field of all screens, and the one dialog in which a date is chosen.
#pragma once

#include "common/bordata.h"
#include "ui/campi.h"

#include <QDialog>

class QCalendarWidget;

namespace bor {

/// The date dialog. A click on a day chooses it and closes the dialog; the arrow keys walk through the days,
/// and Enter chooses.
class FinestraData : public QDialog {
public:
    /// In the middle of the screen, or, where a field is given, below it; above it where the screen ends.
    explicit FinestraData(const Bordata& bordata, QWidget* parent, const QWidget* campo = nullptr);

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

private:
    void scegli();

    Bordata m_bordata;
    const QWidget* m_campo;
    QCalendarWidget* m_calendario;
    bool m_cammina = false; ///< a key is moving the selection
};

/// Why a date box is marked: its text has the form of a date that does not exist. Empty for any other.
QString avvisoData(const QString& testo);

/// A date box with a calendar button beside it. On leaving, "311215" and "31122015" become "31/12/2015"; any
/// other text stays for the checks of its form. The line edit carries the control's name.
class CampoData : public QWidget {
public:
    CampoData(const QString& nome, const QString& nomeCalendario, const QString& didascalia,
              const Bordata& bordata, QWidget* parent = nullptr);

    QLineEdit* campo() const { return m_campo; }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void apriCalendario();
    void metti(const QString& testo);

    Bordata m_bordata;
    CampoTesto* m_campo;
    QToolButton* m_bottone;
};

} // namespace bor
