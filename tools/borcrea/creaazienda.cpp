#include "borcrea/creaazienda.h"

#include "borcrea/documenti.h"
#include "borcrea/registra.h"
#include "borcrea/tabellatesto.h"
#include "common/numeri.h"
#include "common/portemute.h"

#include <QDir>
#include <QTemporaryDir>

namespace bor::crea {

using namespace Qt::StringLiterals;

namespace {

/// The picture that the page templates of the demo show.
const QString fileLogo = u"logo.png"_s;

constexpr std::size_t clientiPerMisure = 1000;

/// The making of one company, in a drive of its own that becomes the real one at the end.
class Cantiere {
public:
    Cantiere(const NuovaAzienda& richiesta, const QString& unitaProvvisoria, Problemi& problemi)
        : m_richiesta(richiesta), m_problemi(problemi), m_percorsi(unitaProvvisoria, QString()),
          m_archivio(m_percorsi, m_disco, richiesta.codice) {}

    void costruisci();

private:
    void prendiTesto(const QString& nome, const QString& dove, bool necessario);
    void scriviServizi();
    void controllaQuanti(const Anagrafiche& a, std::size_t documenti);
    bool scriviArchivio();

    const NuovaAzienda& m_richiesta;
    Problemi& m_problemi;
    Percorsi m_percorsi;
    Disco m_disco;
    Archivio m_archivio;
};

void Cantiere::prendiTesto(const QString& nome, const QString& dove, bool necessario) {
    const QString percorso = m_richiesta.sorgente + u'/' + nome;
    if (!necessario && !QFile::exists(percorso))
        return;
    const QStringList linee = leggiLinee(percorso, nome, m_problemi);
    if (!m_disco.scriviFile(m_archivio.reale(dove), inCp1252(linee.join(u"\r\n"_s) + u"\r\n"_s)))
        m_problemi.append({nome, 0, u"non si può scrivere nell'unità."_s});
}

void Cantiere::scriviServizi() {
    constexpr qsizetype massimo = 100;
    const TabellaTesto foglio(m_richiesta.sorgente, u"servizi.csv"_s,
                              u"descrizione anticipazioni spese onorari"_s.split(u' '), m_problemi);
    QStringList linee;
    for (const RigaTabella& riga : foglio.righe()) {
        linee << riga.obbligatorio(u"descrizione", 50) << testoDecimale(riga.numero(u"anticipazioni"))
              << testoDecimale(riga.numero(u"spese")) << testoDecimale(riga.numero(u"onorari")) << QString();
    }
    if (foglio.righe().size() > massimo)
        foglio.righe()[massimo].problema(u"i servizi possono essere al massimo 100."_s);
    linee.resize(massimo * 5);
    if (!m_disco.scriviFile(m_archivio.reale(m_archivio.borlano(u"tpr")),
                            inCp1252(linee.join(u"\r\n"_s) + u"\r\n"_s)))
        m_problemi.append({u"servizi.csv"_s, 0, u"non si può scrivere nell'unità."_s});
}

/// Copies of the customers up to the number that a measurement wants.
void moltiplica(std::vector<Cli>& clienti) {
    const std::size_t originali = clienti.size();
    for (std::size_t i = originali; originali > 0 && i < clientiPerMisure; ++i) {
        Cli copia = clienti[i % originali];
        copia.sede.ragione1.set(copia.sede.ragione1.trimmed().left(35) + u' ' +
                                QString::number(i / originali + 1));
        clienti.push_back(copia);
    }
}

/// Record numbers are 16 bits wide on file.
void Cantiere::controllaQuanti(const Anagrafiche& a, std::size_t documenti) {
    const std::pair<QString, std::size_t> file[] = {{u"clienti.csv"_s, a.clienti.size()},
                                                    {u"articoli.csv"_s, a.articoli.size()},
                                                    {u"conti.csv"_s, a.conti.size()},
                                                    {u"agenti.csv"_s, a.agenti.size()},
                                                    {u"documenti.csv"_s, documenti}};
    for (const auto& [nome, quanti] : file) {
        if (quanti > std::size_t{Archivio::massimo})
            m_problemi.append(
                {nome, 0, u"ci sono %1 righe, ne sono ammesse %2."_s.arg(quanti).arg(Archivio::massimo)});
    }
}

bool Cantiere::scriviArchivio() {
    Anagrafiche anagrafiche = leggiAnagrafiche(m_richiesta.sorgente, m_problemi);
    if (m_richiesta.documenti > 0)
        moltiplica(anagrafiche.clienti);
    m_archivio.apri();
    if (!scriviAnagrafiche(m_archivio, anagrafiche))
        return false;
    SenzaOperatore operatore;
    SenzaSistema sistema;
    SenzaSchermi schermi;
    OrologioCantiere orologio;
    Sessione sessione;
    sessione.codiceazienda = m_richiesta.codice;
    Impostazioni impostazioni = caricaimpostazioni(m_archivio);
    const Tabelle tabelle = leggiTabelle(m_archivio);
    Contesto contesto{sessione, m_archivio, impostazioni, tabelle, operatore, orologio, sistema, schermi};
    auto documenti = leggiDocumenti(m_richiesta.sorgente, anagrafiche, contesto, m_problemi);
    // What is wrong is told without writing lines files that nobody will see.
    controllaQuanti(anagrafiche, documenti.size());
    if (!m_problemi.isEmpty())
        return true;
    Registratore registratore(contesto, orologio, operatore.messaggi);
    const bool scritti = registratore.scrivi(documenti);
    for (const QString& rifiuto : operatore.messaggi)
        m_problemi.append({u"documenti.csv"_s, 0, registratore.ultimo() + u": "_s + rifiuto + u'.'});
    return !m_problemi.isEmpty() || (scritti && ripetiDocumenti(m_archivio, m_richiesta.documenti));
}

void Cantiere::costruisci() {
    QDir().mkpath(m_archivio.reale(m_archivio.file(u"")));
    prendiTesto(u"borlano.int"_s, m_archivio.borlano(u"int"), true);
    prendiTesto(u"borlano.tab"_s, m_archivio.borlano(u"tab"), true);
    prendiTesto(u"borlano.trb"_s, m_archivio.borlano(u"trb"), false);
    for (const QStringView layout : {u"lyf", u"lyp", u"lkf", u"lkp", u"lxf", u"lxp", u"pdf"})
        prendiTesto(u"borlano."_s + layout.toString(), m_archivio.borlano(layout), false);
    prendiTesto(u"borlano.fel"_s, m_archivio.borlano(u"fel"), false);
    QFile::copy(m_richiesta.sorgente + u'/' + fileLogo, m_archivio.reale(radiceSuite.toString() + fileLogo));
    prendiTesto(u"borlano.eur"_s, radiceSuite.toString() + u"borlano.eur"_s, false);
    prendiTesto(u"borlano.tbl"_s, radiceSuite.toString() + u"borlano.tbl"_s, false);
    scriviServizi();
    const auto fpa = leggiFpaAzienda(m_richiesta.sorgente, m_problemi);
    if ((fpa && !scriviFpa(m_archivio, u"borlano.fpa"_s, *fpa)) || !scriviArchivio())
        m_problemi.append({m_richiesta.unita, 0, u"l'archivio non si può scrivere."_s});
    m_archivio.chiudi();
}

/// Moves what was made to the real drive; the company's folder last, since it makes the company exist.
bool consegna(const Percorsi& da, const Percorsi& a, int codice) {
    QDir().mkpath(a.reale(radiceSuite).value_or(QString()));
    for (const QString& nome : {u"borlano.eur"_s, u"borlano.tbl"_s, fileLogo}) {
        const QString meta = a.reale(radiceSuite.toString() + nome).value_or(QString());
        const QString file = da.reale(radiceSuite.toString() + nome).value_or(QString());
        if (!QFile::exists(meta) && QFile::exists(file) && !QFile::rename(file, meta))
            return false;
    }
    const QString cartella = cartellaAzienda(codice);
    for (const QString& nome : {u"\\suprok\\pdf"_s, u"\\suprok\\xml"_s})
        QDir().mkpath(a.reale(nome).value_or(QString()));
    return QDir().rename(da.reale(cartella).value_or(QString()), a.reale(cartella).value_or(QString()));
}

} // namespace

Problemi creaAzienda(const NuovaAzienda& richiesta) {
    Problemi problemi;
    if (!QDir(richiesta.sorgente).exists())
        return {{richiesta.sorgente, 0, u"la cartella dei testi non esiste."_s}};
    const Percorsi unita(richiesta.unita, QString());
    const QString cartella = unita.reale(cartellaAzienda(richiesta.codice)).value_or(QString());
    if (QFileInfo::exists(cartella))
        return {{cartella, 0, u"l'azienda %1 esiste già, non viene toccata."_s.arg(richiesta.codice)}};
    if (!QDir().mkpath(richiesta.unita))
        return {{richiesta.unita, 0, u"la cartella non si può creare."_s}};
    const QTemporaryDir provvisoria(richiesta.unita + u"/borcrea-XXXXXX"_s);
    if (!provvisoria.isValid())
        return {{richiesta.unita, 0, u"nella cartella non si può scrivere."_s}};
    Cantiere(richiesta, provvisoria.path(), problemi).costruisci();
    if (problemi.isEmpty() && !consegna(Percorsi(provvisoria.path(), QString()), unita, richiesta.codice))
        problemi.append({cartella, 0, u"la cartella dell'azienda non si può creare."_s});
    return problemi;
}

} // namespace bor::crea
