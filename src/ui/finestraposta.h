// The window with the mails that a document went out with.
#pragma once

#include "common/registroposta.h"

#include <QDialog>

namespace bor {

class FinestraPosta : public QDialog {
public:
    /// The latest mail first.
    FinestraPosta(const QString& documento, const std::vector<VocePosta>& voci, QWidget* parent);
};

} // namespace bor
