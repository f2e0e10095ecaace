#include "common/getto.h"

#include "common/numeri.h"

#include <QIODevice>

#include <charconv>
#include <cmath>

namespace bor {

namespace {

constexpr char cifra(qint64 n) {
    return static_cast<char>('0' + n);
}

} // namespace

void Getto::testo(QStringView testo) {
    char* dove = posto(static_cast<std::size_t>(testo.size()));
    const char* const inizio = dove;
    auto c = testo.begin();
    for (; c != testo.end() && c->unicode() < 0x80; ++c)
        *dove++ = static_cast<char>(c->unicode());
    m_presi += static_cast<std::size_t>(dove - inizio);
    if (c == testo.end())
        return;
    const QStringView resto(c, testo.end());
    dove = posto(static_cast<std::size_t>(m_utf8.requiredSpace(resto.size())));
    m_presi += static_cast<std::size_t>(m_utf8.appendToBuffer(dove, resto) - dove);
}

void Getto::intero(qint64 numero) {
    constexpr std::size_t massimo = 24;
    char* dove = posto(massimo);
    m_presi += static_cast<std::size_t>(std::to_chars(dove, dove + massimo, numero).ptr - dove);
}

void Getto::fisso(double x, int decimali, char virgola) {
    constexpr std::size_t massimo = 24;
    const double centesimi = std::fabs(x * 100);
    const qint64 n = decimali == 2 && centesimi < 1e12 ? static_cast<qint64>(centesimi + 0.5) : -1;
    // Far from the middle between two cents, and with digits to spare, both ways of rounding agree.
    if (n < 0 || std::fabs(centesimi - static_cast<double>(n)) >= 0.25)
        return testo(testoFisso(x, decimali).replace(u'.', QLatin1Char(virgola)));
    char* const inizio = posto(massimo);
    char* dove = inizio;
    if (x < 0 && n > 0)
        *dove++ = '-';
    dove = std::to_chars(dove, inizio + massimo, n / 100).ptr;
    *dove++ = virgola;
    *dove++ = cifra(n % 100 / 10);
    *dove++ = cifra(n % 10);
    m_presi += static_cast<std::size_t>(dove - inizio);
}

void Getto::numero(double x, char virgola) {
    if (std::fabs(x) < 1e15 && x == std::trunc(x))
        intero(static_cast<qint64>(x));
    else
        testo(testoDecimale(x).replace(u'.', QLatin1Char(virgola)));
}

const std::array<char, 8>& Getto::cifre(QDate data) {
    const qint64 giorno = data.toJulianDay();
    CifreGiorno& note = m_giorni[static_cast<quint64>(giorno) % m_giorni.size()];
    if (note.giorno != giorno) {
        int numero = 10000 * (data.year() % 10000) + 100 * data.month() + data.day();
        for (auto c = note.cifre.rbegin(); c != note.cifre.rend(); ++c, numero /= 10)
            *c = cifra(numero % 10);
        note.giorno = giorno;
    }
    return note.cifre;
}

void Getto::giornoMeseAnno(QDate data) {
    const std::array<char, 8>& c = cifre(data);
    aggiungi(QByteArrayView(std::array{c[6], c[7], '/', c[4], c[5], '/', c[0], c[1], c[2], c[3]}));
}

void Getto::annoMeseGiorno(QDate data) {
    const std::array<char, 8>& c = cifre(data);
    aggiungi(QByteArrayView(std::array{c[0], c[1], c[2], c[3], '-', c[4], c[5], '-', c[6], c[7]}));
}

bool Getto::svuota() {
    const auto presi = static_cast<qint64>(m_presi);
    m_riuscito = m_riuscito && m_uscita.write(m_bytes.data(), presi) == presi;
    m_presi = 0;
    return m_riuscito;
}

} // namespace bor
