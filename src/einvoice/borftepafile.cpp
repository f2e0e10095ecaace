// The files that the form of the electronic invoice makes, and their check.
#include "archive/raffica.h"
#include "document/avvisi.h"
#include "einvoice/borftepa.h"
#include "einvoice/generaxml.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

const QString titoloForm = u"Fattura elettronica PA"_s;

Rilievo nonQuello(const QString& nome, const QString& perche) {
    return {
        .motivo = u"Il file %1 sul disco non è quello di questa fattura: %2."_s.arg(nome, perche),
        .rimedio =
            u"Controllare che nella sua cartella ci sia posto e si possa scrivere, poi generare di nuovo la fattura."_s};
}

Rilievo cambiataDopo(const QString& nome) {
    return {.motivo =
                u"Il file %1 sul disco non è questo: la maschera è cambiata dopo che è stato generato."_s.arg(
                    nome),
            .rimedio = u"Generare di nuovo la fattura, poi controllarla."_s};
}

} // namespace

void Borftepa::genera() {
    Generata generata;
    {
        const Attesa attesa(m_contesto.operatore);
        const Archivio& archivio = m_contesto.archivio;
        const QString& numero = testo(TestoFpa::Numero);
        raccogli();
        generata = {.compilata = compilata(),
                    .nome = nomeXml(m_fpaazienda, numero),
                    .percorso = percorsoXml(archivio, m_fpaazienda, numero),
                    .xml = componiXml(),
                    .nonScritti = {}};
        if (!generata.percorso.isEmpty())
            archivio.disco().scriviFile(generata.percorso, generata.xml);
        generata.nonScritti = scriviDati();
    }
    m_generata = std::move(generata);
    // Said of a failed write too, as the suite always did; the check of the file tells the truth.
    m_contesto.operatore.messaggio(u"Il file %1 è stato creato all'interno della cartella %2"_s.arg(
                                       m_generata->nome, cartellaXml(m_fpaazienda)),
                                   titoloForm, Icona::Informazione);
}

QByteArray Borftepa::componiXml() {
    m_riepilogo = calcolaiva(m_righepa, m_documento.scorporo, m_contesto.tabelle, m_contesto.valuta());
    completaCodici(m_righepa);
    return generaxml({.azienda = m_fpaazienda,
                      .documento = m_fpadoc,
                      .cliente = m_cliente,
                      .righepa = m_righepa,
                      .riepilogo = m_riepilogo,
                      .scadenze = m_documento.scadenze,
                      .coordinate = m_documento.testata.cliente.coordinate,
                      .tabelle = m_contesto.tabelle,
                      .valuta = m_contesto.valuta()});
}

/// The data of document and company; findings for what could not be written. The company's record goes back
/// as it stands on disk now: another program may have changed it since the form was opened.
std::vector<Rilievo> Borftepa::scriviDati() {
    const QString fallita = u"la scrittura non è riuscita"_s;
    if (m_documento.recordfpa < 1)
        m_documento.recordfpa = nuovoProgressivo();
    if (m_documento.recordfpa < 1)
        return {nonQuello(u"borlano.tot"_s, u"il contatore delle fatture elettroniche non si è potuto "
                                            "scrivere, la fattura non ha preso il suo numero e i dati di "
                                            "questa maschera non sono registrati"_s)};
    std::vector<Rilievo> nonScritti;
    if (!scriviFpa(m_contesto.archivio, fileDocumento(), m_fpadoc))
        nonScritti.push_back(nonQuello(fileDocumento(), fallita));
    if (!riscriviFpa(m_contesto.archivio, fileAzienda))
        nonScritti.push_back(nonQuello(fileAzienda.toString(), fallita));
    return nonScritti;
}

/// The counter is 16 bits wide on file and starts again where they end. 0 when it could not be counted on:
/// the operator was told.
double Borftepa::nuovoProgressivo() {
    int numero = 0;
    EsitoRaffica esito{};
    {
        Raffica raffica(m_contesto.archivio, u"numero di una fattura elettronica"_s);
        Tot contatore = raffica.leggiTot(Conta::Fpa);
        const int ultimo = std::max<int>(contatore.numero, 0);
        numero = ultimo >= Archivio::massimo ? 1 : ultimo + 1;
        contatore.numero = breve(numero);
        raffica.scriviTot(Conta::Fpa, contatore);
        esito = raffica.esegui();
    }
    avvisaRecuperi(m_contesto);
    if (esito == EsitoRaffica::Riuscita)
        return numero;
    avvisaNonRegistrato(m_contesto, esito);
    return 0;
}

std::optional<std::vector<Rilievo>> Borftepa::controlla() {
    if (!m_generata)
        return std::nullopt;
    QFile file(m_generata->percorso);
    if (m_generata->percorso.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        m_contesto.operatore.messaggio(
            u"Il file %1 non si trova nella cartella %2: controllare che la cartella esista e che il numero del documento possa far parte del nome di un file"_s
                .arg(m_generata->nome, m_generata->percorso.isEmpty()
                                           ? cartellaXml(m_fpaazienda)
                                           : QFileInfo(m_generata->percorso).path()),
            titoloForm, Icona::Esclamazione);
        return std::nullopt;
    }
    std::vector<Rilievo> rilievi = m_generata->nonScritti;
    if (m_generata->compilata != compilata()) {
        rilievi.push_back(cambiataDopo(m_generata->nome));
    } else if (file.readAll() != m_generata->xml) {
        rilievi.push_back(nonQuello(m_generata->nome, u"la scrittura non è riuscita, o qualcuno lo ha "
                                                      "cambiato"_s));
    } else {
        const auto delContenuto = controllaXml(m_generata->xml, QFileInfo(m_generata->percorso).fileName(),
                                               m_contesto.orologio.oggi());
        rilievi.insert(rilievi.end(), delContenuto.begin(), delContenuto.end());
    }
    return rilievi;
}

} // namespace bor
