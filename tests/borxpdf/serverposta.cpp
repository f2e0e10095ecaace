#include "serverposta.h"

#include <QSslSocket>
#include <QTcpServer>

namespace bor::pdf {
namespace {

constexpr int kAttesa = 10'000; // milliseconds, far more than a test needs

class Ascolto : public QTcpServer {
public:
    explicit Ascolto(const ServerPosta::Opzioni& opzioni) : m_opzioni(opzioni) {}

protected:
    void incomingConnection(qintptr descrittore) override {
        auto* linea = new QSslSocket(this);
        linea->setSocketDescriptor(descrittore);
        if (m_opzioni.certificato) {
            linea->setLocalCertificate(m_opzioni.certificato->pubblico);
            linea->setPrivateKey(m_opzioni.certificato->chiave);
        }
        addPendingConnection(linea);
    }

private:
    const ServerPosta::Opzioni& m_opzioni;
};

QByteArray riga(QSslSocket& linea) {
    while (!linea.canReadLine())
        if (!linea.waitForReadyRead(kAttesa))
            return {};
    return linea.readLine();
}

} // namespace

ServerPosta::ServerPosta(Opzioni opzioni) : m_opzioni(std::move(opzioni)), m_filo([this] { parla(); }) {
    while (m_porta == 0)
        std::this_thread::yield();
}

ServerPosta::~ServerPosta() {
    comandi();
}

const QByteArrayList& ServerPosta::comandi() {
    if (m_filo.joinable())
        m_filo.join();
    return m_comandi;
}

const QByteArrayList& ServerPosta::messaggi() {
    comandi();
    return m_messaggi;
}

void ServerPosta::parla() {
    Ascolto ascolto(m_opzioni);
    ascolto.listen(QHostAddress::LocalHost);
    m_porta = ascolto.serverPort();
    if (!ascolto.waitForNewConnection(kAttesa))
        return;
    auto* linea = static_cast<QSslSocket*>(ascolto.nextPendingConnection());
    if (m_opzioni.tls) {
        linea->startServerEncryption();
        if (!linea->waitForEncrypted(kAttesa))
            return;
    }
    conversa(*linea);
}

void ServerPosta::conversa(QSslSocket& linea) {
    const auto rispondi = [&](const QByteArray& testo) {
        linea.write(testo + "\r\n");
        linea.waitForBytesWritten(kAttesa);
    };
    rispondi("220 prova ESMTP");
    for (QByteArray detto = riga(linea); !detto.isEmpty(); detto = riga(linea)) {
        m_comandi.append(detto.trimmed());
        if (!m_opzioni.rifiuta.isEmpty() && detto.startsWith(m_opzioni.rifiuta)) {
            rispondi("550 Casella sconosciuta");
        } else if (detto.startsWith("EHLO")) {
            rispondi(m_opzioni.starttls && !linea.isEncrypted() ? "250-prova\r\n250 STARTTLS"
                                                                : "250-prova\r\n250 AUTH PLAIN");
        } else if (detto.startsWith("STARTTLS")) {
            rispondi("220 avanti");
            linea.startServerEncryption();
            if (!linea.waitForEncrypted(kAttesa))
                return;
        } else if (detto.startsWith("AUTH")) {
            rispondi("334 ");
            m_comandi.append(riga(linea).trimmed());
            rispondi("235 benvenuto");
        } else if (detto.startsWith("DATA")) {
            rispondi("354 avanti");
            QByteArray messaggio;
            for (QByteArray parte = riga(linea); !parte.isEmpty() && parte != ".\r\n"; parte = riga(linea))
                messaggio += parte;
            m_messaggi.append(messaggio);
            rispondi("250 preso");
        } else {
            rispondi(detto.startsWith("QUIT") ? "221 ciao" : "250 bene");
        }
    }
}

} // namespace bor::pdf
