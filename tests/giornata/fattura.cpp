#include "giornata/fattura.h"

#include "giornata/ditta.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

int fra(std::mt19937& caso, int minimo, int massimo) {
    return minimo + static_cast<int>(caso() % static_cast<unsigned>(massimo - minimo + 1));
}

/// Hundredths of a cent, or cents by percent, to cents.
long long arrotonda(long long centesimiDiCentesimo) {
    return (centesimiDiCentesimo + 51) / 100;
}

long long scontato(long long centesimi, int sconto) {
    return centesimi - arrotonda(centesimi * sconto);
}

long long somma(const std::array<long long, 4>& voci) {
    return std::accumulate(voci.begin(), voci.end(), 0LL);
}

RigaScritta riga(std::mt19937& caso, Genere genere, int posto) {
    RigaScritta r;
    r.genere = genere;
    r.testo = u"Riga %1 scritta a mano"_s.arg(posto + 1);
    if (genere == Genere::Commento)
        return r;
    if (genere != Genere::SoloPrezzo)
        r.quantita = fra(caso, 0, 2) == 0 ? fra(caso, 2000, 5000) * 50 : fra(caso, 1, 400) * 50;
    const bool articolo = genere == Genere::Articolo || genere == Genere::Descrizione;
    if (articolo)
        r.articolo = fra(caso, 0, static_cast<int>(articoliNoti.size()) - 1);
    if (!articolo || fra(caso, 0, 1) == 0)
        r.prezzo = fra(caso, 0, 3) == 0 ? fra(caso, 100000, 499999) : fra(caso, 5, 99999);
    if (fra(caso, 0, 2) == 0)
        r.sconto1 = 5 * fra(caso, 0, 8);
    if (fra(caso, 0, 3) == 0)
        r.sconto2 = 5 * fra(caso, 0, 4);
    if (genere == Genere::Libera)
        r.giuNellIva = fra(caso, 0, 2);
    return r;
}

} // namespace

long long Somme::ricavi() const {
    return somma(imponibili);
}

long long Somme::imposta() const {
    return somma(imposte);
}

long long Somme::esente() const {
    return somma(esenti);
}

int FatturaScritta::prezzo(const RigaScritta& riga) const {
    if (riga.prezzo >= 0 || riga.articolo < 0)
        return std::max(riga.prezzo, 0);
    const ArticoloNoto& noto = articoliNoti[static_cast<std::size_t>(riga.articolo)];
    return clientiNoti[static_cast<std::size_t>(cliente)].listino2 ? noto.listino2 : noto.listino1;
}

int FatturaScritta::sconto1(const RigaScritta& riga) const {
    return riga.sconto1 >= 0 ? riga.sconto1 : clientiNoti[static_cast<std::size_t>(cliente)].sconto1;
}

int FatturaScritta::sconto2(const RigaScritta& riga) const {
    return riga.sconto2 >= 0 ? riga.sconto2 : clientiNoti[static_cast<std::size_t>(cliente)].sconto2;
}

Somme FatturaScritta::somme() const {
    constexpr int primoEsente = 13;
    const int forzata = clientiNoti[static_cast<std::size_t>(cliente)].regimeiva;
    Somme s;
    for (const RigaScritta& r : righe) {
        const long long p = prezzo(r);
        const long long lordo = r.quantita == 0 ? p : arrotonda(p * r.quantita);
        const long long importo = scontato(scontato(lordo, sconto1(r)), sconto2(r));
        const int codice = forzata > 0       ? forzata
                           : r.articolo >= 0 ? articoliNoti[static_cast<std::size_t>(r.articolo)].iva
                                             : 1 + r.giuNellIva;
        if (codice >= primoEsente)
            s.esenti[static_cast<std::size_t>(codice - primoEsente + 1)] += importo;
        else
            s.imponibili[static_cast<std::size_t>(codice)] += importo;
    }
    for (std::size_t i = 1; i < s.imposte.size(); ++i)
        s.imposte[i] = arrotonda(s.imponibili[i] * aliquoteNote[i]);
    return s;
}

long long FatturaScritta::valore(const RigaScritta& riga) const {
    const long long netto = scontato(scontato(prezzo(riga), sconto1(riga)), sconto2(riga));
    return (nota ? -1 : 1) * arrotonda(netto * riga.quantita);
}

std::vector<QDate> FatturaScritta::scadenze() const {
    const PagamentoNoto& pagamento =
        pagamentiNoti[static_cast<std::size_t>(clientiNoti[static_cast<std::size_t>(cliente)].pagamento)];
    std::vector<QDate> date;
    for (int i = 0; i < pagamento.rate; ++i) {
        const QDate giorno = data.addMonths(pagamento.mesi[static_cast<std::size_t>(i)]);
        date.push_back(pagamento.finemese ? QDate(giorno.year(), giorno.month(), giorno.daysInMonth())
                                          : giorno);
    }
    return date;
}

FatturaScritta inventa(std::mt19937& caso, int numero) {
    constexpr std::array generi = {
        Genere::Articolo,   Genere::Articolo, Genere::Commento,    Genere::Libera, Genere::Articolo,
        Genere::SoloPrezzo, Genere::Articolo, Genere::Descrizione, Genere::Libera, Genere::Articolo};
    FatturaScritta fattura;
    fattura.cliente = fra(caso, 0, static_cast<int>(clientiNoti.size()) - 1);
    fattura.nota = numero % 8 == 0;
    fattura.data = QDate(2015, 1, 31).addDays(numero * 3);
    for (std::size_t i = 0; i < generi.size(); ++i)
        fattura.righe.push_back(riga(caso, generi[i], static_cast<int>(i)));
    return fattura;
}

QString aMano(long long centesimi, std::mt19937& caso) {
    QString intero = QString::number(centesimi / 100);
    const bool conPunti = fra(caso, 0, 2) > 0;
    for (qsizetype posto = intero.size() - 3; conPunti && posto > 0; posto -= 3)
        intero.insert(posto, u'.');
    const long long resto = centesimi % 100;
    if (resto == 0 && fra(caso, 0, 1) == 0 && !intero.contains(u'.'))
        return intero;
    if (resto % 10 == 0 && fra(caso, 0, 1) == 0)
        return intero + u',' + QString::number(resto / 10);
    return intero + u',' + u"%1"_s.arg(resto, 2, 10, QChar(u'0'));
}

} // namespace bor
