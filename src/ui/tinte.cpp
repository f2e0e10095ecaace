#include "ui/tinte.h"

#include <QString>

#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

const QColor inchiostro(0x1E, 0x27, 0x33);
const QColor gesso(0xE6, 0xEA, 0xEF);
const QColor lavagna(0x1B, 0x20, 0x26); ///< the ground of lists and fields on a dark desktop

QPalette chiara() {
    QPalette t;
    t.setColor(QPalette::Window, QColor(0xEE, 0xF1, 0xF5));
    t.setColor(QPalette::WindowText, inchiostro);
    t.setColor(QPalette::Base, Qt::white);
    t.setColor(QPalette::AlternateBase, QColor(0xF3, 0xFA, 0xFC));
    t.setColor(QPalette::Text, inchiostro);
    t.setColor(QPalette::Button, QColor(0xE4, 0xE9, 0xEF));
    t.setColor(QPalette::ButtonText, inchiostro);
    t.setColor(QPalette::Highlight, QColor(0x1F, 0x6F, 0xB2));
    t.setColor(QPalette::HighlightedText, Qt::white);
    return t;
}

QPalette scura() {
    QPalette t(QColor(0x31, 0x39, 0x42), QColor(0x25, 0x2B, 0x32));
    for (const QPalette::ColorRole ruolo :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        t.setColor(ruolo, gesso);
    t.setColor(QPalette::Base, lavagna);
    t.setColor(QPalette::AlternateBase, QColor(0x21, 0x28, 0x2F));
    t.setColor(QPalette::ToolTipBase, QColor(0x3A, 0x44, 0x4F));
    t.setColor(QPalette::Highlight, QColor(0x2B, 0x78, 0xB8));
    t.setColor(QPalette::HighlightedText, Qt::white);
    t.setColor(QPalette::Link, QColor(0x7C, 0xBD, 0xF2));
    return t;
}

/// How bright a colour looks, from 0 to 1.
double luminanza(const QColor& colore) {
    const auto luce = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * luce(colore.redF()) + 0.7152 * luce(colore.greenF()) + 0.0722 * luce(colore.blueF());
}

} // namespace

Tono tonoDi(const QPalette& tavolozza) {
    const int fondo = tavolozza.color(QPalette::Window).lightness();
    return fondo < tavolozza.color(QPalette::WindowText).lightness() ? Tono::Scuro : Tono::Chiaro;
}

QPalette tavolozza(Tono tono) {
    QPalette tinte = tono == Tono::Scuro ? scura() : chiara();
    const QColor spento = tono == Tono::Scuro ? QColor(0x86, 0x91, 0x9D) : QColor(0x8A, 0x94, 0xA0);
    tinte.setColor(QPalette::PlaceholderText, spento);
    for (const QPalette::ColorRole ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        tinte.setColor(QPalette::Disabled, ruolo, spento);
    return tinte;
}

QString foglioDiStile(Tono tono) {
    const bool scuro = tono == Tono::Scuro;
    QString foglio =
        u"QGroupBox { font-weight: 600; border: 1px solid @cornice; border-radius: 4px;"
        "  margin-top: 1.1ex; padding: 4px; }"
        "QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 3px; color: @titolo; }"
        "QToolButton[intestazione=\"true\"] { color: @titolo; padding: 0; }"
        "QLabel[consiglio=\"true\"] { color: @consiglio; }"
        "QLabel[avviso=\"true\"], QToolButton[avviso=\"true\"] { color: @allarme; font-weight: 600; }"
        "QLineEdit { padding: 1px 3px; border: 1px solid @bordo; border-radius: 2px; background: @campo; }"
        "QLineEdit:read-only { background: @fermo; }"
        "QLineEdit:disabled { background: @fermo; color: @spento; }"
        "QLineEdit[scelta=\"true\"] { background: @scelta; }"
        "QLineEdit:focus { border: 1px solid @fuoco; background: @acceso; }"
        "QLineEdit[scarto=\"true\"] { color: @allarme; font-weight: bold; }"
        "QLineEdit[errato=\"true\"] { border: 1px solid @allarme; background: @errato; }"
        "QComboBox:focus, QTableView:focus, QListView:focus { border: 1px solid @fuoco; }"
        // Where the frame is ours and nothing is said of padding, Qt 6.8 sets the text at the very edge.
        "QComboBox:focus { padding-left: 4px; }"
        "QToolButton:focus { border: 2px solid @fuoco; border-radius: 3px; }"_s;
    // What the style draws around ticks and options cannot be seen on a dark ground.
    if (scuro)
        foglio +=
            u"QCheckBox::indicator, QRadioButton::indicator, QListView::indicator { width: 1.7ex; height: "
            u"1.7ex;"
            "  border: 1px solid @spento; border-radius: 2px; background: @campo; }"
            "QRadioButton::indicator { border-radius: 0.85ex; }"
            "QCheckBox::indicator:checked, QListView::indicator:checked { image: url(:/icone/spunta.svg); }"
            "QRadioButton::indicator:checked { background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5,"
            "  fx: 0.5, fy: 0.5, stop: 0 @fuoco, stop: 0.5 @fuoco, stop: 0.6 @campo); }"
            "QCheckBox::indicator:focus, QRadioButton::indicator:focus { border-color: @fuoco; }"
            "QCheckBox::indicator:disabled, QRadioButton::indicator:disabled { background: @fermo; }"_s;
    struct Tinta {
        QString nome;
        QString chiara;
        QString scura;
    };
    for (const auto& [nome, chiara, scura] : {Tinta{u"@cornice"_s, u"#C3CBD5"_s, u"#4A545F"_s},
                                              {u"@titolo"_s, u"#1F5A8C"_s, u"#8CC4F0"_s},
                                              {u"@bordo"_s, u"#B4BDC8"_s, u"#56616D"_s},
                                              {u"@campo"_s, u"#FFFFFF"_s, u"#1B2026"_s},
                                              {u"@fermo"_s, u"#E8ECF1"_s, u"#2C333B"_s},
                                              {u"@spento"_s, u"#8A94A0"_s, u"#86919D"_s},
                                              {u"@fuoco"_s, u"#1F6FB2"_s, u"#5AA9E6"_s},
                                              {u"@acceso"_s, u"#FFFBE0"_s, u"#38351F"_s},
                                              {u"@allarme"_s, u"#B00020"_s, u"#FF9A94"_s},
                                              {u"@consiglio"_s, u"#8A5A00"_s, u"#F0C36A"_s},
                                              {u"@scelta"_s, u"#D3E5F6"_s, u"#25405C"_s},
                                              {u"@errato"_s, u"#FDE3E3"_s, u"#4C2426"_s}})
        foglio.replace(nome, scuro ? scura : chiara);
    return foglio;
}

QColor fondoIn(Tono tono, const QColor& fondo) {
    if (tono == Tono::Chiaro)
        return fondo;
    const float terra = lavagna.lightnessF();
    return QColor::fromHslF(fondo.hslHueF() < 0 ? lavagna.hslHueF() : fondo.hslHueF(),
                            fondo.hslHueF() < 0 ? lavagna.hslSaturationF() : fondo.hslSaturationF() / 2,
                            terra + (1 - terra) * (1 - fondo.lightnessF()));
}

QColor testoSu(const QColor& fondo) {
    // On a ground of middle brightness only black or white stands out.
    const double luce = luminanza(fondo);
    constexpr double mezza = 0.179;
    if (luce > mezza)
        return luce > 2 * mezza ? inchiostro : Qt::black;
    return luce < mezza / 2 ? gesso : Qt::white;
}

} // namespace bor
