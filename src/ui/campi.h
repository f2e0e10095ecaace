// The field widgets that all screens share.
#pragma once

#include <QKeySequence>
#include <QLineEdit>
#include <QToolButton>

class QLabel;
class QGridLayout;
class QShortcut;

namespace bor {

/// A text box with the name its control has on screen and the caption it is read out by.
class CampoTesto : public QLineEdit {
public:
    /// `caratteri`: the most that may be typed, which also sets the width that the box asks for; 0 for no
    /// limit.
    CampoTesto(const QString& nome, const QString& didascalia, int caratteri = 0, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// A click that brings the focus selects the whole content, as the Tab key does.
    void selezionaAlClic() { m_selezionaAlClic = true; }
    /// A button that empties the box; made when the box is first entered, since its picture is slow to load.
    void offriSvuota() { m_svuotabile = true; }

protected:
    void focusInEvent(QFocusEvent* evento) override;
    /// A text that is longer than the box shows its beginning again.
    void focusOutEvent(QFocusEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

    int m_caratteri; ///< characters that the box is wide; 0 for as wide as it gets

private:
    bool m_selezionaAlClic = false;
    bool m_svuotabile = false;
    bool m_appenaEntrato = false; ///< by a click whose button is still down
};

class ValidatoreImporto;

/// A box for a number: right-aligned, with what `ValidatoreImporto` lets in.
class CampoImporto : public CampoTesto {
public:
    /// `caratteri`: the most that the field on file holds; 0 for a number of fifteen digits.
    CampoImporto(const QString& nome, const QString& didascalia, int caratteri = 0,
                 QWidget* parent = nullptr);

protected:
    void focusInEvent(QFocusEvent* evento) override;

private:
    ValidatoreImporto* m_validatore;
};

/// A picture button: icon, caption under it, and its shortcut in the tooltip. A key that is held presses it
/// once.
class BottoneComando : public QToolButton {
public:
    /// `icona` names a file of `src/ui/icone` without its ending; without one the button is its text.
    BottoneComando(const QString& nome, const QString& didascalia, const QString& icona,
                   const QKeySequence& tasto, QWidget* parent = nullptr);

    /// The caption anew, with "&" in front of the letter that presses the button together with Alt.
    void mettiDidascalia(const QString& didascalia);

private:
    QKeySequence m_tasto;
    QShortcut* m_scorciatoia;
};

/// A caption that belongs to a field and, with "&", gives it a key.
QLabel* didascalia(const QString& testo, QWidget* campo, QWidget* parent = nullptr);

/// A field behind its caption, which stay together where a line breaks.
QWidget* conDidascalia(const QString& testo, QWidget* campo);

/// Puts a caption and its field into a row of a two-column grid, from the given column on.
void riga(QGridLayout* griglia, int riga, const QString& testo, QWidget* campo, int colonna = 0);

} // namespace bor
