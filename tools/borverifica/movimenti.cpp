#include "borverifica/verifica.h"

#include "common/date.h"
#include "common/numeri.h"
#include "document/riscontromovimento.h"

#include <unordered_map>

using namespace Qt::StringLiterals;

namespace bor::verifica {

namespace {

struct PerStamp {
    QStringList documenti; ///< live ones
    QStringList documentiEliminati;
    QStringList movimenti; ///< record numbers of live ones
    SommeMovimento somme;  ///< of the last of them
};

using Legami = std::unordered_map<double, PerStamp>;

QString nomeMovimento(const Gio& gio, int n) {
    return u"movimento %1 del %2, \"%3\""_s.arg(n).arg(dataDaAnnoMeseGiorno(gio.data.text()),
                                                       puliscitesto(gio.descrizione.text()));
}

void leggiDocumenti(const Archivio& archivio, Legami& legami, Discordanze& trovate) {
    archivio.fte.scorri(1, inUso(archivio, Conta::Fte, archivio.fte), [&](int n, const Fte& fte) {
        if (!collegato(fte.stamp)) {
            if (fte.stamp != 0.0)
                trovate.append({Gravita::Errore, nomeDocumento(fte, n),
                                u"il riferimento a movimenti e magazzino è guasto"_s, Rimedio::Assistenza});
            return true;
        }
        PerStamp& suo = legami[fte.stamp];
        if (fte.annullata == 1)
            suo.documentiEliminati.append(nomeDocumento(fte, n));
        else
            suo.documenti.append(nomeDocumento(fte, n));
        return true;
    });
}

/// Whether there is any movement of a document at all: without one the company keeps its journal elsewhere.
bool leggiMovimenti(const Archivio& archivio, Legami& legami, Discordanze& trovate) {
    bool almenoUno = false;
    archivio.gio.scorri(1, inUso(archivio, Conta::Gio, archivio.gio), [&](int n, const Gio& gio) {
        if (!collegato(gio.riferimentofattura) || gio.tipomovimento == Gio::chiusura)
            return true;
        almenoUno = true;
        if (gio.cancellato == 1)
            return true;
        PerStamp& suo = legami[gio.riferimentofattura];
        suo.movimenti.append(QString::number(n));
        suo.somme = somme(gio);
        if (suo.documenti.isEmpty())
            trovate.append({Gravita::Avviso, nomeMovimento(gio, n),
                            suo.documentiEliminati.isEmpty() ? u"il suo documento non c'è"_s
                                                             : u"il suo documento è stato eliminato"_s,
                            Rimedio::ControllaMovimento});
        return true;
    });
    return almenoUno;
}

} // namespace

Discordanze verificaMovimenti(const Archivio& archivio) {
    const Tabelle tabelle = leggiTabelle(archivio);
    Discordanze trovate;
    Legami legami;
    leggiDocumenti(archivio, legami, trovate);
    const bool conMovimenti = leggiMovimenti(archivio, legami, trovate);
    archivio.fte.scorri(1, inUso(archivio, Conta::Fte, archivio.fte), [&](int n, const Fte& fte) {
        const auto suo = legami.find(fte.stamp);
        if (fte.annullata == 1 || suo == legami.end() || suo->second.documenti.isEmpty())
            return true;
        const auto& [documenti, eliminati, movimenti, sommeUltimo] = suo->second;
        const QString nome = nomeDocumento(fte, n);
        // What is done to a deleted one takes the movement and the rows of the live one with it.
        const QStringList altri = documenti.mid(1) + eliminati;
        if (!altri.isEmpty() && documenti.first() == nome)
            trovate.append({Gravita::Errore, nome,
                            u"ha lo stesso riferimento a movimenti e magazzino di altri documenti: %1"_s.arg(
                                elencoBreve(altri)),
                            Rimedio::Assistenza});
        if (movimenti.size() > 1)
            trovate.append({Gravita::Avviso, nome, u"ha più movimenti contabili: "_s + elencoBreve(movimenti),
                            Rimedio::ControllaMovimento});
        const double differenza =
            movimenti.size() == 1 ? differenzaMovimento(sommeUltimo, archivio.leggi(n), tabelle) : 0.0;
        if (differenza != 0.0)
            trovate.append({Gravita::Avviso, nome,
                            u"il movimento contabile %1 differisce dal documento di %2"_s.arg(
                                movimenti.first(), testoItaliano(differenza, 2)),
                            Rimedio::RifaiMovimento});
        if (movimenti.isEmpty() && conMovimenti)
            trovate.append(
                {Gravita::Avviso, nome, u"non ha un movimento contabile"_s, Rimedio::RifaiMovimento});
        return true;
    });
    if (!conMovimenti && !legami.empty())
        trovate.append({Gravita::Informazione, u"borlano.gio"_s,
                        u"nessun documento ha un movimento contabile"_s, Rimedio::Nessuno});
    return trovate;
}

} // namespace bor::verifica
