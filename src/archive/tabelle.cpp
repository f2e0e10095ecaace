#include "archive/tabelle.h"

#include "archive/archivio.h"
#include "archive/filetesto.h"
#include "common/numeri.h"
#include "common/testo.h"

namespace bor {

namespace {

constexpr int numeroPrestazioni = 100;

constexpr qsizetype caratteriDescrizione = 100;

/// The values of a row in file order; a null pointer for one that only other modules read.
template <std::size_t N>
using Celle = std::array<QString*, N>;

Celle<4> aliquota(RigaAliquota& r) {
    return {&r.aliquota, &r.ritenuta, &r.contributoci, &r.contributocp};
}

Celle<2> esenzione(RigaEsenzione& r) {
    return {&r.riferimento, &r.testo};
}

Celle<2> pagamento(TipoPagamento& r) {
    return {&r.descrizione, &r.codice};
}

Celle<6> trasporto(RigaTrasporto& r) {
    return {&r.causale, &r.aspetto, &r.vettore[0], &r.vettore[1], &r.vettore[2], &r.codici};
}

Celle<1> solo(QString& r) {
    return {&r};
}

Celle<2> primo(QString& r) {
    return {&r, nullptr};
}

Celle<2> secondo(QString& r) {
    return {nullptr, &r};
}

/// Blocks in file order. A block's values are whole lines, or comma-separated fields where said.
class Lettore {
public:
    explicit Lettore(FileTesto& file) : m_file(file) {}

    template <class Tabella, class Valori>
    void linee(Tabella& tabella, int prima, int ultima, Valori valori) {
        leggi(tabella, prima, ultima, valori, &FileTesto::linea);
    }
    template <class Tabella, class Valori>
    void campi(Tabella& tabella, int prima, int ultima, Valori valori) {
        leggi(tabella, prima, ultima, valori, &FileTesto::campo);
    }
    /// Passes over a block of other modules.
    void salta(int righe, int valori) {
        for (int i = 0; i < righe * valori; ++i)
            m_file.linea();
    }

private:
    template <class Tabella, class Valori>
    void leggi(Tabella& tabella, int prima, int ultima, Valori valori, QString (FileTesto::*prossimo)()) {
        for (int r = prima; r <= ultima; ++r) {
            for (QString* valore : valori(tabella[r])) {
                const QString letto = (m_file.*prossimo)();
                if (valore)
                    *valore = letto;
            }
        }
    }

    FileTesto& m_file;
};

} // namespace

QString RigaEsenzione::descrizione() const {
    return testo.left(caratteriDescrizione).trimmed();
}

double RigaEsenzione::natura() const {
    // The length counts without the blanks around the text, the place of the digit with them.
    return testo.trimmed().size() > caratteriDescrizione ? valore(pezzo(testo, caratteriDescrizione + 1))
                                                         : 0.0;
}

int TipoPagamento::modalita() const {
    constexpr qsizetype posizione = 23;
    return valoreIntero(pezzo(codice, posizione, 1));
}

double Tabelle::aliquota(int riga) const {
    return valore(aliquote[riga].aliquota);
}

double Tabelle::ritenuta(int riga) const {
    return valore(aliquote[riga].ritenuta);
}

int Tabelle::regimeiva() const {
    return valoreIntero(pezzo(esenzioni[0].testo, 2, 1));
}

Tabelle leggiTabelle(const Archivio& archivio) {
    Tabelle t;
    FileTesto file(archivio.reale(archivio.borlano(u"tab")));
    Lettore leggi(file);
    leggi.linee(t.aliquote, 1, 8, aliquota);
    leggi.salta(8, 3);
    leggi.campi(t.esenzioni, 0, 8, esenzione);
    leggi.linee(t.tipiiva, 0, 8, secondo);
    leggi.linee(t.tipopagamenti, 1, 30, pagamento);
    leggi.campi(t.contabili, 1, 9, primo);
    leggi.linee(t.ricavi, 1, 40, solo);
    leggi.salta(40, 1);
    leggi.salta(30, 5);
    leggi.linee(t.vettori, 1, 40, trasporto);
    // The tables grew once: their further rows stand behind the first ones, in the same order.
    leggi.linee(t.aliquote, 9, 16, aliquota);
    leggi.salta(8, 3);
    leggi.linee(t.esenzioni, 9, 16, esenzione);
    leggi.linee(t.tipiiva, 9, 16, secondo);
    leggi.linee(t.tipopagamenti, 31, 60, pagamento);
    leggi.campi(t.contabili, 10, 20, primo);
    leggi.linee(t.ricavi, 41, 100, solo);
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
