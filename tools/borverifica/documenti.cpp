#include "borverifica/verifica.h"
#include "common/posti.h"

#include "archive/fpa.h"
#include "common/numeri.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

#include <unordered_map>

using namespace Qt::StringLiterals;

namespace bor::verifica {

namespace {

/// What a pass over the documents compares each of them with.
struct Confronto {
    const Archivio& archivio;
    std::vector<bool> clientiEliminati;     ///< by `cli` record
    QHash<QString, qint64> file;            ///< lengths of the company's files by their names in lower case
    std::unordered_map<double, int> righe;  ///< document by its detail-lines file, goods below 0
    std::unordered_map<double, int> fattpa; ///< document by its electronic invoice data file
    Discordanze trovate;

    void aggiungi(Gravita gravita, const Fte& fte, int n, const QString& motivo, Rimedio rimedio) {
        trovate.append({gravita, nomeDocumento(fte, n), motivo, rimedio});
    }
    bool esiste(const QString& nome) const { return file.contains(nome.toLower()); }
};

Confronto confrontoPer(const Archivio& archivio, const ElencoFile& file) {
    Confronto c{archivio, {}, {}, {}, {}, {}};
    const int clienti = inUso(archivio, Conta::Cli, archivio.cli);
    c.clientiEliminati.resize(postoDaZero(clienti + 1));
    archivio.cli.scorri(1, clienti, [&](int n, const Cli& cli) {
        elemento(c.clientiEliminati, n) = cli.eliminato == 1;
        return true;
    });
    for (auto f = file.constKeyValueBegin(); f != file.constKeyValueEnd(); ++f)
        c.file.insert(f->first.toLower(), f->second);
    return c;
}

void verificaCliente(Confronto& c, const Fte& fte, int n) {
    if (fte.cliente < 1 || fte.cliente >= std::ssize(c.clientiEliminati))
        c.aggiungi(Gravita::Errore, fte, n, u"il cliente %1 non c'è"_s.arg(fte.cliente),
                   Rimedio::ScegliCliente);
    else if (elemento(c.clientiEliminati, int{fte.cliente}))
        c.aggiungi(Gravita::Informazione, fte, n, u"il cliente %1 è stato eliminato"_s.arg(fte.cliente),
                   Rimedio::Nessuno);
}

/// The name of the lines file from before these files were numbered: number and year of the document.
QString vecchioNome(const Fte& fte) {
    return (fte.parcella != 0 ? u"par"_s : u"ftr"_s) + testoDecimale(valore(fte.numero.text())) + u".a"_s +
           fte.datadoc.text().mid(2, 2);
}

void verificaRighe(Confronto& c, const Fte& fte, int n) {
    const bool numerato = fte.nfile > 0;
    const QString nome = (fte.parcella != 0 ? u"p"_s : u"f"_s) + testoDecimale(double{fte.nfile});
    if (numerato) {
        const double chiave = fte.parcella != 0 ? double{fte.nfile} : -double{fte.nfile};
        const auto [altro, primo] = c.righe.emplace(chiave, n);
        if (!primo)
            c.aggiungi(
                Gravita::Errore, fte, n,
                u"il file delle righe %1 è anche del documento con record %2"_s.arg(nome).arg(altro->second),
                Rimedio::SeparaRighe);
        if (c.esiste(nome))
            return;
    }
    if (c.esiste(vecchioNome(fte)))
        return;
    if (numerato)
        c.aggiungi(
            Gravita::Avviso, fte, n,
            u"il file delle righe %1 non c'è: le righe non sono ancora registrate, o sono andate perse"_s.arg(
                nome),
            Rimedio::RegistraRighe);
    else
        c.aggiungi(Gravita::Informazione, fte, n, u"non ha un file delle righe"_s, Rimedio::Nessuno);
}

void verificaFpa(Confronto& c, const Fte& fte, const F2e& f2e, int n) {
    if (f2e.fpaGuasto()) {
        c.aggiungi(Gravita::Errore, fte, n, u"il riferimento alla fattura elettronica è guasto"_s,
                   Rimedio::RifaiFattura);
        return;
    }
    if (!f2e.fatturaPa())
        return;
    const QString nome = u"fpa"_s + testoDecimale(f2e.fpa);
    const auto [altro, primo] = c.fattpa.emplace(f2e.fpa, n);
    if (!primo)
        c.aggiungi(
            Gravita::Errore, fte, n,
            u"i dati della fattura elettronica %1 sono anche del documento con record %2"_s.arg(nome).arg(
                altro->second),
            Rimedio::RifaiFattura);
    const auto file = c.file.constFind(nome);
    if (file == c.file.constEnd())
        c.aggiungi(Gravita::Errore, fte, n, u"il file della fattura elettronica %1 non c'è"_s.arg(nome),
                   Rimedio::RifaiFattura);
    else if (*file < qint64{sizeof(Fpa)})
        c.aggiungi(Gravita::Errore, fte, n,
                   u"il file della fattura elettronica %1 è incompleto: %2 byte invece di %3"_s.arg(nome)
                       .arg(*file)
                       .arg(sizeof(Fpa)),
                   Rimedio::RifaiFattura);
    if (f2e.fpa > c.archivio.leggiTot(Conta::Fpa).numero)
        c.aggiungi(
            Gravita::Avviso, fte, n,
            u"la fattura elettronica %1 supera il contatore: una prossima la può sovrascrivere"_s.arg(nome),
            Rimedio::CorreggiContatore);
}

void verificaDocumento(Confronto& c, const Fte& fte, const F2e& f2e, int n, bool f2eSuFile) {
    verificaCliente(c, fte, n);
    verificaRighe(c, fte, n);
    if (f2e.marca == F2e::marcaValida)
        verificaFpa(c, fte, f2e, n);
    else if (f2eSuFile)
        c.aggiungi(Gravita::Avviso, fte, n,
                   u"la seconda metà in borlano.f2e non è mai stata scritta (marca %1)"_s.arg(f2e.marca),
                   Rimedio::Registra);
}

void verificaProgressivo(Confronto& c) {
    // Near the end of single precision numbers repeat, and behind it they start again.
    constexpr double finePrecisione = 16777216;
    const double progressivo = c.archivio.leggiTot(Conta::Fte).progressivo;
    double massimo = 0;
    for (const auto& [chiave, documento] : c.righe)
        massimo = std::max(massimo, std::fabs(chiave));
    if (massimo < finePrecisione && !(progressivo >= massimo))
        c.trovate.append(
            {Gravita::Errore, u"borlano.tot"_s,
             u"l'ultimo file delle righe dato è il %1, ma un documento ha il %2: un documento nuovo "
             u"può prendere le righe di un altro"_s.arg(testoDecimale(progressivo), testoDecimale(massimo)),
             Rimedio::CorreggiContatore});
}

void verificaOrfani(Confronto& c) {
    static const QRegularExpression nomeRighe(u"^[fp]([0-9]{1,10})$"_s);
    QStringList orfani;
    for (auto f = c.file.constKeyValueBegin(); f != c.file.constKeyValueEnd(); ++f) {
        const auto trovato = nomeRighe.match(f->first);
        const double numero = trovato.captured(1).toDouble();
        if (trovato.hasMatch() && !c.righe.contains(f->first.startsWith(u'p') ? numero : -numero))
            orfani.append(f->first);
    }
    orfani.sort();
    for (const QString& nome : orfani)
        c.trovate.append({Gravita::Avviso, nome, u"è un file delle righe che nessun documento usa"_s,
                          Rimedio::MettiDaParte});
}

} // namespace

Discordanze verificaDocumenti(const Archivio& archivio, const ElencoFile& file) {
    Confronto c = confrontoPer(archivio, file);
    const int documenti = inUso(archivio, Conta::Fte, archivio.fte);
    const int conF2e = inUso(archivio, Conta::Fte, archivio.f2e);
    std::vector<F2e> code(postoDaZero(documenti));
    archivio.f2e.leggiBlocco(1, code);
    archivio.fte.scorri(1, documenti, [&](int n, const Fte& fte) {
        if (fte.annullata != 1)
            verificaDocumento(c, fte, elemento(code, n - 1), n, n <= conF2e);
        return true;
    });
    verificaProgressivo(c);
    verificaOrfani(c);
    return c.trovate;
}

} // namespace bor::verifica
