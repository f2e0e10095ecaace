#include "einvoice/borftepa.h"

#include "common/numeri.h"
#include "einvoice/campifpa.h"
#include "einvoice/generaxml.h"
#include "einvoice/tabellefpa.h"

#include <QFile>
#include <QFileInfo>

namespace bor {

using namespace Qt::StringLiterals;

namespace {

const QString titoloForm = u"Fattura elettronica PA"_s;
constexpr int testoProgressivo = 16;

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
        cambia(testoProgressivo, testoDecimale(valore(m_fpaazienda.progressivoinvio.text()) + 1));
    }
}

void Borftepa::lascia() {
    m_contesto.navigatore.mostra(Schermo::Borftea);
}

void Borftepa::vuotaCampi() {
    m_fpadoc = bianca();
    m_testi.fill({});
    m_date.fill({});
    m_vettore = -1;
    m_generato = false;
}

void Borftepa::apriAzienda() {
    m_fpaazienda = vuoto<Fpa>();
    if (!leggiFpa(u"borlano.fpa"_s, m_fpaazienda))
        m_fpaazienda.statoquadri.set(u"0");
}

void Borftepa::proponi() {
    cambia(0, m_documento.estremi.numero);
    cambiaData(0, m_documento.estremi.data);
    art73 = false;
    esig = m_documento.estremi.esig;
    cambia(1, m_documento.testata.trasporto.ddt);
    cambia(2, m_documento.testata.trasporto.ordine);
    scegli(ListaFpa::TipoDocumento, m_documento.tipodocumento() == 0 ? 0 : 3);
    scegli(ListaFpa::Causale, 0);
    scegli(ListaFpa::TipoRitenuta, 0);
    scegli(ListaFpa::Condizioni, valore(m_documento.scadenze.rate[1].importo) == 0.0 ? 1 : 0);
    proponiPagamento();
    m_fpadoc.coddestinatario.set(m_cliente.clix2.text());
}

/// The payment type's code tells how it is paid; a type without one counts as bank receipts.
void Borftepa::proponiPagamento() {
    const int riga = m_documento.scadenze.pagamento + 1;
    const auto& tipi = m_contesto.tabelle.tipopagamenti;
    const QString codice =
        riga >= 0 && riga < std::ssize(tipi) ? tipi[static_cast<std::size_t>(riga)][1] : QString();
    constexpr std::array modalita = {11, 4, 0, 8}; // RIBA, bank transfer, cash, RID
    constexpr int assegno = 1;
    const int tipo = valoreIntero(pezzo(codice, 23, 1));
    scegli(ListaFpa::Modalita,
           tipo < std::ssize(modalita) ? modalita[static_cast<std::size_t>(tipo)] : assegno);
}

bool Borftepa::apriDocumento() {
    return m_documento.recordfpa > 0 && leggiFpa(fileDocumento(), m_fpadoc);
}

void Borftepa::ripristina() {
    const Fpa& d = m_fpadoc;
    const auto posizione = [](const QString& codice) { return valoreIntero(pezzo(codice, 3)) - 1; };
    art73 = valore(d.art73flag.text()) != 0.0;
    scegliSeEsiste(ListaFpa::TipoDocumento, valoreIntero(pezzo(d.tipodocpa.text(), 4, 1)) - 1);
    const QString causale = d.causalepagamento.text();
    const QStringList& causali = vociFpa(ListaFpa::Causale);
    const auto trovata =
        std::ranges::find_if(causali, [&](const QString& voce) { return voce.startsWith(causale); });
    if (trovata != causali.end())
        scegli(ListaFpa::Causale, static_cast<int>(trovata - causali.begin()));
    // The kinds of withholding count from RT00, so this one comes back a row early.
    scegliSeEsiste(ListaFpa::TipoRitenuta, posizione(d.tiporitenuta.text()));
    scegliSeEsiste(ListaFpa::Condizioni, posizione(d.condizionipagamento.text()));
    scegliSeEsiste(ListaFpa::Modalita, posizione(d.modalitapagamento.text()));
    for (int i = 0; i < numeroTesti; ++i)
        conCampoFpa(d, i, [&](const auto& campo) { m_testi[static_cast<std::size_t>(i)] = campo.trimmed(); });
    for (int i = 0; i < numeroDate; ++i)
        m_date[static_cast<std::size_t>(i)] = campoDataFpa(d, i).trimmed();
}

void Borftepa::cambia(int indice, const QString& testo) {
    m_testi[static_cast<std::size_t>(indice)] = testo;
    conCampoFpa(m_fpadoc, indice, [&](auto& campo) { campo.set(testo); });
}

void Borftepa::cambiaData(int indice, const QString& testo) {
    m_date[static_cast<std::size_t>(indice)] = testo;
    campoDataFpa(m_fpadoc, indice).set(testo);
}

void Borftepa::lasciaData(int indice) {
    const auto letta = dataValida(completaData(data(indice)));
    cambiaData(indice, testoData(letta.value_or(m_contesto.orologio.oggi())));
}

bool Borftepa::dataCompleta(int indice) const {
    return data(indice).size() == 10 && dataValida(data(indice));
}

Borftepa::Posto Borftepa::invio(Posto da) {
    constexpr std::array dopoData = {16, 2, 3, 6, 9, 12};
    if (da.data)
        return {false, dopoData[static_cast<std::size_t>(da.indice)]};
    switch (da.indice) {
    case 0:
    case 1:
    case 2:
        return {true, da.indice};
    case 5:
    case 8:
    case 11:
        return {true, da.indice / 3 + 2};
    case 15:
        return da;
    case testoProgressivo:
        return {false, 1};
    default:
        return {false, da.indice + 1};
    }
}

QStringList Borftepa::vettori() const {
    QStringList nomi;
    const auto& righe = m_contesto.tabelle.vettori;
    for (std::size_t i = 1; i < righe.size(); ++i)
        nomi.append(righe[i][2]);
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
    m_contesto.operatore.messaggio(u"Il file %1 è stato creato all'interno della cartella %2"_s.arg(
                                       nomeXml(m_fpaazienda, testo(0)), cartellaXml(m_fpaazienda)),
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
    const QString percorso = percorsoXml(m_contesto.archivio, m_fpaazienda, testo(0));
    if (!percorso.isEmpty())
        m_contesto.archivio.disco().scriviFile(percorso, xml);
}

void Borftepa::raccogli() {
    Fpa& d = m_fpadoc;
    d.tipodocpa.set(voce(ListaFpa::TipoDocumento).left(4));
    const bool ritenuta = m_riepilogo.percentualeritenuta > 0;
    d.tiporitenuta.set(ritenuta ? voce(ListaFpa::TipoRitenuta).left(4) : QString());
    d.importoritenuta.set(ritenuta ? testoDecimale(m_riepilogo.totaleritenuta) : QString());
    d.aliquotaritenuta.set(ritenuta ? testoDecimale(m_riepilogo.percentualeritenuta) : QString());
    d.causalepagamento.set(ritenuta ? voce(ListaFpa::Causale).left(1) : QString());
    d.tipocassa.blank();
    d.alcassa.blank();
    d.importocassa.blank();
    d.imponibilecassa.blank();
    d.aliquotacassa.blank();
    d.ritenutacassa.blank();
    d.naturacassa.blank();
    d.condizionipagamento.set(voce(ListaFpa::Condizioni).left(4));
    d.modalitapagamento.set(voce(ListaFpa::Modalita).left(4));
    d.art73flag.set(art73 ? u"1" : u"0");
    d.esigdifferita.set(esig ? u"1" : u"0");
}

void Borftepa::scriviDati() {
    if (m_documento.recordfpa < 1)
        m_documento.recordfpa = nuovoProgressivo();
    scriviFpa(fileDocumento(), m_fpadoc);
    scriviFpa(u"borlano.fpa"_s, m_fpaazienda);
}

/// The counter is 16 bits wide on file and starts again where they end.
double Borftepa::nuovoProgressivo() {
    Archivio& archivio = m_contesto.archivio;
    const BloccoByte blocco = archivio.bloccaContatori();
    Tot contatore = archivio.leggiTot(Conta::Fpa);
    const int ultimo = std::max<int>(contatore.numero, 0);
    contatore.numero = static_cast<std::int16_t>(ultimo >= Archivio::massimo ? 1 : ultimo + 1);
    archivio.scriviTot(Conta::Fpa, contatore);
    return contatore.numero;
}

std::optional<std::vector<Rilievo>> Borftepa::controlla() {
    const QString percorso = percorsoXml(m_contesto.archivio, m_fpaazienda, testo(0));
    QFile file(percorso);
    if (percorso.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        m_contesto.operatore.messaggio(
            u"Il file %1 non si trova nella cartella %2: controllare che la cartella esista e che il numero del documento possa far parte del nome di un file"_s
                .arg(nomeXml(m_fpaazienda, testo(0)), cartellaXml(m_fpaazienda)),
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

void Borftepa::scegliSeEsiste(ListaFpa lista, int posizione) {
    if (posizione >= -1 && posizione < vociFpa(lista).size())
        scegli(lista, posizione);
}

} // namespace bor
