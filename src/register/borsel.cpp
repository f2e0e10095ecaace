#include "register/borsel.h"

#include "common/posti.h"
#include "common/testo.h"
#include "document/borftem.h"
#include "register/righeelenco.h"

#include <algorithm>
#include <utility>

namespace bor {

namespace {

constexpr std::size_t massimoRighe = 31999; ///< a grid has 32,000 rows, one of them the headings

} // namespace

Borsel::Borsel(Contesto& contesto, Borftem& chiamante) : m_contesto(contesto), m_chiamante(chiamante) {}

void Borsel::attiva() {
    m_selnome = m_chiamante.nome().trimmed();
    caricaclienti();
}

void Borsel::caricaclienti() {
    const Attesa attesa(m_contesto.operatore);
    const Archivio& archivio = m_contesto.archivio;
    const int numero = archivio.leggiTot(Conta::Cli).numero;
    std::vector<std::int16_t> indice;
    archivio.src.scorri(1, numero, [&](int, const Src& voce) {
        indice.push_back(voce.recordcli);
        return true;
    });
    const std::vector<Riga> clienti = leggiClienti(indice.empty() ? 0 : *std::ranges::max_element(indice));
    m_righe.clear();
    for (const std::int16_t record : indice) {
        // An entry that points nowhere shows as a blank customer.
        Riga riga = record > 0 && record < quantiIn(clienti) ? elemento(clienti, record) : Riga();
        riga.record = record;
        riga.cercato = piega(riga.ragione1.trimmed());
        if (!riga.eliminato)
            m_righe.push_back(std::move(riga));
    }
    filtra();
}

void Borsel::cambiaNome(const QString& testo) {
    m_selnome = testo;
    filtra();
}

void Borsel::filtra() {
    const QString cercato = piega(m_selnome.trimmed());
    m_mostrate.clear();
    for (std::size_t i = 0; i < m_righe.size() && m_mostrate.size() < massimoRighe; ++i) {
        if (m_righe[i].cercato.contains(cercato))
            m_mostrate.push_back(i);
    }
    ++m_edizione;
}

/// The customers by their record number, up to the last one wanted or on file.
std::vector<Borsel::Riga> Borsel::leggiClienti(int ultimo) const {
    const RecordFile<Cli>& file = m_contesto.archivio.cli;
    // A record cut off by the end of the file counts for what is left of it.
    const auto suFile = static_cast<int>(file.lunghezza() / qint64{sizeof(Cli)} + 1);
    const int letti = std::clamp(ultimo, 0, suFile);
    std::vector<Riga> clienti(postoDaZero(letti + 1));
    file.scorri(1, letti, [&clienti](int n, const Cli& cli) {
        elemento(clienti, n) = {cli.sede.ragione1,  cli.sede.ragione2,
                                cli.sede.indirizzo, cli.sede.citta,
                                cli.partitaiva,     0,
                                cli.eliminato != 0, {}};
        return true;
    });
    return clienti;
}

void Borsel::ordina(ColonnaCliente colonna) {
    ordinaRighe(m_righe, [this, colonna](int riga) {
        return testo(m_righe[static_cast<std::size_t>(riga)], colonna);
    });
    filtra();
}

void Borsel::scegli(int riga) {
    if (record(riga) <= 0)
        return;
    m_selnome = testo(riga, ColonnaCliente::Nominativo);
    m_chiamante.cambiaNome(m_selnome.trimmed());
    m_contesto.sessione.modoselezione = ModoSelezione::Scelto;
    m_contesto.navigatore.mostra(Schermo::Borftem);
}

void Borsel::esci() {
    m_chiamante.cambiaNome({});
    m_contesto.sessione.modoselezione = ModoSelezione::Nessuno;
    m_contesto.navigatore.mostra(Schermo::Borftem);
}

int Borsel::righeGriglia() const {
    return std::max(quanti(), righePiene);
}

QString Borsel::testo(int riga, ColonnaCliente colonna) const {
    return esiste(riga) ? testo(mostrata(riga), colonna) : QString();
}

QString Borsel::testo(const Riga& r, ColonnaCliente colonna) {
    switch (colonna) {
    case ColonnaCliente::Nominativo:
        return puliscitesto(r.ragione1.text());
    case ColonnaCliente::Nominativo2:
        return puliscitesto(r.ragione2.text());
    case ColonnaCliente::Indirizzo:
        return puliscitesto(r.indirizzo.text());
    case ColonnaCliente::Citta:
        return puliscitesto(r.citta.text());
    case ColonnaCliente::PartitaIva:
        return puliscitesto(r.partitaiva.text());
    }
    return {};
}

int Borsel::record(int riga) const {
    return esiste(riga) ? mostrata(riga).record : 0;
}

std::optional<int> Borsel::colore(int riga) const {
    const Gnr& gnr = m_contesto.impostazioni.gnr;
    if (!gnr.colora())
        return std::nullopt;
    return coloreRiga(gnr, riga);
}

} // namespace bor
