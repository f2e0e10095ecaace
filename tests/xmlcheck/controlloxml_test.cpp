// What the check of electronic invoices says of a good file, of files with one fault each, and of garbage.
#include "xmlcheck/controlloxml.h"
#include "xmlcheck/doppioni.h"
#include "xmlcheck/letturaxml.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>

#include <algorithm>
#include <chrono>

using namespace bor;
using namespace Qt::StringLiterals;

namespace {

const QString nomeBuono = u"IT01234567897_00012.xml"_s;

QByteArray fatturaBuona() {
    QFile file(QStringLiteral(BOR_SOURCE_DIR "/tests/xmlcheck/fattura_buona.xml"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::string tutti(const std::vector<Rilievo>& rilievi) {
    QString testo;
    for (const Rilievo& r : rilievi)
        testo += testoRilievo(r);
    return testo.toStdString();
}

/// One replacement in the good file, and the element that must be found for it.
struct Guasto {
    const char* nome;
    QByteArray prima;
    QByteArray dopo;
    QString elemento; ///< end of the path
    QString parola;   ///< in the finding's reason or remedy
};

void PrintTo(const Guasto& guasto, std::ostream* uscita) {
    *uscita << guasto.nome;
}

class ControlloDi : public testing::TestWithParam<Guasto> {};

const Guasto guasti[] = {
    {"EcommercialeNuda", "Viti e", "Viti & ", u"DettaglioLinee[1]/Descrizione"_s, u"al posto di \"&\""_s},
    {"EntitaIgnota", "Viti e", "Viti&nbsp;e", u"DettaglioLinee[1]/Descrizione"_s, u"\"&\" da solo"_s},
    {"MinoreNudo", "Viti e", "Viti < e", u"DettaglioLinee[1]/Descrizione"_s, u"\"<\""_s},
    {"LetteraWindows1252", "Comune di Prova", "Citt\xE0 di Prova", u"Anagrafica/Denominazione"_s,
     u"Selezione cliente"_s},
    {"SegnoFuoriDaLatin1", "Comune di Prova", "Prova \xE2\x82\xAC", u"Anagrafica/Denominazione"_s, u"€"_s},
    {"CarattereDiControllo", "Viti e",
     "Viti\x01"
     "e",
     u"DettaglioLinee[1]/Descrizione"_s, u"stampabili"_s},
    {"ChiusuraMinuscola", "</ImportoRitenuta>", "</Importoritenuta>", u"DatiRitenuta/ImportoRitenuta"_s,
     u"</ImportoRitenuta>"_s},
    {"Interrotto", "</p:FatturaElettronica>", "", QString(), u"interrotto"_s},
    {"CodiceUfficioVuoto", "UF1234", "", u"CodiceDestinatario"_s, u"codice ufficio"_s},
    {"CodiceUfficioCorto", "UF1234", "UF12", u"CodiceDestinatario"_s, u"6 lettere"_s},
    {"ProgressivoLungo", "<ProgressivoInvio>1<", "<ProgressivoInvio>12345678901<", u"ProgressivoInvio"_s,
     u"Numero progressivo invio"_s},
    {"CapDiQuattro", "<CAP>10100<", "<CAP>1010<", u"CessionarioCommittente/Sede/CAP"_s, u"5 cifre"_s},
    {"NazioneVuota", "<Nazione>IT</Nazione><!--cliente-->", "<Nazione></Nazione>",
     u"CessionarioCommittente/Sede/Nazione"_s, u"vuoto"_s},
    {"ProvinciaMinuscola", "<Provincia>MI<", "<Provincia>mi<", u"CedentePrestatore/Sede/Provincia"_s,
     u"Kit"_s},
    {"RegimeIgnoto", "RF01", "RF20", u"RegimeFiscale"_s, u"RF18"_s},
    {"CodiceFiscaleErrato", "RSSMRA80A01H501U", "RSSMRA80A01H501X", u"DatiAnagrafici/CodiceFiscale"_s,
     u"controllo"_s},
    {"PartitaIvaErrata", "<IdCodice>01234567897</IdCodice><!--cedente-->", "<IdCodice>01234567890</IdCodice>",
     u"CedentePrestatore/DatiAnagrafici/IdFiscaleIVA/IdCodice"_s, u"Kit"_s},
    {"TipoDocumentoIgnoto", "TD01", "TD07", u"TipoDocumento"_s, u"Tipo documento"_s},
    {"DataItaliana", "<Data>2015-03-31<", "<Data>31/03/2015<", u"DatiGeneraliDocumento/Data"_s,
     u"aaaa-mm-gg"_s},
    {"NumeroSenzaCifre", "<Numero>12/PA<", "<Numero>PA<", u"Numero"_s, u"una cifra"_s},
    {"NumeroDi21", "<Numero>12/PA<", "<Numero>123456789012345678901<", u"Numero"_s, u"20 caratteri"_s},
    {"FuoriOrdine", "<Divisa>EUR</Divisa><Data>2015-03-31</Data>",
     "<Data>2015-03-31</Data><Divisa>EUR</Divisa>", u"Divisa"_s, u"prima di Data"_s},
    {"Ripetuto", "<Divisa>EUR</Divisa>", "<Divisa>EUR</Divisa><Divisa>EUR</Divisa>", u"Divisa[2]"_s,
     u"più di una volta"_s},
    {"NonPrevisto", "<Divisa>EUR</Divisa>", "<Divisa>EUR</Divisa><Valuta>EUR</Valuta>", u"Valuta"_s,
     u"previsto"_s},
    {"RitenutaZero", "RT01", "RT00", u"TipoRitenuta"_s, u"Tipo ritenuta"_s},
    {"RitenutaInPercento", "<Ritenuta>SI<", "<Ritenuta>20<", u"DettaglioLinee[1]/Ritenuta"_s, u"SI"_s},
    {"CigDi16", "<CodiceCIG>Z1A2B3C4D5<", "<CodiceCIG>1234567890123456<", u"CodiceCIG"_s, u"Codice CIG"_s},
    {"VirgolaDecimale", "<Quantita>10.00<", "<Quantita>10,00<", u"DettaglioLinee[1]/Quantita"_s, u"punto"_s},
    {"LineaSenzaAliquota", "<AliquotaIVA>22.00</AliquotaIVA><Ritenuta>", "<Ritenuta>",
     u"DettaglioLinee[1]/AliquotaIVA"_s, u"Estremi del documento"_s},
    {"EsenteSenzaNatura", "<Natura>N4</Natura><!--linea-->", "", u"DettaglioLinee[2]/Natura"_s, u"natura"_s},
    {"DescrizioneVuota", "<Descrizione>Bolli<", "<Descrizione><", u"DettaglioLinee[2]/Descrizione"_s,
     u"vuoto"_s},
    {"PrezzoTotaleErrato", "<PrezzoTotale>90.00<", "<PrezzoTotale>100.00<",
     u"DettaglioLinee[1]/PrezzoTotale"_s, u"90.00"_s},
    {"ImponibileErrato", "<ImponibileImporto>90.00<", "<ImponibileImporto>88.20<",
     u"DatiRiepilogo[1]/ImponibileImporto"_s, u"90.00"_s},
    {"ImpostaErrata", "<Imposta>19.80<", "<Imposta>19.82<", u"DatiRiepilogo[1]/Imposta"_s, u"19.80"_s},
    {"SenzaRiepilogo", "<Natura>N4</Natura><!--linea-->", "<Natura>N2</Natura>",
     u"DatiBeniServizi/DatiRiepilogo"_s, u"N2"_s},
    {"EsigibilitaIgnota", "<EsigibilitaIVA>I<", "<EsigibilitaIVA>X<", u"DatiRiepilogo[1]/EsigibilitaIVA"_s,
     u"I, D"_s},
    {"ModalitaIgnota", "MP05", "MP18", u"ModalitaPagamento"_s, u"Modalità pagamento"_s},
    {"IbanErrato", "IT60X0542811101000000123456", "IT60X0542811101000000123457", u"IBAN"_s,
     u"Banca appoggio"_s},
    {"RateErrate", "<ImportoPagamento>101.80<", "<ImportoPagamento>50.00<", u"DatiPagamento"_s, u"50.00"_s},
    {"AltroFile", "FatturaElettronica ", "Ordine ", QString(), u"non comincia"_s},
    {"Dtd", "<p:FatturaElettronica ", "<!DOCTYPE a [<!ENTITY b \"c\">]><p:FatturaElettronica ", QString(),
     u"DOCTYPE"_s},
};

} // namespace

TEST(ControlloXml, UnaFatturaBuonaNonHaRilievi) {
    ASSERT_FALSE(fatturaBuona().isEmpty());
    EXPECT_EQ(tutti(controllaXml(fatturaBuona(), nomeBuono)), "");
}

TEST_P(ControlloDi, IndicaLElementoECheCosaFare) {
    const Guasto& guasto = GetParam();
    QByteArray contenuto = fatturaBuona();
    const qsizetype dove = contenuto.indexOf(guasto.prima);
    ASSERT_GE(dove, 0);
    contenuto.replace(dove, guasto.prima.size(), guasto.dopo);
    const std::vector<Rilievo> rilievi = controllaXml(contenuto, nomeBuono);
    EXPECT_TRUE(std::any_of(rilievi.begin(), rilievi.end(), [&guasto](const Rilievo& r) {
        return r.elemento.endsWith(guasto.elemento) && (r.motivo + r.rimedio).contains(guasto.parola);
    })) << tutti(rilievi);
}

INSTANTIATE_TEST_SUITE_P(Guasti, ControlloDi, testing::ValuesIn(guasti),
                         [](const auto& caso) { return std::string(caso.param.nome); });

TEST(ControlloXml, IlNomeDelFileHaUnaForma) {
    for (const QString& nome : {u"IT01234567897_00012.xml"_s, u"ITRSSMRA80A01H501U_a.xml"_s})
        EXPECT_EQ(tutti(controllaXml(fatturaBuona(), nome)), "");
    for (const QString& nome : {u"IT01234567897_123456.xml"_s, u"IT01234567897_1/2.xml"_s,
                                u"IT01234567897.xml"_s, u"fattura.txt"_s, QString()})
        EXPECT_EQ(controllaXml(fatturaBuona(), nome).size(), 1U) << nome.toStdString();
}

TEST(ControlloXml, IRilieviDiUnFileMalFormatoParlanoAncheDeiContenuti) {
    QByteArray contenuto = fatturaBuona();
    contenuto.replace("Viti e", "Viti &")
        .replace("</AliquotaRitenuta>", "</Aliquotaritenuta>")
        .replace("MP05", "MP99");
    const auto rilievi = controllaXml(contenuto, nomeBuono);
    ASSERT_EQ(rilievi.size(), 3U) << tutti(rilievi);
    EXPECT_EQ(rilievi[0].valore, u"</Aliquotaritenuta>");
    EXPECT_EQ(rilievi[1].valore, u"Viti & bulloni");
    EXPECT_EQ(rilievi[2].valore, u"MP99");
}

TEST(ControlloXml, NessunByteLoFaCadere) {
    const QByteArray buona = fatturaBuona();
    for (qsizetype i = 0; i < buona.size(); i += 100)
        EXPECT_FALSE(controllaXml(buona.first(i), nomeBuono).empty()) << i;
    for (qsizetype i = 0; i < buona.size(); i += 37) {
        QByteArray guasta = buona;
        guasta[i] = static_cast<char>(i * 7);
        controllaXml(guasta, nomeBuono);
    }
    QByteArray rumore(100'000, '\0');
    for (qsizetype i = 0; i < rumore.size(); ++i)
        rumore[i] = static_cast<char>(i * i / 3 + i);
    EXPECT_FALSE(controllaXml(rumore, nomeBuono).empty());
    EXPECT_FALSE(controllaXml(QByteArray("<a>").repeated(50'000), nomeBuono).empty());
    EXPECT_EQ(controllaXml("<p:FatturaElettronica xmlns:p='http://www.fatturapa.gov.it/sdi/fatturapa/v1.0'>" +
                               QByteArray("<a/>").repeated(100'000),
                           nomeBuono)
                  .size(),
              501U);
    EXPECT_EQ(controllaXml(QByteArray(5'000'001, ' '), nomeBuono).size(), 1U);
}

TEST(ControlloXml, UnFileOstileFinisceESiDice) {
    using namespace std::chrono_literals;
    const auto motivo = [](const QByteArray& contenuto, std::chrono::milliseconds tempo = tempoLettura) {
        const LetturaXml lettura = leggiXml(contenuto, tempo);
        return lettura.radice || lettura.rilievi.size() != 1 ? QString() : lettura.rilievi[0].motivo;
    };
    QByteArray attributi = "<a";
    for (int i = 0; i <= 5000; ++i)
        attributi += " a" + QByteArray::number(i) + "='>'";
    EXPECT_TRUE(motivo(attributi + "/>").contains(u"attributi"_s));
    EXPECT_TRUE(motivo("<a>" + QByteArray("<!---->").repeated(600'000) + "</a>").contains(u"elementi"_s));
    EXPECT_TRUE(motivo("<a>" + QByteArray("&").repeated(10'001) + "</a>").contains(u"errati"_s));
    EXPECT_TRUE(leggiXml("<a><!--" + QByteArray("= ").repeated(1'000'000) + "--></a>").radice);
    for (const QByteArray& chiunque : {fatturaBuona(), fatturaBuona().replace("Viti e", "Viti & ")})
        EXPECT_TRUE(motivo(chiunque, 0ms).contains(u"interrotta"_s));
}

TEST(ControlloXml, IPercorsiDiconoQualeFraLeSorelle) {
    const LetturaXml lettura = leggiXml("<r><a><c/></a><b/><a>x<d/> y<c/><c><b/></c></a></r>");
    ASSERT_TRUE(lettura.radice);
    const Nodo& r = *lettura.radice;
    EXPECT_EQ(r.percorso(), QString());
    EXPECT_EQ(r.figli[0].figli[0].percorso(), u"a[1]/c"_s);
    EXPECT_EQ(r.figli[1].percorso(), u"b"_s);
    EXPECT_EQ(r.figli[2].figli[2].figli[0].percorso(), u"a[2]/c[2]/b"_s);
    EXPECT_EQ(r.figli[2].testo, u"x y"_s);
}

TEST(ControlloXml, DueFattureConLoStessoNumeroNellAnno) {
    Doppioni doppioni;
    const auto codici = [&](const QString& nome, const QByteArray& contenuto) {
        QStringList trovati;
        for (const Rilievo& r : controllaXml(contenuto, nome, {}, &doppioni))
            trovati << r.codice + u' ' + r.elemento.section(u'/', -1);
        return trovati.join(u',');
    };
    const QByteArray buona = fatturaBuona();
    const auto con = [&](const char* prima, const char* dopo) {
        return QByteArray(buona).replace(prima, dopo);
    };
    EXPECT_EQ(codici(u"IT01234567897_1.xml"_s, buona), QString());
    EXPECT_EQ(codici(u"IT01234567897_2.xml"_s, con("<Data>2015-03-31", "<Data>2015-04-01")),
              u"00404 Numero"_s);
    EXPECT_EQ(codici(u"IT01234567897_3.xml"_s, con("<Data>2015-03-31", "<Data>2014-03-31")), QString());
    EXPECT_EQ(codici(u"IT01234567897_4.xml"_s, con("12/PA", "13/PA")), QString());
    EXPECT_EQ(codici(u"IT01234567897_5.xml"_s, con("TD01", "TD04")), QString());
    EXPECT_EQ(codici(u"IT01234567897_6.xml"_s, con("TD01", "TD04")), u"00404 Numero"_s);
    const qsizetype corpo = buona.indexOf("<FatturaElettronicaBody>");
    const QByteArray dueVolte =
        con("12/PA", "14/PA")
            .insert(corpo,
                    con("12/PA", "14/PA").mid(corpo, buona.indexOf("</p:FatturaElettronica>") - corpo));
    EXPECT_EQ(codici(u"IT01234567897_7.xml"_s, dueVolte), u"00409 Numero"_s);
}

TEST(ControlloXml, UnAvvisoSiDiceAvviso) {
    QByteArray contenuto = fatturaBuona();
    contenuto.replace("RSSMRA80A01H501U", "RSSMRA80A01H501X").replace("12/PA", "PA");
    const auto rilievi = controllaXml(contenuto, nomeBuono);
    ASSERT_EQ(rilievi.size(), 2U) << tutti(rilievi);
    EXPECT_EQ(contoRilievi(rilievi), u"1 rilievo, 1 avviso"_s);
    EXPECT_TRUE(testoRilievo(rilievi[0]).startsWith(u"Avviso. Riga"_s));
    EXPECT_TRUE(testoRilievo(rilievi[0]).contains(u"Possibile scarto 00302."_s));
    EXPECT_TRUE(testoRilievo(rilievi[1]).contains(u"  Scarto 00425."_s));
}
