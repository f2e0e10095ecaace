#include "fatturapa/generafattura.h"

#include "common/numeri.h"
#include "fatturapa/caratteri.h"
#include "fatturapa/scrivifattura.h"
#include "xmlcheck/controlloxml.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// The receiving system takes five million bytes; base64 makes three bytes four.
constexpr qint64 pdfMassimo = 3'000'000;
constexpr qsizetype caratteriNomeAllegato = 60;

Rilievo rifiuto(const QString& motivo, const QString& rimedio) {
    return {.motivo = motivo, .rimedio = rimedio};
}

Rilievo avvisoAllegato(const QString& nome, const QString& motivo) {
    return {.elemento = u"FatturaElettronicaBody/Allegati"_s,
            .valore = nome,
            .motivo = motivo,
            .rimedio = u"Stampare di nuovo il documento in PDF, o non allegarlo."_s,
            .gravita = Gravita::Avviso};
}

} // namespace

GeneratoreFel::GeneratoreFel(Contesto& contesto, QString cartella)
    : m_contesto(contesto), m_cartella(std::move(cartella)), m_propri(contesto.archivio),
      m_stato(m_propri.leggi()), m_azienda(leggiFpa(u"borlano.fpa"_s)) {
    if (m_azienda && valore(m_azienda->statoquadri.text()) != Fpa::compilato)
        m_azienda.reset();
}

std::optional<Fpa> GeneratoreFel::leggiFpa(const QString& nome) const {
    RecordFile<Fpa> file(m_contesto.archivio.disco());
    Fpa fpa = vuoto<Fpa>();
    if (!file.apri(m_contesto.archivio.reale(m_contesto.archivio.file(nome)), Apertura::SolaLettura) ||
        file.leggi(1, fpa) != EsitoLettura::Letta)
        return std::nullopt;
    return fpa;
}

DatiFel GeneratoreFel::datiPropri(const Documento& documento) const {
    const Fte& fte = documento.coppia.fte;
    return {m_propri.azienda(), m_propri.nature(), m_propri.cliente(fte.cliente, documento.cliente),
            m_propri.documento(fte)};
}

Composta GeneratoreFel::componi(const Documento& documento, const DatiFel& propri) const {
    Composta senza;
    if (!m_azienda)
        senza.rilievi.push_back(
            rifiuto(u"I quadri azienda del \"Kit Fatture elettroniche PA\" non sono compilati."_s,
                    u"Compilarli con il programma della suite."_s));
    if (m_stato == ArchivioFel::Stato::Illeggibile)
        senza.rilievi.push_back(rifiuto(u"Il file borlano.fel dell'azienda non si può leggere."_s,
                                        u"Controllare i permessi del file nella cartella dell'azienda."_s));
    if (senza.rifiutata())
        return senza;
    const std::optional<Fpa> pa =
        documento.recordfpa >= 1 ? leggiFpa(u"fpa"_s + testoDecimale(documento.recordfpa)) : std::nullopt;
    return bor::componi({.documento = documento,
                         .azienda = *m_azienda,
                         .pa = pa ? &*pa : nullptr,
                         .propri = propri,
                         .tabelle = m_contesto.tabelle,
                         .valuta = m_contesto.valuta(),
                         .progressivo = propri.documento.file});
}

/// Path of this machine of the PDF that goes into the file; empty for none, with a hint where there should be
/// one.
QString GeneratoreFel::pdfDaAllegare(const Documento& documento, const DatiFel& propri,
                                     std::vector<Rilievo>& rilievi) const {
    const QString nome = documento.estremi.pdf.trimmed();
    if (propri.azienda.allegapdf != u"SI" || nome.isEmpty())
        return {};
    const QFileInfo file(m_contesto.archivio.reale(nome));
    if (!file.isFile() || !file.isReadable())
        rilievi.push_back(avvisoAllegato(nome, u"Il PDF del documento non si trova e non è allegato."_s));
    else if (file.size() > pdfMassimo)
        rilievi.push_back(
            avvisoAllegato(nome, u"Il PDF del documento è troppo grande per essere allegato."_s));
    else
        return file.filePath();
    return {};
}

/// The bytes of the file, with the attachment.
QByteArray GeneratoreFel::scrivi(const Documento& documento, const DatiFel& propri,
                                 Composta& composta) const {
    QFile pdf(pdfDaAllegare(documento, propri, composta.rilievi));
    if (!pdf.fileName().isEmpty() && pdf.open(QIODevice::ReadOnly))
        composta.fattura.allegato = {
            testoLatino(QFileInfo(pdf.fileName()).fileName()).left(caratteriNomeAllegato), pdf.readAll()};
    return scriviFattura(composta.fattura);
}

ProvaFel GeneratoreFel::prova(const Documento& documento, const DatiFel& propri) const {
    // A document without a name yet is looked at under the first one that there is.
    DatiFel conNome = propri;
    if (conNome.documento.file.isEmpty())
        conNome.documento.file = prossimoProgressivo({});
    Composta composta = componi(documento, conNome);
    ProvaFel prova{std::move(composta.fattura), {}, std::move(composta.rilievi)};
    if (std::ranges::count(prova.rilievi, Gravita::Errore, &Rilievo::gravita) > 0)
        return prova;
    pdfDaAllegare(documento, propri, prova.rilievi);
    prova.xml = scriviFattura(prova.fattura);
    std::ranges::move(controllaXml(prova.xml, nomeFile(conNome.documento.file), m_contesto.orologio.oggi()),
                      std::back_inserter(prova.rilievi));
    return prova;
}

bool GeneratoreFel::cartellaPronta() const {
    const QFileInfo cartella(m_cartella);
    const QFileInfo sopra(cartella.path());
    return cartella.isDir() ||
           (!m_cartella.isEmpty() && !cartella.exists() && sopra.isDir() && sopra.isWritable());
}

QString GeneratoreFel::nomeFile(const QString& progressivo) const {
    QString chi;
    for (const QChar c : testoAscii(m_azienda->idpaese.text() + m_azienda->idcodice.text()))
        if (c.isLetterOrNumber())
            chi += c;
    return chi + u'_' + progressivo + u".xml"_s;
}

QString GeneratoreFel::percorsoDi(const QString& progressivo) const {
    return m_cartella + u'/' + nomeFile(progressivo);
}

QString GeneratoreFel::percorso(const Documento& documento) const {
    const QString progressivo = m_propri.documento(documento.coppia.fte).file;
    return progressivo.isEmpty() || !m_azienda || m_cartella.isEmpty() ? QString() : percorsoDi(progressivo);
}

FileDocumento GeneratoreFel::suDisco(const Documento& documento) const {
    QFile file(percorso(documento));
    if (file.fileName().isEmpty() || !file.open(QIODevice::ReadOnly))
        return FileDocumento::Assente;
    const DatiFel propri = datiPropri(documento);
    Composta composta = componi(documento, propri);
    const bool attuale = !composta.rifiutata() && scrivi(documento, propri, composta) == file.readAll();
    return attuale ? FileDocumento::Attuale : FileDocumento::Diverso;
}

EsitoFel GeneratoreFel::genera(const Documento& documento) {
    return std::move(genera(std::span(&documento, 1)).front());
}

std::vector<EsitoFel> GeneratoreFel::genera(std::span<const Documento> documenti) {
    std::vector<InUscitaFel> uscite;
    for (const Documento& documento : documenti)
        uscite.push_back(prepara(documento));
    std::vector<InUscitaFel*> tutte;
    tutte.reserve(uscite.size());
    for (InUscitaFel& uscita : uscite)
        tutte.push_back(&uscita);
    nomina(tutte);
    std::vector<EsitoFel> esiti;
    for (std::size_t i = 0; i < documenti.size(); ++i)
        esiti.push_back(emetti(documenti[i], std::move(uscite[i])));
    return esiti;
}

InUscitaFel GeneratoreFel::prepara(const Documento& documento) const {
    return {documento.coppia.fte, componi(documento, datiPropri(documento)), {}};
}

void GeneratoreFel::nomina(std::span<InUscitaFel* const> uscite) {
    // A progressive is given out only to a document that can go out.
    std::vector<InUscitaFel*> daNominare;
    std::vector<Fte> documenti;
    for (InUscitaFel* uscita : uscite) {
        if (uscita->composta.rifiutata())
            continue;
        daNominare.push_back(uscita);
        documenti.push_back(uscita->fte);
    }
    const QStringList progressivi = m_propri.progressivi(
        documenti, [this](const QString& progressivo) { return QFile::exists(percorsoDi(progressivo)); });
    for (qsizetype i = 0; i < std::ssize(daNominare); ++i)
        daNominare[static_cast<std::size_t>(i)]->progressivo = progressivi.value(i);
}

EsitoFel GeneratoreFel::emetti(const Documento& documento, InUscitaFel uscita) const {
    auto& [fte, composta, progressivo] = uscita;
    if (composta.rifiutata())
        return {EsitoFel::Stato::Rifiutata, {}, std::move(composta.rilievi)};
    EsitoFel esito{EsitoFel::Stato::NonScritta, {}, {}};
    if (progressivo.isEmpty()) {
        esito.rilievi = std::move(composta.rilievi);
        esito.rilievi.push_back(
            rifiuto(u"Il nome del file non si è potuto assegnare: borlano.fel non si può scrivere."_s,
                    u"Controllare i permessi della cartella dell'azienda."_s));
        return esito;
    }
    if (composta.fattura.trasmissione.progressivo.isEmpty())
        composta.fattura.trasmissione.progressivo = progressivo;
    // A company that came back from a copy has no folder of the files yet.
    QDir().mkdir(m_cartella);
    const QByteArray xml = scrivi(documento, datiPropri(documento), composta);
    esito.percorso = percorsoDi(progressivo);
    esito.rilievi = std::move(composta.rilievi);
    std::ranges::move(controllaXml(xml, nomeFile(progressivo), m_contesto.orologio.oggi()),
                      std::back_inserter(esito.rilievi));
    if (m_contesto.archivio.disco().scriviFile(esito.percorso, xml))
        esito.stato = EsitoFel::Stato::Scritta;
    else
        esito.rilievi.push_back(
            rifiuto(u"Il file %1 non si è potuto scrivere."_s.arg(esito.percorso),
                    u"Controllare che la cartella esista e che ci sia posto sul disco."_s));
    return esito;
}

GeneratoreFel::Scarto GeneratoreFel::scarta(const Documento& documento) {
    const QString file = percorso(documento);
    if (!m_propri.scarta(documento.coppia.fte))
        return Scarto::NonScritto;
    return QFile::rename(file, file + u".scartata"_s) ? Scarto::Fatto : Scarto::FileRimasto;
}

GeneratoreFel GeneratoreFel::perAzienda(Contesto& contesto, const QString& cartellaPdf) {
    GeneratoreFel generatore(contesto, {});
    const QString propria = generatore.m_azienda ? generatore.m_azienda->cartellaxml.trimmed() : QString();
    generatore.m_cartella = contesto.archivio.reale(propria.isEmpty() ? cartellaPdf : propria);
    return generatore;
}

} // namespace bor
