#include "document/filerighe.h"

#include "archive/filetesto.h"
#include "common/date.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "document/righeinsospeso.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int vociElenco = 40; ///< of the lists of causes and appearances
constexpr int massimoIntero = 32767;

/// The values of a file in their order.
class Scrittura {
public:
    void numero(double x) { linea(testoStampa(x)); }
    /// A line break inside would shift everything behind it.
    void testo(QString testo) { linea(testo.replace(u'\r', u' ').replace(u'\n', u' ')); }
    const QByteArray& bytes() const { return m_bytes; }

private:
    void linea(const QString& testo) { m_bytes.append(inCp1252(testo)).append("\r\n"); }

    QByteArray m_bytes;
};

/// The values of a file in their order; past its end everything is empty.
class Lettura {
public:
    explicit Lettura(const QString& percorso, bool italiano = false)
        : m_file(percorso), m_italiano(italiano) {}

    bool aperta() const { return m_file.aperto(); }
    QString testo() { return m_file.linea(); }
    QString tagliato() { return m_file.linea().trimmed(); }
    /// Files of the older name hold amounts as money text.
    double importo() { return m_italiano ? valoretesto(m_file.linea()) : valore(m_file.linea()); }
    /// A whole number from `minimo` to `massimo`; any other counts as `altrimenti`.
    int intero(int minimo, int massimo, int altrimenti) {
        const int n = valoreIntero(m_file.linea());
        return n >= minimo && n <= massimo ? n : altrimenti;
    }
    void salta(int linee) {
        for (int i = 0; i < linee; ++i)
            m_file.linea();
    }

private:
    FileTesto m_file;
    bool m_italiano;
};

constexpr int lineeEstremi = 3; ///< number and two dates, which the records hold too

void scriviEstremi(Scrittura& file, const Estremi& estremi) {
    file.testo(estremi.numero);
    file.testo(estremi.data);
    file.testo(estremi.datareg);
}

/// The hour of the transport has no place in the file.
void scriviMerce(Scrittura& file, const Documento& documento) {
    const Trasporto& t = documento.testata.trasporto;
    for (const QString& testo : {t.ddt, t.ordine, t.colli, t.peso, t.inizio})
        file.testo(testo);
    file.numero(t.causale);
    file.numero(t.aspetto);
    file.testo(QString::number(ordinale(t.spedizione)));
    file.testo(documento.scorporo ? u"1"_s : u"0"_s);
    scriviEstremi(file, documento.estremi);
    for (const Riga& riga : documento.ddd) {
        file.numero(riga.recart);
        for (const QString& testo : {riga.codice2, riga.codice, riga.descrizione, riga.um})
            file.testo(testo);
        for (const double x : {double(riga.sconto1), double(riga.sconto2), double(riga.iva.numero()),
                               riga.quantita, riga.prezzo})
            file.numero(x);
    }
}

void leggiMerce(Lettura& file, Documento& documento) {
    Trasporto& t = documento.testata.trasporto;
    for (QString* testo : {&t.ddt, &t.ordine, &t.colli, &t.peso, &t.inizio})
        *testo = file.testo();
    t.causale = file.intero(-1, vociElenco - 1, -1);
    t.aspetto = file.intero(-1, vociElenco - 1, -1);
    t.spedizione = enumeratore<Mezzo>(file.intero(0, ordinale(Mezzo::Mittente), ordinale(Mezzo::Mittente)));
    documento.scorporo = file.intero(0, 1, 0) == 1;
    file.salta(lineeEstremi);
    for (Riga& riga : documento.ddd) {
        riga.recart = file.intero(0, Archivio::massimo, 0);
        for (QString* testo : {&riga.codice2, &riga.codice, &riga.descrizione, &riga.um})
            *testo = file.tagliato();
        riga.sconto1 = file.intero(-massimoIntero, massimoIntero, 0);
        riga.sconto2 = file.intero(-massimoIntero, massimoIntero, 0);
        riga.iva = file.intero(-massimoIntero, massimoIntero, 0);
        riga.quantita = file.importo();
        riga.prezzo = file.importo();
    }
}

void scriviParcella(Scrittura& file, const Documento& documento) {
    const Pratica& p = documento.testata.pratica;
    for (const QString& testo : p.descrizione)
        file.testo(testo);
    file.numero(p.ivaono);
    file.numero(p.ivaspe);
    file.numero(p.ivaant);
    scriviEstremi(file, documento.estremi);
    for (const Rigap& riga : documento.dddp) {
        file.testo(riga.data);
        file.testo(riga.descrizione);
        for (const double x : {riga.spese, riga.anticipazioni, riga.onorari})
            file.testo(testoCasella(x));
    }
}

void leggiParcella(Lettura& file, Documento& documento) {
    Pratica& p = documento.testata.pratica;
    for (QString& testo : p.descrizione)
        testo = file.testo();
    p.ivaono = file.intero(0, righeIva - 1, 0);
    p.ivaspe = file.intero(0, righeIva - 1, 0);
    p.ivaant = file.intero(0, righeIva - 1, 0);
    file.salta(lineeEstremi);
    for (Rigap& riga : documento.dddp) {
        riga.data = file.tagliato();
        riga.descrizione = file.tagliato();
        riga.spese = file.importo();
        riga.anticipazioni = file.importo();
        riga.onorari = file.importo();
    }
}

void leggi(Lettura& file, Documento& documento) {
    file.salta(2); // customer and kind, which the records hold too
    if (documento.parcella())
        leggiParcella(file, documento);
    else
        leggiMerce(file, documento);
}

/// Name of a document's file from the time when files were called by number and year, of which it has the
/// last two digits.
QString nomeVecchio(bool parcella, const QString& numero, const QString& anno) {
    return (parcella ? u"par"_s : u"ftr"_s) + testoDecimale(valore(numero)) + u".a"_s + anno;
}

void svuota(Documento& documento) {
    documento.testata.trasporto = {};
    documento.testata.pratica = {};
    documento.scorporo = false;
    documento.ddd.assign(righeMerce, {});
    documento.dddp.assign(righeParcella, {});
}

bool senzaRighe(const Documento& documento) {
    return std::ranges::all_of(documento.ddd, [](const Riga& riga) { return riga == Riga(); }) &&
           std::ranges::all_of(documento.dddp, [](const Rigap& riga) { return riga == Rigap(); });
}

} // namespace

QString percorsoRighe(const Archivio& archivio, const Fte& fte) {
    return archivio.file((fte.parcella != 0 ? u"p"_s : u"f"_s) + testoDecimale(double{fte.nfile}));
}

FileRighe trovaFileRighe(const Archivio& archivio, const Fte& fte) {
    if (fte.nfile > 0.0F) {
        const QString percorso = archivio.reale(percorsoRighe(archivio, fte));
        if (QFileInfo::exists(percorso))
            return {percorso, false};
    }
    const QString vecchio = archivio.reale(
        archivio.file(nomeVecchio(fte.parcella != 0, fte.numero.text(), pezzo(fte.datadoc.text(), 3, 2))));
    return QFileInfo::exists(vecchio) ? FileRighe{vecchio, true} : FileRighe();
}

bool leggiRighe(const FileRighe& file, Documento& documento) {
    Lettura lettura(file.percorso, file.vecchio);
    if (!lettura.aperta())
        return false;
    leggi(lettura, documento);
    return true;
}

bool righeSuFile(const Archivio& archivio, const Fte& fte) {
    return !trovaFileRighe(archivio, fte).percorso.isEmpty();
}

bool leggedoc(Documento& documento, const Archivio& archivio, RigheInSospeso& sospese) {
    svuota(documento);
    Fte& fte = documento.coppia.fte;
    if (fte.nfile > 0.0F) {
        const QString percorso = archivio.reale(percorsoRighe(archivio, fte));
        Lettura file(percorso);
        if (file.aperta()) {
            leggi(file, documento);
            // Another program may have saved a document that is new here, and found it without lines.
            if (senzaRighe(documento))
                sospese.riprendi(documento);
            else
                sospese.dimentica(documento);
            return true;
        }
        if (QFileInfo::exists(percorso)) {
            archivio.disco().segnaNonLetto(percorso);
            return false;
        }
    }
    fte.nfile = -1.0F;
    if (sospese.riprendi(documento))
        return true;
    const QString nome = nomeVecchio(documento.parcella(), documento.estremi.numero,
                                     pezzo(documento.estremi.data, postoAnnoBreve));
    Lettura vecchio(archivio.reale(archivio.file(nome)), true);
    if (vecchio.aperta())
        leggi(vecchio, documento);
    return true;
}

bool scrividoc(const Documento& documento, Archivio& archivio) {
    Scrittura file;
    file.numero(documento.coppia.fte.cliente);
    file.numero(documento.coppia.fte.tipo);
    if (documento.parcella())
        scriviParcella(file, documento);
    else
        scriviMerce(file, documento);
    return archivio.disco().scriviFile(archivio.reale(percorsoRighe(archivio, documento.coppia.fte)),
                                       file.bytes());
}

} // namespace bor
