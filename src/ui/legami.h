// Binds the widgets of a view to the form behind it: one line a widget says where its content comes from and
// which event an edit raises. No widget keeps state of its own.
#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QAbstractButton;
class QAbstractSlider;
class QComboBox;
class QFocusEvent;
class QLabel;
class QLineEdit;

namespace bor {

/// The focus only goes for a while to a menu, a list or another window, and comes back.
bool interrompeSoltanto(Qt::FocusReason motivo);

/// Sets a property that the style sheet draws by: "errato", "scarto".
void segna(QWidget* widget, const char* proprieta, bool acceso);

class Legami : public QObject {
public:
    using Leggi = std::function<QString()>;
    using Scrivi = std::function<void(const QString&)>;

    /// `dopo` runs at the end of every refresh.
    explicit Legami(std::function<void()> dopo = {});

    /// Without `scrivi` the field only shows. A field is not rewritten by the very edit that is made in it: a
    /// half-typed number stays as it is until the operator leaves the field.
    void testo(QLineEdit* campo, Leggi leggi, Scrivi scrivi = {});
    /// Marks the field while `avviso` says what is wrong with it; empty for nothing.
    void segnala(QLineEdit* campo, Leggi avviso);
    /// Names the marked fields of the screen in view, with what is wrong with each.
    QString avvisi() const;
    void spunta(QAbstractButton* bottone, std::function<bool()> leggi, std::function<void(bool)> scrivi);
    /// Positions count from 0; -1 is no selection. `scrivi` hears only what the operator chooses, and the
    /// wheel chooses nothing while the list is closed.
    void lista(QComboBox* lista, std::function<int()> leggi, std::function<void(int)> scrivi);
    /// The wheel moves the bar only while it has the focus.
    void cursore(QAbstractSlider* cursore, std::function<int()> leggi, std::function<void(int)> scrivi);
    void etichetta(QLabel* etichetta, Leggi leggi);
    void visibile(QWidget* widget, std::function<bool()> leggi);
    void abilitato(QWidget* widget, std::function<bool()> leggi);
    /// Anything else that a refresh has to do.
    void altro(std::function<void()> aggiorna);

    void comando(QAbstractButton* bottone, std::function<void()> azione);
    /// Runs a command. The field in focus is first settled as leaving it would; afterwards the operator is in
    /// it again, unless the command led elsewhere.
    void eseguiComando(const std::function<void()>& azione);
    /// The operator moves to the field, or leaves it for another widget of the window.
    void entrato(QWidget* widget, std::function<void()> evento);
    void lasciato(QWidget* widget, std::function<void()> evento);

    /// Runs an event of the form, then refreshes.
    void esegui(const std::function<void()>& evento);
    void aggiorna();

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void fuoco(const QObject* oggetto, const QFocusEvent* evento);
    struct Fuoco {
        QObject* widget;
        bool entrata;
        std::function<void()> evento;
    };

    std::function<void()> m_dopo;
    std::vector<std::function<void()>> m_aggiornamenti;
    std::vector<const QLineEdit*> m_segnalati;
    std::vector<Fuoco> m_fuochi;
    QObject* m_inModifica = nullptr;
    bool m_ritorno = false; ///< the focus comes back to a field after a command
};

} // namespace bor
