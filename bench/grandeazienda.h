// The company of 32,000 documents and 1,000 customers that lists are measured on, and the reading of its
// files that no list can do without.
#pragma once

#include "support/azienda.h"

#include <QFile>

#include <benchmark/benchmark.h>

#include <random>

namespace bor {

inline constexpr int documentiGrande = 32000;
inline constexpr int clientiGrande = 1000;

/// One in three documents is paid at once, the others in two or three instalments.
inline void dividiInRate(CoppiaFte& c, int n) {
    const int rate = 1 + n % 3;
    const QDate emessa = QDate::fromString(c.fte.datareg.text(), u"yyyyMMdd");
    for (int k = 0; k < rate; ++k) {
        c.fte.rata[static_cast<std::size_t>(k)] = n * 1.83 / rate;
        c.fte.scad[static_cast<std::size_t>(k)].set(emessa.addMonths(k).toString(u"ddMMyyyy"));
    }
    c.fte.pagamento.set(QString::number(1 + n % 20));
    c.fte.riba = n % 2 == 0 ? 1 : 0;
}

/// Made once for all measurements of a program.
inline const AziendaDiProva& grandeAzienda() {
    static const AziendaDiProva azienda;
    static const bool pronta = [] {
        std::mt19937 caso(7);
        ContestoDiProva prova(azienda);
        Archivio& a = prova.archivio;
        for (int n = 1; n <= clientiGrande; ++n)
            a.cli.scrivi(
                n, clienteDi(QStringLiteral("Cliente %1 Forniture Srl").arg((n * 7919) % clientiGrande)));
        for (int n = 1; n <= documentiGrande; ++n) {
            CoppiaFte c = documentoDi(1 + static_cast<int>(caso() % clientiGrande),
                                      QString::number(caso() % documentiGrande), n * 1.5, n * 0.33);
            c.fte.datareg.set(
                QDate(2015, 1, 1).addDays(static_cast<int>(caso() % 365)).toString(u"yyyyMMdd"));
            dividiInRate(c, n);
            if (n % 10 == 0)
                c.f2e.pdf.set(u"\\suprok\\pdf\\ftr.pdf");
            if (n % 20 == 0)
                c.f2e.fpa = n;
            a.scrivi(n, c);
        }
        Tot tot = vuoto<Tot>();
        tot.numero = documentiGrande;
        a.scriviTot(Conta::Fte, tot);
        tot.numero = clientiGrande;
        a.scriviTot(Conta::Cli, tot);
        return true;
    }();
    Q_UNUSED(pronta)
    return azienda;
}

/// Every byte of a file of the large company, in large blocks.
inline void leggiTutto(const QString& nome) {
    QFile file(grandeAzienda().percorso(nome));
    file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    static QByteArray blocco(1 << 20, '\0');
    while (file.read(blocco.data(), blocco.size()) > 0)
        benchmark::DoNotOptimize(blocco.data());
}

} // namespace bor
