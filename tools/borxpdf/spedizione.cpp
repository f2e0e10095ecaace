#include "borxpdf/spedizione.h"

#include "borxpdf/comando.h"
#include "borxpdf/impostazioniposta.h"
#include "borxpdf/posta.h"
#include "common/indirizzoposta.h"
#include "common/percorsi.h"
#include "common/registroposta.h"
#include "common/testo.h"

using namespace Qt::StringLiterals;

namespace bor::pdf {
namespace {

constexpr qint64 kMassimoTesto = 1024 * 1024;

/// Subject of the mail among the company's own texts, the lines of `borlano.pdf` beside the layout: second
/// line of the first four for invoices, of the third four for fee bills.
QString oggettoAzienda(const QString& layout, const Percorsi& percorsi) {
    const QString cartella = layout.first(layout.lastIndexOf(u'\\') + 1);
    const auto testi = leggiFile(percorsi, cartella + u"borlano.pdf"_s, kMassimoTesto);
    const QList<QByteArray> righe = testi.value_or(QByteArray()).split('\n');
    const bool parcella = layout.endsWith(".lxp"_L1, Qt::CaseInsensitive);
    return daCp1252(righe.value(parcella ? 9 : 1)).trimmed();
}

std::optional<ImpostazioniPosta> leggiImpostazioni(const Percorsi& percorsi, QString& errore) {
    const QString nomeIni = radiceSuite.toString() + u"borxpdf.ini"_s;
    const auto ini = leggiFile(percorsi, nomeIni, kMassimoTesto);
    if (!ini) {
        errore = u"manca il file delle impostazioni %1."_s.arg(sulDisco(percorsi, nomeIni));
        return std::nullopt;
    }
    auto posta = ImpostazioniPosta::leggi(FileIni(*ini), percorsi, errore);
    if (!posta)
        errore = u"nel file %1 "_s.arg(sulDisco(percorsi, nomeIni)) + errore;
    return posta;
}

bool consegna(const Spedizione& spedizione, const LayoutPdf& layout, const Percorsi& percorsi,
              QString& errore) {
    if (!indirizzoValido(spedizione.indirizzo)) {
        errore = spedizione.indirizzo.isEmpty() ? u"il cliente non ha un indirizzo di posta elettronica."_s
                                                : u"l'indirizzo di posta del cliente non è valido."_s;
        return false;
    }
    const auto posta = leggiImpostazioni(percorsi, errore);
    if (!posta)
        return false;
    QStringList nomi;
    Messaggio messaggio{.destinatario = spedizione.indirizzo};
    for (const auto& [nome, byte] : spedizione.pdf) {
        nomi.append(nome);
        messaggio.allegati.push_back({nomeBreve(nome) + u".pdf"_s, byte});
    }
    messaggio.oggetto = conNumeri(primoNonVuoto({oggettoAzienda(spedizione.layout, percorsi), layout.oggetto,
                                                 u"Documento n. {numero}"_s}),
                                  nomi);
    messaggio.testo = conNumeri(
        primoNonVuoto({spedizione.testo, layout.testo, u"In allegato il documento n. {numero}."_s}), nomi);
    return spedisci(*posta, messaggio, errore);
}

} // namespace

bool spedisciPdf(const Spedizione& spedizione, const LayoutPdf& layout, const Percorsi& percorsi,
                 QString& errore) {
    const bool spedita = consegna(spedizione, layout, percorsi, errore);
    if (const auto registro = RegistroPosta::diFile(percorsi, spedizione.layout)) {
        for (const Spedizione::Pdf& pdf : spedizione.pdf)
            registro->aggiungi({.quando = QDateTime::currentDateTime(),
                                .documento = {},
                                .pdf = pdf.nome,
                                .indirizzo = spedizione.indirizzo,
                                .stato = spedita ? StatoPosta::Spedita : StatoPosta::NonSpedita,
                                .motivo = spedita ? QString() : errore});
    }
    return spedita;
}

} // namespace bor::pdf
