// The window that tells, row by row, what of a pasted text was not understood, before anything is put in; and
// the keys by which the screens with lines copy and paste rows.
#pragma once

#include "document/appuntirighe.h"
#include "ui/finestratasti.h"
#include "ui/griglia.h"
#include "ui/legami.h"

#include <QDialog>
#include <QLineEdit>

#include <span>

class QKeyEvent;
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

/// The style sheet draws a box by it.
inline constexpr auto proprietaScelta = "scelta";

/// What F12 says of the keys below.
QList<TastoSchermo> tastiRighe();

/// Marks a box of a line while its row is chosen.
template <class Form>
void segnaScelta(QLineEdit* campo, Form& form, int linea) {
    segna(campo, proprietaScelta, form.appunti().scelta(form.finestra().riga(linea)));
}

/// The keys that choose, copy and paste rows, typed in a box of the lines. False for one that is the box's
/// own: selected text is copied as such, and a text of one cell is pasted into the box. What is to be told of
/// the rows of the clipboard is told in a window of `schermo` before they are put in.
bool tastoRighe(const QKeyEvent& tasto, const QLineEdit& campo, Legami& legami, AppuntiRighe& appunti,
                std::span<const ColonnaGriglia> colonne, QWidget* schermo);

} // namespace bor
