#include "borxpdf/comando.h"

#include "borxpdf/impostazioniposta.h"
#include "borxpdf/pdf.h"
#include "borxpdf/posta.h"
#include "common/percorsi.h"
#include "common/testo.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace bor::pdf {
namespace {

constexpr qint64 kMassimoRapporto = 256 * 1024 * 1024;
constexpr qint64 kMassimoTesto = 1024 * 1024;
constexpr auto kSenzaPosta = "***"_L1;

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
QString oggettoAzienda(const Comando& comando, const Percorsi& percorsi) {
    const auto testi = leggiFile(percorsi, cartella(comando.modello) + u"borlano.pdf"_s, kMassimoTesto);
    const QList<QByteArray> righe = testi.value_or(QByteArray()).split('\n');
    const bool parcella = comando.modello.endsWith(".lxp"_L1, Qt::CaseInsensitive);
    return daCp1252(righe.value(parcella ? 9 : 1)).trimmed();
}

QString primoNonVuoto(std::initializer_list<QString> testi) {
    for (const QString& testo : testi)
        if (!testo.isEmpty())
            return testo;
    return {};
}

bool spedisciPdf(const Comando& comando, const Modello& modello, const QByteArray& pdf,
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
        primoNonVuoto({oggettoAzienda(comando, percorsi), modello.oggetto, u"Documento n. {numero}"_s}),
        comando.pdf);
    messaggio.testo =
        conNumero(primoNonVuoto({comando.testo, modello.testo, u"In allegato il documento n. {numero}."_s}),
                  comando.pdf);
    messaggio.nomeAllegato = nomeBreve(comando.pdf) + u".pdf"_s;
    messaggio.allegato = pdf;
    return spedisci(*posta, messaggio, errore);
}

} // namespace

std::optional<Comando> Comando::leggi(const QStringList& argomenti) {
    QStringList parole = argomenti;
    Comando comando;
    comando.anteprima = !parole.isEmpty() && parole.first() == "--anteprima"_L1;
    if (comando.anteprima)
        parole.removeFirst();
    const QString tutto = parole.join(u' ');
    const auto parte = [&](int i) { return tutto.section(u',', i, i).trimmed(); };
    comando.modello = parte(0);
    comando.rapporto = parte(1);
    comando.pdf = parte(2);
    comando.indirizzo = parte(3);
    comando.testo = tutto.section(u',', 4).trimmed();
    const qsizetype parti = tutto.count(u',') + 1;
    if (comando.rapporto.isEmpty() || (!comando.anteprima && (parti < 4 || comando.pdf.isEmpty())))
        return std::nullopt;
    return comando;
}

std::optional<Documento> apri(const Comando& comando, const Percorsi& percorsi, QString& errore) {
    const auto byte = leggiFile(percorsi, comando.rapporto, kMassimoRapporto);
    if (!byte) {
        errore =
            u"Non si può leggere il file di stampa %1: stampare prima il documento."_s.arg(comando.rapporto);
        return std::nullopt;
    }
    auto rapporto = Rapporto::leggi(*byte, errore);
    if (!rapporto)
        return std::nullopt;
    const auto modello = leggiFile(percorsi, comando.modello, kMassimoTesto);
    const QString azienda = cartella(comando.modello);
    const auto trovaImmagine = [percorsi, azienda](const QString& nome) {
        // A name without a folder is a picture of the company's own.
        return percorsi.reale(nome.contains(u'\\') ? nome : azienda + nome).value_or(QString());
    };
    return Documento{modello ? Modello(FileIni(*modello)) : Modello(), std::move(*rapporto),
                     Disegnatore(trovaImmagine)};
}

bool esegui(const Comando& comando, const Percorsi& percorsi, QString& errore) {
    // The name comes from settings and a document number: nothing but a PDF may be replaced.
    const auto file = percorsi.reale(comando.pdf);
    if (!file || !comando.pdf.endsWith(".pdf"_L1, Qt::CaseInsensitive)) {
        errore = u"Il nome del PDF non è valido: %1"_s.arg(comando.pdf);
        return false;
    }
    auto documento = apri(comando, percorsi, errore);
    if (!documento)
        return false;
    const Modello& modello = documento->modello;
    const QString titolo = conNumero(primoNonVuoto({modello.titolo, nomeBreve(comando.pdf)}), comando.pdf);
    const QByteArray pdf = componiPdf(documento->rapporto, modello, titolo, documento->disegnatore);
    if (pdf.isEmpty() || !scriviIntero(*file, pdf)) {
        errore = u"Non si può scrivere il PDF %1: controllare la cartella e lo spazio su disco."_s.arg(
            comando.pdf);
        return false;
    }
    if (comando.indirizzo == kSenzaPosta || spedisciPdf(comando, modello, pdf, percorsi, errore))
        return true;
    errore = u"Il PDF %1 è pronto ma non è stato spedito: "_s.arg(comando.pdf) + errore;
    return false;
}

} // namespace bor::pdf
