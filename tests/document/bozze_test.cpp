// What was typed and not stored outlives the run: drafts of open documents, and lines that wait for their
// file.
#include "document/borftea.h"
#include "document/borftek.h"
#include "document/borftem.h"
#include "document/borftex.h"
#include "document/custodebozze.h"
#include "document/programma.h"
#include "document/visita.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>

#include <cstring>
#include <functional>
#include <limits>
#include <map>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

/// Gives every member a value of its own; or notes the values of all.
class Riempitore {
public:
    void operator()(auto&&... parti) { (riempi(parti), ...); }

private:
    void riempi(QString& x) { x = u"t%1 è"_s.arg(++m_n); }
    void riempi(bool& x) { x = true; }
    void riempi(double& x) { x = ++m_n + 0.5; }
    template <class N>
    void riempi(Limitato<N>& x) {
        x.numero = static_cast<N>(x.massimo);
    }
    template <class T, std::size_t N>
    void riempi(std::array<T, N>& parti) {
        for (T& parte : parti)
            riempi(parte);
    }
    template <class V>
    void riempi(TabellaFissa<V>& x) {
        for (const std::size_t i : {std::size_t{0}, x.righe.size() - 1})
            riempi(x.righe[i]);
    }
    template <class R>
    requires disposizioneDiFile<R>
    void riempi(R& record) { std::memset(&record, 'a' + ++m_n % 20, sizeof(R)); }
    void riempi(auto& parte) { visita(*this, parte); }

    int m_n = 0;
};

class Elenco {
public:
    QStringList valori;
    void operator()(const auto&... parti) { (nota(parti), ...); }

private:
    void nota(const QString& x) { valori.append(x); }
    void nota(bool x) { valori.append(x ? u"vero"_s : u"falso"_s); }
    void nota(double x) { valori.append(QString::number(x)); }
    template <class N>
    void nota(const Limitato<N>& x) {
        valori.append(QString::number(intero(x.numero)));
    }
    template <class T, std::size_t N>
    void nota(const std::array<T, N>& parti) {
        for (const T& parte : parti)
            nota(parte);
    }
    template <class V>
    void nota(const TabellaFissa<V>& x) {
        for (const auto& riga : x.righe)
            nota(riga);
    }
    template <class R>
    requires disposizioneDiFile<R>
    void nota(const R& record) {
        valori.append(QString::fromLatin1(QByteArrayView(reinterpret_cast<const char*>(&record), sizeof(R))));
    }
    void nota(const auto& parte) { visita(*this, parte); }
};

QStringList valori(const Documento& documento) {
    Elenco elenco;
    visita(elenco, documento);
    return elenco.valori;
}

Bozza piena() {
    Bozza bozza;
    Riempitore riempi;
    visita(riempi, bozza.documento);
    bozza.scritta = QDateTime(QDate(2015, 3, 15), QTime(10, 30));
    bozza.suFile = documentoDi(3, u"7"_s, 1, 2);
    bozza.inTestata = true;
    bozza.righe = bozza.documento.ddd;
    bozza.righep = bozza.documento.dddp;
    return bozza;
}

TEST(BozzaTest, OgniCampoTornaComEra) {
    const Bozza bozza = piena();
    const QStringList prima = valori(bozza.documento);
    const QStringList vuoti = valori(Documento());
    int pieni = 0;
    for (qsizetype i = 0; i < prima.size(); ++i)
        pieni += prima[i] != vuoti[i] ? 1 : 0;
    EXPECT_EQ(pieni, prima.size() - (righeMerce - 2) * 11 - (righeParcella - 2) * 5);

    const auto letta = decodificaBozza(codifica(bozza));
    ASSERT_TRUE(letta);
    EXPECT_EQ(valori(letta->documento), prima);
    EXPECT_EQ(letta->scritta, bozza.scritta);
    EXPECT_EQ(letta->suFile.fte.numero.trimmed(), u"7");
    EXPECT_TRUE(letta->inTestata);
    EXPECT_EQ(letta->righe, bozza.righe);
    EXPECT_EQ(letta->righep, bozza.righep);
    EXPECT_FALSE(decodificaRighe(codifica(bozza)));
}

TEST(BozzaTest, FileGuastiOTagliatiNonSonoBozze) {
    const QByteArray buona = codifica(Bozza());
    for (qsizetype i = 0; i < buona.size(); i += 7) {
        QByteArray guasta = buona;
        guasta[i] = static_cast<char>(guasta[i] ^ 1);
        EXPECT_FALSE(decodificaBozza(guasta)) << i;
        EXPECT_FALSE(decodificaBozza(buona.first(i))) << i;
    }
    EXPECT_FALSE(decodificaBozza(buona + 'x'));
    Bozza fuori;
    fuori.documento.scadenze.pagamento = 60;
    fuori.documento.ddd[0].iva = -3;
    fuori.documento.ddd[0].prezzo = std::numeric_limits<double>::infinity();
    const auto letta = decodificaBozza(codifica(fuori));
    ASSERT_TRUE(letta);
    EXPECT_EQ(letta->documento.scadenze.pagamento, -1);
    EXPECT_EQ(letta->documento.ddd[0], Riga());
}

/// Activates the forms as the window does.
class Vetrina : public Navigatore {
public:
    std::map<Schermo, std::function<void()>> attiva;
    QList<Schermo> mostrati;

    void mostra(Schermo schermo) override {
        mostrati.append(schermo);
        if (attiva.contains(schermo))
            attiva[schermo]();
    }
    void termina() override {}
};

/// One run of the program with its screens; going away without leaving the document is a crash.
struct Corsa {
    explicit Corsa(const AziendaDiProva& azienda, bool riprende = true, bool elimina = true)
        : prova(azienda), sospese(azienda.percorsi().cartellaBozze(7)),
          custode(contesto, documento, {borftem, borftea, borftex, borftek}, sospese.cartella()) {
        vetrina.attiva = {{Schermo::Borftem, [this] { borftem.attiva(); }},
                          {Schermo::Borftea, [this] { borftea.attiva(); }},
                          {Schermo::Borftex, [this] { borftex.attiva(); }},
                          {Schermo::Borftek, [this] { borftek.attiva(); }}};
        navigatore.affida(custode);
        prova.operatore.risposte = {riprende, elimina};
        navigatore.mostra(Schermo::Borfte);
        custode.riprendi();
    }
    void nuovo() {
        documento = {};
        prova.sessione = {.codiceazienda = 7};
        navigatore.mostra(Schermo::Borftem);
        borftem.avanti();
    }
    void apri(int record) {
        documento = {};
        prova.sessione = {.codiceazienda = 7};
        documento.recordfattura = record;
        navigatore.mostra(Schermo::Borftea);
    }
    QString domanda() const { return prova.operatore.domande.value(0).testo; }
    QString avviso() const { return prova.operatore.messaggi.value(0).testo; }

    ContestoDiProva prova;
    Vetrina vetrina;
    NavigatoreConBozze navigatore{vetrina};
    Contesto contesto{prova.sessione,  prova.archivio, prova.impostazioni, prova.tabelle,
                      prova.operatore, prova.orologio, prova.sistema,      navigatore};
    Documento documento;
    RigheInSospeso sospese;
    RegistrazioniFinte registrazioni;
    Borftem borftem{contesto, documento};
    Borftea borftea{contesto, documento, registrazioni, sospese, {}};
    Borftex borftex{contesto, documento};
    Borftek borftek{contesto, documento};
    CustodeBozze custode;
};

class CustodeTest : public testing::Test {
protected:
    CustodeTest() {
        azienda.cliente(u"Rossi Mario"_s);
        azienda.cliente(u"Bianchi"_s);
    }
    QStringList file() const {
        return QDir(azienda.percorsi().cartellaBozze(7)).entryList({u"*.bozza"_s, u"*.righe"_s}, QDir::Files);
    }
    /// A run that typed into a stored document and stopped.
    void interrompi(int record) {
        Corsa corsa(azienda);
        corsa.apri(record);
        corsa.borftea.cambia(u"77"_s, &Estremi::protocollo);
        corsa.custode.conserva();
    }
    int documento(const QString& numero, double stamp) {
        CoppiaFte coppia = documentoDi(1, numero, 100, 22);
        coppia.fte.stamp = stamp;
        return azienda.documento(coppia);
    }

    AziendaDiProva azienda;
};

TEST_F(CustodeTest, UnDocumentoNuovoTornaConLeRigheNonConfermate) {
    {
        Corsa corsa(azienda);
        corsa.nuovo();
        corsa.custode.conserva();
        EXPECT_TRUE(file().isEmpty()) << "nothing was typed";
        corsa.borftea.cambia(u"12"_s, &Estremi::numero);
        corsa.borftea.importiIva().cambia(0, VoceIva::Imponibile, u"100"_s);
        corsa.borftea.esegui(Borftea::Comando::Righe);
        corsa.borftex.cambia({Borftex::Campo::Ds, 2}, u"Vite à testa"_s);
        corsa.custode.conserva();
        EXPECT_EQ(file(), QStringList{u"1.bozza"_s});
    }
    const QFileInfo bozza(azienda.percorsi().cartellaBozze(7) + u"/1.bozza"_s);
    constexpr auto soloMio = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(bozza.permissions(), soloMio);
    EXPECT_EQ(QFileInfo(bozza.path()).permissions(), soloMio | QFile::ExeOwner | QFile::ExeUser);
    for (int volta = 0; volta < 2; ++volta) {
        Corsa dopo(azienda);
        EXPECT_EQ(dopo.domanda(),
                  u"Un documento non era ancora registrato quando il programma si è interrotto:\n\n"
                  "Fattura n. 12, Bianchi, totale 100,00,\nscritto fino alle 10:30 del 15/03/2015.\n\n"
                  "Riprenderlo?");
        EXPECT_EQ(dopo.vetrina.mostrati.last(), Schermo::Borftex);
        EXPECT_EQ(dopo.borftex.righe().riga(3).descrizione, u"Vite à testa");
        EXPECT_EQ(dopo.documento.ddd[2].descrizione, QString());
        EXPECT_EQ(dopo.documento.recordcliente, 2);
        EXPECT_EQ(file(), QStringList{u"1.bozza"_s}) << "taken up, it is kept for the next crash too";
    }
    Corsa dopo(azienda);
    dopo.borftex.esegui(Borftex::Comando::Conferma);
    EXPECT_EQ(dopo.documento.ddd[2].descrizione, u"Vite à testa");
    dopo.borftea.cambia(u"15/03/2015"_s, &Estremi::data);
    dopo.borftea.esegui(Borftea::Comando::Salva);
    EXPECT_EQ(dopo.prova.archivio.fte.leggi(1).numero.trimmed(), u"12");
    EXPECT_EQ(file().filter(u".bozza"_s), QStringList());
}

TEST_F(CustodeTest, UnaNotaDiCreditoFattaDaUnaFatturaTornaColRiferimento) {
    CoppiaFte coppia = documentoDi(1, u"8"_s, 100, 22);
    coppia.fte.parcella = 1;
    azienda.documento(coppia);
    {
        Corsa corsa(azienda);
        corsa.documento = {};
        corsa.prova.sessione = {.codiceazienda = 7, .copia = Copia::NotaDiCredito};
        corsa.documento.recordfattura = 1;
        corsa.navigatore.mostra(Schermo::Borftea);
        corsa.custode.conserva();
        EXPECT_EQ(file(), QStringList{u"1.bozza"_s}) << "all of it is new, though nobody typed";
    }
    Corsa dopo(azienda);
    EXPECT_EQ(dopo.vetrina.mostrati.last(), Schermo::Borftea);
    EXPECT_EQ(dopo.documento.collegata.numero + dopo.documento.collegata.data, u"815/03/2015");
    EXPECT_TRUE(dopo.documento.notaCredito() && dopo.documento.parcella());
    EXPECT_EQ(dopo.documento.dddp[0].descrizione, u"Storno della parcella n. 8 del 15/03/2015");
}

TEST_F(CustodeTest, SoloConUnSecondoSiOLasciandoIlDocumentoLaBozzaSparisce) {
    documento(u"1"_s, 42000.5);
    interrompi(1);
    {
        Corsa dopo(azienda);
        EXPECT_EQ(dopo.documento.estremi.protocollo, u"77");
        dopo.borftea.esegui(Borftea::Comando::Esci);
        EXPECT_TRUE(file().isEmpty());
    }
    interrompi(1);
    for (const bool elimina : {false, true}) {
        Corsa dopo(azienda, false, elimina);
        ASSERT_EQ(dopo.prova.operatore.domande.size(), 2);
        EXPECT_EQ(dopo.prova.operatore.domande[1].predefinita, Predefinita::No);
        EXPECT_EQ(file().isEmpty(), elimina);
        EXPECT_EQ(dopo.vetrina.mostrati, QList{Schermo::Borfte});
    }
}

TEST_F(CustodeTest, NellaTestataRestanoIlClienteEICampi) {
    {
        Corsa corsa(azienda);
        corsa.documento = {};
        corsa.navigatore.mostra(Schermo::Borftem);
        corsa.borftem.cambiaPosizione(2);
        corsa.borftem.cambia(u"via Nuova"_s, &DatiCliente::sede, &SedeTesti::indirizzo);
        corsa.custode.conserva();
    }
    Corsa dopo(azienda);
    EXPECT_FALSE(dopo.domanda().contains(u"totale"_s)) << "nothing has an amount yet";
    EXPECT_EQ(dopo.vetrina.mostrati.last(), Schermo::Borftem);
    EXPECT_EQ(dopo.borftem.dato(&DatiCliente::sede, &SedeTesti::indirizzo), u"via Nuova");
    EXPECT_EQ(dopo.borftem.recordCorrente(), 1);
    dopo.borftem.avanti();
    EXPECT_EQ(dopo.documento.testata.cliente.sede.indirizzo, u"via Nuova");
    EXPECT_EQ(dopo.documento.testata.cliente.sede.ragione1, u"Rossi Mario");
}

TEST_F(CustodeTest, DueProgrammiNonSiTolgonoLeBozze) {
    documento(u"1"_s, 42000.5);
    Corsa primo(azienda);
    primo.apri(1);
    primo.borftea.cambia(u"77"_s, &Estremi::protocollo);
    primo.custode.conserva();
    {
        Corsa secondo(azienda);
        EXPECT_EQ(secondo.domanda(), QString()) << "the first one is at work on it";
        secondo.nuovo();
        secondo.borftea.cambia(u"2"_s, &Estremi::numero);
        secondo.custode.conserva();
        EXPECT_EQ(file(), QStringList({u"1.bozza"_s, u"2.bozza"_s}));
    }
    Corsa terzo(azienda);
    EXPECT_EQ(terzo.prova.operatore.domande.size(), 1);
    EXPECT_EQ(terzo.documento.estremi.numero, u"2");
    primo.borftea.esegui(Borftea::Comando::Esci);
    EXPECT_EQ(file(), QStringList{u"2.bozza"_s});
}

TEST_F(CustodeTest, CioCheCambiaNelFrattempoEDetto) {
    documento(u"1"_s, 42000.5);
    documento(u"2"_s, 42001.5);
    interrompi(2);
    {
        ContestoDiProva altrove(azienda);
        CoppiaFte primo = altrove.archivio.leggi(1);
        CoppiaFte secondo = altrove.archivio.leggi(2);
        secondo.fte.nfile = 9.0F;
        altrove.archivio.scrivi(1, secondo);
        altrove.archivio.scrivi(2, primo);
    }
    {
        Corsa dopo(azienda);
        EXPECT_EQ(dopo.documento.recordfattura, 1) << "a reorder has moved it";
        EXPECT_EQ(dopo.documento.coppia.fte.nfile, -1.0F);
        EXPECT_TRUE(dopo.avviso().startsWith(u"Il documento registrato è cambiato"_s));
        dopo.custode.conserva();
    }
    {
        ContestoDiProva altrove(azienda);
        Tot tot = altrove.archivio.leggiTot(Conta::Fte);
        CoppiaFte primo = altrove.archivio.leggi(2);
        altrove.archivio.scrivi(1, primo);
        tot.numero = 1;
        altrove.archivio.scriviTot(Conta::Fte, tot);
    }
    Corsa dopo(azienda);
    EXPECT_EQ(dopo.documento.recordfattura, 0);
    EXPECT_TRUE(dopo.avviso().startsWith(u"Il documento non si trova più nell'archivio"_s));
    EXPECT_EQ(dopo.documento.estremi.protocollo, u"77");
}

TEST_F(CustodeTest, LeRigheDiUnDocumentoNuovoTornanoAncheInUnAltraCorsa) {
    {
        Corsa corsa(azienda);
        corsa.nuovo();
        corsa.documento.ddd[0] = rigaDi(12.5, 10);
        corsa.documento.coppia.fte.nfile = -1.0F;
        corsa.borftea.esegui(Borftea::Comando::Salva);
        EXPECT_EQ(file().filter(u".righe"_s).size(), 1);
    }
    Corsa dopo(azienda);
    dopo.apri(1);
    EXPECT_EQ(dopo.documento.ddd[0], rigaDi(12.5, 10));
    dopo.borftea.esegui(Borftea::Comando::Salva);
    EXPECT_TRUE(file().isEmpty());
    EXPECT_TRUE(QFile::exists(azienda.percorso(u"f2"_s)));
}

TEST_F(CustodeTest, SenzaCartellaLOperatoreLoSa) {
    azienda.scrivi(u"../../../bozze"_s, "a file in the folder's place");
    Corsa corsa(azienda);
    corsa.nuovo();
    corsa.documento.ddd[0] = rigaDi(12.5);
    corsa.custode.conserva();
    corsa.borftea.esegui(Borftea::Comando::Salva);
    EXPECT_TRUE(corsa.avviso().startsWith(u"Non è stato possibile scrivere nella cartella"_s));
    corsa.apri(1);
    EXPECT_EQ(corsa.documento.ddd[0], rigaDi(12.5)) << "for the rest of the run they are there";
}

} // namespace
} // namespace bor
