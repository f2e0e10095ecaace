#include "einvoice/borftepa.h"

#include "archive/raffica.h"
#include "common/numeri.h"
#include "document/avvisi.h"
#include "einvoice/generaxml.h"
#include "einvoice/tabellefpa.h"

#include <QFile>
#include <QFileInfo>

namespace bor {

using namespace Qt::StringLiterals;

namespace {

const QString titoloForm = u"Fattura elettronica PA"_s;

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
    if (apriDocumento()) {
        ripristina();
    } else {
        m_documento.recordfpa = 0;
        cambia(TestoFpa::Progressivo, testoDecimale(valore(m_fpaazienda.progressivoinvio.text()) + 1));
    }
}

void Borftepa::lascia() {
    m_contesto.navigatore.mostra(Schermo::Borftea);
}

void Borftepa::vuotaCampi() {
    m_fpadoc = bianca();
    m_testi.fill({});
    m_vettore = -1;
    m_generato = false;
}

void Borftepa::apriAzienda() {
    m_fpaazienda = vuoto<Fpa>();
    if (!leggiFpa(u"borlano.fpa"_s, m_fpaazienda))
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
    const auto tipo = static_cast<std::size_t>(scelto.modalita());
    scegliCodice(ListaFpa::Modalita, tipo < modalita.size() ? modalita[tipo] : assegno);
}

bool Borftepa::apriDocumento() {
    return m_documento.recordfpa > 0 && leggiFpa(fileDocumento(), m_fpadoc);
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

void Borftepa::genera() {
    {
        const Attesa attesa(m_contesto.operatore);
        raccogli();
        scriviXml();
        scriviDati();
    }
    m_generato = true;
    // Said of a failed write too, as the suite always did; the check of the file tells the truth.
    m_contesto.operatore.messaggio(
        u"Il file %1 è stato creato all'interno della cartella %2"_s.arg(
            nomeXml(m_fpaazienda, testo(TestoFpa::Numero)), cartellaXml(m_fpaazienda)),
        titoloForm, Icona::Informazione);
}

void Borftepa::scriviXml() {
    m_riepilogo = calcolaiva(m_righepa, m_documento.scorporo, m_contesto.tabelle, m_contesto.valuta());
    completaCodici(m_righepa);
    const QByteArray xml = generaxml({.azienda = m_fpaazienda,
                                      .documento = m_fpadoc,
                                      .cliente = m_cliente,
                                      .righepa = m_righepa,
                                      .riepilogo = m_riepilogo,
                                      .scadenze = m_documento.scadenze,
                                      .coordinate = m_documento.testata.cliente.coordinate,
                                      .tabelle = m_contesto.tabelle,
                                      .valuta = m_contesto.valuta()});
    const QString percorso = percorsoXml(m_contesto.archivio, m_fpaazienda, testo(TestoFpa::Numero));
    if (!percorso.isEmpty())
        m_contesto.archivio.disco().scriviFile(percorso, xml);
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

void Borftepa::scriviDati() {
    if (m_documento.recordfpa < 1)
        m_documento.recordfpa = nuovoProgressivo();
    if (m_documento.recordfpa < 1)
        return;
    scriviFpa(fileDocumento(), m_fpadoc);
    scriviFpa(u"borlano.fpa"_s, m_fpaazienda);
}

/// The counter is 16 bits wide on file and starts again where they end. 0 when it could not be counted on:
/// the operator was told.
double Borftepa::nuovoProgressivo() {
    int numero = 0;
    EsitoRaffica esito{};
    {
        Raffica raffica(m_contesto.archivio, u"numero di una fattura elettronica"_s);
        Tot contatore = raffica.leggiTot(Conta::Fpa);
        const int ultimo = std::max<int>(contatore.numero, 0);
        numero = ultimo >= Archivio::massimo ? 1 : ultimo + 1;
        contatore.numero = static_cast<std::int16_t>(numero);
        raffica.scriviTot(Conta::Fpa, contatore);
        esito = raffica.esegui();
    }
    avvisaRecuperi(m_contesto);
    if (esito == EsitoRaffica::Riuscita)
        return numero;
    avvisaNonRegistrato(m_contesto, esito);
    return 0;
}

std::optional<std::vector<Rilievo>> Borftepa::controlla() {
    const QString percorso = percorsoXml(m_contesto.archivio, m_fpaazienda, testo(TestoFpa::Numero));
    QFile file(percorso);
    if (percorso.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        m_contesto.operatore.messaggio(
            u"Il file %1 non si trova nella cartella %2: controllare che la cartella esista e che il numero del documento possa far parte del nome di un file"_s
                .arg(nomeXml(m_fpaazienda, testo(TestoFpa::Numero)), cartellaXml(m_fpaazienda)),
            titoloForm, Icona::Esclamazione);
        return std::nullopt;
    }
    return controllaXml(file.readAll(), QFileInfo(percorso).fileName());
}

bool Borftepa::leggiFpa(const QString& nome, Fpa& fpa) const {
    RecordFile<Fpa> file(m_contesto.archivio.disco());
    if (!file.apri(m_contesto.archivio.reale(m_contesto.archivio.file(nome)), Apertura::SolaLettura))
        return false;
    file.leggi(1, fpa);
    return true;
}

void Borftepa::scriviFpa(const QString& nome, const Fpa& fpa) const {
    RecordFile<Fpa> file(m_contesto.archivio.disco());
    if (file.apri(m_contesto.archivio.reale(m_contesto.archivio.file(nome))))
        file.scrivi(1, fpa);
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
