#include "register/elencofatture.h"

#include "archive/blocchi.h"
#include "archive/nomiclienti.h"
#include "archive/raffica.h"
#include "common/date.h"
#include "common/posti.h"
#include "document/filerighe.h"
#include "register/cercafatture.h"
#include "register/righeelenco.h"

#include <algorithm>

namespace bor {

namespace {

constexpr int documentiPerBlocco = 512;
const QString eliminata = QStringLiteral("Fattura eliminata");

/// The name would still have a character after cleaning and trimming.
bool nominato(const Text<60>& pdf) {
    return std::ranges::any_of(pdf.bytes, [](char c) { return c != ' ' && stampabile(codiceDi(c)); });
}

/// The number of its payment type; 0 where it names none.
std::int16_t tipoPagamento(const Fte& fte) {
    const QByteArrayView campo = fte.pagamento.raw();
    // Mostly one or two digits among blanks, which a look at byte after byte would cost more than all else.
    static const QByteArray vuoto(campo.size(), ' ');
    const auto cifre = std::ranges::find(campo, ' ') - campo.begin();
    const bool soloQuelle = campo.sliced(cifre) == QByteArrayView(vuoto).sliced(cifre);
    const int numero = (soloQuelle ? campo.first(cifre) : campo.trimmed()).toInt();
    return breve(decltype(Tabelle::tipopagamenti)::contiene(numero) ? numero : 0);
}

/// Documents that are read together.
struct Blocco {
    std::vector<Fte> teste = std::vector<Fte>(documentiPerBlocco);
    std::vector<F2e> code = std::vector<F2e>(documentiPerBlocco);

    /// Reads documents from n on, both halves of each of one moment unless another program keeps the company
    /// until `fine`. How many of them, from the first one on, could be read; the others are zero bytes.
    int leggi(const Archivio& archivio, int n, int quanti, BloccoDiLettura::Orario::time_point fine,
              bool& occupato) {
        const BloccoDiLettura chiuso(archivio.tot, fine);
        occupato = occupato || chiuso.occupato();
        const int letteTeste = archivio.fte.leggiBlocco(n, std::span(teste).first(postoDaZero(quanti)));
        const int letteCode = archivio.f2e.leggiBlocco(n, std::span(code).first(postoDaZero(quanti)));
        return letteCode < 0 ? 0 : std::max(letteTeste, 0);
    }
};

/// Sets the number that cannot be one of an electronic invoice back to 0, in the records as they are by now.
/// What cannot be written stays for the next time.
void riparaFpa(Archivio& archivio, const std::vector<int>& guasti) {
    if (guasti.empty())
        return;
    Raffica raffica(archivio, QStringLiteral("riparazione del registro"));
    for (const int n : guasti) {
        F2e f2e = raffica.leggi(archivio.f2e, n);
        if (!f2e.fpaGuasto())
            continue;
        f2e.fpa = 0.0;
        raffica.scrivi(archivio.f2e, n, f2e);
    }
    raffica.esegui();
}

} // namespace

void ElencoFatture::carica(Archivio& archivio, int primo, int ultimo, const Passa& passa) {
    Scansione scansione{.attesa = std::chrono::milliseconds(100), .anchePersi = true};
    scorri(archivio, primo, ultimo, passa, scansione);
    riparaFpa(archivio, scansione.guasti);
}

LetturaElenco ElencoFatture::leggi(const Archivio& archivio, int primo, int ultimo, const Passa& passa) {
    Scansione scansione{.attesa = std::chrono::seconds(5), .anchePersi = false};
    scorri(archivio, primo, ultimo, passa, scansione);
    return scansione.esito;
}

void ElencoFatture::scorri(const Archivio& archivio, int primo, int ultimo, const Passa& passa,
                           Scansione& scansione) {
    m_righe.clear();
    m_righe.reserve(postoDaZero(std::clamp(ultimo - primo + 1, 0, massimoRighe)));
    m_pdf.clear();
    LetturaElenco& esito = scansione.esito;
    const auto fine = BloccoDiLettura::Orario::now() + scansione.attesa;
    Blocco blocco;
    for (int n = primo; n <= ultimo; n += documentiPerBlocco) {
        const int nelBlocco = std::min(documentiPerBlocco, ultimo - n + 1);
        const int letti = blocco.leggi(archivio, n, nelBlocco, fine, esito.occupato);
        for (int i = 0; i < nelBlocco; ++i) {
            const Fte& fte = elemento(blocco.teste, i);
            F2e& f2e = elemento(blocco.code, i);
            if (i >= letti) {
                esito.nonLetti.push_back(n + i);
                if (!scansione.anchePersi)
                    continue;
            }
            if (f2e.fpaGuasto()) {
                f2e.fpa = 0.0;
                scansione.guasti.push_back(n + i);
            }
            if (!passa(n + i, fte, f2e))
                continue;
            if (std::ssize(m_righe) < massimoRighe)
                aggiungi(n + i, fte, f2e);
            else
                ++esito.oltre;
        }
    }
    m_ultimaPdf = !m_righe.empty() && m_righe.back().pdf >= 0;
    leggiNomi(archivio);
    scegliMostrate();
}

void ElencoFatture::aggiungi(int record, const Fte& fte, const F2e& f2e) {
    const bool pdf = f2e.marca == F2e::marcaValida && nominato(f2e.pdf);
    if (pdf)
        m_pdf.push_back(f2e.pdf);
    m_righe.push_back({fte.numero, fte.datareg, fte.datadoc, breve(record), fte.cliente,
                       breve(pdf ? quantiIn(m_pdf) - 1 : -1), tipoPagamento(fte), fte.stamp, fte.nfile,
                       fte.parcella != 0, f2e.fatturaPa(), fte.annullata == 1, importiDi(fte, f2e),
                       primaScadenza(fte, f2e)});
}

void ElencoFatture::leggiNomi(const Archivio& archivio) {
    int ultimo = 0;
    for (const Riga& riga : m_righe)
        ultimo = std::max<int>(ultimo, riga.cliente);
    m_nomi = nomiClienti(archivio, ultimo);
}

const QString& ElencoFatture::nomeCliente(const Riga& riga) const {
    // Nobody's name, the first one, is empty.
    return riga.annullata ? eliminata : elemento(m_nomi, std::max<int>(riga.cliente, 0));
}

const QString& ElencoFatture::nomePagamento(const Riga& riga) const {
    return m_tabelle.tipopagamenti[riga.pagamento].descrizione;
}

void ElencoFatture::ordina(Colonna colonna) {
    ordinaRighe(m_righe, [this, colonna](int riga) { return testo(elemento(m_righe, riga), colonna, {}); });
    scegliMostrate();
}

void ElencoFatture::cerca(const QString& testo) {
    m_cercato = testo;
    scegliMostrate();
}

void ElencoFatture::scegliMostrate() {
    const CercaFatture cerca(m_cercato);
    // A customer's name is compared once, however many documents he has.
    std::vector<char> nomi;
    nomi.reserve(m_nomi.size());
    for (const QString& nome : m_nomi)
        nomi.push_back(cerca.vuota() || cerca.trovaNome(nome));
    const bool eliminate = cerca.vuota() || cerca.trovaNome(eliminata);
    const auto trovata = [&](const Riga& r) {
        const bool perNome = r.annullata ? eliminate : r.cliente > 0 && elemento(nomi, r.cliente);
        return cerca.vuota() || perNome ||
               cerca.trovaDocumento(r.numero.raw(), r.datareg.raw(), r.datadoc.raw(), r.importi.totale);
    };
    m_mostrate.clear();
    for (std::size_t i = 0; i < m_righe.size(); ++i) {
        if (trovata(m_righe[i]))
            m_mostrate.push_back(i);
    }
}

QString ElencoFatture::testo(int riga, Colonna colonna, const Valuta& valuta) const {
    return esiste(riga) ? testo(mostrata(riga), colonna, valuta) : QString();
}

QString ElencoFatture::testo(const Riga& r, Colonna colonna, const Valuta& valuta) const {
    switch (colonna) {
    case Colonna::Registrazione:
        return QString::number(r.record);
    case Colonna::DataRegistrazione:
        return dataDaAnnoMeseGiorno(r.datareg.text());
    case Colonna::Numero:
        return puliscitesto(r.numero.text());
    case Colonna::DataDocumento:
        return dataDaAnnoMeseGiorno(r.datadoc.text());
    case Colonna::Cliente:
        return nomeCliente(r);
    case Colonna::Importo:
        return valuta.importotesto(r.importi.totale);
    case Colonna::Pa:
        return r.pa ? QStringLiteral("PA") : QString();
    case Colonna::Pdf:
        return r.pdf >= 0 ? QStringLiteral("PDF") : QString();
    case Colonna::NomePdf:
        return nomePdf(r);
    case Colonna::Chiave:
        return puliscitesto(r.datareg.text());
    case Colonna::Imponibile:
        return valuta.importotesto(r.importi.imponibile);
    case Colonna::Imposta:
        return valuta.importotesto(r.importi.imposta);
    case Colonna::Esente:
        return valuta.importotesto(r.importi.esente);
    case Colonna::Ritenuta:
        return valuta.importotesto(r.importi.ritenuta);
    case Colonna::PrimaScadenza:
        return dataDaAnnoMeseGiorno(r.scadenza.text());
    case Colonna::Pagamento:
        return nomePagamento(r);
    }
    return {};
}

int ElencoFatture::record(int riga) const {
    return esiste(riga) ? mostrata(riga).record : 0;
}

Identita ElencoFatture::identita(int riga) const {
    if (!esiste(riga))
        return {};
    const Riga& r = mostrata(riga);
    return {r.record, r.numero, r.datadoc, r.cliente, r.stamp, r.nfile};
}

int ElencoFatture::rigaDi(int record) const {
    const auto trovata =
        std::ranges::find(m_mostrate, record, [this](std::size_t i) { return int{m_righe[i].record}; });
    return postoDi(m_mostrate, trovata);
}

bool ElencoFatture::senzaRighe(int riga, const Archivio& archivio) const {
    if (!esiste(riga) || mostrata(riga).annullata || !(mostrata(riga).nfile > 0.0F))
        return false;
    Fte fte = vuoto<Fte>();
    fte.nfile = mostrata(riga).nfile;
    fte.parcella = mostrata(riga).parcella ? 1 : 0;
    fte.numero = mostrata(riga).numero;
    fte.datadoc = mostrata(riga).datadoc;
    return !righeSuFile(archivio, fte);
}

QString ElencoFatture::nomePdf(int riga) const {
    return esiste(riga) ? nomePdf(mostrata(riga)) : QString();
}

QString ElencoFatture::nomePdf(const Riga& riga) const {
    return riga.pdf >= 0 ? elemento(m_pdf, riga.pdf).text() : QString();
}

bool ElencoFatture::haPdf(int riga) const {
    return esiste(riga) && mostrata(riga).pdf >= 0;
}

} // namespace bor
