#include "support/azienda.h"

#include <QDir>
#include <QFile>

namespace bor {

namespace {

constexpr double codiceDiProva = 7;

} // namespace

AziendaDiProva::AziendaDiProva()
    : m_cartella(std::in_place), m_percorsi(m_cartella->path(), m_cartella->path() + QStringLiteral("/c")) {
    QDir().mkpath(percorso({}));
    QDir().mkpath(m_cartella->path() + QStringLiteral("/c"));
}

AziendaDiProva::AziendaDiProva(const QString& radice) : m_percorsi(radice, radice + QStringLiteral("/c")) {}

QString AziendaDiProva::percorso(const QString& nome) const {
    return radice() + QStringLiteral("boraz0.007/") + nome;
}

QByteArray AziendaDiProva::leggi(const QString& nome) const {
    QFile file(percorso(nome));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void AziendaDiProva::scrivi(const QString& nome, const QByteArray& bytes) const {
    QFile file(percorso(nome));
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

int AziendaDiProva::cliente(const QString& ragione) {
    return cliente(clienteDi(ragione));
}

int AziendaDiProva::cliente(const Cli& record) {
    Archivio archivio(m_percorsi, m_disco, codiceDiProva);
    archivio.apri();
    const int n = aggiungi(archivio, archivio.cli, Conta::Cli, record);
    std::vector<Src> indice(static_cast<std::size_t>(n));
    archivio.src.leggiBlocco(1, indice);
    indice.back().chiave.set(record.sede.ragione1.text());
    indice.back().recordcli = static_cast<std::int16_t>(n);
    std::ranges::stable_sort(indice, {}, [](const Src& s) { return maiuscolo(s.chiave.text()); });
    for (int i = 1; i <= n; ++i)
        archivio.src.scrivi(i, indice[static_cast<std::size_t>(i - 1)]);
    return n;
}

int AziendaDiProva::articolo(const Art& record) {
    Archivio archivio(m_percorsi, m_disco, codiceDiProva);
    archivio.apri();
    return aggiungi(archivio, archivio.art, Conta::Art, record);
}

int AziendaDiProva::documento(const CoppiaFte& coppia) {
    Archivio archivio(m_percorsi, m_disco, codiceDiProva);
    archivio.apri();
    const int n = aggiungi(archivio, archivio.fte, Conta::Fte, coppia.fte);
    archivio.f2e.scrivi(n, coppia.f2e);
    return n;
}

Cli clienteDi(const QString& ragione) {
    Cli cli = vuoto<Cli>();
    cli.sede.ragione1.set(ragione);
    return cli;
}

Art articoloDi(const QString& codice, const QString& descrizione, double listino1, int iva) {
    Art art = vuoto<Art>();
    art.codice.set(codice);
    art.descrizione.set(descrizione);
    art.um.set(u"pz");
    art.listino1 = listino1;
    art.iva = static_cast<std::int16_t>(iva);
    return art;
}

CoppiaFte documentoDi(int cliente, const QString& numero, double imponibile, double imposta) {
    CoppiaFte coppia = vuoto<CoppiaFte>();
    inizializza2(coppia.f2e);
    coppia.fte.cliente = static_cast<std::int16_t>(cliente);
    coppia.fte.numero.set(numero);
    coppia.fte.datareg.set(u"20150315");
    coppia.fte.datadoc.set(u"20150315");
    coppia.fte.impon[0] = imponibile;
    coppia.fte.iva[0] = imposta;
    return coppia;
}

Disco& ContestoDiProva::discoVero() {
    static Disco disco;
    return disco;
}

ContestoDiProva::ContestoDiProva(const AziendaDiProva& azienda) : ContestoDiProva(azienda, discoVero()) {}

ContestoDiProva::ContestoDiProva(const AziendaDiProva& azienda, Disco& disco)
    : archivio(azienda.percorsi(), disco, codiceDiProva), contesto{sessione, archivio,  impostazioni,
                                                                   tabelle,  operatore, orologio,
                                                                   sistema,  navigatore} {
    sessione.codiceazienda = codiceDiProva;
    archivio.apri();
    impostazioni = caricaimpostazioni(archivio);
    tabelle = leggiTabelle(archivio);
}

} // namespace bor
