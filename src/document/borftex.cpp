#include "document/borftex.h"

#include "archive/contesto.h"
#include "common/numeri.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int codiciIva = 24;

QString codiceIva(int codice) {
    return zeriDavanti(QString::number(codice), 2);
}

} // namespace

Borftex::Borftex(Contesto& contesto, Documento& documento)
    : m_contesto(contesto), m_documento(documento), m_righe(righeMerce) {}

void Borftex::attiva() {
    const Archivio& archivio = m_contesto.archivio;
    m_documento.cliente = archivio.cli.leggi(m_documento.recordcliente);
    m_barcode = m_contesto.impostazioni.gnr.barcode != 0;
    m_listino = m_documento.cliente.listino.text() == u"1" ? 2 : 1;
    m_listaCaricata = false;
    m_listaVisibile = !m_barcode && artNonVuoto();
    if (m_listaVisibile)
        caricaLista();
    m_righe = m_documento.ddd;
    m_righe.resize(righeMerce);
    // Loaded lines weigh what the article last read in this run weighs: exact weights come only from the
    // lines typed in this visit.
    for (Riga& r : m_righe)
        r.peso = r.recart >= 1 ? double{m_articolo.peso} : 0.0;
    m_primariga = 1;
    m_rigafocus = 0;
    m_digitato.reset();
    m_combo1 = false;
    m_listx.clear();
    // Opening the lines shows their totals but leaves the weight in the head alone.
    m_totali = ricalcola(m_righe, scorporo(), m_contesto.tabelle, m_contesto.valuta());
    m_fuoco = Cella{Campo::Artic, 0};
}

QString Borftex::titolo() const {
    return m_documento.notaCredito() ? u"Ristampa nota credito"_s : u"Ristampa fattura"_s;
}

QString Borftex::numfat() const {
    return testoDecimale(valore(m_documento.estremi.numero.trimmed()));
}

QString Borftex::link() const {
    const double nfile = m_documento.coppia.fte.nfile;
    return nfile > 0 ? u"Link:"_s + testoDecimale(nfile) : QString();
}

QString Borftex::testo(Cella cella) const {
    const Riga& r = riga(cella.r);
    switch (cella.campo) {
    case Campo::Artic:
        return cella.r == m_rigafocus && m_digitato ? *m_digitato : r.codice;
    case Campo::Ds:
        return r.descrizione;
    case Campo::Um:
        return r.um;
    case Campo::Quantita:
        return testoCasella(r.quantita);
    case Campo::Sc1:
        return testoCasella(r.sconto1);
    case Campo::Sc2:
        return testoCasella(r.sconto2);
    case Campo::Prezzo:
        return testoCasella(r.prezzo);
    case Campo::Civ:
        return r.iva == 0 ? QString() : codiceIva(r.iva);
    }
    return {};
}

QString Borftex::tota(int indice) const {
    if (indice == 2)
        return u' ' + testoDecimale(m_totali.pezzi);
    const Valuta valuta = m_contesto.valuta();
    const double x = indice == 0 ? m_totali.totimp : m_totali.totale;
    return u' ' + (valuta.euro ? testoItaliano(x, 2) : valuta.importotesto(x));
}

QString Borftex::alr() const {
    return testoDecimale(m_totali.aliquotarit);
}

QString Borftex::imr() const {
    return testoDecimale(m_totali.importorit);
}

QStringList Borftex::vociIva() const {
    const Tabelle& tabelle = m_contesto.tabelle;
    QStringList voci;
    for (std::size_t i = 1; i <= codiciIva / 2; ++i) {
        const auto& riga = tabelle.aliquote[i];
        QString voce = codiceIva(static_cast<int>(i)) + u" Iva "_s + riga[0].trimmed() + u'%';
        if (valore(riga[1]) != 0.0)
            voce += u" - Rit.Acconto "_s + riga[1].trimmed() + u'%';
        voci.append(voce);
    }
    for (std::size_t i = 1; i <= codiciIva / 2; ++i)
        voci.append(codiceIva(static_cast<int>(i) + codiciIva / 2) + u' ' +
                    tabelle.esenzioni[i][1].trimmed());
    return voci;
}

int Borftex::combo1Posizione() const {
    return std::clamp(riga(m_rigafocus).iva, 1, codiciIva) - 1;
}

std::optional<Borftex::Cella> Borftex::prendiFuoco() {
    return std::exchange(m_fuoco, std::nullopt);
}

void Borftex::scorri(int primariga) {
    m_primariga = std::clamp(primariga, 1, ultimaPrimariga);
    m_digitato.reset();
    m_combo1 = false;
}

void Borftex::pagina(int righe) {
    scorri(m_primariga + righe);
    m_fuoco = Cella{Campo::Artic, m_rigafocus};
}

bool Borftex::artNonVuoto() const {
    return m_contesto.archivio.leggiTot(Conta::Art).numero > 0;
}

void Borftex::caricaLista() {
    const Attesa attesa(m_contesto.operatore);
    m_lista.carica(m_contesto.archivio, OrdineArticoli::Codice);
    m_listaCaricata = true;
    m_posizioneLista = -1;
    ++m_edizioneLista;
}

void Borftex::apriLista() {
    if (!artNonVuoto())
        return;
    if (!m_listaCaricata)
        caricaLista();
    m_listaVisibile = true;
    m_fuoco = Cella{Campo::Artic, m_rigafocus};
}

void Borftex::cambiaBarcode(bool acceso) {
    m_barcode = acceso;
    m_listaVisibile = false;
    if (!acceso)
        apriLista();
    m_fuoco = Cella{Campo::Artic, m_rigafocus};
}

void Borftex::cambiaScorporo(bool acceso) {
    m_documento.scorporo = acceso;
    ricalcolaTutto();
}

void Borftex::ricalcolaTutto() {
    m_totali = ricalcola(m_righe, scorporo(), m_contesto.tabelle, m_contesto.valuta());
    if (m_contesto.impostazioni.gnr.pesoautomatico == 1)
        riportaPeso();
}

void Borftex::riportaPeso() {
    constexpr int decimali = 3;
    QString peso = testoItaliano(m_totali.pesototale, decimali);
    while (peso.endsWith(u'0'))
        peso.chop(1);
    if (peso.endsWith(u','))
        peso.chop(1);
    m_documento.testata.trasporto.peso = peso;
}

} // namespace bor
