#include "archive/tabelle.h"

#include "archive/archivio.h"
#include "archive/filetesto.h"
#include "common/numeri.h"

namespace bor {

namespace {

constexpr int numeroPrestazioni = 100;

/// Blocks in file order. A block's values are whole lines, or comma-separated fields where said.
class Lettore {
public:
    explicit Lettore(FileTesto& file) : m_file(file) {}

    template <std::size_t R, std::size_t C>
    void linee(TabellaTesti<R, C>& tabella, std::size_t prima, std::size_t ultima) {
        perRighe(tabella, prima, ultima, &FileTesto::linea);
    }
    template <std::size_t R, std::size_t C>
    void campi(TabellaTesti<R, C>& tabella, std::size_t prima, std::size_t ultima) {
        perRighe(tabella, prima, ultima, &FileTesto::campo);
    }
    template <std::size_t R>
    void linee(std::array<QString, R>& lista, std::size_t prima, std::size_t ultima) {
        for (std::size_t r = prima; r <= ultima; ++r)
            lista[r] = m_file.linea();
    }

private:
    template <std::size_t R, std::size_t C>
    void perRighe(TabellaTesti<R, C>& tabella, std::size_t prima, std::size_t ultima,
                  QString (FileTesto::*leggi)()) {
        for (std::size_t r = prima; r <= ultima; ++r) {
            for (QString& cella : tabella[r])
                cella = (m_file.*leggi)();
        }
    }

    FileTesto& m_file;
};

double cella(const TabellaTesti<17, 4>& tabella, int codice, std::size_t colonna) {
    return codice >= 1 && codice <= 16 ? valore(tabella[static_cast<std::size_t>(codice)][colonna]) : 0.0;
}

} // namespace

double Tabelle::aliquota(int codice) const {
    return cella(aliquote, codice, 0);
}

double Tabelle::ritenuta(int codice) const {
    return cella(aliquote, codice, 1);
}

int Tabelle::regimeiva() const {
    return valoreIntero(pezzo(esenzioni[0][1], 2, 1));
}

Tabelle leggiTabelle(const Archivio& archivio) {
    Tabelle t;
    FileTesto file(archivio.reale(archivio.borlano(u"tab")));
    Lettore leggi(file);
    leggi.linee(t.aliquote, 1, 8);
    leggi.linee(t.blocco2, 1, 8);
    leggi.campi(t.esenzioni, 0, 8);
    leggi.linee(t.tipiiva, 0, 8);
    leggi.linee(t.tipopagamenti, 1, 30);
    leggi.campi(t.contabili, 1, 9);
    leggi.linee(t.ricavi, 1, 40);
    leggi.linee(t.blocco8, 1, 40);
    leggi.linee(t.blocco9, 1, 30);
    leggi.linee(t.vettori, 1, 40);
    // The tables grew once: their further rows stand behind the first ones, in the same order.
    leggi.linee(t.aliquote, 9, 16);
    leggi.linee(t.blocco2, 9, 16);
    leggi.linee(t.esenzioni, 9, 16);
    leggi.linee(t.tipiiva, 9, 16);
    leggi.linee(t.tipopagamenti, 31, 60);
    leggi.campi(t.contabili, 10, 20);
    leggi.linee(t.ricavi, 41, 100);
    return t;
}

QList<Prestazione> leggiPrestazioni(const Archivio& archivio) {
    FileTesto file(archivio.reale(archivio.borlano(u"tpr")));
    QList<Prestazione> prestazioni;
    for (int i = 0; file.aperto() && i < numeroPrestazioni; ++i) {
        Prestazione p;
        p.descrizione = file.linea();
        p.anticipazioni = valore(file.linea());
        p.spese = valore(file.linea());
        p.onorari = valore(file.linea());
        file.linea(); // the fifth value of a service is of other modules
        prestazioni.append(p);
    }
    return prestazioni;
}

QStringList leggiTributi(const Archivio& archivio) {
    FileTesto file(archivio.reale(archivio.borlano(u"trb")));
    QStringList tributi;
    while (file.aperto()) {
        const QString linea = file.linea();
        if (file.finito())
            break;
        tributi.append(linea);
    }
    return tributi;
}

} // namespace bor
