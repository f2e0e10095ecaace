// The layout tables against the official schemas: a file with every element of a layout, spoilt in thousands
// of ways, is refused by the check exactly when the schema refuses it.
#include "support/schemi.h"
#include "xmlcheck/controlloxml.h"
#include "xmlcheck/tracciato.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

/// An element on its way to a file. Text is written as it stands: it may hold markup.
struct Pezzo {
    QString nome;
    QString testo;
    QString attributi;
    std::vector<Pezzo> figli;

    QString xml() const {
        QString dentro = testo;
        for (const Pezzo& figlio : figli)
            dentro += figlio.xml();
        return u'<' + nome + attributi + u'>' + dentro + u"</"_s + nome + u">\n"_s;
    }
};

QString esempio(const RigaTracciato& riga) {
    switch (riga.forma) {
    case Forma::Scelta:
        return QString::fromUtf16(riga.scelte).split(u' ').first();
    case Forma::Lettere:
        return QString(riga.minimo, u'I');
    case Forma::Cifre:
        return QString(riga.minimo, u'4');
    case Forma::Maiuscole:
        return QString(riga.minimo, u'A');
    case Forma::Iban:
        return u"IT60X0542811101000000123456"_s;
    case Forma::Bic:
        return u"UNCRITMM"_s;
    case Forma::Email:
    case Forma::Pec:
        return u"posta@ditta.example"_s;
    case Forma::Importo:
    case Forma::Quantita:
    case Forma::Percento:
    case Forma::Peso:
        return u"12.50"_s;
    case Forma::Intero:
        return u"7"_s;
    case Forma::Data:
        return u"2016-02-29"_s;
    case Forma::DataOra:
        return u"2016-02-29T12:30:00"_s;
    case Forma::Base64:
        return u"QUJD"_s;
    default:
        return QString(std::max(riga.minimo, 3), u'1').left(riga.massimo);
    }
}

void riempi(Pezzo& pezzo, const Elemento& elemento) {
    for (const Elemento& figlio : elemento.figli) {
        if (figlio.riga.forma == Forma::Libero || figlio.riga.volte == Volte::Seconda)
            continue;
        Pezzo nuovo{figlio.nome, {}, {}, {}};
        if (figlio.riga.forma == Forma::Gruppo)
            riempi(nuovo, figlio);
        else
            nuovo.testo = esempio(figlio.riga);
        pezzo.figli.push_back(nuovo);
    }
}

Pezzo fatturaIntera(Versione versione) {
    Pezzo radice{u"p:FatturaElettronica"_s,
                 {},
                 u" xmlns:p=\"%1\" versione=\"%2\""_s.arg(spazioNomi(versione),
                                                          versione == Versione::V10 ? u"1.0"_s : u"FPA12"_s),
                 {}};
    riempi(radice, tracciato(versione));
    return radice;
}

void raccogli(Pezzo& pezzo, std::vector<Pezzo*>& tutti) {
    tutti.push_back(&pezzo);
    for (Pezzo& figlio : pezzo.figli)
        raccogli(figlio, tutti);
}

/// Values that some element takes and others do not.
const QStringList& valori() {
    static const QStringList tutti =
        (u"| |1|0|-1|+7|0007|10000|999|1000| 7 |1.0|1.00| 1.00 |-1.00|+1.00|1.000|1.12345678|"
         u"1.123456789|100.00|100.01|099.99|0100.00|1,00|.50|1e2|12345.6|99999999999.00|"
         u"100000000000.00|999999999999.00|9999999999999.00|2015-02-29|2015-03-31|2015-03-31Z|"
         u"2015-03-31+01:00| 2015-03-31|2015-13-01|2015-3-1|1969-12-31|1970-01-01|0000-01-01|"
         u"31/03/2015|2015-03-31T10:00:00|2015-03-31T10:00:00.000+02:00|2015-03-31T25:00:00|"
         u"2015-03-31 10:00:00|IT|it| IT|ITA|I|I1|SI|NO|SC|D|S|F|Z|A|J|L1|ZO|N1|N2.1|N3|N6|N7|N8|N6.10|"
         u"TD01|TD07|TD24|TD29|TD30|RF03|RF18|RF19|RF20|RT02|RT06|MP17|MP18|MP23|MP24|TC22|TC23|TP03|"
         u"TP04|SDI10|FPA12|FPR12|12345|123456|1234567|ABC12X|abc12x|RSSMRA80A01H501U|rssmra80a01h501u|"
         u"01234567897|0123456789|IT60X0542811101000000123456|it60x0542811101000000123456|"
         u"IT60X054281110|IT60X05428111010|I160X0542811101000000123456|UNCRITMMXXX|UNCRITM1|UNCRITMMXX|"
         u"a@b.it|a@b.ita|a b@c.it|posta.ditta.example|a@b|\"a b\"@c.it|à@ditta.it|città|10 €|l’ora|"
         u"a\tb|a\nb|a &amp; b|QUJ|QU JD|QQ==|Q==="_s)
            .split(u'|');
    return tutti;
}

class Guastatore {
public:
    explicit Guastatore(unsigned seme) : m_caso(seme) {}

    /// Spoils, or only changes, one place of the file.
    void guasta(Pezzo& radice) {
        std::vector<Pezzo*> tutti;
        raccogli(radice, tutti);
        Pezzo& qui = *tutti[fra(tutti.size())];
        switch (fra(10)) {
        case 0:
            return toglie(qui);
        case 1:
            return ripete(qui);
        case 2:
            return scambia(qui);
        case 3:
            return decora(radice, qui);
        default:
            cambia(*foglia(tutti));
        }
    }

private:
    std::size_t fra(std::size_t quanti) {
        return std::uniform_int_distribution<std::size_t>(0, quanti - 1)(m_caso);
    }

    Pezzo* foglia(const std::vector<Pezzo*>& tutti) {
        Pezzo* scelto = tutti.back();
        do
            scelto = tutti[fra(tutti.size())];
        // An attachment may hold anything for xmllint, though not for the schema.
        while (!scelto->figli.empty() || scelto->nome == u"Attachment");
        return scelto;
    }

    void toglie(Pezzo& qui) {
        if (!qui.figli.empty())
            qui.figli.erase(qui.figli.begin() + static_cast<std::ptrdiff_t>(fra(qui.figli.size())));
        else
            qui.testo.chop(1);
    }
    void ripete(Pezzo& qui) {
        if (qui.figli.empty())
            return void(qui.testo += qui.testo);
        const std::size_t quale = fra(qui.figli.size());
        const Pezzo copia = qui.figli[quale];
        qui.figli.insert(qui.figli.begin() + static_cast<std::ptrdiff_t>(quale), copia);
    }
    void scambia(Pezzo& qui) {
        if (qui.figli.size() > 1) {
            const std::size_t quale = fra(qui.figli.size() - 1);
            std::swap(qui.figli[quale], qui.figli[quale + 1]);
        }
    }
    /// Markup around a value or an element, some of which changes nothing.
    void decora(Pezzo& radice, Pezzo& qui) {
        switch (fra(10)) {
        case 0:
            qui.testo += u"<!-- commento -->"_s;
            break;
        case 1:
            if (qui.figli.empty())
                qui.testo = u"<![CDATA["_s + qui.testo + u"]]>"_s;
            break;
        case 2:
            qui.attributi += u" id=\"1\""_s;
            break;
        case 3:
            qui.figli.push_back({u"Altro"_s, u"1"_s, {}, {}});
            break;
        case 4:
            qui.nome = qui.nome.toUpper();
            break;
        case 5:
            qui.attributi += u" xmlns=\"urn:altro\""_s;
            break;
        case 6:
            qui.testo += u"parole"_s;
            break;
        case 7:
            radice.attributi.replace(u"versione=\""_s, u"versione=\"1."_s);
            break;
        case 8:
            radice.attributi +=
                u" SistemaEmittente=\"%1\""_s.arg(fra(2) == 0 ? u"borfte"_s : u"un nome troppo lungo"_s);
            break;
        default:
            alternative(qui);
        }
    }
    /// Name and surname in place of the company's name, or half of them.
    void alternative(Pezzo& qui) {
        for (Pezzo& figlio : qui.figli) {
            if (figlio.nome != u"Anagrafica")
                continue;
            if (fra(3) > 0)
                figlio.figli.erase(figlio.figli.begin());
            figlio.figli.insert(figlio.figli.begin(), {u"Cognome"_s, u"Rossi"_s, {}, {}});
            if (fra(3) > 0)
                figlio.figli.insert(figlio.figli.begin(), {u"Nome"_s, u"Mario"_s, {}, {}});
        }
    }
    void cambia(Pezzo& qui) {
        const QString lungo = qui.testo.repeated(30);
        switch (fra(8)) {
        case 0:
            qui.testo = lungo.left(static_cast<qsizetype>(fra(300)));
            break;
        case 1:
            qui.testo =
                lungo.left(std::array{60, 61, 80, 81, 100, 101, 200, 201, 20, 21, 10, 11, 35, 36}[fra(14)]);
            break;
        default:
            qui.testo = valori()[static_cast<qsizetype>(fra(static_cast<std::size_t>(valori().size())))];
        }
    }

    std::mt19937 m_caso;
};

bool formaBuona(const QByteArray& xml) {
    const auto rilievi = controllaXml(xml, u"IT01234567897_00001.xml"_s);
    return std::ranges::none_of(rilievi, [](const Rilievo& r) { return r.codice == u"00200"; });
}

void confronta(Versione versione, const QString& nome) {
    const Schemi schemi(nome);
    if (!schemi.ciSono())
        GTEST_SKIP() << "no schemas: BOR_SCHEMI names no folder with them, or xmllint is missing";
    constexpr int guasti = 2000;
    const QTemporaryDir cartella;
    Guastatore guastatore(20150331);
    QStringList file;
    QList<QByteArray> contenuti;
    for (int i = 0; i <= guasti; ++i) {
        Pezzo fattura = fatturaIntera(versione);
        // The first stays whole; some get two faults, so that one does not hide behind another.
        for (int k = 0; k < (i == 0 ? 0 : i % 5 == 0 ? 2 : 1); ++k)
            guastatore.guasta(fattura);
        contenuti.append("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + fattura.xml().toUtf8());
        file.append(cartella.filePath(u"%1.xml"_s.arg(i)));
        QFile f(file.last());
        ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(contenuti.last()) == contenuti.last().size());
    }
    const QSet<QString> validi = schemi.validi(file);
    EXPECT_TRUE(validi.contains(file.first()));
    EXPECT_GT(validi.size(), guasti / 20);
    EXPECT_LT(validi.size(), guasti);
    for (qsizetype i = 0; i < file.size(); ++i) {
        if (formaBuona(contenuti[i]) == validi.contains(file[i]))
            continue;
        std::string tutti;
        for (const Rilievo& r : controllaXml(contenuti[i], u"IT01234567897_00001.xml"_s))
            if (r.codice == u"00200")
                tutti += testoRilievo(r).toStdString();
        ADD_FAILURE() << "file " << i
                      << (tutti.empty() ? " is refused by the schema alone" : " is refused here alone:\n")
                      << tutti;
    }
}

} // namespace

TEST(Schemi, IlTracciatoDel2014RifiutaCioCheRifiutaLoSchema) {
    confronta(Versione::V10, u"1.0"_s);
}

TEST(Schemi, IlTracciatoDiOggiRifiutaCioCheRifiutaLoSchema) {
    confronta(Versione::V123, u"1.2.3"_s);
}

} // namespace bor
