// The window with what is wrong with an electronic invoice. It stays beside the screen while the operator
// corrects; a later check shows in the same window.
#pragma once

#include "xmlcheck/rilievo.h"

#include <QDialog>

class QLabel;
class QListWidget;

namespace bor {

class FinestraRilievi : public QDialog {
public:
    explicit FinestraRilievi(QWidget* parent);

    /// Shows these findings in place of those before, and comes to the front.
    void mostra(const std::vector<Rilievo>& rilievi);

private:
    QLabel* m_esito;
    QListWidget* m_lista;
};

} // namespace bor
