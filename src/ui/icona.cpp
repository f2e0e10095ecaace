#include "ui/icona.h"

#include "ui/tinte.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <array>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// The colours of the files, made for a light desktop, and those of a dark one.
constexpr std::array<std::pair<const char*, const char*>, 5> scurite = {{{"#3B4856", "#C8D1DB"},
                                                                         {"#fff", "#3D4853"},
                                                                         {"#1F6FB2", "#74B9F0"},
                                                                         {"#B23A2F", "#F28B80"},
                                                                         {"#1F8A4C", "#69CB90"}}};

/// Drawn anew at each size and for the colours that are in use then; read when it is first drawn.
class Disegno : public QIconEngine {
public:
    Disegno(const QString& nome, ColoriIcona colori) : m_nome(nome), m_colori(colori) {}

    void paint(QPainter* pittore, const QRect& posto, QIcon::Mode modo, QIcon::State) override {
        constexpr double velato = 0.35;
        pittore->setOpacity(modo == QIcon::Disabled ? velato : 1);
        inUso().render(pittore, posto);
    }
    QPixmap pixmap(const QSize& misura, QIcon::Mode modo, QIcon::State stato) override {
        QPixmap punti(misura);
        punti.fill(Qt::transparent);
        QPainter pittore(&punti);
        paint(&pittore, QRect(QPoint(), misura), modo, stato);
        return punti;
    }
    QIconEngine* clone() const override { return new Disegno(m_nome, m_colori); }

private:
    QSvgRenderer& inUso() {
        const bool scuro =
            m_colori == ColoriIcona::DelDesktop && tonoDi(QGuiApplication::palette()) == Tono::Scuro;
        std::unique_ptr<QSvgRenderer>& disegno = scuro ? m_scuro : m_chiaro;
        if (!disegno)
            disegno = std::make_unique<QSvgRenderer>(leggi(scuro));
        return *disegno;
    }

    QByteArray leggi(bool scuro) const {
        QFile file(u":/icone/%1.svg"_s.arg(m_nome));
        QByteArray svg = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        if (scuro) {
            for (const auto& [daChiaro, daScuro] : scurite)
                svg.replace(daChiaro, daScuro);
        }
        return svg;
    }

    QString m_nome;
    ColoriIcona m_colori;
    std::unique_ptr<QSvgRenderer> m_chiaro;
    std::unique_ptr<QSvgRenderer> m_scuro;
};

} // namespace

QIcon icona(const QString& nome, ColoriIcona colori) {
    return QIcon(new Disegno(nome, colori));
}

} // namespace bor
