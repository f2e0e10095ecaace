#include "fatturapa/uscitafel.h"

#include "common/date.h"
#include "common/numeri.h"
#include "fatturapa/scrivifattura.h"
#include "xmlcheck/codicifattura.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString importo(double x) {
    return testoItaliano(x, 2);
}

/// With as many of its eight decimals as it needs, two at least.
QString importoLungo(double x) {
    constexpr int minimi = 2;
    constexpr int massimi = 8;
    const QString testo = testoDecimali(x, minimi, massimi);
    return testoItaliano(x, static_cast<int>(testo.size() - testo.indexOf(u'.') - 1));
}

QString giorno(QDate data) {
    return data.isValid() ? testoData(data) : QString();
}

/// "n. 12 del 15/03/2015"; empty without a number.
QString riferimento(const QString& numero, QDate data) {
    if (numero.isEmpty())
        return {};
    return data.isValid() ? u"n. %1 del %2"_s.arg(numero, testoData(data)) : u"n. %1"_s.arg(numero);
}

QString primo(const std::vector<RiferimentoFel>& riferimenti) {
    return riferimenti.empty() ? QString()
                               : riferimento(riferimenti.front().numero, riferimenti.front().data);
}

QString iva(double aliquota, const QString& natura) {
    return natura.isEmpty() ? testoItaliano(aliquota, 2) + u'%' : natura;
}

QString esigibilita(const QString& codice) {
    return codice == u"S"   ? u"scissione"_s
           : codice == u"D" ? u"differita"_s
           : codice == u"I" ? u"immediata"_s
                            : QString();
}

QString sconti(const std::vector<double>& percentuali) {
    QStringList testi;
    for (const double percento : percentuali)
        testi << (percento < 0 ? u"+"_s : u"-"_s) + testoDecimale(std::abs(percento)) + u'%';
    return testi.join(u' ');
}

void mettiCodici(UscitaFel& u, const FatturaElettronica& f) {
    for (const auto* riferimenti : {&f.ordini, &f.contratti, &f.convenzioni, &f.ricezioni}) {
        for (const RiferimentoFel& r : *riferimenti) {
            u.nelFile[PostoFel::Cup] = r.cup;
            u.nelFile[PostoFel::Cig] = r.cig;
        }
    }
}

void mettiCampi(UscitaFel& u, const FatturaElettronica& f) {
    using enum PostoFel;
    if (f.tipo.isEmpty())
        return; // refused before it was composed
    auto& in = u.nelFile;
    const TrasmissioneFel& t = f.trasmissione;
    in[Destinatario] = t.pubblica ? u"FPA12, a una pubblica amministrazione"_s : u"FPR12, a un privato"_s;
    in[CodiceDestinatario] = t.destinatario;
    in[Pec] = t.pec;
    for (const RiepilogoFel& r : f.riepiloghi)
        if (r.esigibilita == u"S")
            in[Scissione] = u"IVA versata dal cliente"_s;
    for (const LineaFel& l : f.linee)
        if (!l.intento.isEmpty())
            in[Intento] = l.intento;
    in[Tipo] = codiceInParole(ListaCodici::TipoEmesso, f.tipo);
    in[Bollo] = f.bollo ? importo(*f.bollo) : u"nessuno"_s;
    in[Collegata] = primo(f.collegate);
    in[Ordine] = primo(f.ordini);
    in[Contratto] = primo(f.contratti);
    mettiCodici(u, f);
    in[Ddt] = f.ddt.empty() ? QString() : riferimento(f.ddt.front().numero, f.ddt.front().data);
    if (!f.ritenute.empty()) {
        in[TipoRitenuta] = codiceInParole(ListaCodici::TipoRitenuta, f.ritenute.front().tipo);
        in[CausaleRitenuta] = codiceInParole(ListaCodici::CausaleRitenuta, f.ritenute.front().causale);
    }
    in[Modalita] =
        f.pagamento.rate.empty() ? QString() : codiceInParole(ListaCodici::Modalita, f.pagamento.modalita);
    in[Iban] = f.pagamento.iban;
}

void mettiRighe(UscitaFel& u, const FatturaElettronica& f) {
    for (const LineaFel& l : f.linee)
        u.righe << QStringList{QString::number(u.righe.size() + 1),
                               l.descrizione,
                               l.quantita ? importoLungo(*l.quantita) : QString(),
                               l.um,
                               importoLungo(l.prezzo),
                               sconti(l.sconti),
                               importoLungo(l.totale),
                               iva(l.aliquota, l.natura)};
    for (const RiepilogoFel& r : f.riepiloghi)
        u.riepiloghi << QStringList{iva(r.aliquota, r.natura),
                                    r.riferimento,
                                    importo(r.imponibile),
                                    importo(r.imposta),
                                    r.arrotondamento == 0 ? QString() : importoLungo(r.arrotondamento),
                                    esigibilita(r.esigibilita)};
    for (const RataFel& rata : f.pagamento.rate)
        u.rate << QStringList{giorno(rata.scadenza), importo(rata.importo),
                              f.pagamento.iban + f.pagamento.istituto};
}

void mettiAltro(UscitaFel& u, const FatturaElettronica& f) {
    const auto voce = [&](const QString& nome, const QString& valore) {
        if (!valore.isEmpty())
            u.altro << QStringList{nome, valore};
    };
    voce(u"Totale documento"_s, importo(f.totale));
    for (const CassaFel& c : f.casse)
        voce(u"Cassa"_s,
             u"%1, %2% di %3: %4"_s.arg(codiceInParole(ListaCodici::Cassa, c.tipo), testoDecimale(c.aliquota),
                                        importo(c.imponibile), importo(c.importo)));
    for (const RitenutaFel& r : f.ritenute)
        voce(u"Ritenuta"_s, u"%1, %2%: %3, causale %4"_s.arg(r.tipo, importoLungo(r.aliquota),
                                                             importo(r.importo), r.causale));
    if (f.bollo)
        voce(u"Bollo"_s, importo(*f.bollo));
    const std::pair<QString, const std::vector<RiferimentoFel>*> gruppi[] = {
        {u"Ordine"_s, &f.ordini},
        {u"Contratto"_s, &f.contratti},
        {u"Convenzione"_s, &f.convenzioni},
        {u"Ricezione"_s, &f.ricezioni},
        {u"Fattura collegata"_s, &f.collegate}};
    for (const auto& [nome, riferimenti] : gruppi)
        for (const RiferimentoFel& r : *riferimenti)
            voce(nome, riferimento(r.numero, r.data));
    for (const DdtFel& d : f.ddt)
        voce(u"Documento di trasporto"_s, riferimento(d.numero, d.data));
    for (const QString& causale : f.causali)
        voce(u"Causale"_s, causale);
}

} // namespace

UscitaFel uscita(const FatturaElettronica& fattura) {
    UscitaFel u;
    mettiCampi(u, fattura);
    mettiRighe(u, fattura);
    mettiAltro(u, fattura);
    return u;
}

} // namespace bor
