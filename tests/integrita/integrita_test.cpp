// The promise of the recovery log, with the real posting: however a registration is stopped, the archive is
// afterwards the one before or the one after each of its bursts, and a repeat ends where it should have
// ended.
#include "borverifica/verifica.h"
#include "integrita/verificasaldi.h"
#include "register/riordino.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QMap>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <functional>
#include <optional>
#include <random>
#include <set>
#include <string>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

/// The files of a company's folder by name.
using Cartella = QMap<QString, QByteArray>;

Cartella leggiCartella(const AziendaDiProva& azienda) {
    Cartella file;
    for (const QString& nome : QDir(azienda.percorso({})).entryList(QDir::Files | QDir::Hidden))
        file.insert(nome, azienda.leggi(nome));
    return file;
}

void scriviCartella(const AziendaDiProva& azienda, const Cartella& file) {
    for (const QString& nome : QDir(azienda.percorso({})).entryList(QDir::Files | QDir::Hidden)) {
        if (!file.contains(nome))
            QFile::remove(azienda.percorso(nome));
    }
    for (auto f = file.begin(); f != file.end(); ++f)
        azienda.scrivi(f.key(), f.value());
}

/// What counts of a folder: the records in use and the lines files; neither the log nor spare records.
Cartella stato(Cartella file) {
    const auto taglia = [&file](const QString& nome, Conta quale, qsizetype lunghezza) {
        Tot tot = vuoto<Tot>();
        const QByteArray contatori = file.value(u"borlano.tot"_s).leftJustified(16 * 12, '\0');
        std::memcpy(&tot, contatori.constData() + 12 * (static_cast<int>(quale) - 1), sizeof tot);
        file[nome] = file[nome].leftJustified(tot.numero * lunghezza, '\0', true);
    };
    taglia(u"borlano.fte"_s, Conta::Fte, 522);
    taglia(u"borlano.f2e"_s, Conta::Fte, 838);
    taglia(u"borlano.mag"_s, Conta::Mag, 94);
    taglia(u"borlano.gio"_s, Conta::Gio, 296);
    // Counters beyond the end of the file are zeros.
    file[u"borlano.tot"_s] = file[u"borlano.tot"_s].leftJustified(16 * 12, '\0');
    for (const QString& nome : {u"borlano.rip"_s, u"borlano.$$$"_s, u"borlano.$2$"_s})
        file.remove(nome);
    return file;
}

void applica(Cartella& file, const Operazione& o, qsizetype quanti = -1) {
    const QString nome = o.percorso.section(u'/', -1);
    QByteArray& bytes = file[nome];
    switch (o.tipo) {
    case Operazione::Tipo::Scrittura: {
        const QByteArray scritti = o.bytes.first(quanti < 0 ? o.bytes.size() : quanti);
        bytes = bytes.leftJustified(o.posizione + scritti.size(), '\0');
        bytes.replace(o.posizione, scritti.size(), scritti);
        break;
    }
    case Operazione::Tipo::Sostituzione:
        bytes = o.bytes;
        break;
    case Operazione::Tipo::Rimozione:
        file.remove(nome);
        break;
    case Operazione::Tipo::Copia:
        bytes = file.value(o.origine.section(u'/', -1));
        break;
    case Operazione::Tipo::Scarico:
        if (bytes.isEmpty())
            file.remove(nome);
        break;
    }
}

/// A step of an operator; false when the program refused or failed it, and it may be repeated.
using Passo = std::function<bool(Turno&)>;

struct Scena {
    std::string nome;
    std::vector<Passo> preparazione;
    std::vector<Passo> passi;
};

Passo nuovo(int tipo) {
    return [tipo](Turno& s) {
        s.nuovo(tipo == 0 ? u"7"_s : u"6"_s, tipo);
        return true;
    };
}
Passo apri(int record) {
    return [record](Turno& s) {
        s.p.apri(record);
        return true;
    };
}
Passo cambia() {
    return [](Turno& s) {
        s.p.documento.ddd[0].prezzo = 99;
        s.p.documento.ddd[3] = rigaDi(5);
        s.p.riporta();
        return true;
    };
}
bool salva(Turno& s) {
    return s.salva();
}
bool registra(Turno& s) {
    return s.registra();
}
bool elimina(Turno& s) {
    return eliminadoc(s.p.documento, s.p.prova.contesto, s.registrazioni, s.p.sospese);
}
bool riordino(Turno& s) {
    return riordina(s.p.prova.archivio, TipoRiordino::PerNumero, [](int) {}).fase == FaseRiordino::Riuscito;
}

std::vector<Scena> scene() {
    const std::vector<Passo> fattura{nuovo(0), salva, registra, apri(3), salva, registra};
    std::vector<Passo> dueDocumenti = fattura;
    dueDocumenti.insert(dueDocumenti.end(), {nuovo(1), salva, registra, apri(1), elimina});
    return {{"FatturaNuova", {}, {nuovo(0), salva, registra}},
            {"FatturaCambiataConMagazzinoEMovimento", fattura, {apri(3), cambia(), salva, registra}},
            {"NotaDiCredito", {}, {nuovo(1), salva, registra, apri(3), salva, registra}},
            {"Parcella", {}, {apri(2), salva, registra}},
            {"Eliminazione", fattura, {apri(3), elimina}},
            {"Riordino", dueDocumenti, {riordino}}};
}

const std::vector<Scena> tutteLeScene = scene();

/// The parameter is the name of a scene.
class IntegritaTest : public testing::TestWithParam<std::string> {
protected:
    IntegritaTest() {
        QLoggingCategory::setFilterRules(u"bor.*=false"_s); // thousands of failures that are wanted
        fondaDitta(azienda);
        CoppiaFte eliminato = documentoDi(1, u"9"_s, 0, 0);
        eliminato.fte.stamp = 42000.0;
        azienda.documento(eliminato);
        CoppiaFte parcella = documentoDi(1, u"8"_s, 0, 0);
        parcella.fte.parcella = 1;
        parcella.fte.stamp = 42001.0;
        parcella.fte.nfile = -1.0F;
        azienda.documento(parcella);
        vergine = leggiCartella(azienda);
    }

    /// False when a step was refused.
    static bool esegui(Turno& s, const std::vector<Passo>& passi) {
        return std::ranges::all_of(passi, [&s](const Passo& passo) { return passo(s); });
    }

    /// Plays the scene; what was asked of the disk meanwhile, all done.
    std::vector<Operazione> fila() {
        scriviCartella(azienda, vergine);
        {
            Turno s(azienda);
            EXPECT_TRUE(esegui(s, scena.preparazione));
        }
        base = leggiCartella(azienda);
        std::vector<Operazione> operazioni;
        {
            Turno s(azienda);
            s.p.disco.annota = true;
            EXPECT_TRUE(esegui(s, scena.passi));
            operazioni = s.p.disco.operazioni;
        }
        finale = stato(leggiCartella(azienda));
        // Each state in which the scene may be found.
        ammessi = {chiave(stato(base))};
        Cartella file = base;
        verificaStato(file);
        for (const Operazione& o : operazioni) {
            applica(file, o);
            const bool fine = o.tipo == Operazione::Tipo::Sostituzione ||
                              o.tipo == Operazione::Tipo::Rimozione ||
                              (o.percorso.endsWith(u".rip") && o.bytes == QByteArray(8, '\0'));
            if (fine && ammessi.insert(chiave(stato(file))).second)
                verificaStato(file);
        }
        EXPECT_EQ(stato(file), finale);
        return operazioni;
    }

    static QByteArray chiave(const Cartella& file) {
        QByteArray tutto;
        for (auto f = file.begin(); f != file.end(); ++f)
            tutto += f.key().toLatin1() + ':' + QByteArray::number(f.value().size()) + f.value();
        return tutto;
    }

    /// An audit of its own, and the program's: accounts against the journal, stock against the rows.
    void verificaStato(const Cartella& file) {
        scriviCartella(banco, file);
        ContestoDiProva prova(banco);
        for (const verifica::Discordanza& d : verifica::verificaArchivio(prova.archivio))
            EXPECT_NE(d.gravita, verifica::Gravita::Errore) << qPrintable(d.testo());
        const Archivio& a = prova.archivio;
        verificaSaldi(a);
        EXPECT_GE(a.fte.lunghezza(), a.leggiTot(Conta::Fte).numero * 522);
        EXPECT_GE(a.f2e.lunghezza(), a.leggiTot(Conta::Fte).numero * 838);
    }

    /// Another computer starts on this folder: it must find one of the states.
    void riparti(const Cartella& file, const QString& caso) {
        scriviCartella(banco, file);
        {
            DiscoGuasto disco; // leaves out the flushes
            Archivio archivio(banco.percorsi(), disco, 7);
            archivio.apri();
            EXPECT_EQ(recupera(archivio), EsitoRaffica::Riuscita) << qPrintable(caso);
            for (const Recupero& r : archivio.prendiRecuperi())
                EXPECT_TRUE(r.lasciati.isEmpty()) << qPrintable(caso);
        }
        EXPECT_TRUE(ammessi.contains(chiave(stato(leggiCartella(banco))))) << qPrintable(caso);
        ++casi;
    }

    /// The folder after these operations without the lost ones; the last may have got only half its bytes.
    Cartella dopo(const std::vector<Operazione>& operazioni, std::size_t quante,
                  const std::set<std::size_t>& perse, bool mezza) const {
        Cartella file = base;
        for (std::size_t i = 0; i < quante; ++i) {
            if (!perse.contains(i))
                applica(file, operazioni[i], mezza && i + 1 == quante ? operazioni[i].bytes.size() / 2 : -1);
        }
        return file;
    }

    /// The scene with its nth operation failing, the same operator repeating what failed.
    void fallisci(int n, bool perSempre, int errore, bool corta) {
        const QString caso = u"guasto %1 %2 %3 %4"_s.arg(n).arg(perSempre).arg(errore).arg(corta);
        scriviCartella(azienda, base);
        std::optional<Turno> s(azienda);
        s->p.disco.guasto = n;
        s->p.disco.perSempre = perSempre;
        s->p.disco.errore = errore;
        s->p.disco.corta = corta;
        for (const Passo& passo : scena.passi) {
            if (passo(*s))
                continue;
            riparti(leggiCartella(azienda), caso);
            const auto& messaggi = s->p.prova.operatore.messaggi;
            EXPECT_TRUE(scena.nome == "Riordino" ||
                        (!messaggi.isEmpty() &&
                         messaggi.last().testo.startsWith(u"Non è stato possibile scrivere il file")))
                << qPrintable(caso);
            s->p.disco.ripara();
            // After a reorder that failed the files may be closed until the next start.
            if (!s->p.prova.archivio.fte.aperto() || !s->p.prova.archivio.f2e.aperto()) {
                s.reset();
                s.emplace(azienda);
            }
            EXPECT_TRUE(passo(*s)) << qPrintable(caso);
        }
        s->p.disco.ripara();
        {
            const Raffica vuota(s->p.prova.archivio, {});
            EXPECT_TRUE(vuota.riuscita()) << qPrintable(caso);
        }
        EXPECT_EQ(stato(leggiCartella(azienda)), finale) << qPrintable(caso);
        ++casi;
    }

    void falliscono(bool perSempre) {
        const int operazioni = static_cast<int>(fila().size());
        for (int n = 1; n <= operazioni && !HasFailure(); ++n) {
            for (const auto& [errore, corta] :
                 {std::pair(ENOSPC, false), std::pair(EIO, false), std::pair(ENOSPC, true)})
                fallisci(n, perSempre, errore, corta);
        }
        std::printf("%d operazioni, %d casi\n", operazioni, casi);
    }

    const Scena scena = *std::ranges::find(tutteLeScene, GetParam(), &Scena::nome);
    AziendaDiProva azienda;
    AziendaDiProva banco;
    Cartella vergine;
    Cartella base;
    Cartella finale;
    std::set<QByteArray> ammessi;
    int casi = 0;
};

/// The operations among the first `quante` that no flush has covered: of its own file for a write, any for a
/// name.
std::vector<std::size_t> nonScaricate(const std::vector<Operazione>& operazioni, std::size_t quante) {
    std::vector<std::size_t> aperte;
    for (std::size_t i = 0; i < quante; ++i) {
        const Operazione& o = operazioni[i];
        if (o.tipo != Operazione::Tipo::Scarico) {
            aperte.push_back(i);
            continue;
        }
        std::erase_if(aperte, [&](std::size_t j) {
            return operazioni[j].tipo != Operazione::Tipo::Scrittura || operazioni[j].percorso == o.percorso;
        });
    }
    return aperte;
}

/// Every way in which the operations of a scene may have been cut short; `prova` gets the number of them that
/// were asked for, those that never reached the disk, and whether the last did by half.
template <class Prova>
void ogniInterruzione(const std::vector<Operazione>& operazioni, Prova prova) {
    constexpr double massimoEsaurienti = 1 << 14;
    constexpr int casuali = 5000;
    std::vector<std::vector<std::size_t>> aperte;
    double tutti = 0;
    for (std::size_t k = 0; k <= operazioni.size(); ++k) {
        prova(k, {}, false);
        if (k > 0)
            prova(k, {}, true);
        aperte.push_back(nonScaricate(operazioni, k));
        // The last operation is kept: without it this is the case before.
        if (!aperte.back().empty() && aperte.back().back() + 1 == k)
            aperte.back().pop_back();
        tutti += std::ldexp(1.0, static_cast<int>(aperte.back().size())) - 1;
    }
    const auto senza = [&](std::size_t k, std::uint64_t scelta) {
        std::set<std::size_t> perse;
        for (std::size_t i = 0; i < aperte[k].size(); ++i) {
            if ((scelta >> i & 1) != 0)
                perse.insert(aperte[k][i]);
        }
        prova(k, perse, false);
    };
    std::mt19937_64 caso(10);
    for (int giro = 0; giro < casuali && tutti > massimoEsaurienti; ++giro) {
        const std::size_t k = caso() % aperte.size();
        senza(k, caso());
    }
    for (std::size_t k = 0; k < aperte.size() && tutti <= massimoEsaurienti; ++k) {
        for (std::uint64_t scelta = 1; scelta < std::uint64_t{1} << aperte[k].size(); ++scelta)
            senza(k, scelta);
    }
}

TEST_P(IntegritaTest, CadutaOMancanzaDiCorrenteInOgniPunto) {
    const std::vector<Operazione> operazioni = fila();
    ogniInterruzione(operazioni, [&](std::size_t quante, const std::set<std::size_t>& perse, bool mezza) {
        if (HasFailure())
            return;
        QString caso = u"%1%2, perse:"_s.arg(mezza ? u"a metà di "_s : u"dopo "_s).arg(quante);
        for (const std::size_t i : perse)
            caso += u' ' + QString::number(i + 1);
        riparti(dopo(operazioni, quante, perse, mezza), caso);
    });
    std::printf("%zu operazioni, %d casi\n", operazioni.size(), casi);
}

TEST_P(IntegritaTest, OgniScritturaCheFallisceUnaVoltaELaRipetizione) {
    falliscono(false);
}

TEST_P(IntegritaTest, OgniScritturaDaCuiInPoiFallisceTuttoELaRipetizione) {
    falliscono(true);
}

INSTANTIATE_TEST_SUITE_P(Scene, IntegritaTest,
                         testing::Values("FatturaNuova", "FatturaCambiataConMagazzinoEMovimento",
                                         "NotaDiCredito", "Parcella", "Eliminazione", "Riordino"),
                         [](const auto& scena) { return scena.param; });

} // namespace
} // namespace bor
