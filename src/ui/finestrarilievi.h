// The window with what the receiving system would refuse in an electronic invoice. It stays beside the screen
// while the operator corrects.
#pragma once

#include "xmlcheck/controlloxml.h"

#include <QDialog>

namespace bor {

class FinestraRilievi : public QDialog {
public:
    FinestraRilievi(const std::vector<Rilievo>& rilievi, QWidget* parent);
};

} // namespace bor
