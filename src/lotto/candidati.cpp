#include "lotto/candidati.h"

#include "archive/archivio.h"
#include "common/date.h"
#include "common/posti.h"
#include "common/testo.h"

#include <algorithm>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Customers, each read once however many documents he has.
class Anagrafe {
public:
    explicit Anagrafe(const Archivio& archivio) : m_archivio(archivio) {}

    void metti(Candidato& candidato, int cliente) {
        const auto [voce, nuova] = m_letti.try_emplace(cliente);
        if (nuova) {
            const Cli cli = m_archivio.cli.leggi(cliente);
            voce->second = {puliscitesto(cli.sede.ragione1.text()),
                            cli.email.text().remove(QChar::Null).trimmed(), cli.postael.text() == u"1"};
        }
        candidato.ragione = voce->second.ragione;
        candidato.email = voce->second.email;
        candidato.postael = voce->second.postael;
    }

private:
    struct Voce {
        QString ragione;
        QString email;
        bool postael = false;
    };
    const Archivio& m_archivio;
    std::unordered_map<int, Voce> m_letti;
};

Candidato leggi(const Archivio& archivio, const Identita& scelto, int ultimo) {
    Candidato c{.identita = scelto, .numero = scelto.numero.trimmed()};
    c.nome = u"documento "_s + numeroEData(scelto);
    CoppiaFte coppia = vuoto<CoppiaFte>();
    if (scelto.record < 1 || scelto.record > ultimo) {
        c.fuori = motivoSparito;
        return c;
    }
    if (!archivio.leggi(scelto.record, coppia)) {
        c.fuori = motivoIlleggibile;
        return c;
    }
    const auto& [fte, f2e] = coppia;
    const Identita suFile = identitaDi(scelto.record, fte);
    if (!stesso(scelto, suFile))
        c.fuori = nonPiuLui(suFile);
    else if (fte.annullata == 1)
        c.fuori = motivoEliminato;
    c.parcella = fte.parcella != 0;
    c.pa = f2e.fatturaPa() && !f2e.fpaGuasto();
    c.pdf = f2e.pdf.trimmed();
    const QString genere = fte.tipo == 1 ? u"nota di credito"_s : c.parcella ? u"parcella"_s : u"fattura"_s;
    c.nome = u"%1 %2 del %3"_s.arg(genere, puliscitesto(scelto.numero.text()),
                                   dataDaAnnoMeseGiorno(scelto.datadoc.text()));
    return c;
}

} // namespace

std::vector<Candidato> candidati(const Archivio& archivio, const std::vector<Identita>& scelti) {
    const int ultimo = archivio.leggiTot(Conta::Fte).numero;
    Anagrafe anagrafe(archivio);
    std::vector<Candidato> tutti;
    tutti.reserve(scelti.size());
    for (const Identita& scelto : scelti) {
        tutti.push_back(leggi(archivio, scelto, ultimo));
        if (scelto.cliente > 0)
            anagrafe.metti(tutti.back(), scelto.cliente);
    }
    return tutti;
}

int quantiDentro(const std::vector<Candidato>& candidati) {
    return static_cast<int>(std::ranges::count_if(candidati, &Candidato::dentro));
}

QString testoFuori(const std::vector<Candidato>& candidati) {
    const int fuori = quantiIn(candidati) - quantiDentro(candidati);
    if (fuori == 0)
        return {};
    constexpr int motiviDetti = 6;
    QStringList righe{fuori == 1 ? u"Resta fuori un documento:"_s
                                 : u"Restano fuori %1 documenti:"_s.arg(fuori)};
    std::vector<std::pair<QString, std::vector<const Candidato*>>> motivi;
    for (const Candidato& c : candidati) {
        if (c.dentro())
            continue;
        auto trovato = std::ranges::find(motivi, c.fuori, [](const auto& m) { return m.first; });
        if (trovato == motivi.end())
            trovato = motivi.insert(motivi.end(), {c.fuori, {}});
        trovato->second.push_back(&c);
    }
    for (const auto& [motivo, quali] : motivi) {
        if (righe.size() > motiviDetti) {
            righe.append(u"…"_s);
            break;
        }
        const QString altri = quali.size() > 1 ? u" e altri %1"_s.arg(quali.size() - 1) : QString();
        righe.append(u"• "_s + quali.front()->nome + altri + u": "_s + motivo);
    }
    return righe.join(u'\n');
}

QString contoDocumenti(int quanti) {
    return quanti == 1 ? u"un documento"_s : u"%1 documenti"_s.arg(quanti);
}

QString nonPiuLui(const Identita& suFile) {
    return u"al suo posto c'è ora il documento "_s + numeroEData(suFile);
}

} // namespace bor
