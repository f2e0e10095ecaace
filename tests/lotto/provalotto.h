// The demo company with a program at work on it, and a PDF tool that the test plays itself.
#pragma once

#include "borcrea/creaazienda.h"
#include "common/lottopdf.h"
#include "document/righeinsospeso.h"
#include "lotto/scelti.h"
#include "support/azienda.h"
#include "support/stampante_finta.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <initializer_list>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace bor {

/// What a tool of the test was told, and how it answers.
struct Banco {
    std::vector<ComandoLotto> comandi;
    QStringList errori;   ///< of the next answers; then none
    bool muore = false;   ///< at the next command, without an answer
    bool risponde = true; ///< false: it keeps what it has in hand
    int avvii = 0;
};

class StrumentoFinto : public StrumentoPdf {
public:
    explicit StrumentoFinto(Banco& banco) : m_banco(banco) { ++m_banco.avvii; }

    void scrivi(const QByteArray& bytes) override {
        const qsizetype fine = bytes.indexOf('\n') + 1;
        m_banco.comandi.push_back(ComandoLotto::leggi(bytes.first(fine)).value());
        EXPECT_EQ(bytes.size() - fine, m_banco.comandi.back().byte);
        m_finito = std::exchange(m_banco.muore, false);
        if (!m_finito)
            m_risposte.push_back({m_banco.errori.isEmpty() ? QString() : m_banco.errori.takeFirst()});
    }
    std::optional<QByteArray> linea() override {
        if (m_risposte.empty() || !m_banco.risponde)
            return std::nullopt;
        const QByteArray linea = m_risposte.front().linea();
        m_risposte.pop_front();
        return linea;
    }
    bool finito() const override { return m_finito; }

private:
    Banco& m_banco;
    std::deque<RispostaLotto> m_risposte;
    bool m_finito = false;
};

class LottoTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        demo = std::make_unique<QTemporaryDir>();
        EXPECT_TRUE(crea::creaAzienda({.sorgente = QStringLiteral(BOR_SOURCE_DIR "/demo"),
                                       .unita = demo->path(),
                                       .codice = 7,
                                       .documenti = 0})
                        .isEmpty());
    }
    static void TearDownTestSuite() { demo.reset(); }

    LottoTest() {
        std::filesystem::copy(demo->path().toStdString(), unita.path().toStdString(),
                              std::filesystem::copy_options::recursive);
        azienda.emplace(unita.path());
        prova.emplace(*azienda);
        prova->sessione.codiceazienda = 7;
        prova->orologio.momento = QDateTime(QDate(2015, 12, 31), QTime(12, 0)); // behind all documents
    }

    Identita identita(int record) const { return identitaDi(record, prova->archivio.fte.leggi(record)); }
    std::vector<Identita> documenti(std::initializer_list<int> record) const {
        std::vector<Identita> scelti;
        for (const int n : record)
            scelti.push_back(identita(n));
        return scelti;
    }
    std::unique_ptr<Lotto> prepara(ComandoScelti comando, const std::vector<Identita>& scelti) {
        return Scelti(
                   prova->contesto, sospese, stampante,
                   [this](const QString&, const QString&) { return std::make_unique<StrumentoFinto>(banco); })
            .prepara(comando, scelti);
    }
    static void fino(Lotto& lotto) {
        while (lotto.passo() != Lotto::Passo::Finito) {
        }
        EXPECT_EQ(lotto.finiti(), lotto.quanti());
    }
    static QString testo(const Lotto& lotto, std::size_t riga) {
        return lotto.rapporto().righe.at(riga).testo;
    }
    static EsitoRiga esito(const Lotto& lotto, std::size_t riga) {
        return lotto.rapporto().righe.at(riga).esito;
    }

    /// The record's document, its PDF not made yet, its customer's mail as the test wants it.
    void cliente(int record, const QString& email) {
        const int n = prova->archivio.fte.leggi(record).cliente;
        Cli cli = prova->archivio.cli.leggi(n);
        cli.postael.set(email.isEmpty() ? u"0" : u"1");
        cli.email.set(email);
        prova->archivio.cli.scrivi(n, cli);
    }
    void elimina(int record) {
        Fte fte = prova->archivio.fte.leggi(record);
        fte.annullata = 1;
        prova->archivio.fte.scrivi(record, fte);
    }

    static inline std::unique_ptr<QTemporaryDir> demo; ///< each test works on a copy
    QTemporaryDir unita;
    std::optional<AziendaDiProva> azienda;
    std::optional<ContestoDiProva> prova;
    RigheInSospeso sospese;
    StampanteFinta stampante;
    Banco banco;
};

} // namespace bor
