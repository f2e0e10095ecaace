#include "borxpdf/impostazioniposta.h"

#include "common/indirizzoposta.h"
#include "common/percorsi.h"

#include <QFile>
#include <QFileInfo>
#include <QHostAddress>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace bor::pdf {
namespace {

constexpr qint64 kMassimaPassword = 1024;

bool nomeDiServer(const QString& testo) {
    static const QRegularExpression forma(QRegularExpression::anchoredPattern(u"[A-Za-z0-9.-]+"_s));
    return forma.match(testo).hasMatch();
}

bool suQuestoComputer(const QString& server) {
    return server.compare("localhost"_L1, Qt::CaseInsensitive) == 0 || QHostAddress(server).isLoopback();
}

bool leggiSicurezza(const FileIni& ini, ImpostazioniPosta& posta, QString& errore) {
    const QString modo = ini.testo(u"posta/sicurezza"_s, u"starttls"_s).toLower();
    int portaSolita = 587;
    if (modo == "starttls"_L1) {
        posta.sicurezza = Sicurezza::Starttls;
    } else if (modo == "tls"_L1) {
        posta.sicurezza = Sicurezza::Tls;
        portaSolita = 465;
    } else if (modo == "nessuna"_L1 && suQuestoComputer(posta.server)) {
        posta.sicurezza = Sicurezza::Nessuna;
        portaSolita = 25;
    } else {
        errore = modo == "nessuna"_L1
                     ? u"senza sicurezza si può usare solo un server di posta su questo computer."_s
                     : u"la sicurezza \"%1\" non esiste: scrivere starttls oppure tls."_s.arg(modo);
        return false;
    }
    const double porta = ini.numero(u"posta/porta"_s, portaSolita);
    if (porta < 1 || porta > 65535) {
        errore = u"la porta del server di posta non è valida."_s;
        return false;
    }
    posta.porta = static_cast<int>(porta);
    return true;
}

bool leggiPassword(const QString& dos, const Percorsi& percorsi, QByteArray& password, QString& errore) {
    const auto nome = percorsi.reale(dos);
    QFile file(nome.value_or(QString()));
    if (!nome || !file.open(QIODevice::ReadOnly)) {
        errore = u"non si può leggere il file della password %1."_s.arg(nome.value_or(dos));
        return false;
    }
    constexpr auto altrui = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    if (file.permissions() & altrui) {
        errore = u"il file della password %1 può essere letto da altri: renderlo leggibile solo a sé "
                 u"(chmod 600)."_s.arg(*nome);
        return false;
    }
    password = file.readLine(kMassimaPassword).trimmed();
    if (password.isEmpty()) {
        errore = u"il file della password %1 è vuoto."_s.arg(*nome);
        return false;
    }
    return true;
}

} // namespace

std::optional<ImpostazioniPosta> ImpostazioniPosta::leggi(const FileIni& ini, const Percorsi& percorsi,
                                                          QString& errore) {
    ImpostazioniPosta posta;
    posta.server = ini.testo(u"posta/server"_s);
    posta.mittente = ini.testo(u"posta/mittente"_s);
    posta.nome = ini.testo(u"posta/nome"_s);
    posta.utente = ini.testo(u"posta/utente"_s);
    if (posta.server.isEmpty()) {
        errore = u"manca il server di posta."_s;
        return std::nullopt;
    }
    if (!nomeDiServer(posta.server)) {
        errore = u"il nome del server di posta non è valido."_s;
        return std::nullopt;
    }
    if (!indirizzoValido(posta.mittente)) {
        errore = posta.mittente.isEmpty() ? u"manca l'indirizzo del mittente."_s
                                          : u"l'indirizzo del mittente non è valido."_s;
        return std::nullopt;
    }
    if (!leggiSicurezza(ini, posta, errore))
        return std::nullopt;
    const QString filePassword = ini.testo(u"posta/password_file"_s, u"c:\\posta.pwd"_s);
    if (!posta.utente.isEmpty() && !leggiPassword(filePassword, percorsi, posta.password, errore))
        return std::nullopt;
    if (const QString certificati = ini.testo(u"posta/certificati"_s); !certificati.isEmpty())
        posta.certificati = percorsi.reale(certificati).value_or(QString());
    return posta;
}

} // namespace bor::pdf
