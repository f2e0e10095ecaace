// The small window of "Informazioni": what the program knows of itself, the company and its disk, and a
// button that puts it into a text for who helps.
#pragma once

#include "archive/diagnosi.h"

#include <QDialog>

class QLabel;

namespace bor {

class FinestraInformazioni : public QDialog {
public:
    /// `testo` is what the button gives away; it also goes into a file of this folder.
    FinestraInformazioni(const Diagnosi& diagnosi, const QString& testo, const QString& cartella,
                         QWidget* parent);

private:
    void dai(const QString& testo, const QString& percorso);

    QLabel* m_esito;
};

} // namespace bor
