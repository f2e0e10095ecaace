#include "borcrea/filerighe.h"

#include "common/numeri.h"

namespace bor {

using namespace Qt::StringLiterals;

namespace {

/// Numbers have a place for the sign in front and a blank behind.
QString numero(double x) {
    const QString testo = testoDecimale(x);
    return (x < 0 ? testo : u' ' + testo) + u' ';
}

QStringList merce(const Documento& d) {
    const Trasporto& t = d.testata.trasporto;
    QStringList linee = {t.ddt,
                         t.ordine,
                         t.colli,
                         t.peso,
                         t.inizio,
                         numero(t.causale),
                         numero(t.aspetto),
                         QString::number(t.spedizione),
                         d.scorporo ? u"1"_s : u"0"_s,
                         d.estremi.numero,
                         d.estremi.data,
                         d.estremi.datareg};
    for (const Riga& r : d.ddd)
        linee << numero(r.recart) << r.codice2 << r.codice << r.descrizione << r.um << numero(r.sconto1)
              << numero(r.sconto2) << numero(r.iva) << numero(r.quantita) << numero(r.prezzo);
    return linee;
}

QStringList parcella(const Documento& d) {
    const Pratica& p = d.testata.pratica;
    QStringList linee(p.descrizione.begin(), p.descrizione.end());
    linee << numero(p.ivaono) << numero(p.ivaspe) << numero(p.ivaant) << d.estremi.numero << d.estremi.data
          << d.estremi.datareg;
    for (const Rigap& r : d.dddp)
        linee << r.data << r.descrizione << testoCasella(r.spese) << testoCasella(r.anticipazioni)
              << testoCasella(r.onorari);
    return linee;
}

} // namespace

bool scriviFileRighe(Archivio& archivio, const Documento& d) {
    QStringList linee = {numero(d.coppia.fte.cliente), numero(d.coppia.fte.tipo)};
    linee += d.parcella() ? parcella(d) : merce(d);
    const QString nome = (d.parcella() ? u"p"_s : u"f"_s) + testoDecimale(double{d.coppia.fte.nfile});
    return archivio.disco().scriviFile(archivio.reale(archivio.file(nome)),
                                       inCp1252(linee.join(u"\r\n"_s) + u"\r\n"_s));
}

} // namespace bor
