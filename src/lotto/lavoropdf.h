// Makes the PDFs of the chosen documents, and sends them where that is wanted. The PDF tool draws one while
// the program prepares the next; no more than these two are in memory, however many there are.
#pragma once

#include "common/lottopdf.h"
#include "common/stampante.h"
#include "lotto/lavoro.h"
#include "lotto/nomipdf.h"
#include "lotto/strumentopdf.h"
#include "output/layout.h"

#include <deque>
#include <optional>

namespace bor {

class LavoroPdf : public Lavoro {
public:
    enum class Posta { No, Si };

    /// `stampante` measures texts.
    LavoroPdf(const Contesto& contesto, Stampante& stampante, AvviaStrumento avvia, Posta posta);

    QString titolo() const override;
    QString proposta(std::vector<Candidato>& candidati) override;
    /// Documents that go into one mail come one after the other.
    std::vector<std::size_t> inizia(const std::vector<Candidato>& candidati) override;
    bool pronto() const override { return !m_preparato && m_messaggi.empty(); }
    void prendi(std::size_t riga, Documento documento) override;
    bool gira() override;
    void concludi() override;
    void interrompi() override;
    bool fermo() const override;

private:
    /// What is known of a document from the question on.
    struct Voce {
        QString pdf;
        QString indirizzo;  ///< empty when nothing is sent
        QString senzaPosta; ///< why nothing is sent, where something was wanted
        QString busta;      ///< documents of one mail have the same
        DocumentoPosta posta;
        QString fatto;        ///< what was done so far
        bool rilievo = false; ///< somebody should look
    };
    struct Pdf {
        std::size_t riga;
        Identita documento;
        ComandoLotto comando;
        QByteArray rapporto;
        bool daNominare;
    };
    struct Messaggio {
        std::vector<std::size_t> righe;
        ComandoLotto comando;
    };

    void scegliPosta(Voce& voce, const Candidato& candidato) const;
    bool raccogli();
    bool manda();
    void invia(const QByteArray& bytes);
    void pdfFinito(const QString& errore);
    void messaggioFinito(const QString& errore);
    void riferisci(std::size_t riga, const QString& seguito);
    void imbusta(std::size_t riga);
    void chiudiBustaPiena();
    void chiudiBusta();
    void nomina();
    void annota(const Messaggio& messaggio);

    Stampante& m_stampante;
    AvviaStrumento m_avvia;
    Posta m_posta;
    TestiPdf m_testi;
    std::vector<Voce> m_voci; ///< by the row of the document
    std::unique_ptr<StrumentoPdf> m_strumento;
    std::optional<Pdf> m_preparato;
    std::optional<Pdf> m_inCorso;
    std::optional<Messaggio> m_messaggioInCorso;
    std::deque<Messaggio> m_messaggi;
    std::optional<Messaggio> m_busta; ///< the mail that still takes documents
    std::vector<NomePdf> m_nomi;      ///< not in their records yet
    bool m_concluso = false;
    bool m_interrotto = false;
};

} // namespace bor
