// Widgets in a line that breaks where the window is too narrow for it, as words in a text.
#pragma once

#include <QLayout>
#include <QList>

namespace bor {

/// Room that a line has left goes to the springs and expanding widgets in it, in equal parts.
class Flusso : public QLayout {
public:
    explicit Flusso(QWidget* parent);
    ~Flusso() override;

    /// Puts a widget behind this one.
    void inserisciDopo(const QWidget* quale, QWidget* widget);
    void spazio(int punti);
    void molla();

    void addItem(QLayoutItem* voce) override { m_voci.append(voce); }
    int count() const override { return static_cast<int>(m_voci.size()); }
    QLayoutItem* itemAt(int i) const override { return m_voci.value(i); }
    QLayoutItem* takeAt(int i) override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int larghezza) const override;
    QSize sizeHint() const override;
    /// Of the widest widget: each of them may stand in a line of its own.
    QSize minimumSize() const override;
    void setGeometry(const QRect& posto) override;

private:
    struct Linea {
        QList<QLayoutItem*> voci;
        int larghezza = 0;
        int altezza = 0;
    };

    int distanza() const;
    QList<Linea> linee(int larghezza) const;
    void disponi(const Linea& linea, QRect posto) const;

    QList<QLayoutItem*> m_voci;
};

} // namespace bor
