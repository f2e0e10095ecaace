// A command on many chosen documents, as an operator runs it: how long, how long the window did not answer,
// how much memory; beside it the writers of the same files alone, without window and archive.
#include "borcrea/creaazienda.h"
#include "borxpdf/comando.h"
#include "borxpdf/pdf.h"
#include "common/installazione.h"
#include "document/apridoc.h"
#include "document/righeinsospeso.h"
#include "fatturapa/generafattura.h"
#include "lotto/scelti.h"
#include "output/destinazionepdf.h"
#include "output/layout.h"
#include "output/stampafattura.h"
#include "support/azienda.h"
#include "ui/finestralotto.h"
#include "ui/stampanteqt.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <optional>

using namespace bor;
using namespace Qt::StringLiterals;

namespace {

double millisecondi(const QElapsedTimer& orologio) {
    return static_cast<double>(orologio.nsecsElapsed()) / 1e6;
}

/// Memory of this program's own by now, in MB.
double memoria() {
    QFile stato(u"/proc/self/status"_s);
    if (!stato.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& riga : stato.readAll().split('\n'))
        if (riga.startsWith("RssAnon:"))
            return riga.mid(8).trimmed().split(' ').front().toDouble() / 1024;
    return 0;
}

/// The demo company, its documents repeated, each with a number of its own.
class Banco {
public:
    explicit Banco(int quanti) : m_quanti(quanti) {
        const auto problemi =
            crea::creaAzienda({installato(u"demo"), m_unita.path(), 7, std::max(quanti, 400)});
        if (!problemi.empty())
            qFatal("%s", qPrintable(problemi.front().testo()));
        m_azienda.emplace(m_unita.path());
        m_prova.emplace(*m_azienda);
        m_prova->sessione.codiceazienda = 7;
        m_prova->orologio.momento = QDateTime(QDate(2030, 1, 1), QTime(12, 0));
        QFile::link(programma(QCoreApplication::applicationDirPath(), u"borxpdf"),
                    strumentoPdf(m_prova->archivio));
        riempi(m_prova->archivio);
    }

    void misura() {
        pdf();
        pavimentoPdf();
        elettroniche();
        pavimentoElettroniche();
    }

private:
    /// The documents that have lines, again and again, each time with a number of their own.
    void riempi(Archivio& archivio) {
        std::vector<CoppiaFte> originali;
        for (int n = 1; n <= archivio.leggiTot(Conta::Fte).numero; ++n) {
            const CoppiaFte coppia = archivio.leggi(n);
            if (coppia.fte.annullata != 1 && coppia.fte.nfile > 0.0F)
                originali.push_back(coppia);
        }
        for (int n = 1; n <= m_quanti; ++n) {
            CoppiaFte coppia = originali[static_cast<std::size_t>(n) % originali.size()];
            coppia.fte.numero.set(QString::number(n));
            coppia.fte.stamp = n;
            coppia.f2e.pdf.blank();
            archivio.scrivi(n, coppia);
            m_scelti.push_back(identitaDi(n, coppia.fte));
        }
    }

    /// One command in its window, from "Procedi" to the report.
    void comando(const char* nome, ComandoScelti quale) {
        std::unique_ptr<Lotto> lotto =
            Scelti(m_prova->contesto, m_sospese, m_stampante).prepara(quale, m_scelti);
        const double prima = memoria();
        double massima = 0;
        double vuoto = 0;
        int battiti = 0;
        QElapsedTimer tutto;
        QElapsedTimer battito;
        QEventLoop giro;
        RapportoLotto rapporto;
        auto* finestra = new FinestraLotto(
            std::move(lotto),
            [&](const RapportoLotto& finito) {
                rapporto = finito;
                giro.quit();
            },
            nullptr);
        QTimer cuore;
        QObject::connect(&cuore, &QTimer::timeout, &giro, [&] {
            vuoto = std::max(vuoto, millisecondi(battito));
            if (++battiti % 100 == 0)
                massima = std::max(massima, memoria());
            battito.restart();
        });
        finestra->open();
        QCoreApplication::processEvents();
        cuore.start(1);
        tutto.start();
        battito.start();
        finestra->findChild<QPushButton*>(u"procedi"_s)->click();
        giro.exec();
        std::printf("%-28s %5d documents %8.0f ms, window silent at most %4.0f ms, memory +%.1f MB (%s)\n",
                    nome, m_quanti, millisecondi(tutto), vuoto, massima - prima,
                    qPrintable(rapporto.conto()));
    }

    void pdf() { comando("PDF", ComandoScelti::Pdf); }
    void elettroniche() { comando("electronic invoices", ComandoScelti::Elettronica); }

    std::optional<Documento> apri(const Identita& scelto) {
        return documentoEsistente(m_prova->contesto, scelto.record, m_sospese);
    }

    /// The PDF writer drawing the same pages, one file a document, nothing on disk.
    void pavimentoPdf() {
        const QString layout = layoutStrumento(false, m_prova->archivio);
        const pdf::LayoutPdf foglio = pdf::leggiLayout(layout, m_azienda->percorsi());
        pdf::Disegnatore disegnatore = pdf::disegnatoreDi(layout, m_azienda->percorsi());
        double tempo = 0;
        qsizetype pagine = 0;
        for (const Identita& scelto : m_scelti) {
            const auto documento = apri(scelto);
            QString errore;
            const auto stampa = pdf::PagineStampate::leggi(
                componiRapporto(*documento, m_prova->contesto, m_stampante), errore);
            if (!stampa)
                continue;
            pagine += std::ssize(stampa->pagine);
            QElapsedTimer orologio;
            orologio.start();
            pdf::componiPdf(*stampa, foglio, u"Prova"_s, disegnatore);
            tempo += millisecondi(orologio);
        }
        std::printf("%-28s %5d documents %8.0f ms, %lld pages\n", "floor: PDF writer alone", m_quanti, tempo,
                    static_cast<long long>(pagine));
    }

    /// The writer of today's invoices, a hundred opened documents at a time, into another folder.
    void pavimentoElettroniche() {
        GeneratoreFel generatore =
            GeneratoreFel::perAzienda(m_prova->contesto, caricaTestiPdf(m_prova->archivio).cartella());
        constexpr std::size_t perVolta = 100;
        double tempo = 0;
        for (std::size_t primo = 0; primo < m_scelti.size(); primo += perVolta) {
            std::vector<Documento> documenti;
            for (std::size_t i = primo; i < std::min(m_scelti.size(), primo + perVolta); ++i)
                documenti.push_back(*apri(m_scelti[i]));
            QElapsedTimer orologio;
            orologio.start();
            generatore.genera(documenti);
            tempo += millisecondi(orologio);
        }
        std::printf("%-28s %5d documents %8.0f ms\n", "floor: their writer alone", m_quanti, tempo);
    }

    int m_quanti;
    QTemporaryDir m_unita;
    std::optional<AziendaDiProva> m_azienda;
    std::optional<ContestoDiProva> m_prova;
    std::vector<Identita> m_scelti;
    RigheInSospeso m_sospese;
    StampanteQt m_stampante;
};

} // namespace

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication applicazione(argc, argv);
    for (const int quanti : {250, 1000})
        Banco(quanti).misura();
    return 0;
}
