#include "borxpdf/posta.h"

#include "borxpdf/impostazioniposta.h"
#include "common/indirizzoposta.h"

#include <QDateTime>
#include <QUuid>

#include <curl/curl.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace bor::pdf {
namespace {

constexpr qsizetype kByteParola = 42; // of UTF-8 in an encoded word: its whole stays under 75 characters
constexpr qsizetype kMassimaIntestazione =
    120; // characters: keeps the line under the 998 bytes of the protocol
constexpr long kSecondiConnessione = 30;
constexpr long kSecondiFermo = 60;

template <auto libera>
struct Libera {
    template <class T>
    void operator()(T* oggetto) const {
        libera(oggetto);
    }
};
using Curl = std::unique_ptr<CURL, Libera<curl_easy_cleanup>>;
using Mime = std::unique_ptr<curl_mime, Libera<curl_mime_free>>;

class Lista {
public:
    Lista() = default;
    ~Lista() { curl_slist_free_all(m_prima); }
    Lista(const Lista&) = delete;
    Lista& operator=(const Lista&) = delete;

    void aggiungi(const QByteArray& riga) {
        if (curl_slist* allungata = curl_slist_append(m_prima, riga.constData()))
            m_prima = allungata;
    }
    curl_slist* prima() const { return m_prima; }

private:
    curl_slist* m_prima = nullptr;
};

/// Keeps the server's last refusal, for the message to the operator.
size_t tieniRifiuto(char* dati, size_t unita, size_t quante, void* rifiuto) {
    const QByteArray risposta(dati, static_cast<qsizetype>(unita * quante));
    if (risposta.startsWith('4') || risposta.startsWith('5'))
        *static_cast<QByteArray*>(rifiuto) = risposta.left(200);
    return unita * quante;
}

QByteArray nomeSicuro(const QString& nome) {
    QByteArray sicuro;
    for (const QChar c : nome) {
        const char16_t u = c.unicode();
        const bool lecito = u < 128 && (c.isLetterOrNumber() || u == u'.' || u == u'-' || u == u'_');
        sicuro += lecito ? static_cast<char>(u) : '_';
    }
    return sicuro;
}

Mime corpo(CURL* curl, const Messaggio& messaggio) {
    Mime mime(curl_mime_init(curl));
    const QByteArray testo =
        QString(messaggio.testo).replace(u"\r\n"_s, u"\n"_s).replace(u'\n', u"\r\n"_s).toUtf8();
    curl_mimepart* parte = curl_mime_addpart(mime.get());
    curl_mime_data(parte, testo.constData(), static_cast<size_t>(testo.size()));
    curl_mime_type(parte, "text/plain; charset=utf-8");
    curl_mime_encoder(parte, "base64");

    for (const Allegato& allegato : messaggio.allegati) {
        parte = curl_mime_addpart(mime.get());
        curl_mime_data(parte, allegato.pdf.constData(), static_cast<size_t>(allegato.pdf.size()));
        curl_mime_type(parte, "application/pdf");
        curl_mime_filename(parte, nomeSicuro(allegato.nome).constData());
        curl_mime_encoder(parte, "base64");
    }
    return mime;
}

/// What stands before the sender's address. A plain name goes in quotes, which an encoded word may not have.
QByteArray nomeMittente(const QString& nome) {
    QByteArray testo = testoIntestazione(nome);
    if (testo.isEmpty() || testo.startsWith("=?"))
        return testo + ' ';
    return '"' + testo.replace('\\', "").replace('"', "'") + "\" ";
}

void intestazioni(Lista& lista, const ImpostazioniPosta& posta, const Messaggio& messaggio) {
    const QByteArray mittente = posta.mittente.toLatin1();
    lista.aggiungi("Date: " + QDateTime::currentDateTime().toString(Qt::RFC2822Date).toLatin1());
    lista.aggiungi("From: " + nomeMittente(posta.nome) + '<' + mittente + '>');
    lista.aggiungi("To: <" + messaggio.destinatario.toLatin1() + '>');
    lista.aggiungi("Subject: " + testoIntestazione(messaggio.oggetto));
    lista.aggiungi("Message-ID: <" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces) +
                   mittente.mid(mittente.indexOf('@')) + '>');
}

void collegamento(CURL* curl, const ImpostazioniPosta& posta) {
    const bool tls = posta.sicurezza == Sicurezza::Tls;
    const QByteArray indirizzo =
        (tls ? "smtps://" : "smtp://") + posta.server.toLatin1() + ':' + QByteArray::number(posta.porta);
    curl_easy_setopt(curl, CURLOPT_URL, indirizzo.constData());
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    curl_easy_setopt(curl, CURLOPT_PROXY, "");
    // Never a word of the mail, nor the password, over an open line.
    curl_easy_setopt(curl, CURLOPT_USE_SSL,
                     posta.sicurezza == Sicurezza::Nessuna ? CURLUSESSL_NONE : CURLUSESSL_ALL);
    curl_easy_setopt(curl, CURLOPT_SSLVERSION, CURL_SSLVERSION_TLSv1_2);
    if (!posta.certificati.isEmpty())
        curl_easy_setopt(curl, CURLOPT_CAINFO, posta.certificati.toUtf8().constData());
    if (!posta.utente.isEmpty()) {
        curl_easy_setopt(curl, CURLOPT_USERNAME, posta.utente.toUtf8().constData());
        curl_easy_setopt(curl, CURLOPT_PASSWORD, posta.password.constData());
    }
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT, kSecondiConnessione);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_TIME, kSecondiFermo);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
}

QString spiegazione(CURLcode esito, const QByteArray& rifiuto) {
    switch (esito) {
    case CURLE_COULDNT_RESOLVE_HOST:
        return u"il server di posta non si trova: controllare il nome e la rete."_s;
    case CURLE_COULDNT_CONNECT:
        return u"il server di posta non risponde: controllare il nome, la porta e la rete."_s;
    case CURLE_OPERATION_TIMEDOUT:
        return u"il server di posta non ha risposto in tempo."_s;
    case CURLE_USE_SSL_FAILED:
        return u"il server di posta non offre una connessione sicura."_s;
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CACERT_BADFILE:
        return u"la connessione sicura con il server di posta non riesce: il certificato non è valido o la "
               u"porta è sbagliata."_s;
    case CURLE_LOGIN_DENIED:
        return u"il server di posta non accetta l'utente o la password."_s;
    default:
        break;
    }
    const QString parole = QString::fromUtf8(rifiuto).simplified();
    return parole.isEmpty() ? u"la connessione con il server di posta si è interrotta."_s
                            : u"il server di posta ha rifiutato il messaggio: "_s + parole;
}

} // namespace

QByteArray testoIntestazione(const QString& testo) {
    QString pulito;
    bool semplice = true;
    for (const QChar c : testo.left(kMassimaIntestazione)) {
        pulito += c.isPrint() ? c : u' ';
        semplice = semplice && pulito.back().unicode() < 128;
    }
    pulito = pulito.trimmed();
    if (semplice && pulito.size() <= 60 && !pulito.contains("=?"_L1))
        return pulito.toLatin1();

    QByteArray parole;
    QByteArray pezzo;
    const auto chiudi = [&] {
        parole += (parole.isEmpty() ? "=?UTF-8?B?" : " =?UTF-8?B?") + pezzo.toBase64() + "?=";
        pezzo.clear();
    };
    for (const char32_t c : pulito.toUcs4()) {
        const QByteArray carattere = QString::fromUcs4(&c, 1).toUtf8();
        if (pezzo.size() + carattere.size() > kByteParola)
            chiudi();
        pezzo += carattere;
    }
    chiudi();
    return parole;
}

bool spedisci(const ImpostazioniPosta& posta, const Messaggio& messaggio, QString& errore) {
    if (!indirizzoValido(messaggio.destinatario)) {
        errore = u"l'indirizzo del destinatario non è valido."_s;
        return false;
    }
    const Curl curl(curl_easy_init());
    if (!curl) {
        errore = u"la posta elettronica non è disponibile su questo computer."_s;
        return false;
    }
    Lista destinatari;
    destinatari.aggiungi('<' + messaggio.destinatario.toLatin1() + '>');
    Lista righe;
    intestazioni(righe, posta, messaggio);
    const Mime mime = corpo(curl.get(), messaggio);
    QByteArray rifiuto;

    collegamento(curl.get(), posta);
    curl_easy_setopt(curl.get(), CURLOPT_MAIL_FROM, ('<' + posta.mittente.toLatin1() + '>').constData());
    curl_easy_setopt(curl.get(), CURLOPT_MAIL_RCPT, destinatari.prima());
    curl_easy_setopt(curl.get(), CURLOPT_HTTPHEADER, righe.prima());
    curl_easy_setopt(curl.get(), CURLOPT_MIMEPOST, mime.get());
    curl_easy_setopt(curl.get(), CURLOPT_HEADERFUNCTION, tieniRifiuto);
    curl_easy_setopt(curl.get(), CURLOPT_HEADERDATA, &rifiuto);

    const CURLcode esito = curl_easy_perform(curl.get());
    if (esito == CURLE_OK)
        return true;
    errore = spiegazione(esito, rifiuto);
    return false;
}

} // namespace bor::pdf
