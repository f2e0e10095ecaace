// A mail server on loopback for the tests: takes one connection, keeps what was said, and can refuse.
#pragma once

#include <QByteArrayList>
#include <QSslCertificate>
#include <QSslKey>

#include <atomic>
#include <optional>
#include <thread>

class QSslSocket;

namespace bor::pdf {

struct Certificato {
    QSslCertificate pubblico;
    QSslKey chiave;
};

class ServerPosta {
public:
    struct Opzioni {
        bool tls = false;      // from the first byte
        bool starttls = false; // offered
        std::optional<Certificato> certificato;
        QByteArray rifiuta; // a command beginning so gets "550 Casella sconosciuta"
    };

    explicit ServerPosta(Opzioni opzioni);
    ~ServerPosta();

    int porta() const { return m_porta; }

    /// Waits for the end of the connection, then what the client said.
    const QByteArrayList& comandi();
    const QByteArrayList& messaggi();

private:
    void parla();
    void conversa(QSslSocket& linea);

    Opzioni m_opzioni;
    std::atomic<int> m_porta = 0;
    QByteArrayList m_comandi;
    QByteArrayList m_messaggi;
    std::thread m_filo;
};

} // namespace bor::pdf
