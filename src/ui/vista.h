// The base of all screens: a widget over one form, shown in the one window.
#pragma once

#include "ui/finestratasti.h"
#include "ui/invio.h"
#include "ui/legami.h"

#include <QWidget>

#include <functional>

class QDialog;

namespace bor {

class Vista : public QWidget {
public:
    using ApriCapitolo = std::function<void(const QString& capitolo)>;

    explicit Vista(QWidget* parent = nullptr);

    /// The screen comes into view: the form is activated, then everything refreshed.
    virtual void attiva() = 0;
    /// Esc, or the window's close button: does what the screen's leave button does.
    virtual void lascia() = 0;
    /// Caption of the window while the screen is in view.
    virtual QString titolo() const = 0;
    /// Puts a line at the top of the screen, and beside it what its fields are marked for; `testo` is asked
    /// at each refresh.
    void intesta(const std::function<QString()>& testo);
    /// Puts a button at the end of the command bar that opens the screen's chapter of the guide, and the key
    /// that presses it.
    void offriGuida(const QKeySequence& tasto, const QString& capitolo, ApriCapitolo apri);
    /// Opens a chapter of the guide; nothing where no guide was offered.
    void apriGuida(const QString& capitolo) const;
    /// The keys of the screen, those of its commands in view first.
    QList<TastoSchermo> tasti() const;

protected:
    void keyPressEvent(QKeyEvent* evento) override;

    Legami legami;
    PercorsoInvio invio;
    QList<TastoSchermo> altriTasti; ///< keys of the screen that are no command's

private:
    ApriCapitolo m_apriGuida;
    bool m_nomiDistinti = false;
};

/// F1 in a window that a screen has opened opens this chapter.
void offriGuida(QDialog* finestra, const QString& capitolo);

} // namespace bor
