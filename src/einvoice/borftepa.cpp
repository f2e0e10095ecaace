#include "einvoice/borftepa.h"

#include "common/numeri.h"
#include "einvoice/filefpa.h"
#include "einvoice/tabellefpa.h"

namespace bor {

using namespace Qt::StringLiterals;

namespace {

/// The codes in front of the rows of the lists, as "MP05".
constexpr qsizetype lunghezzaCodice = 4;
constexpr qsizetype cifreCodice = 3; ///< position of the digits, from 1
constexpr qsizetype cifraTipoDocumento = 4;
constexpr qsizetype letteraCausale = 1;

Fpa bianca() {
    Fpa fpa = vuoto<Fpa>();
    const auto bytes = std::as_writable_bytes(std::span(&fpa, 1));
    std::ranges::fill(bytes, std::byte{' '});
    return fpa;
}

} // namespace

Borftepa::Borftepa(Contesto& contesto, Documento& documento) : m_contesto(contesto), m_documento(documento) {}

void Borftepa::attiva() {
    m_cliente = m_contesto.archivio.cli.leggi(m_documento.recordcliente);
    vuotaCampi();
    m_fuoco = TestoFpa::Numero;
    apriAzienda();
    if (valore(m_fpaazienda.statoquadri.text()) != Fpa::compilato) {
        m_contesto.operatore.messaggio(
            u"Non sono ancora stati compilati i quadri proposti dal 'Kit Fatture elettroniche PA': la compilazione di tali quadri è necessaria per la corretta generazione della fattura elettronica PA"_s,
            u"Attenzione"_s, Icona::Stop);
        lascia();
        return;
    }
    m_righepa = caricarighe(m_documento.ddd);
    m_riepilogo = calcolaiva(m_righepa, m_documento.scorporo, m_contesto.tabelle, m_contesto.valuta());
    proponi();
    switch (apriDocumento()) {
    case LetturaFpa::Letta:
        return ripristina();
    case LetturaFpa::Assente:
        m_documento.recordfpa = 0;
        return cambia(TestoFpa::Progressivo, testoDecimale(valore(m_fpaazienda.progressivoinvio.text()) + 1));
    case LetturaFpa::Illeggibile:
        m_contesto.operatore.messaggio(
            u"Il file %1, con i dati già inseriti per questa fattura, esiste ma non si può leggere. Per non scriverci sopra la maschera non si apre: controllate i permessi del file nella cartella dell'azienda e che nessun altro programma lo tenga occupato."_s
                .arg(fileDocumento()),
            u"Attenzione"_s, Icona::Stop);
        return lascia();
    }
}

void Borftepa::lascia() {
    m_contesto.navigatore.mostra(Schermo::Borftea);
}

void Borftepa::vuotaCampi() {
    m_fpadoc = bianca();
    m_testi.fill({});
    m_vettore = -1;
    m_generata.reset();
}

void Borftepa::apriAzienda() {
    m_fpaazienda = vuoto<Fpa>();
    if (leggiFpa(m_contesto.archivio, fileAzienda, m_fpaazienda) != LetturaFpa::Letta)
        m_fpaazienda.statoquadri.set(u"0");
}

void Borftepa::proponi() {
    const Trasporto& trasporto = m_documento.testata.trasporto;
    const bool completo = valore(m_documento.scadenze.rate[1].importo) == 0.0;
    cambia(TestoFpa::Numero, m_documento.estremi.numero);
    cambia(DataFpa::Documento, m_documento.estremi.data);
    art73 = false;
    esig = m_documento.estremi.esig;
    cambia(TestoFpa::NumeroDdt, trasporto.ddt);
    cambia(TestoFpa::OrdineNumero, trasporto.ordine);
    scegliCodice(ListaFpa::TipoDocumento, m_documento.tipodocumento() == 0 ? u"TD01" : u"TD04");
    scegliCodice(ListaFpa::Causale, u"A");
    scegliCodice(ListaFpa::TipoRitenuta, u"RT00");
    scegliCodice(ListaFpa::Condizioni, completo ? u"TP02" : u"TP01");
    proponiPagamento();
    m_fpadoc.coddestinatario.set(m_cliente.clix2.text());
}

/// The payment type's code tells how it is paid; a type without one counts as bank receipts.
void Borftepa::proponiPagamento() {
    // Bank receipt, bank transfer, cash, direct debit.
    constexpr std::array<QStringView, 4> modalita = {u"MP12", u"MP05", u"MP01", u"MP09"};
    constexpr QStringView assegno = u"MP02";
    const TipoPagamento& scelto = m_contesto.tabelle.tipopagamenti[m_documento.scadenze.pagamento + 1];
    const int tipo = scelto.modalita();
    scegliCodice(ListaFpa::Modalita,
                 tipo >= 0 && tipo < quantiIn(modalita) ? elemento(modalita, tipo) : assegno);
}

LetturaFpa Borftepa::apriDocumento() {
    Fpa letto = m_fpadoc;
    const LetturaFpa esito = m_documento.recordfpa > 0 ? leggiFpa(m_contesto.archivio, fileDocumento(), letto)
                                                       : LetturaFpa::Assente;
    if (esito == LetturaFpa::Letta)
        m_fpadoc = letto;
    return esito;
}

void Borftepa::ripristina() {
    const Fpa& d = m_fpadoc;
    const auto posizione = [](const QString& codice) { return valoreIntero(pezzo(codice, cifreCodice)) - 1; };
    art73 = valore(d.art73flag.text()) != 0.0;
    scegliSeEsiste(ListaFpa::TipoDocumento,
                   valoreIntero(pezzo(d.tipodocpa.text(), cifraTipoDocumento, 1)) - 1);
    const int causale = posizioneFpa(ListaFpa::Causale, d.causalepagamento.text());
    if (causale >= 0)
        scegli(ListaFpa::Causale, causale);
    // The kinds of withholding count from RT00, so this one comes back a row early.
    scegliSeEsiste(ListaFpa::TipoRitenuta, posizione(d.tiporitenuta.text()));
    scegliSeEsiste(ListaFpa::Condizioni, posizione(d.condizionipagamento.text()));
    scegliSeEsiste(ListaFpa::Modalita, posizione(d.modalitapagamento.text()));
    for (const CasellaFpa& casella : caselleFpa())
        m_testi[indiceFpa(casella.posto)] = casella.leggi(d);
}

void Borftepa::cambia(PostoFpa posto, const QString& testo) {
    m_testi[indiceFpa(posto)] = testo;
    casellaFpa(posto).scrivi(m_fpadoc, testo);
}

void Borftepa::lasciaData(DataFpa data) {
    const auto letta = dataValida(completaData(testo(data)));
    cambia(data, testoData(letta.value_or(m_contesto.orologio.oggi())));
}

bool Borftepa::dataCompleta(DataFpa data) const {
    constexpr qsizetype lunghezzaData = 10; // "dd/mm/yyyy"
    return testo(data).size() == lunghezzaData && dataValida(testo(data));
}

void Borftepa::invio(PostoFpa posto) {
    m_fuoco = casellaFpa(posto).dopo;
}

QStringList Borftepa::vettori() const {
    QStringList nomi;
    for (const RigaTrasporto& riga : m_contesto.tabelle.vettori)
        nomi.append(riga.vettore[0]);
    return nomi;
}

void Borftepa::scegliVettore(int posizione) {
    m_vettore = posizione;
    mettiVettore(m_fpadoc, m_contesto.tabelle, posizione + 1);
}

void Borftepa::raccogli() {
    Fpa& d = m_fpadoc;
    d.tipodocpa.set(voce(ListaFpa::TipoDocumento).left(lunghezzaCodice));
    const bool ritenuta = m_riepilogo.percentualeritenuta > 0;
    d.tiporitenuta.set(ritenuta ? voce(ListaFpa::TipoRitenuta).left(lunghezzaCodice) : QString());
    d.importoritenuta.set(ritenuta ? testoDecimale(m_riepilogo.totaleritenuta) : QString());
    d.aliquotaritenuta.set(ritenuta ? testoDecimale(m_riepilogo.percentualeritenuta) : QString());
    d.causalepagamento.set(ritenuta ? voce(ListaFpa::Causale).left(letteraCausale) : QString());
    d.tipocassa.blank();
    d.alcassa.blank();
    d.importocassa.blank();
    d.imponibilecassa.blank();
    d.aliquotacassa.blank();
    d.ritenutacassa.blank();
    d.naturacassa.blank();
    d.condizionipagamento.set(voce(ListaFpa::Condizioni).left(lunghezzaCodice));
    d.modalitapagamento.set(voce(ListaFpa::Modalita).left(lunghezzaCodice));
    d.art73flag.set(art73 ? u"1" : u"0");
    d.esigdifferita.set(esig ? u"1" : u"0");
}

QString Borftepa::fileDocumento() const {
    return u"fpa"_s + testoDecimale(m_documento.recordfpa);
}

QString Borftepa::voce(ListaFpa lista) const {
    return vociFpa(lista).value(scelta(lista));
}

void Borftepa::scegliCodice(ListaFpa lista, QStringView codice) {
    scegli(lista, posizioneFpa(lista, codice));
}

void Borftepa::scegliSeEsiste(ListaFpa lista, int posizione) {
    if (posizione >= -1 && posizione < vociFpa(lista).size())
        scegli(lista, posizione);
}

} // namespace bor
