#include "prospetti/datimensili.h"

#include "prospetti/daifile.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class DatiMensiliTest : public testing::Test {
protected:
    DatiMensili& carica() {
        prova = std::make_unique<ContestoDiProva>(azienda);
        m_form = std::make_unique<DatiMensili>(prova->contesto);
        m_form->attiva();
        m_form->prosegui(std::chrono::seconds(10));
        return *m_form;
    }
    /// Month, register, documents, taxable, tax, exempt, total and withholding of a row.
    QString riga(int quale) const {
        QStringList celle;
        for (int c = 0; c < colonneMese; ++c)
            celle.append(m_form->testo(quale, enumeratore<ColonnaMese>(c)));
        return celle.join(u'|');
    }

    AziendaDiProva azienda;
    std::unique_ptr<ContestoDiProva> prova;
    std::unique_ptr<DatiMensili> m_form;
};

TEST_F(DatiMensiliTest, OgniCifraEQuellaDeiFile) {
    scriviDocumentiACaso(azienda, 900, 3);
    DatiMensili& form = carica();
    using Somme = std::array<qint64, 5>; // documents, then cents
    std::map<QString, Somme> attese;     // by year, name of the month, register
    for (const DocumentoSuFile& d : documentiSuFile(azienda)) {
        if (d.eliminato())
            continue;
        const QDate data = QDate::fromString(QString::fromLatin1(d.fte.mid(14, 8)), u"yyyyMMdd"_s);
        const int registro = DocumentoSuFile::intero(d.fte, 442);
        const QString anno = data.isValid() ? data.toString(u"yyyy"_s) : QString();
        const QString mese = data.isValid() ? DatiMensili::nomeMese(data.month()) : u"Senza data"_s;
        for (const QString& quale : {mese, data.isValid() ? u"anno"_s : u"-"_s}) {
            Somme& s = attese[u"%1 %2 %3"_s.arg(anno, quale).arg(registro > 9 ? 0 : registro)];
            s = {s[0] + 1, s[1] + d.imponibile(), s[2] + d.imposta(), s[3] + d.esente(), s[4] + d.ritenuta()};
        }
    }
    ASSERT_EQ(form.anni(), QList({2016, 2015, 2014}));
    EXPECT_EQ(form.anno(), 2015);
    std::size_t trovate = 0;
    for (int a = 0; a < 3; ++a) {
        form.cambiaAnno(a);
        for (int r = 0; r < form.righe(); ++r) {
            const QString mese = form.testo(r, ColonnaMese::Mese);
            const QString registro = form.testo(r, ColonnaMese::Registro);
            const bool diAnno = mese == u"Totale registro";
            if (registro.isEmpty() || form.testo(r, ColonnaMese::Documenti) == u"0")
                continue;
            const QString anno = mese == u"Senza data" ? QString() : QString::number(form.anno());
            const Somme& s = attese[u"%1 %2 %3"_s.arg(anno, diAnno ? u"anno"_s : mese, registro)];
            trovate += mese == u"Senza data" && a > 0 ? 0 : 1;
            EXPECT_EQ(form.testo(r, ColonnaMese::Documenti).toLongLong(), s[0]) << qPrintable(riga(r));
            EXPECT_EQ(centesimiDi(form.testo(r, ColonnaMese::Imponibile)), s[1]) << qPrintable(riga(r));
            EXPECT_EQ(centesimiDi(form.testo(r, ColonnaMese::Imposta)), s[2]) << qPrintable(riga(r));
            EXPECT_EQ(centesimiDi(form.testo(r, ColonnaMese::Esente)), s[3]) << qPrintable(riga(r));
            EXPECT_EQ(centesimiDi(form.testo(r, ColonnaMese::Totale)), s[1] + s[2] + s[3]);
            EXPECT_EQ(centesimiDi(form.testo(r, ColonnaMese::Ritenute)), s[4]) << qPrintable(riga(r));
        }
    }
    std::erase_if(attese, [](const auto& attesa) { return attesa.first.startsWith(u" - "_s); });
    EXPECT_EQ(trovate, attese.size()) << "some month and register has no row";
}

TEST_F(DatiMensiliTest, MesiRegistriETotali) {
    CoppiaFte parcella = documentoDi(1, u"1"_s, 1092, 240.24);
    parcella.fte.parcella = 1;
    parcella.f2e.raimp[0] = 218.40;
    azienda.documento(parcella);
    CoppiaFte nota = documentoDi(1, u"2"_s, 100, 22);
    nota.fte.tipo = 1;
    nota.fte.registro = 2;
    azienda.documento(nota);
    CoppiaFte esente = documentoDi(1, u"3"_s, 0, 0);
    esente.fte.esen[0] = 50;
    esente.fte.datareg.set(u"20151299"_s);
    azienda.documento(esente);
    azienda.documento(CoppiaFte{vuoto<Fte>(), f2eVuoto()}); // counted but never written
    DatiMensili& form = carica();
    EXPECT_EQ(riga(0), u"Gennaio||0|0,00|0,00|0,00|0,00|0,00"_s);
    EXPECT_EQ(riga(2), u"Marzo|0|1|1.092,00|240,24|0,00|1.332,24|218,40"_s);
    EXPECT_EQ(riga(3), u"Marzo|2|1|-100,00|-22,00|0,00|-122,00|0,00"_s);
    EXPECT_EQ(riga(4), u"Totale marzo||2|992,00|218,24|0,00|1.210,24|218,40"_s);
    EXPECT_EQ(riga(14), u"Totale registro|0|1|1.092,00|240,24|0,00|1.332,24|218,40"_s);
    EXPECT_EQ(riga(16), u"Totale 2015||2|992,00|218,24|0,00|1.210,24|218,40"_s);
    EXPECT_EQ(riga(17), u"Senza data|0|1|0,00|0,00|50,00|50,00|0,00"_s);
    EXPECT_EQ(form.righe(), 18);
    EXPECT_EQ(form.registri(), QStringList({u"Tutti"_s, u"0"_s, u"2"_s}));
    form.cambiaRegistro(2);
    EXPECT_EQ(form.righe(), 13);
    EXPECT_EQ(riga(2), u"Marzo|2|1|-100,00|-22,00|0,00|-122,00|0,00"_s);
    EXPECT_EQ(form.mese(3).imposta, -22.0);
}

TEST_F(DatiMensiliTest, LAnnoSceltoRestaMaNonQuelloProposto) {
    CoppiaFte vecchio = documentoDi(1, u"1"_s, 100, 22);
    vecchio.fte.datareg.set(u"20140105"_s);
    azienda.documento(vecchio);
    azienda.documento(documentoDi(1, u"2"_s, 100, 22));
    EXPECT_EQ(carica().anni(), QList<int>({2015, 2014}));
    m_form->cambiaAnno(1);
    EXPECT_EQ(carica().anno(), 2014);
    m_form->cambiaAnno(0);
    EXPECT_EQ(carica().anno(), 2015);
    EXPECT_EQ(MemoriaProspetti(azienda.percorsi(), 7).anno(), 0) << "the next year shows itself";
}

TEST_F(DatiMensiliTest, UnAziendaSenzaDocumentiHaUnAnnoVuoto) {
    const DatiMensili& form = carica();
    EXPECT_EQ(form.anni(), QList{2015});
    EXPECT_EQ(form.righe(), 13);
    EXPECT_EQ(form.lettura().difetto(), QString());
}

} // namespace
} // namespace bor
