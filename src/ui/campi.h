// The field widgets that all screens share.
#pragma once

#include <QKeySequence>
#include <QLineEdit>
#include <QToolButton>

class QLabel;
class QGridLayout;

namespace bor {

/// A text box with the name its control has on screen and the caption it is read out by.
class CampoTesto : public QLineEdit {
public:
    /// `caratteri`: the most that may be typed, which also sets the width that the box asks for; 0 for no
    /// limit.
    CampoTesto(const QString& nome, const QString& didascalia, int caratteri = 0, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    int m_caratteri; ///< characters that the box is wide; 0 for as wide as it gets
};

/// A box for a number: right-aligned, takes digits, sign and point, and a typed or pasted comma becomes the
/// point.
class CampoImporto : public CampoTesto {
public:
    CampoImporto(const QString& nome, const QString& didascalia, QWidget* parent = nullptr);
};

/// A date box with a calendar button beside it. On leaving, "311215" and "31122015" become "31/12/2015"; any
/// other text stays for the checks of its form. The line edit carries the control's name.
class CampoData : public QWidget {
public:
    CampoData(const QString& nome, const QString& nomeCalendario, const QString& didascalia,
              QWidget* parent = nullptr);

    QLineEdit* campo() const { return m_campo; }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void apriCalendario();
    void metti(const QString& testo);

    CampoTesto* m_campo;
    QToolButton* m_bottone;
};

/// A picture button: icon, caption under it, and its shortcut in the tooltip.
class BottoneComando : public QToolButton {
public:
    /// `icona` names a file of `src/ui/icone` without its ending; without one the button is its text.
    BottoneComando(const QString& nome, const QString& didascalia, const QString& icona,
                   const QKeySequence& tasto, QWidget* parent = nullptr);

protected:
    bool event(QEvent* evento) override;
};

/// A caption that belongs to a field and, with "&", gives it a key.
QLabel* didascalia(const QString& testo, QWidget* campo, QWidget* parent = nullptr);

/// Puts a caption and its field into a row of a two-column grid, from the given column on.
void riga(QGridLayout* griglia, int riga, const QString& testo, QWidget* campo, int colonna = 0);

} // namespace bor
