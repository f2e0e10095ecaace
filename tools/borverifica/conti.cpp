#include "borverifica/verifica.h"
#include "common/numeri.h"
#include "common/posti.h"

#include <cmath>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace bor::verifica {

namespace {

/// Less than half a cent is the rest of adding doubles.
constexpr double tolleranza = 0.005;

struct Saldo {
    double dare = 0;
    double avere = 0;

    /// A movement keeps one amount and one side a line: a negative amount, and a line with both boxes filled,
    /// go to the account on sides that it does not tell. The sum of the two is right all the same.
    bool daEditor() const { return !nullo() && std::fabs(dare + avere) < tolleranza; }
    bool nullo() const { return std::fabs(dare) < tolleranza && std::fabs(avere) < tolleranza; }
    QString testo() const {
        return u"dare %1, avere %2"_s.arg(testoItaliano(dare, 2), testoItaliano(avere, 2));
    }
};

Saldo operator-(const Saldo& a, const Saldo& b) {
    return {a.dare - b.dare, a.avere - b.avere};
}

struct Spiegato {
    Saldo vivi;
    Saldo eliminati; ///< what movements left that were deleted
};

class PianoDeiConti {
public:
    explicit PianoDeiConti(const Archivio& archivio)
        : m_saldi(postoDaZero(inUso(archivio, Conta::Con, archivio.con) + 1)) {
        archivio.con.scorri(1, quantiIn(m_saldi) - 1, [this](int n, const Con& conto) {
            // Of two accounts with one code every posting takes the first.
            m_record.emplace(valore(conto.codice.text()), n);
            return true;
        });
    }
    /// The account of a slot; none when it is not in the chart.
    Spiegato* cerca(const VoceGio& voce) {
        const auto trovato = m_record.find(valore(voce.conto.text()));
        return trovato == m_record.end() ? nullptr : &elemento(m_saldi, trovato->second);
    }
    const Spiegato& saldo(int record) const { return elemento(m_saldi, record); }
    int conti() const { return quantiIn(m_saldi) - 1; }

private:
    std::vector<Spiegato> m_saldi;
    std::unordered_map<double, int> m_record;
};

void aggiungi(Spiegato& conto, const VoceGio& voce, bool eliminato) {
    Saldo& saldo = eliminato ? conto.eliminati : conto.vivi;
    (voce.segno == 0 ? saldo.dare : saldo.avere) += voce.importo;
    // As `stornaconto` takes it out again: from the side across, and only what is above zero.
    if (eliminato && voce.importo > 0)
        (voce.segno == 1 ? saldo.dare : saldo.avere) -= voce.importo;
}

/// Adds up one movement; the accounts that it names and the chart lacks.
QStringList somma(const Gio& gio, PianoDeiConti& piano) {
    QStringList mancanti;
    for (const VoceGio& voce : gio.voce) {
        const QString codice = puliscitesto(voce.conto.text());
        if (codice.isEmpty() || voce.importo == 0.0)
            continue;
        if (Spiegato* conto = piano.cerca(voce))
            aggiungi(*conto, voce, gio.cancellato == 1);
        else
            mancanti.append(codice);
    }
    return mancanti;
}

double sbilancio(const Gio& gio) {
    double differenza = 0;
    for (const VoceGio& voce : gio.voce)
        differenza += voce.segno == 0 ? double{voce.importo} : -voce.importo;
    return differenza;
}

} // namespace

Discordanze verificaConti(const Archivio& archivio) {
    Discordanze trovate;
    PianoDeiConti piano(archivio);
    archivio.gio.scorri(1, inUso(archivio, Conta::Gio, archivio.gio), [&](int n, const Gio& gio) {
        const QString dove = u"movimento %1"_s.arg(n);
        const QStringList mancanti = somma(gio, piano);
        if (gio.cancellato == 1)
            return true;
        if (!mancanti.isEmpty())
            trovate.append({Gravita::Avviso, dove, u"conti che non esistono: "_s + mancanti.join(u", "_s),
                            Rimedio::ControllaMovimento});
        const double differenza = sbilancio(gio);
        if (!(std::fabs(differenza) < tolleranza))
            trovate.append({Gravita::Avviso, dove,
                            u"dare e avere non pareggiano: sbilancio "_s + testoItaliano(differenza, 2),
                            Rimedio::ControllaMovimento});
        return true;
    });
    archivio.con.scorri(1, piano.conti(), [&](int n, const Con& conto) {
        const QString dove =
            u"conto %1 %2"_s.arg(puliscitesto(conto.codice.text()), puliscitesto(conto.descrizione.text()));
        const auto& [vivi, eliminati] = piano.saldo(n);
        const Saldo diverso = Saldo{conto.progressivodare, conto.progressivoavere} - vivi - eliminati;
        if (diverso.daEditor())
            trovate.append({Gravita::Avviso, dove,
                            u"un movimento ha un importo negativo, o dare e avere nella stessa riga: nei "
                            u"progressivi sta dall'altra parte per "_s +
                                diverso.testo(),
                            Rimedio::ControllaMovimento});
        else if (!diverso.nullo())
            trovate.append(
                {Gravita::Errore, dove,
                 u"i progressivi differiscono da quanto spiegano i movimenti: "_s + diverso.testo(),
                 Rimedio::RifaiProgressivi});
        if (!eliminati.nullo())
            trovate.append({Gravita::Informazione, dove,
                            u"lasciato nei progressivi da movimenti eliminati: "_s + eliminati.testo(),
                            Rimedio::RiordinaMovimenti});
        return true;
    });
    return trovate;
}

} // namespace bor::verifica
