// The window that tells, row by row, what of a pasted text was not understood, before anything is put in; and
// the keys by which the screens with lines copy and paste rows.
#pragma once

#include "document/incollarighe.h"
#include "document/testorighe.h"
#include "ui/finestratasti.h"
#include "ui/griglia.h"
#include "ui/legami.h"

#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <span>

class QLabel;

namespace bor {

class FinestraIncolla : public QDialog {
public:
    /// `colonne`: the number of the row in the text, the cells of the lines form, the findings; they outlive
    /// the window. Accepted, everything that can go in is to be put in.
    FinestraIncolla(Incollate incollate, std::span<const ColonnaGriglia> colonne, QWidget* parent);

private:
    QString testo(int riga, int colonna) const;
    void mostraRilievi(int riga);

    Incollate m_incollate;
    std::span<const ColonnaGriglia> m_colonne;
    QLabel* m_rilievi;
};

/// What F12 says of the keys below.
QList<TastoSchermo> tastiRighe();

/// Puts the rows of the clipboard in front of the row that the operator is in, at once where nothing in them
/// is to be told.
template <class Form>
void incollaRighe(Legami& legami, Form& form, std::span<const ColonnaGriglia> colonne, QWidget* schermo) {
    constexpr qsizetype moltoTesto = 2'000'000; // the rows of any document end long before
    const QString testo = QGuiApplication::clipboard()->text().left(moltoTesto);
    Incollate esito;
    legami.esegui([&] { esito = form.provaIncolla(testo); });
    const auto metti = [&legami, &form, testo] { legami.esegui([&] { form.incolla(testo); }); };
    if (!esito.conRilievi())
        return metti();
    auto* finestra = new FinestraIncolla(std::move(esito), colonne, schermo);
    QObject::connect(finestra, &QDialog::accepted, schermo, metti);
    finestra->open();
}

/// The keys that choose, copy and paste rows, typed in a box of the lines. False for one that is the box's
/// own: selected text is copied as such, and a text of one cell is pasted into the box.
template <class Form>
bool tastoRighe(const QKeyEvent& tasto, const QLineEdit& campo, int linea, Legami& legami, Form& form,
                std::span<const ColonnaGriglia> colonne, QWidget* schermo) {
    const bool maiuscole = (tasto.modifiers() & ~Qt::KeypadModifier) == Qt::ShiftModifier;
    if (maiuscole && (tasto.key() == Qt::Key_Up || tasto.key() == Qt::Key_Down)) {
        legami.esegui([&] { form.scegli(tasto.key() == Qt::Key_Up ? -1 : 1); });
        return true;
    }
    if (tasto.matches(QKeySequence::Copy) && (form.scelta(linea) || !campo.hasSelectedText())) {
        QGuiApplication::clipboard()->setText(form.copia());
        return true;
    }
    if (tasto.matches(QKeySequence::Paste) && testoDiRighe(QGuiApplication::clipboard()->text())) {
        incollaRighe(legami, form, colonne, schermo);
        return true;
    }
    return false;
}

} // namespace bor
