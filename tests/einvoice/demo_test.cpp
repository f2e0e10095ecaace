// The files of 2014 of the demo company's documents to public administrations. Those in attesi/ are what
// offices have received from the same data; a change of any byte shows here.
#include "borcrea/creaazienda.h"
#include "document/apridoc.h"
#include "document/righeinsospeso.h"
#include "einvoice/borftepa.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

QByteArray contenuto(const QString& percorso) {
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

} // namespace

TEST(FatturaXmlDemo, OgniDocumentoPaHaIlSuoFileEAlmenoTreSonoSenzaRilievi) {
    const QTemporaryDir unita;
    ASSERT_TRUE(crea::creaAzienda({.sorgente = QStringLiteral(BOR_SOURCE_DIR "/demo"),
                                   .unita = unita.path(),
                                   .codice = 7,
                                   .documenti = 0})
                    .isEmpty());
    const AziendaDiProva azienda(unita.path());
    ContestoDiProva prova(azienda);
    prova.orologio.momento = QDateTime(QDate(2015, 12, 31), QTime(12, 0)); // behind all documents
    int scritti = 0;
    int puliti = 0;
    for (int record = 1; record <= prova.archivio.leggiTot(Conta::Fte).numero; ++record) {
        RigheInSospeso nessuna;
        Documento documento = documentoEsistente(prova.contesto, record, nessuna).value();
        if (!documento.fatturaPa() || documento.coppia.fte.annullata != 0)
            continue;
        Borftepa form(prova.contesto, documento);
        form.attiva();
        form.genera();
        ++scritti;
        const QString numero = documento.estremi.numero;
        EXPECT_EQ(contenuto(unita.filePath(u"suprok/xml/IT04127580233_%1.xml"_s.arg(numero))).toStdString(),
                  contenuto(QStringLiteral(BOR_SOURCE_DIR "/tests/einvoice/attesi/demo_%1.xml").arg(numero))
                      .toStdString())
            << "document " << numero.toStdString();
        const auto rilievi = form.controlla();
        ASSERT_TRUE(rilievi.has_value());
        puliti +=
            std::ranges::none_of(*rilievi, [](const Rilievo& r) { return r.gravita == Gravita::Errore; }) ? 1
                                                                                                          : 0;
    }
    EXPECT_EQ(scritti, 7);
    EXPECT_GE(puliti, 3);
}

} // namespace bor
