// The documents of a company as their files hold them, byte by byte at literal places: what lists and sums
// are held against, apart from the code that makes them.
#pragma once

#include "support/azienda.h"

#include <bit>
#include <cmath>
#include <cstring>
#include <random>
#include <vector>

namespace bor {

struct DocumentoSuFile {
    QByteArray fte;
    QByteArray f2e;

    static double reale(const QByteArray& bytes, int posto) {
        double x = 0;
        std::memcpy(&x, bytes.constData() + posto, sizeof x);
        return x;
    }
    static int intero(const QByteArray& bytes, int posto) {
        std::int16_t n = 0;
        std::memcpy(&n, bytes.constData() + posto, sizeof n);
        return n;
    }
    /// In cents, rounded each by itself.
    static qint64 centesimi(const QByteArray& bytes, int posto, int quanti = 1) {
        qint64 somma = 0;
        for (int i = 0; i < quanti; ++i)
            somma += std::llround(reale(bytes, posto + 8 * i) * 100);
        return somma;
    }

    bool eliminato() const { return intero(fte, 520) == 1; }
    bool intera() const { return intero(f2e, 0) == 999; }
    int segno() const { return intero(fte, 350) == 1 ? -1 : 1; }
    qint64 imponibile() const { return segno() * (centesimi(fte, 94, 8) + coda(2, 4)); }
    qint64 imposta() const { return segno() * (centesimi(fte, 158, 8) + coda(34, 4)); }
    qint64 esente() const { return segno() * (centesimi(fte, 222, 8) + coda(66, 4)); }
    qint64 ritenuta() const { return segno() * coda(398, 4); }
    qint64 rate() const { return segno() * (centesimi(fte, 286, 4) + coda(130, 2)); }

private:
    qint64 coda(int posto, int quanti) const { return intera() ? centesimi(f2e, posto, quanti) : 0; }
};

inline std::vector<DocumentoSuFile> documentiSuFile(const AziendaDiProva& azienda) {
    const QByteArray fte = azienda.leggi(QStringLiteral("borlano.fte"));
    const QByteArray f2e = azienda.leggi(QStringLiteral("borlano.f2e"));
    std::vector<DocumentoSuFile> tutti;
    for (qsizetype n = 0; n < fte.size() / 522; ++n)
        tutti.push_back({fte.mid(n * 522, 522), f2e.mid(n * 838, 838)});
    return tutti;
}

/// Documents of every kind with amounts to the cent in all their rows, some deleted, some with a second half
/// that was never written, some with dates that are none.
inline void scriviDocumentiACaso(AziendaDiProva& azienda, int quanti, int clienti) {
    std::mt19937 caso(11);
    const auto importo = [&caso] { return static_cast<double>(caso() % 2'000'000) / 100; };
    const auto giorno = [&caso](QStringView forma) {
        return caso() % 20 == 0 ? QStringLiteral("31022015")
                                : QDate(2014, 1, 1).addDays(static_cast<int>(caso() % 800)).toString(forma);
    };
    ContestoDiProva prova(azienda);
    for (int n = 1; n <= quanti; ++n) {
        CoppiaFte c = documentoDi(static_cast<int>(1 + caso() % static_cast<unsigned>(clienti)),
                                  QString::number(n), importo(), importo());
        auto& [fte, f2e] = c;
        fte.datareg.set(giorno(u"yyyyMMdd"));
        for (std::size_t i = 1; i < 8; ++i)
            fte.impon[i] = fte.iva[i] = fte.esen[i] = importo();
        for (std::size_t i = 0; i < 4; ++i) {
            f2e.impon[i] = f2e.iva[i] = f2e.esen[i] = importo();
            f2e.raimp[i] = importo();
            fte.rata[i] = importo();
            fte.scad[i].set(giorno(u"ddMMyyyy"));
        }
        f2e.rata[1] = importo();
        f2e.scad[1].set(giorno(u"ddMMyyyy"));
        fte.tipo = caso() % 4 == 0 ? 1 : 0;
        fte.parcella = caso() % 5 == 0 ? 1 : 0;
        fte.registro = static_cast<std::int16_t>(caso() % 4 == 0 ? 12 : caso() % 3);
        fte.annullata = caso() % 10 == 0 ? 1 : 0;
        f2e.marca = caso() % 10 == 0 ? 0 : 999;
        prova.archivio.fte.scrivi(n, fte);
        prova.archivio.f2e.scrivi(n, f2e);
    }
    Tot tot = vuoto<Tot>();
    tot.numero = static_cast<std::int16_t>(quanti);
    prova.archivio.scriviTot(Conta::Fte, tot);
}

/// "1.234,50" in cents.
inline qint64 centesimiDi(QString testo) {
    return testo.remove(u'.').remove(u',').toLongLong();
}

} // namespace bor
