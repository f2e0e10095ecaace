// The small window that F12 opens: the keys of the screen in view.
#pragma once

#include <QDialog>
#include <QList>
#include <QString>

namespace bor {

struct TastoSchermo {
    QString tasto;
    QString azione;
};

class FinestraTasti : public QDialog {
public:
    FinestraTasti(const QString& schermo, const QList<TastoSchermo>& tasti, QWidget* parent);
};

} // namespace bor
