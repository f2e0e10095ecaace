#include "borverifica/verifica.h"
#include "common/posti.h"

using namespace Qt::StringLiterals;

namespace bor::verifica {

namespace {

QString posizione(QStringView estensione, int n) {
    return u"borlano.%1, voce %2"_s.arg(estensione).arg(n);
}

/// Walks through an index: its order, its entries beyond the records, and records that have none.
class ControlloIndice {
public:
    ControlloIndice(QStringView estensione, int records, Discordanze& trovate)
        : m_estensione(estensione), m_visti(postoDaZero(records + 1)), m_trovate(trovate) {}

    /// False when the entry points nowhere.
    bool voce(int n, const QString& chiave, int record) {
        const QString alta = maiuscolo(chiave);
        if (n > 1 && alta < m_precedente)
            m_trovate.append({Gravita::Errore, posizione(m_estensione, n),
                              u"\"%1\" è fuori ordine: chi lo cerca non lo trova"_s.arg(puliscitesto(chiave)),
                              Rimedio::RicostruisciIndici});
        m_precedente = alta;
        const bool esiste = record >= 1 && record < std::ssize(m_visti);
        if (!esiste)
            m_trovate.append({Gravita::Errore, posizione(m_estensione, n),
                              u"punta al record %1, che non c'è"_s.arg(record), Rimedio::RicostruisciIndici});
        else
            elemento(m_visti, record) = true;
        return esiste;
    }
    bool visto(int record) const { return elemento(m_visti, record); }

private:
    QStringView m_estensione;
    std::vector<bool> m_visti;
    QString m_precedente;
    Discordanze& m_trovate;
};

void verificaSrc(const Archivio& archivio, Discordanze& trovate) {
    const int clienti = inUso(archivio, Conta::Cli, archivio.cli);
    ControlloIndice controllo(u"src", clienti, trovate);
    archivio.src.scorri(1, inUso(archivio, Conta::Cli, archivio.src), [&](int n, const Src& voce) {
        controllo.voce(n, voce.chiave.text(), voce.recordcli);
        return true;
    });
    archivio.cli.scorri(1, clienti, [&](int n, const Cli& cli) {
        if (cli.eliminato != 1 && !controllo.visto(n))
            trovate.append({Gravita::Avviso,
                            u"cliente %1 (record %2)"_s.arg(puliscitesto(cli.sede.ragione1.text())).arg(n),
                            u"manca nell'indice borlano.src"_s, Rimedio::RicostruisciIndici});
        return true;
    });
}

void verificaSrb(const Archivio& archivio, Discordanze& trovate) {
    const int articoli = inUso(archivio, Conta::Art, archivio.art);
    std::vector<QString> barcode(postoDaZero(articoli + 1));
    archivio.art.scorri(1, articoli, [&](int n, const Art& art) {
        elemento(barcode, n) = maiuscolo(puliscitesto(art.barcode.text()));
        return true;
    });
    ControlloIndice controllo(u"srb", articoli, trovate);
    archivio.srb.scorri(1, inUso(archivio, Conta::Art, archivio.srb), [&](int n, const Srb& voce) {
        const QString chiave = voce.barcode.text();
        if (controllo.voce(n, chiave, voce.recordart) &&
            maiuscolo(puliscitesto(chiave)) != elemento(barcode, int{voce.recordart}))
            trovate.append({Gravita::Avviso, posizione(u"srb", n),
                            u"l'articolo %1 ha un altro codice a barre"_s.arg(voce.recordart),
                            Rimedio::RicostruisciIndici});
        return true;
    });
}

} // namespace

Discordanze verificaIndici(const Archivio& archivio) {
    Discordanze trovate;
    verificaSrc(archivio, trovate);
    verificaSrb(archivio, trovate);
    return trovate;
}

} // namespace bor::verifica
