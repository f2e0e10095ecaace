// A walk through the screens of the program, as a person would take it, with a picture of each.
#pragma once

#include "app/modulo.h"
#include "ui/finestra.h"

#include <QDir>

namespace bor::tour {

/// Keys, clicks and pictures on the program's window. A control that is missing, or a picture that cannot be
/// saved, is told on standard error and remembered.
class Giro {
public:
    Giro(Finestra& finestra, const QDir& cartella, QString unita)
        : m_finestra(finestra), m_cartella(cartella), m_unita(std::move(unita)) {}

    /// Presses the button of this control name.
    void premi(const QString& nome);
    void vaiSu(const QString& nome);
    /// Makes sure that this control is in view.
    void controlla(const QString& nome) { controllo(nome); }
    void tasto(Qt::Key tasto, Qt::KeyboardModifiers modi = Qt::NoModifier);
    /// Types into the field with the focus.
    void scrivi(const QString& testo);
    /// Types and goes on with Enter.
    void riga(const QString& testo);
    void foto(const QString& nome);
    /// Waits until this control, of a window that comes by itself, is in view.
    void aspetta(const QString& nome);
    /// Makes a PDF of the last print, with the PDF tool that lies beside this program.
    void pdf(const QString& nome, bool parcella = false);
    bool riuscito() const { return m_riuscito; }

private:
    QWidget* controllo(const QString& nome);
    /// The window that the keys go to: a menu or a dialog over the program's own, or that one.
    QWidget& davanti();
    void fallito(const QString& motivo);

    Finestra& m_finestra;
    QDir m_cartella;
    QString m_unita;
    bool m_riuscito = true;
};

/// All stops of the tour, on a fresh demo company.
void percorri(Giro& giro);

} // namespace bor::tour
