#include "borxpdf/lotto.h"

#include "borxpdf/comando.h"
#include "borxpdf/spedizione.h"
#include "common/lottopdf.h"
#include "common/percorsi.h"

#include <cerrno>
#include <map>
#include <tuple>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor::pdf {
namespace {

constexpr qint64 kMassimaLinea = 1024 * 1024;
constexpr qint64 kMassimoPdf = 64 * 1024 * 1024;

/// Exactly so many bytes; fewer when the input ends before.
QByteArray leggiByte(QIODevice& comandi, qint64 quanti) {
    QByteArray byte;
    while (byte.size() < quanti) {
        const QByteArray pezzo = comandi.read(quanti - byte.size());
        if (pezzo.isEmpty())
            break;
        byte += pezzo;
    }
    return byte;
}

/// Layouts, fonts and pictures are read once for all documents.
class Officina {
public:
    explicit Officina(const Percorsi& percorsi) : m_percorsi(percorsi) {}

    /// Why the command was not done; empty when it was.
    QString esegui(const ComandoLotto& comando, const QByteArray& rapporto) {
        auto& [layout, disegnatore] = banco(comando.layout);
        QString errore;
        if (!comando.pdf.isEmpty()) {
            const auto stampa = PagineStampate::leggi(rapporto, errore);
            return stampa &&
                           !scriviPdf(comando.pdf, *stampa, layout, disegnatore, m_percorsi, errore).isEmpty()
                       ? QString()
                       : errore;
        }
        Spedizione spedizione{comando.layout, comando.indirizzo, comando.testo, {}};
        for (const QString& nome : comando.allegati) {
            const auto pdf = leggiFile(m_percorsi, nome, kMassimoPdf);
            if (!pdf)
                return u"il PDF %1 non si può leggere."_s.arg(sulDisco(m_percorsi, nome));
            spedizione.pdf.push_back({nome, *pdf});
        }
        return spedisciPdf(spedizione, layout, m_percorsi, errore) ? QString() : errore;
    }

private:
    using Banco = std::pair<LayoutPdf, Disegnatore>;

    Banco& banco(const QString& layout) {
        const auto trovato = m_banchi.find(layout);
        if (trovato != m_banchi.end())
            return trovato->second;
        return m_banchi
            .emplace(
                std::piecewise_construct, std::forward_as_tuple(layout),
                std::forward_as_tuple(leggiLayout(layout, m_percorsi), disegnatoreDi(layout, m_percorsi)))
            .first->second;
    }

    const Percorsi& m_percorsi;
    std::map<QString, Banco> m_banchi;
};

} // namespace

qint64 IngressoComandi::readData(char* dati, qint64 massimo) {
    for (;;) {
        const ssize_t letti = ::read(m_descrittore, dati, static_cast<std::size_t>(massimo));
        if (letti > 0)
            return letti;
        if (letti == 0 || errno != EINTR)
            return -1;
    }
}

bool eseguiLotto(QIODevice& comandi, QIODevice& risposte, const Percorsi& percorsi) {
    Officina officina(percorsi);
    for (;;) {
        const QByteArray linea = comandi.readLine(kMassimaLinea);
        if (linea.isEmpty())
            return true;
        const auto comando = ComandoLotto::leggi(linea);
        const QByteArray rapporto = comando ? leggiByte(comandi, comando->byte) : QByteArray();
        if (!comando || rapporto.size() < comando->byte)
            return false;
        const QByteArray risposta = RispostaLotto{officina.esegui(*comando, rapporto)}.linea();
        if (risposte.write(risposta) != risposta.size())
            return false;
    }
}

} // namespace bor::pdf
