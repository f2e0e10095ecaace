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

/// Drawn anew at each size and for the colours that are in use then.
class Disegno : public QIconEngine {
public:
    explicit Disegno(const QString& nome) : m_nome(nome) {
        QFile file(u":/icone/%1.svg"_s.arg(nome));
        QByteArray svg = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        m_chiaro = std::make_unique<QSvgRenderer>(svg);
        for (const auto& [chiaro, scuro] : scurite)
            svg.replace(chiaro, scuro);
        m_scuro = std::make_unique<QSvgRenderer>(svg);
    }

    void paint(QPainter* pittore, const QRect& posto, QIcon::Mode modo, QIcon::State) override {
        constexpr double velato = 0.35;
        const bool scuro = tonoDi(QGuiApplication::palette()) == Tono::Scuro;
        pittore->setOpacity(modo == QIcon::Disabled ? velato : 1);
        (scuro ? m_scuro : m_chiaro)->render(pittore, posto);
    }
    QPixmap pixmap(const QSize& misura, QIcon::Mode modo, QIcon::State stato) override {
        QPixmap punti(misura);
        punti.fill(Qt::transparent);
        QPainter pittore(&punti);
        paint(&pittore, QRect(QPoint(), misura), modo, stato);
        return punti;
    }
    QIconEngine* clone() const override { return new Disegno(m_nome); }

private:
    QString m_nome;
    std::unique_ptr<QSvgRenderer> m_chiaro;
    std::unique_ptr<QSvgRenderer> m_scuro;
};

} // namespace

QIcon icona(const QString& nome) {
    return QIcon(new Disegno(nome));
}

} // namespace bor
