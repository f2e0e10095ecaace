#include "ui/stampatabella.h"

#include "common/date.h"
#include "common/numeri.h"
#include "common/posti.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int risoluzione = 300;
constexpr double margine = 12; ///< millimetres
constexpr double millimetriPerPollice = 25.4;
constexpr double caratteriInPiedi = 100; ///< a table up to so many characters wide stands upright

/// The texts of a row as paper shows them: nothing for an amount of zero, as on the screens.
class CelleStampate : public CelleRiga {
public:
    explicit CelleStampate(int decimali) : m_decimali(decimali) {}

    void testo(QStringView testo) override { m_testi.append(testo.toString().simplified()); }
    void numero(double numero) override { m_testi.append(testoDecimale(numero).replace(u'.', u',')); }
    void importo(double importo) override {
        m_testi.append(importo == 0.0 ? QString() : testoItaliano(importo, m_decimali));
    }
    void data(QDate data) override { m_testi.append(data.isValid() ? testoData(data) : QString()); }
    void vuota() override { m_testi.append(QString()); }

    void nuovaRiga() { m_testi.clear(); }
    QString operator[](int colonna) const { return m_testi.value(colonna); }

private:
    QStringList m_testi;
    int m_decimali;
};

bool aDestra(const ColonnaTabella& colonna) {
    return colonna.genere == GenereColonna::Importo || colonna.genere == GenereColonna::Numero;
}

double caratteriIn(const Tabella& tabella) {
    double tutti = 0;
    for (const ColonnaTabella& colonna : tabella.colonne)
        tutti += colonna.caratteri;
    return tutti;
}

/// One print of a table: where its columns stand and how many rows a page has.
class Foglio {
public:
    Foglio(const Tabella& tabella, const Figura& figura, QPainter& penna, QSizeF misura)
        : m_tabella(tabella), m_figura(figura), m_penna(penna), m_misura(misura), m_celle(tabella.decimali),
          m_altaFigura(figura.altezza * penna.device()->logicalDpiY() / millimetriPerPollice) {
        m_testo.setPointSizeF(8);
        m_neretto = m_testo;
        m_neretto.setBold(true);
        m_titolo = m_neretto;
        m_titolo.setPointSizeF(12);
        const QFontMetricsF caratteri(m_testo, penna.device());
        m_passo = caratteri.height() * 1.25;
        m_cifra = caratteri.horizontalAdvance(u'0');
        m_sopra = QFontMetricsF(m_titolo, penna.device()).height() * 1.3 +
                  (tabella.filtro.isEmpty() ? 0.5 : 1.5) * m_passo;
        disponi();
    }

    int pagine() const {
        const int resto = std::max(daScrivere() - perPagina(1), 0);
        return 1 + (resto + perPagina(2) - 1) / perPagina(2);
    }

    void disegna(int pagina) {
        testata(pagina);
        const int fine = std::min(primaRiga(pagina + 1), daScrivere());
        double y = inizio(pagina) + m_passo * 1.2;
        for (int r = primaRiga(pagina); r < fine; ++r, y += m_passo) {
            const bool totale = r == m_tabella.righe;
            m_celle.nuovaRiga();
            if (totale)
                m_tabella.totali(m_celle);
            else
                m_tabella.riga(r, m_celle);
            if (totale)
                m_penna.drawLine(QPointF(0, y), QPointF(m_misura.width(), y));
            const bool grassetto = totale || (m_tabella.subtotale && m_tabella.subtotale(r));
            riga(y, grassetto ? m_neretto : m_testo);
        }
        m_penna.setFont(m_testo);
        m_penna.drawText(QRectF(0, m_misura.height() - m_passo, m_misura.width(), m_passo),
                         Qt::AlignRight | Qt::AlignVCenter, u"Pagina %1 di %2"_s.arg(pagina).arg(pagine()));
    }

private:
    int daScrivere() const { return m_tabella.righe + (m_tabella.totali ? 1 : 0); }
    /// Top of the head row.
    double inizio(int pagina) const { return m_sopra + (pagina == 1 ? m_altaFigura : 0); }
    int perPagina(int pagina) const {
        return std::max(static_cast<int>((m_misura.height() - inizio(pagina) - 2.7 * m_passo) / m_passo), 1);
    }
    int primaRiga(int pagina) const { return pagina == 1 ? 0 : perPagina(1) + (pagina - 2) * perPagina(2); }

    /// Each column gets its characters; texts share what is left, and where nothing is left all of them give
    /// way alike.
    void disponi() {
        double testi = 0;
        for (const ColonnaTabella& colonna : m_tabella.colonne)
            testi += colonna.genere == GenereColonna::Testo ? colonna.caratteri : 0;
        const double libera = m_misura.width() - caratteriIn(m_tabella) * m_cifra;
        const double stretta = libera < 0 ? m_misura.width() / (m_misura.width() - libera) : 1;
        double x = 0;
        for (const ColonnaTabella& colonna : m_tabella.colonne) {
            double larga = colonna.caratteri * m_cifra * stretta;
            if (libera > 0 && testi > 0 && colonna.genere == GenereColonna::Testo)
                larga += libera * colonna.caratteri / testi;
            m_larghezze.push_back({x, larga});
            x += larga;
        }
    }

    void testata(int pagina) {
        m_penna.setPen(Qt::black);
        m_penna.setFont(m_titolo);
        const double alta = QFontMetricsF(m_titolo, m_penna.device()).height();
        m_penna.drawText(QRectF(0, 0, m_misura.width(), alta), Qt::AlignLeft | Qt::AlignVCenter,
                         m_tabella.titolo);
        if (!m_tabella.filtro.isEmpty())
            scrivi(QRectF(0, alta * 1.1, m_misura.width(), m_passo), m_tabella.filtro, m_testo, false);
        if (pagina == 1 && m_altaFigura > 0) {
            m_penna.setFont(m_testo);
            m_figura.disegna(m_penna, QRectF(0, m_sopra, m_misura.width(), m_altaFigura - m_passo));
            m_penna.setPen(Qt::black);
        }
        m_celle.nuovaRiga();
        for (const ColonnaTabella& colonna : m_tabella.colonne)
            m_celle.testo(colonna.didascalia);
        const double y = inizio(pagina);
        m_penna.fillRect(QRectF(0, y, m_misura.width(), m_passo), QColor(225, 225, 225));
        riga(y, m_neretto);
    }

    void riga(double y, const QFont& font) {
        for (int i = 0; i < quantiIn(m_larghezze); ++i) {
            const auto [x, larga] = elemento(m_larghezze, i);
            const QRectF posto(x + m_cifra / 2, y, larga - m_cifra, m_passo);
            scrivi(posto, m_celle[i], font, aDestra(elemento(m_tabella.colonne, i)));
        }
    }

    /// A text that is too long is cut, a number drawn narrower: none of its digits may be missing.
    void scrivi(const QRectF& posto, const QString& testo, const QFont& font, bool numero) {
        if (testo.isEmpty())
            return;
        const QFontMetricsF metrica(font, m_penna.device());
        const double larga = metrica.horizontalAdvance(testo);
        m_penna.setFont(font);
        const double base = posto.top() + (posto.height() - metrica.height()) / 2 + metrica.ascent();
        if (larga <= posto.width()) {
            m_penna.drawText(QPointF(numero ? posto.right() - larga : posto.left(), base), testo);
        } else if (numero) {
            m_penna.save();
            m_penna.translate(posto.left(), base);
            m_penna.scale(posto.width() / larga, 1);
            m_penna.drawText(QPointF(0, 0), testo);
            m_penna.restore();
        } else {
            m_penna.drawText(QPointF(posto.left(), base),
                             metrica.elidedText(testo, Qt::ElideRight, posto.width()));
        }
    }

    struct Posto {
        double x;
        double larghezza;
    };

    const Tabella& m_tabella;
    const Figura& m_figura;
    QPainter& m_penna;
    QSizeF m_misura;
    CelleStampate m_celle;
    QFont m_testo;
    QFont m_neretto;
    QFont m_titolo;
    double m_altaFigura; ///< with the room below it; 0 without a drawing
    double m_passo = 0;  ///< height of a row
    double m_cifra = 0;  ///< width of a digit
    double m_sopra = 0;  ///< room of title and filter
    std::vector<Posto> m_larghezze;
};

/// A window with "Interrompi" that comes up when a print takes its time.
class Avanzamento {
public:
    explicit Avanzamento(QWidget* finestra)
        : m_finestra(u"Preparazione delle pagine"_s, u"&Interrompi"_s, 0, 0, finestra) {
        m_finestra.setWindowModality(Qt::WindowModal);
        m_finestra.setMinimumDuration(500);
    }
    AvanzaPagina funzione() {
        return [this](int pagina, int pagine) {
            m_finestra.setMaximum(pagine);
            m_finestra.setValue(pagina - 1);
            return !m_finestra.wasCanceled();
        };
    }
    bool interrotto() const { return m_finestra.wasCanceled(); }

private:
    QProgressDialog m_finestra;
};

/// A way to write a table, by the ending of its file.
struct Scrittura {
    QStringView finale;
    QStringView filtro;
};
constexpr std::array<Scrittura, 3> scritture = {{
    {u".csv", u"Foglio di calcolo (*.csv)"},
    {u".pdf", u"PDF (*.pdf)"},
    {u".json", u"Dati JSON (*.json)"},
}};

/// The file that the operator chose, with the ending of the kind he chose where he typed none of them.
QString scegliFileTabella(const QString& titolo, const QString& nome, QWidget* finestra) {
    QStringList filtri;
    for (const Scrittura& scrittura : scritture)
        filtri.append(scrittura.filtro.toString());
    QString filtro = filtri.front();
    const QDir documenti(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QString cartella = documenti.exists() ? documenti.path() : QDir::homePath();
    QFileDialog dialogo(finestra, titolo, cartella);
    dialogo.setObjectName(u"salvaTabella"_s);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setNameFilters(filtri);
    const auto finale = [&] {
        const auto scelto = filtri.indexOf(dialogo.selectedNameFilter());
        return elemento(scritture, std::max<qsizetype>(scelto, 0)).finale.sliced(1).toString();
    };
    dialogo.setDefaultSuffix(finale());
    QObject::connect(&dialogo, &QFileDialog::filterSelected, &dialogo,
                     [&] { dialogo.setDefaultSuffix(finale()); });
    dialogo.selectFile(nome);
    return dialogo.exec() == QDialog::Accepted ? dialogo.selectedFiles().value(0) : QString();
}

} // namespace

bool disegnaTabella(const Tabella& tabella, QPagedPaintDevice& fogli, const AvanzaPagina& avanza,
                    const Figura& figura) {
    fogli.setPageSize(QPageSize(QPageSize::A4));
    fogli.setPageOrientation(caratteriIn(tabella) > caratteriInPiedi ? QPageLayout::Landscape
                                                                     : QPageLayout::Portrait);
    fogli.setPageMargins({margine, margine, margine, margine}, QPageLayout::Millimeter);
    QPainter penna;
    if (!penna.begin(&fogli))
        return false;
    Foglio foglio(tabella, figura, penna, QSizeF(fogli.width(), fogli.height()));
    const int pagine = foglio.pagine();
    for (int pagina = 1; pagina <= pagine; ++pagina) {
        if (avanza && !avanza(pagina, pagine))
            return false;
        if (pagina > 1)
            fogli.newPage();
        foglio.disegna(pagina);
    }
    return penna.end();
}

bool scriviPdf(const Tabella& tabella, QIODevice& uscita, const AvanzaPagina& avanza, const Figura& figura) {
    QPdfWriter fogli(&uscita);
    fogli.setTitle(tabella.titolo);
    fogli.setResolution(risoluzione);
    return disegnaTabella(tabella, fogli, avanza, figura);
}

void stampaTabella(const Tabella& tabella, QWidget* finestra, const Figura& figura) {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setDocName(tabella.titolo);
    if (QPrintDialog(&stampante, finestra).exec() != QDialog::Accepted)
        return;
    Avanzamento avanzamento(finestra);
    const bool riuscita = disegnaTabella(tabella, stampante, avanzamento.funzione(), figura);
    if (avanzamento.interrotto())
        stampante.abort();
    else if (!riuscita)
        QMessageBox::critical(
            finestra, u"Attenzione"_s,
            u"La stampante non ha accettato la stampa: controllatela e ripetete la stampa."_s);
}

void esportaTabella(const Tabella& tabella, const QString& nome, QWidget* finestra, const Figura& figura) {
    const QString file = scegliFileTabella(u"Esporta: %1"_s.arg(tabella.titolo), nome, finestra);
    if (file.isEmpty())
        return;
    Avanzamento avanzamento(finestra);
    const QString errore = salvaFile(file, [&](QIODevice& uscita) {
        if (file.endsWith(u".pdf", Qt::CaseInsensitive))
            return scriviPdf(tabella, uscita, avanzamento.funzione(), figura);
        return file.endsWith(u".json", Qt::CaseInsensitive) ? scriviJson(tabella, uscita)
                                                            : scriviCsv(tabella, uscita);
    });
    if (!errore.isEmpty() && !avanzamento.interrotto())
        QMessageBox::warning(finestra, u"Attenzione"_s, errore);
}

} // namespace bor
