// What may stand in a box for a number, and how an amount typed or pasted the Italian way becomes one.
#pragma once

#include <QValidator>

namespace bor {

/// Lets pass digits, a sign in front and one point; blanks and the euro sign go. A comma becomes the point,
/// and shows that points before it were thousands: they go.
class ValidatoreImporto : public QValidator {
public:
    /// `caratteri`: the most that the box may hold; 0 for fifteen digits, which is what a number keeps.
    explicit ValidatoreImporto(int caratteri, QObject* parent = nullptr)
        : QValidator(parent), m_caratteri(caratteri) {}

    State validate(QString& testo, int& posizione) const override;
    /// The operator comes to the box: the point of the number in it is a decimal one.
    void entra() const { m_decimale = m_ultimo.contains(u'.'); }

private:
    bool ammesso(QStringView testo) const;

    int m_caratteri;
    // A validator sees only texts: to know a comma behind a typed point from a second comma, it has to
    // remember the text before.
    mutable QString m_ultimo;
    mutable bool m_decimale = false; ///< the point in that text can only be the decimal one
};

} // namespace bor
