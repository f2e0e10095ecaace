#include "borxpdf/comando.h"

#include "borxpdf/impostazioniposta.h"
#include "borxpdf/pdf.h"
#include "borxpdf/posta.h"
#include "common/indirizzoposta.h"
#include "common/percorsi.h"
#include "common/testo.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace bor::pdf {
namespace {

constexpr qint64 kMassimoRapporto = 256 * 1024 * 1024;
constexpr qint64 kMassimoTesto = 1024 * 1024;

/// The file's bytes; nothing when it is missing, cannot be read or is larger than `massimo`.
std::optional<QByteArray> leggiFile(const Percorsi& percorsi, const QString& dos, qint64 massimo) {
    const auto nome = percorsi.reale(dos);
    QFile file(nome.value_or(QString()));
    if (!nome || !file.open(QIODevice::ReadOnly) || file.size() > massimo)
        return std::nullopt;
    return file.read(massimo);
}

QString cartella(const QString& dos) {
    return dos.first(dos.lastIndexOf(u'\\') + 1);
}

/// Subject of the mail among the company's own texts, the lines of `borlano.pdf` beside the layout: second
/// line of the first four for invoices, of the third four for fee bills.
QString oggettoAzienda(const ComandoPdf& comando, const Percorsi& percorsi) {
    const auto testi = leggiFile(percorsi, cartella(comando.layout) + u"borlano.pdf"_s, kMassimoTesto);
    const QList<QByteArray> righe = testi.value_or(QByteArray()).split('\n');
    const bool parcella = comando.layout.endsWith(".lxp"_L1, Qt::CaseInsensitive);
    return daCp1252(righe.value(parcella ? 9 : 1)).trimmed();
}

QString primoNonVuoto(std::initializer_list<QString> testi) {
    for (const QString& testo : testi)
        if (!testo.isEmpty())
            return testo;
    return {};
}

bool spedisciPdf(const ComandoPdf& comando, const LayoutPdf& layout, const QByteArray& pdf,
                 const Percorsi& percorsi, QString& errore) {
    if (!indirizzoValido(comando.indirizzo)) {
        errore = comando.indirizzo.isEmpty() ? u"il cliente non ha un indirizzo di posta elettronica."_s
                                             : u"l'indirizzo di posta del cliente non è valido."_s;
        return false;
    }
    const QString nomeIni = radiceSuite.toString() + u"borxpdf.ini"_s;
    const auto ini = leggiFile(percorsi, nomeIni, kMassimoTesto);
    if (!ini) {
        errore = u"manca il file delle impostazioni %1."_s.arg(nomeIni);
        return false;
    }
    const auto posta = ImpostazioniPosta::leggi(FileIni(*ini), percorsi, errore);
    if (!posta) {
        errore = u"nel file %1 "_s.arg(nomeIni) + errore;
        return false;
    }
    Messaggio messaggio;
    messaggio.destinatario = comando.indirizzo;
    messaggio.oggetto = conNumero(
        primoNonVuoto({oggettoAzienda(comando, percorsi), layout.oggetto, u"Documento n. {numero}"_s}),
        comando.pdf);
    messaggio.testo =
        conNumero(primoNonVuoto({comando.testo, layout.testo, u"In allegato il documento n. {numero}."_s}),
                  comando.pdf);
    messaggio.nomeAllegato = nomeBreve(comando.pdf) + u".pdf"_s;
    messaggio.allegato = pdf;
    return spedisci(*posta, messaggio, errore);
}

} // namespace

std::optional<DocumentoPdf> apri(const ComandoPdf& comando, const Percorsi& percorsi, QString& errore) {
    const auto byte = leggiFile(percorsi, comando.rapporto, kMassimoRapporto);
    if (!byte) {
        errore =
            u"Non si può leggere il file di stampa %1: stampare prima il documento."_s.arg(comando.rapporto);
        return std::nullopt;
    }
    auto stampa = PagineStampate::leggi(*byte, errore);
    if (!stampa)
        return std::nullopt;
    const auto layout = leggiFile(percorsi, comando.layout, kMassimoTesto);
    const QString azienda = cartella(comando.layout);
    const auto trovaImmagine = [percorsi, azienda](const QString& nome) {
        // A name without a folder is a picture of the company's own.
        return percorsi.reale(nome.contains(u'\\') ? nome : azienda + nome).value_or(QString());
    };
    return DocumentoPdf{layout ? LayoutPdf(FileIni(*layout)) : LayoutPdf(), std::move(*stampa),
                        Disegnatore(trovaImmagine)};
}

bool esegui(const ComandoPdf& comando, const Percorsi& percorsi, QString& errore) {
    // The name comes from settings and a document number: nothing but a PDF may be replaced.
    const auto file = percorsi.reale(comando.pdf);
    if (!file || !comando.pdf.endsWith(".pdf"_L1, Qt::CaseInsensitive)) {
        errore = u"Il nome del PDF non è valido: %1"_s.arg(comando.pdf);
        return false;
    }
    auto documento = apri(comando, percorsi, errore);
    if (!documento)
        return false;
    const LayoutPdf& layout = documento->layout;
    const QString titolo = conNumero(primoNonVuoto({layout.titolo, nomeBreve(comando.pdf)}), comando.pdf);
    const QByteArray pdf = componiPdf(documento->stampa, layout, titolo, documento->disegnatore);
    if (pdf.isEmpty() || !scriviIntero(*file, pdf)) {
        errore = u"Non si può scrivere il PDF %1: controllare la cartella e lo spazio su disco."_s.arg(
            comando.pdf);
        return false;
    }
    if (comando.indirizzo == senzaPosta || spedisciPdf(comando, layout, pdf, percorsi, errore))
        return true;
    errore = u"Il PDF %1 è pronto ma non è stato spedito: "_s.arg(comando.pdf) + errore;
    return false;
}

} // namespace bor::pdf
