#include "borxpdf/disegno.h"

#include <QFileInfo>
#include <QFontMetricsF>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor::pdf {
namespace {

constexpr double kSpessoreLinea = 0.2; // millimetres
constexpr qint64 kMassimoFileImmagine = 32 * 1024 * 1024;

QColor colore(int valore) {
    return QColor(valore & 0xff, valore >> 8 & 0xff, valore >> 16 & 0xff);
}

QPointF primoPunto(const RecordRapporto& e) {
    return {unitaDaMillimetri(e.x1), unitaDaMillimetri(e.y1)};
}

QPointF secondoPunto(const RecordRapporto& e) {
    return {unitaDaMillimetri(e.x2), unitaDaMillimetri(e.y2)};
}

QPen penna(const RecordRapporto& e) {
    return QPen(colore(e.colore), unitaDaMillimetri(kSpessoreLinea), Qt::SolidLine, Qt::SquareCap,
                Qt::MiterJoin);
}

} // namespace

Disegnatore::Disegnatore(TrovaImmagine trovaImmagine) : m_trovaImmagine(std::move(trovaImmagine)) {}

Disegnatore::~Disegnatore() = default;

void Disegnatore::disegna(QPainter& pittore, const Pagina& pagina) {
    pittore.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    for (const RecordRapporto& e : pagina) {
        const QRectF posto = QRectF(primoPunto(e), secondoPunto(e)).normalized();
        switch (e.comando) {
        case ComandoRapporto::Immagine:
            disegnaImmagine(pittore, e.testo, posto);
            break;
        case ComandoRapporto::Linea:
            pittore.setPen(penna(e));
            pittore.drawLine(primoPunto(e), secondoPunto(e));
            break;
        case ComandoRapporto::Riquadro:
            pittore.setPen(e.grassetto ? QPen(Qt::NoPen) : penna(e));
            pittore.setBrush(e.grassetto ? QBrush(colore(e.colore)) : QBrush(Qt::NoBrush));
            pittore.drawRect(posto);
            break;
        case ComandoRapporto::Testo:
            disegnaTesto(pittore, e);
            break;
        case ComandoRapporto::FinePagina:
            break;
        }
    }
}

void Disegnatore::disegnaTesto(QPainter& pittore, const RecordRapporto& elemento) {
    if (elemento.testo.isEmpty())
        return;
    const Carattere& scelto = carattere(elemento);
    pittore.setFont(scelto.tipo);
    pittore.setPen(colore(elemento.colore));
    pittore.drawText(primoPunto(elemento) + QPointF(0, scelto.ascendente), elemento.testo);
}

const Disegnatore::Carattere& Disegnatore::carattere(const RecordRapporto& elemento) {
    // A size below 2 is recorded as it stands in the template but drawn as 2, as the printer does.
    const int altezza = qRound(std::max(elemento.dimensione, 2.0) * kUnitaPollice / 72);
    const QString chiave = u"%1/%2/%3/%4"_s.arg(elemento.carattere)
                               .arg(altezza)
                               .arg(static_cast<int>(elemento.grassetto))
                               .arg(static_cast<int>(elemento.corsivo));
    auto trovato = m_caratteri.find(chiave);
    if (trovato == m_caratteri.end()) {
        QFont tipo(elemento.carattere.isEmpty() ? u"Arial"_s : elemento.carattere);
        tipo.setPixelSize(altezza);
        tipo.setBold(elemento.grassetto);
        tipo.setItalic(elemento.corsivo);
        tipo.setHintingPreference(QFont::PreferNoHinting);
        trovato = m_caratteri.insert(chiave, {tipo, QFontMetricsF(tipo).ascent()});
    }
    return *trovato;
}

void Disegnatore::disegnaImmagine(QPainter& pittore, const QString& nome, const QRectF& posto) {
    const Immagine& trovata = immagine(nome);
    if (trovata.vettori) {
        trovata.vettori->render(&pittore, posto);
    } else if (!trovata.punti.isNull()) {
        pittore.setRenderHint(QPainter::LosslessImageRendering, trovata.senzaPerdita);
        pittore.drawImage(posto, trovata.punti);
    }
}

const Disegnatore::Immagine& Disegnatore::immagine(const QString& nome) {
    auto trovata = m_immagini.find(nome);
    if (trovata != m_immagini.end())
        return **trovata;

    auto nuova = std::make_shared<Immagine>();
    const QString file = m_trovaImmagine(nome);
    const QFileInfo dati(file);
    if (dati.isFile() && dati.size() <= kMassimoFileImmagine) {
        if (dati.suffix().compare("svg"_L1, Qt::CaseInsensitive) == 0) {
            auto vettori = std::make_unique<QSvgRenderer>(file);
            if (vettori->isValid())
                nuova->vettori = std::move(vettori);
        } else {
            QImageReader lettore(file);
            lettore.setDecideFormatFromContent(true);
            lettore.setAutoTransform(true);
            nuova->punti = lettore.read();
            nuova->senzaPerdita = lettore.format() != "jpeg";
        }
    }
    return **m_immagini.insert(nome, nuova);
}

} // namespace bor::pdf
