#include "fatturapa/generafattura.h"

#include "common/numeri.h"
#include "fatturapa/caratteri.h"
#include "fatturapa/scrivifattura.h"
#include "xmlcheck/controlloxml.h"

#include <QFile>
#include <QFileInfo>

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

Composta GeneratoreFel::componi(const Documento& documento) const {
    return componi(documento, datiPropri(documento).documento.file);
}

Composta GeneratoreFel::componi(const Documento& documento, const QString& progressivo) const {
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
    const DatiFel propri = datiPropri(documento);
    return bor::componi({.documento = documento,
                         .azienda = *m_azienda,
                         .pa = pa ? &*pa : nullptr,
                         .propri = propri,
                         .tabelle = m_contesto.tabelle,
                         .valuta = m_contesto.valuta(),
                         .progressivo = progressivo});
}

void GeneratoreFel::allega(const Documento& documento, Composta& composta) const {
    const QString nome = documento.estremi.pdf.trimmed();
    if (m_propri.azienda().allegapdf != u"SI" || nome.isEmpty())
        return;
    QFile file(m_contesto.archivio.reale(nome));
    if (!file.open(QIODevice::ReadOnly))
        composta.rilievi.push_back(
            avvisoAllegato(nome, u"Il PDF del documento non si trova e non è allegato."_s));
    else if (file.size() > pdfMassimo)
        composta.rilievi.push_back(
            avvisoAllegato(nome, u"Il PDF del documento è troppo grande per essere allegato."_s));
    else
        composta.fattura.allegato = {
            testoLatino(QFileInfo(file.fileName()).fileName()).left(caratteriNomeAllegato), file.readAll()};
}

QString GeneratoreFel::nomeFile(const QString& progressivo) const {
    QString chi;
    for (const QChar c : testoAscii(m_azienda->idpaese.text() + m_azienda->idcodice.text()))
        if (c.isLetterOrNumber())
            chi += c;
    return chi + u'_' + progressivo + u".xml"_s;
}

EsitoFel GeneratoreFel::genera(const Documento& documento) {
    // The progressive is given out only to a document that can go out.
    Composta composta = componi(documento);
    EsitoFel esito{EsitoFel::Stato::Rifiutata, {}, composta.rilievi};
    if (composta.rifiutata())
        return esito;
    const auto percorso = [&](const QString& progressivo) {
        return m_cartella + u'/' + nomeFile(progressivo);
    };
    const QString progressivo = m_propri.progressivo(
        documento.coppia.fte, [&](const QString& p) { return QFile::exists(percorso(p)); });
    esito.stato = EsitoFel::Stato::NonScritta;
    if (progressivo.isEmpty()) {
        esito.rilievi.push_back(
            rifiuto(u"Il nome del file non si è potuto assegnare: borlano.fel non si può scrivere."_s,
                    u"Controllare i permessi della cartella dell'azienda."_s));
        return esito;
    }
    if (composta.fattura.trasmissione.progressivo.isEmpty())
        composta.fattura.trasmissione.progressivo = progressivo;
    allega(documento, composta);
    const QByteArray xml = scriviFattura(composta.fattura);
    esito.percorso = percorso(progressivo);
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

QString cartellaFatture(const Archivio& archivio, const Fpa& azienda, const QString& cartellaPdf) {
    const QString propria = azienda.cartellaxml.trimmed();
    return archivio.reale(propria.isEmpty() ? cartellaPdf : propria);
}

} // namespace bor
