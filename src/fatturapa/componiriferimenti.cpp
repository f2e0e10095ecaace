#include "archive/tabelle.h"
#include "common/date.h"
#include "common/numeri.h"
#include "fatturapa/caratteri.h"
#include "fatturapa/composizione.h"
#include "fatturapa/tabellefel.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr qsizetype caratteriNumero = 20;
const QString elementoGenerali = u"FatturaElettronicaBody/DatiGenerali"_s;

QDate data(const QString& testo) {
    return dataValida(completaData(testo)).value_or(QDate());
}

/// "Ord. 305 del 01/01/2014" as number and day; a text without a day is the number.
struct NumeroData {
    QString numero;
    QDate data;

    static NumeroData da(const QString& testo) {
        static const QRegularExpression forma(u"^(.*)\\bdel ([0-9/]{6,10})\\s*$"_s);
        const auto trovato = forma.match(testo);
        const QDate giorno = trovato.hasMatch() ? bor::data(trovato.captured(2)) : QDate();
        const QString numero = giorno.isValid() ? trovato.captured(1) : testo;
        return {testoAscii(numero).left(caratteriNumero).trimmed(), giorno};
    }
};

RiferimentoFel riferimento(const RiferimentoFpa& fpa) {
    return {.numero = testoAscii(fpa.numero.text()),
            .data = data(fpa.data.text()),
            .item = testoAscii(fpa.item.text()),
            .commessa = testoLatino(fpa.commessa.text()),
            .cup = {},
            .cig = {}};
}

void metti(std::vector<RiferimentoFel>& dove, const RiferimentoFel& riferimento) {
    if (!riferimento.numero.isEmpty())
        dove.push_back(riferimento);
}

void dallaMascheraPa(Composizione& c, const Fpa& pa) {
    metti(c.fattura.ordini, riferimento(pa.ordine));
    metti(c.fattura.contratti, riferimento(pa.contratto));
    metti(c.fattura.convenzioni, riferimento(pa.convenzione));
    metti(c.fattura.ricezioni, riferimento(pa.ricezione));
}

void daiPropri(Composizione& c) {
    const DocumentoFel& propri = c.fonti.propri.documento;
    NumeroData ordine = NumeroData::da(propri.ordinenumero);
    if (ordine.numero.isEmpty())
        ordine = NumeroData::da(c.fonti.documento.testata.trasporto.ordine);
    if (!propri.ordinedata.isEmpty())
        ordine.data = c.dataPropria(propri.ordinedata, elementoGenerali + u"/DatiOrdineAcquisto/Data"_s);
    RiferimentoFel r;
    r.numero = ordine.numero;
    r.data = ordine.data;
    if (c.fattura.ordini.empty())
        metti(c.fattura.ordini, r);
    r.numero = testoAscii(propri.contrattonumero).left(caratteriNumero);
    r.data = c.dataPropria(propri.contrattodata, elementoGenerali + u"/DatiContratto/Data"_s);
    if (c.fattura.contratti.empty())
        metti(c.fattura.contratti, r);
}

/// The codes of the project are one pair for the document and stand in each reference.
void mettiCodici(Composizione& c) {
    const DocumentoFel& propri = c.fonti.propri.documento;
    const Fpa* pa = c.fonti.pa;
    const auto scelto = [](const QString& proprio, const QString& suo) {
        return testoAscii(proprio.isEmpty() ? suo : proprio).left(15);
    };
    const QString cup = scelto(propri.cup, pa ? pa->codicecup.trimmed() : QString());
    const QString cig = scelto(propri.cig, pa ? pa->codicecig.trimmed() : QString());
    if (cup.isEmpty() && cig.isEmpty())
        return;
    bool messi = false;
    FatturaElettronica& f = c.fattura;
    for (auto* riferimenti : {&f.ordini, &f.contratti, &f.convenzioni, &f.ricezioni}) {
        for (RiferimentoFel& r : *riferimenti) {
            r.cup = cup;
            r.cig = cig;
            messi = true;
        }
    }
    if (!messi)
        c.rifiuta(u"FatturaElettronicaBody/DatiGenerali/DatiOrdineAcquisto/IdDocumento"_s, {},
                  u"I codici CUP e CIG stanno accanto al numero di un ordine o di un contratto, che manca."_s,
                  u"Indicare l'ordine o il contratto nella maschera \"Fattura elettronica\"."_s);
}

void componiDdt(Composizione& c) {
    const Trasporto& trasporto = c.fonti.documento.testata.trasporto;
    const Fpa* pa = c.fonti.pa;
    NumeroData ddt = NumeroData::da(pa ? pa->numeroddt.trimmed() : QString());
    if (!ddt.numero.isEmpty() && !ddt.data.isValid())
        ddt.data = data(pa->dataddt.text());
    if (ddt.numero.isEmpty())
        ddt = NumeroData::da(trasporto.ddt);
    if (ddt.numero.isEmpty())
        return;
    if (!c.fonti.propri.documento.ddtdata.isEmpty())
        ddt.data = c.dataPropria(c.fonti.propri.documento.ddtdata, elementoGenerali + u"/DatiDDT/DataDDT"_s);
    if (!ddt.data.isValid())
        ddt.data = data(trasporto.inizio);
    if (ddt.data.isValid())
        c.fattura.ddt.push_back({ddt.numero, ddt.data});
    else
        c.avvisa(u"FatturaElettronicaBody/DatiGenerali/DatiDDT/DataDDT"_s, ddt.numero,
                 u"Il documento di trasporto non ha una data e resta fuori dal file."_s,
                 u"Indicarne la data nella maschera \"Fattura elettronica\"."_s);
}

SoggettoFel vettore(const Composizione& c) {
    SoggettoFel s;
    if (c.fonti.pa && !c.fonti.pa->vettorenome.trimmed().isEmpty()) {
        const Fpa& pa = *c.fonti.pa;
        s.denominazione = testoLatino(pa.vettorenome.text()).left(80);
        s.paese = testoAscii(pa.vettorepaese.text()).toUpper();
        s.codice = testoAscii(pa.vettorecodice.text());
        s.codicefiscale = testoAscii(pa.vettorecf.text());
    } else {
        const QString nome = c.fonti.documento.testata.cliente.vettore[0].trimmed();
        const VettoreSuite suo = vettoreDiNome(c.fonti.tabelle, nome);
        s.denominazione = testoLatino(nome).left(80);
        s.paese = testoAscii(suo.paese).toUpper();
        s.codice = testoAscii(suo.partitaiva);
        s.codicefiscale = testoAscii(suo.codicefiscale);
    }
    s.codicefiscale.remove(u'*');
    return s;
}

void componiTrasporto(Composizione& c) {
    constexpr int colliMassimi = 9999;
    constexpr double pesoMassimo = 9999.99;
    const Trasporto& t = c.fonti.documento.testata.trasporto;
    TrasportoFel trasporto;
    trasporto.vettore = vettore(c);
    trasporto.causale = testoLatino(c.fonti.tabelle.vettori[t.causale + 1].causale).left(100);
    trasporto.descrizione = testoLatino(c.fonti.tabelle.vettori[t.aspetto + 1].aspetto).left(100);
    const int colli = valoreIntero(t.colli);
    trasporto.colli = colli >= 1 && colli <= colliMassimi ? colli : 0;
    const double peso = valoretesto(t.peso);
    trasporto.peso = peso > 0 && peso <= pesoMassimo ? peso : 0;
    trasporto.inizio = data(t.inizio);
    const bool qualcosa = !trasporto.vettore.codice.isEmpty() || !trasporto.causale.isEmpty() ||
                          !trasporto.descrizione.isEmpty() || trasporto.colli > 0 || trasporto.peso > 0 ||
                          trasporto.inizio.isValid();
    if (qualcosa && !c.fonti.documento.parcella())
        c.fattura.trasporto = trasporto;
}

} // namespace

void componiRiferimenti(Composizione& c) {
    if (c.fonti.pa)
        dallaMascheraPa(c, *c.fonti.pa);
    daiPropri(c);
    mettiCodici(c);
    componiDdt(c);
    componiTrasporto(c);
}

} // namespace bor
