// Save, posting, print and electronic invoice of documents that no screen has opened: whatever the order, and
// for two documents in turn, each leaves what it leaves alone.
#include "document/apridoc.h"
#include "document/righeinsospeso.h"
#include "document/salvadoc.h"
#include "document/totali.h"
#include "document/totaliparcella.h"
#include "document/trovamovimento.h"
#include "einvoice/fatturadiprova.h"
#include "output/stampafattura.h"
#include "posting/registrazionicontabili.h"
#include "posting/setfat.h"
#include "support/stampante_finta.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

enum class Opera { Salva, Registra, Stampa, Xml };

/// The documents of the company, by their record number.
constexpr int fattura = 1;
constexpr int nota = 2;
constexpr int parcella = 3;

template <class R>
QByteArray bytes(const R& record) {
    return {reinterpret_cast<const char*>(&record), sizeof record};
}

/// Name, number, title and total on each page; a line has its text and its price.
QByteArray layout(const QList<int>& voci) {
    QByteArray file;
    for (int i = 1; i <= 100; ++i)
        file += (voci.contains(i) ? "020020" : "000000") + QByteArray("\r\n9\r\nArial\r\n0\r\n0\r\n0\r\n");
    return file;
}

/// A company at work, with an invoice, a credit note and a fee bill on file, each of a customer with accounts
/// and an article of his own.
class Ditta {
public:
    Ditta() {
        azienda.scrivi(u"borlano.fpa"_s, bytesDi(fpaSocieta()));
        azienda.scrivi(u"borlano.lyf"_s, layout({18, 33, 70, 82, 85, 88, 91}));
        azienda.scrivi(u"borlano.lyp"_s, layout({18, 33, 69, 77, 80, 82}));
        QDir(azienda.percorsi().radiceCorrente()).mkdir(u"xml"_s);
        prova.tabelle.aliquote[1] = {u"22"_s, u"20"_s, {}, u"4"_s};
        prova.tabelle.contabili[5] = u"19010001"_s;
        prova.tabelle.contabili[15] = u"Ft. $D $N"_s.leftJustified(40) + u"N.C. $D $N"_s;
        prova.tabelle.tipopagamenti[2] = {u"Rimessa diretta"_s, u"000"_s};
        aggiungi(prova.archivio, prova.archivio.mag, Conta::Mag, vuoto<Mag>());
        prova.sessione.modificamovimento = true; // a movement posted again takes the place of its own
        for (const int n : {fattura, nota, parcella})
            crea(n);
    }

    /// As the operator has it before him: opened, and an account typed over the customer's.
    Documento apri(int n) {
        Documento d = documentoEsistente(prova.contesto, n, sospese).value();
        d.testata.cliente.contoricavi.sottoconto = u"0002"_s;
        return d;
    }
    /// Does the work and tells what it left.
    QByteArray esegui(Opera opera, Documento& d) {
        switch (opera) {
        case Opera::Salva:
            return salva(d);
        case Opera::Registra:
            return registra(d);
        case Opera::Stampa:
            return stampa(d);
        case Opera::Xml:
            return xml(d);
        }
        return {};
    }

private:
    static QString codice(int n, QStringView resto) { return u"1%1%2"_s.arg(n).arg(resto); }

    void crea(int n) {
        Cli cli = clienteComune();
        cli.sede.ragione1.set(u"Cliente %1"_s.arg(n));
        cli.contocliente.set(codice(n, u"010001"));
        cli.contoricavi.set(codice(n, u"020001"));
        cli.contoiva.set(codice(n, u"030001"));
        cli.pagamento = 2;
        aggiungi(prova.archivio, prova.archivio.cli, Conta::Cli, cli);
        for (const QStringView resto : {u"010001", u"020001", u"020002", u"030001", u"900001"}) {
            Con con = vuoto<Con>();
            con.codice.set(resto == u"900001" ? u"19010001"_s : codice(n, resto));
            aggiungi(prova.archivio, prova.archivio.con, Conta::Con, con);
        }
        azienda.articolo(articoloDi(u"ART%1"_s.arg(n), u"Articolo"_s, 10, 1));

        Documento d = nuovoDocumento(prova.contesto, n == nota ? 1 : 0, n);
        d.coppia.fte.nfile = -1.0F;
        salvadoc(d, prova.contesto, registrazioni, sospese);
        if (n == parcella) {
            d.coppia.fte.parcella = 1;
            prova.archivio.scrivi(n, d.coppia);
        }
        d = documentoEsistente(prova.contesto, n, sospese).value();
        d.ddd[0] = {.recart = n,
                    .codice = u"ART%1"_s.arg(n),
                    .descrizione = u"Articolo"_s,
                    .um = u"pz"_s,
                    .iva = 1,
                    .quantita = 2.0 * n,
                    .prezzo = 12.5};
        d.dddp[0] = {u"01/03/2015"_s, u"Parere"_s, 0, 0, 250};
        riporta(d);
        xml(d); // gives it the number of its data
        salva(d);
    }
    void riporta(Documento& d) {
        const Valuta valuta = prova.contesto.valuta();
        if (d.parcella()) {
            const TotaliParcella t = totaliParcella(d.dddp, d.testata.pratica, prova.tabelle, valuta);
            riportaTotali(d, t.iva, t.baseritenuta, t.ritenuta, prova.contesto);
            return;
        }
        const TotaliRighe t = ricalcola(d.ddd, d.scorporo, prova.tabelle, valuta);
        riportaTotali(d, t.iva, t.baserit, t.importorit, prova.contesto);
    }

    QByteArray salva(Documento& d) {
        // The warehouse, which a fee bill is not asked about, but no movement.
        prova.operatore.risposte = d.parcella() ? QList{false} : QList{true, false};
        EXPECT_EQ(salvadoc(d, prova.contesto, registrazioni, sospese).dopo, DopoSalva::Registro);
        const CoppiaFte coppia = prova.archivio.leggi(d.recordfattura);
        QByteArray lasciato = bytes(coppia.fte) + bytes(coppia.f2e) +
                              azienda.leggi((d.parcella() ? u"p%1"_s : u"f%1"_s).arg(coppia.fte.nfile)) +
                              bytes(prova.archivio.art.leggi(d.recordfattura));
        prova.archivio.mag.scorri(1, prova.archivio.leggiTot(Conta::Mag).numero, [&](int, const Mag& mag) {
            if (mag.stampmag == coppia.fte.stamp && mag.cancellato != 1)
                lasciato += bytes(mag);
            return true;
        });
        return lasciato;
    }
    QByteArray registra(const Documento& d) {
        prova.operatore.risposte = {false}; // a new movement
        Borftec form(prova.contesto, d);
        form.prepara(d.parcella() ? setpar(d, prova.contesto) : setfat(d, prova.contesto));
        form.salva();
        QByteArray lasciato =
            bytes(prova.archivio.gio.leggi(trovaMovimento(prova.archivio, d.coppia.fte.stamp).value()));
        const QString inizio = codice(d.recordfattura, {});
        prova.archivio.con.scorri(1, prova.archivio.leggiTot(Conta::Con).numero, [&](int, const Con& con) {
            if (con.codice.text().startsWith(inizio))
                lasciato += bytes(con);
            return true;
        });
        return lasciato;
    }
    QByteArray stampa(const Documento& d) {
        prova.operatore.risposte = {true};
        StampanteFinta stampante;
        EXPECT_EQ(stampaDocumento(d, prova.contesto, stampante), EsitoStampa::ConRapporto);
        QFile rapporto(azienda.percorsi().reale(u"c:\\bordoc.rto").value());
        return rapporto.open(QIODevice::ReadOnly) ? rapporto.readAll() : QByteArray();
    }
    QByteArray xml(Documento& d) {
        Borftepa form(prova.contesto, d);
        form.attiva();
        form.genera();
        QFile file(azienda.percorsi().radiceCorrente() +
                   u"/xml/IT01234567890_%1.xml"_s.arg(d.estremi.numero));
        return (file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray()) +
               azienda.leggi(u"fpa%1"_s.arg(d.recordfpa));
    }

    AziendaDiProva azienda;
    ContestoDiProva prova{azienda};
    const Documento nessuno;
    Borftec editor{prova.contesto, nessuno};
    RegistrazioniContabili registrazioni{prova.contesto, editor};
    RigheInSospeso sospese;
};

QByteArray daSola(int n, Opera opera) {
    Ditta ditta;
    Documento d = ditta.apri(n);
    return ditta.esegui(opera, d);
}

TEST(Ordine, DueDocumentiAVicendaLascianoCioCheLascianoDaSoli) {
    std::array opere = {Opera::Salva, Opera::Registra, Opera::Stampa, Opera::Xml};
    std::map<std::pair<int, Opera>, QByteArray> attesi;
    for (const int n : {fattura, nota, parcella}) {
        for (const Opera opera : opere) {
            attesi[{n, opera}] = daSola(n, opera);
            ASSERT_FALSE(attesi.at({n, opera}).isEmpty()) << n;
        }
    }
    for (const Opera opera : opere)
        ASSERT_NE(attesi.at({fattura, opera}), attesi.at({nota, opera})) << "nothing to tell them apart";
    Ditta ditta;
    do {
        for (const int altra : {nota, parcella}) {
            Documento prima = ditta.apri(fattura);
            Documento seconda = ditta.apri(altra);
            for (std::size_t i = 0; i < opere.size(); ++i) {
                const Opera una = opere[i];
                const Opera contraria = opere[opere.size() - 1 - i];
                ASSERT_EQ(ditta.esegui(una, prima), attesi.at({fattura, una})) << i;
                ASSERT_EQ(ditta.esegui(contraria, seconda), attesi.at({altra, contraria})) << altra << i;
            }
        }
    } while (std::ranges::next_permutation(opere).found);
}

} // namespace
} // namespace bor
