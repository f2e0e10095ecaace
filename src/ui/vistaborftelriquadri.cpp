// The panels of today's electronic invoice: what goes out, the fields that change it, and the findings beside
// them.
#include "document/codiceiva.h"
#include "ui/vistaborftel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr std::array<ColonnaGriglia, 8> colonneRighe = {{
    {u"N.", 450, Qt::AlignRight},
    {u"Descrizione", ColonnaGriglia::elastica},
    {u"Quantità", 1100, Qt::AlignRight},
    {u"UM", 600},
    {u"Prezzo", 1400, Qt::AlignRight},
    {u"Sconti", 1100},
    {u"Totale", 1400, Qt::AlignRight},
    {u"IVA", 900, Qt::AlignRight},
}};
constexpr std::array<ColonnaGriglia, 6> colonneRiepilogo = {{
    {u"IVA", 800, Qt::AlignRight},
    {u"Riferimento", ColonnaGriglia::elastica},
    {u"Imponibile", 1300, Qt::AlignRight},
    {u"Imposta", 1200, Qt::AlignRight},
    {u"Arrot.", 800, Qt::AlignRight},
    {u"Esigibilità", 1100},
}};
constexpr std::array<ColonnaGriglia, 3> colonneRate = {{
    {u"Scadenza", 1100},
    {u"Importo", 1300, Qt::AlignRight},
    {u"Conto o banca", ColonnaGriglia::elastica},
}};
constexpr std::array<ColonnaGriglia, 2> colonneAltro = {{
    {u"Dato", 1900},
    {u"Nel file", ColonnaGriglia::elastica},
}};

constexpr int colonnaNelFile = 2;
/// Stands before what goes out for a field.
const QString freccia = u"→\u00A0"_s;

QGridLayout* grigliaIn(QGroupBox* gruppo) {
    auto* griglia = new QGridLayout(gruppo);
    griglia->setVerticalSpacing(5);
    griglia->setColumnStretch(1, 3);
    griglia->setColumnStretch(colonnaNelFile, 2);
    return griglia;
}

/// Keeps what stands in a grid at its top.
void chiudi(QGridLayout* griglia) {
    griglia->setRowStretch(griglia->rowCount(), 1);
}

QStringList vociDi(ListaCodici lista, const QString& niente) {
    QStringList testi{niente};
    for (const VoceCodice& voce : vociCodici(lista))
        testi.append(codiceInParole(lista, voce.codice));
    return testi;
}

/// Position in a list whose first row is for none; -1 for a code that it does not have.
int posizioneDi(ListaCodici lista, const QString& codice) {
    const auto voci = vociCodici(lista);
    const auto trovata = std::ranges::find(voci, QStringView(codice), &VoceCodice::codice);
    return codice.isEmpty() ? 0 : trovata == voci.end() ? -1 : static_cast<int>(trovata - voci.begin()) + 1;
}

QString codiceA(ListaCodici lista, int posizione) {
    return posizione <= 0 ? QString()
                          : vociCodici(lista)[static_cast<std::size_t>(posizione - 1)].codice.toString();
}

} // namespace

template <class... Passi>
QLineEdit* VistaBorftel::testo(const QString& nome, const QString& didascalia, int caratteri,
                               Passi... passi) {
    return m_campi.testo(nome, didascalia, caratteri, legame(m_form, passi...));
}

template <class... Passi>
QWidget* VistaBorftel::data(const QString& nome, const QString& didascalia, Passi... passi) {
    return m_campi.data(nome, u"calendario."_s + nome, didascalia, legame(m_form, passi...));
}

template <class... Passi>
QWidget* VistaBorftel::spunta(const QString& nome, const QString& didascalia, Passi... passi) {
    const Legame<QString> dato = legame(m_form, passi...);
    return m_campi.spunta(nome, didascalia,
                          {[dato] { return dato.leggi() == u"SI"; },
                           [dato](const bool& acceso) { dato.scrivi(acceso ? u"SI"_s : QString()); }});
}

template <class... Passi>
QComboBox* VistaBorftel::lista(const QString& nome, const QString& didascalia, ListaCodici voci,
                               const QString& niente, Passi... passi) {
    const Legame<QString> dato = legame(m_form, passi...);
    auto* scelta =
        m_campi.lista(nome, didascalia, vociDi(voci, niente),
                      {[dato, voci] { return posizioneDi(voci, dato.leggi()); },
                       [dato, voci](const int& posizione) { dato.scrivi(codiceA(voci, posizione)); }});
    legami.altro([scelta, dato] { scelta->setPlaceholderText(dato.leggi()); });
    return scelta;
}

QLabel* VistaBorftel::rilievi(PostoFel posto) {
    auto* etichetta = new QLabel;
    etichetta->setObjectName(u"rilievi."_s + nomePosto(posto));
    etichetta->setTextFormat(Qt::PlainText);
    etichetta->setWordWrap(true);
    etichetta->hide();
    legami.altro([this, etichetta, posto] {
        const QString testo = m_form.rilievi().testo(posto);
        // Nothing moves under the fingers of who is typing: a new finding waits until the field is left.
        if (etichetta->isHidden() && siScriveIn(posto))
            return;
        etichetta->setText(testo);
        etichetta->setVisible(!testo.isEmpty());
        segna(etichetta, "avviso", m_form.rilievi().grave(posto));
        segna(etichetta, "consiglio", !m_form.rilievi().grave(posto));
        if (QWidget* campo = m_posti[posto])
            campo->setAccessibleDescription(testo);
    });
    return etichetta;
}

bool VistaBorftel::siScriveIn(PostoFel posto) const {
    const auto campo = m_scritti.find(focusWidget());
    return campo != m_scritti.end() && campo->second == posto;
}

void VistaBorftel::riga(QGridLayout* griglia, PostoFel posto, const std::vector<QWidget*>& campi) {
    const int numero = griglia->rowCount();
    const QString nome = nomePosto(posto);
    auto* insieme = new QHBoxLayout;
    for (QWidget* campo : campi) {
        insieme->addWidget(campo);
        QWidget* inFuoco = campo->focusProxy() ? campo->focusProxy() : campo;
        m_percorso.push_back(inFuoco);
        if (qobject_cast<QLineEdit*>(inFuoco)) {
            m_scritti[inFuoco] = posto;
            legami.lasciato(inFuoco, [] {}); // the findings that waited for it come into view
        }
    }
    if (!qobject_cast<QComboBox*>(campi.back()) && !qobject_cast<QLineEdit*>(campi.front()))
        insieme->addStretch();
    if (!qobject_cast<QCheckBox*>(campi.front()))
        griglia->addWidget(didascalia(nome, campi.front()), numero, 0, Qt::AlignRight | Qt::AlignVCenter);
    griglia->addLayout(insieme, numero, 1);
    m_posti[posto] = campi.front()->focusProxy() ? campi.front()->focusProxy() : campi.front();
    griglia->addWidget(rilievi(posto), numero + 1, 1, 1, 2);
}

void VistaBorftel::rigaConUscita(QGridLayout* griglia, PostoFel posto, const std::vector<QWidget*>& campi) {
    const int numero = griglia->rowCount();
    riga(griglia, posto, campi);
    auto* nelFile = new QLabel;
    nelFile->setObjectName(u"nelfile."_s + nomePosto(posto));
    nelFile->setTextFormat(Qt::PlainText);
    nelFile->setWordWrap(true);
    legami.etichetta(nelFile, [this, posto] {
        const QString testo = m_form.uscita().nelFile[posto];
        return testo.isEmpty() ? testo : freccia + testo;
    });
    griglia->addWidget(nelFile, numero, colonnaNelFile);
}

void VistaBorftel::rigaSola(QGridLayout* griglia, const QString& nome, QWidget* campo) {
    m_percorso.push_back(campo);
    bor::riga(griglia, griglia->rowCount(), nome, campo);
}

QTableView* VistaBorftel::tabella(const QString& nome, const QString& descrizione,
                                  std::span<const ColonnaGriglia> colonne,
                                  QList<QStringList> UscitaFel::*righe) {
    auto* vista = new QTableView;
    vista->setObjectName(nome);
    vista->setAccessibleName(descrizione);
    const auto elenco = [this, righe]() -> const QList<QStringList>& { return m_form.uscita().*righe; };
    const auto quante = [elenco] { return static_cast<int>(elenco().size()); };
    auto* modello = new ModelloGriglia(
        colonne,
        {quante, [elenco](int riga, int colonna) { return elenco().value(riga).value(colonna); },
         [](int, int) { return std::nullopt; }},
        this);
    vista->setModel(modello);
    preparaElenco(vista, colonne, quante);
    legami.altro([this, modello, edizione = -1]() mutable {
        if (std::exchange(edizione, m_form.edizione()) != m_form.edizione())
            modello->rinnova();
    });
    return vista;
}

void VistaBorftel::chiudiPercorso(Prospetto prospetto) {
    for (std::size_t i = 0; i < m_percorso.size(); ++i) {
        const std::vector<QWidget*> resto(m_percorso.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                                          m_percorso.end());
        invio.passo(m_percorso[i], [this, resto] { vaiAlPrimo(resto); });
    }
    m_percorsi[static_cast<std::size_t>(prospetto)] = std::exchange(m_percorso, {});
}

QWidget* VistaBorftel::creaDocumento() {
    auto* prospetto = new QWidget;
    auto* linea = new QHBoxLayout(prospetto);
    linea->setContentsMargins(0, 0, 0, 0);
    auto* sinistra = new QVBoxLayout;
    sinistra->addWidget(creaDestinatario());
    sinistra->addWidget(creaPagamento(), 1);
    linea->addLayout(sinistra, 1);
    linea->addWidget(creaDati(), 1);
    return prospetto;
}

QWidget* VistaBorftel::creaDestinatario() {
    auto* gruppo = new QGroupBox(u"Destinatario (vale per tutti i documenti del cliente)"_s);
    auto* griglia = grigliaIn(gruppo);
    auto* formato = new QLabel;
    formato->setObjectName(u"nelfile.Destinatario"_s);
    legami.etichetta(formato, [this] { return m_form.uscita().nelFile[PostoFel::Destinatario]; });
    griglia->addWidget(formato, 0, 1, 1, 2);
    griglia->addWidget(rilievi(PostoFel::Destinatario), 1, 0, 1, 3);
    using enum PostoFel;
    const auto campo = [&](PostoFel posto, const QString& nome, int caratteri, QString ClienteFel::*dato) {
        rigaConUscita(griglia, posto, {testo(nome, nomePosto(posto), caratteri, &DatiFel::cliente, dato)});
    };
    campo(CodiceDestinatario, u"codice"_s, 7, &ClienteFel::codice);
    m_posti[Destinatario] = m_posti[CodiceDestinatario];
    campo(Pec, u"pec"_s, 256, &ClienteFel::pec);
    rigaConUscita(
        griglia, Scissione,
        {spunta(u"splitpayment"_s, nomePosto(Scissione), &DatiFel::cliente, &ClienteFel::splitpayment)});
    const QString ricevuta = u"Dichiarazione di intento, data della ricevuta"_s;
    rigaConUscita(griglia, Intento,
                  {testo(u"intento"_s, nomePosto(Intento), 24, &DatiFel::cliente, &ClienteFel::intento),
                   data(u"intentoricezione"_s, ricevuta, &DatiFel::cliente, &ClienteFel::intentoricezione)});
    chiudi(griglia);
    return gruppo;
}

QWidget* VistaBorftel::creaPagamento() {
    auto* gruppo = new QGroupBox(u"Pagamento"_s);
    auto* griglia = grigliaIn(gruppo);
    rigaConUscita(griglia, PostoFel::Modalita,
                  {lista(u"modalita"_s, nomePosto(PostoFel::Modalita), ListaCodici::Modalita,
                         u"come il documento"_s, &DatiFel::documento, &DocumentoFel::modalita)});
    auto* rate = tabella(u"rate"_s, u"Scadenze nel file"_s, colonneRate, &UscitaFel::rate);
    m_posti[PostoFel::Pagamento] = rate;
    m_percorso.push_back(rate);
    constexpr int linee = 7; // the heading and six instalments
    rate->setFixedHeight(rate->verticalHeader()->defaultSectionSize() * linee + rate->frameWidth() * 2);
    const int numero = griglia->rowCount();
    griglia->addWidget(rilievi(PostoFel::Pagamento), numero, 0, 1, 3);
    griglia->addWidget(rate, numero + 1, 0, 1, 3);
    chiudi(griglia);
    return gruppo;
}

QWidget* VistaBorftel::creaDati() {
    auto* gruppo = new QGroupBox(u"Documento"_s);
    auto* griglia = grigliaIn(gruppo);
    griglia->addWidget(rilievi(PostoFel::Documento), 0, 0, 1, 3);
    using enum PostoFel;
    const auto numeroEData = [&](PostoFel posto, const QString& nome, QString DocumentoFel::*numero,
                                 QString DocumentoFel::*giorno) {
        rigaConUscita(
            griglia, posto,
            {testo(nome + u"numero"_s, nomePosto(posto) + u", numero"_s, 20, &DatiFel::documento, numero),
             data(nome + u"data"_s, nomePosto(posto) + u", data"_s, &DatiFel::documento, giorno)});
    };
    const auto scelta = [&](PostoFel posto, const QString& nome, ListaCodici voci, const QString& niente,
                            QString DocumentoFel::*dato) {
        rigaConUscita(griglia, posto,
                      {lista(nome, nomePosto(posto), voci, niente, &DatiFel::documento, dato)});
    };
    const auto codice = [&](PostoFel posto, const QString& nome, QString DocumentoFel::*dato) {
        rigaConUscita(griglia, posto, {testo(nome, nomePosto(posto), 15, &DatiFel::documento, dato)});
    };
    scelta(Tipo, u"tipo"_s, ListaCodici::TipoEmesso, u"secondo il documento"_s, &DocumentoFel::tipo);
    m_posti[Documento] = m_posti[Tipo];
    scelta(Bollo, u"bollo"_s, ListaCodici::Bollo, u"secondo gli importi esenti"_s, &DocumentoFel::bollo);
    numeroEData(Collegata, u"collegata"_s, &DocumentoFel::collegatanumero, &DocumentoFel::collegatadata);
    numeroEData(Ordine, u"ordine"_s, &DocumentoFel::ordinenumero, &DocumentoFel::ordinedata);
    numeroEData(Contratto, u"contratto"_s, &DocumentoFel::contrattonumero, &DocumentoFel::contrattodata);
    codice(Cup, u"cup"_s, &DocumentoFel::cup);
    codice(Cig, u"cig"_s, &DocumentoFel::cig);
    riga(
        griglia, Ddt,
        {data(u"ddtdata"_s, u"Documento di trasporto, data"_s, &DatiFel::documento, &DocumentoFel::ddtdata)});
    scelta(TipoRitenuta, u"tiporitenuta"_s, ListaCodici::TipoRitenuta, u"come l'azienda"_s,
           &DocumentoFel::tiporitenuta);
    scelta(CausaleRitenuta, u"causaleritenuta"_s, ListaCodici::CausaleRitenuta, u"come l'azienda"_s,
           &DocumentoFel::causaleritenuta);
    chiudi(griglia);
    chiudiPercorso(Prospetto::Documento);
    return gruppo;
}

QWidget* VistaBorftel::creaRighe() {
    auto* prospetto = new QWidget;
    auto* colonna = new QVBoxLayout(prospetto);
    colonna->setContentsMargins(0, 0, 0, 0);
    auto* righe = tabella(u"righe"_s, u"Righe nel file"_s, colonneRighe, &UscitaFel::righe);
    auto* riepilogo =
        tabella(u"riepilogo"_s, u"Riepilogo nel file"_s, colonneRiepilogo, &UscitaFel::riepiloghi);
    auto* altro = tabella(u"altro"_s, u"Altri dati nel file"_s, colonneAltro, &UscitaFel::altro);
    m_posti[PostoFel::Righe] = righe;
    m_posti[PostoFel::Riepilogo] = riepilogo;
    auto* sotto = new QHBoxLayout;
    auto* sinistra = new QVBoxLayout;
    sinistra->addWidget(rilievi(PostoFel::Riepilogo));
    sinistra->addWidget(riepilogo, 1);
    sotto->addLayout(sinistra, 1);
    sotto->addWidget(altro, 1);
    colonna->addWidget(rilievi(PostoFel::Righe));
    colonna->addWidget(righe, 3);
    colonna->addLayout(sotto, 2);
    m_percorso = {righe, riepilogo, altro};
    chiudiPercorso(Prospetto::Righe);
    return prospetto;
}

QWidget* VistaBorftel::creaAzienda() {
    auto* prospetto = new QWidget;
    auto* linea = new QHBoxLayout(prospetto);
    linea->setContentsMargins(0, 0, 0, 0);
    linea->addWidget(creaDatiAzienda(), 1);
    linea->addWidget(creaNature(), 1);
    chiudiPercorso(Prospetto::Azienda);
    return prospetto;
}

QWidget* VistaBorftel::creaDatiAzienda() {
    auto* gruppo = new QGroupBox(u"Azienda (vale per tutti i documenti)"_s);
    auto* griglia = grigliaIn(gruppo);
    griglia->setColumnStretch(colonnaNelFile, 0);
    griglia->addWidget(rilievi(PostoFel::Azienda), 0, 0, 1, 2);
    using enum PostoFel;
    const QString nessuna = u"nessuna"_s;
    riga(griglia, Iban, {testo(u"iban"_s, nomePosto(Iban), 34, &DatiFel::azienda, &AziendaFel::iban)});
    m_posti[Azienda] = m_posti[Iban];
    riga(griglia, Pdf, {spunta(u"allegapdf"_s, nomePosto(Pdf), &DatiFel::azienda, &AziendaFel::allegapdf)});
    riga(griglia, Cassa,
         {lista(u"cassacp"_s, nomePosto(Cassa), ListaCodici::Cassa, u"TC22 INPS, se non si sceglie"_s,
                &DatiFel::azienda, &AziendaFel::cassacp)});
    const QString cassaci = u"Cassa del contributo C.I."_s;
    rigaSola(
        griglia, cassaci,
        lista(u"cassaci"_s, cassaci, ListaCodici::Cassa, nessuna, &DatiFel::azienda, &AziendaFel::cassaci));
    riga(griglia, NaturaCi,
         {lista(u"naturaci"_s, nomePosto(NaturaCi), ListaCodici::Natura, nessuna, &DatiFel::azienda,
                &AziendaFel::naturaci)});
    const QString tipo = u"Tipo di ritenuta solito"_s;
    const QString causale = u"Causale di ritenuta solita"_s;
    rigaSola(griglia, tipo,
             lista(u"azienda.tiporitenuta"_s, tipo, ListaCodici::TipoRitenuta,
                   u"persona fisica o giuridica"_s, &DatiFel::azienda, &AziendaFel::tiporitenuta));
    rigaSola(griglia, causale,
             lista(u"azienda.causaleritenuta"_s, causale, ListaCodici::CausaleRitenuta, nessuna,
                   &DatiFel::azienda, &AziendaFel::causaleritenuta));
    chiudi(griglia);
    return gruppo;
}

QWidget* VistaBorftel::creaNature() {
    auto* gruppo = new QGroupBox(nomePosto(PostoFel::Nature));
    auto* griglia = new QGridLayout(gruppo);
    griglia->setVerticalSpacing(5);
    griglia->setColumnStretch(0, 2);
    griglia->setColumnStretch(1, 3);
    griglia->addWidget(rilievi(PostoFel::Nature), 0, 0, 1, 2);
    for (int codice = 1; codice <= CodiceIva::ultimo; ++codice) {
        auto* natura = lista(u"natura(%1)"_s.arg(codice), u"Natura del codice IVA %1"_s.arg(codice),
                             ListaCodici::Natura, u"secondo la suite"_s, &DatiFel::nature, codice);
        auto* nome = new QLabel;
        nome->setTextFormat(Qt::PlainText);
        nome->setWordWrap(true);
        legami.etichetta(nome, [this, codice] { return m_form.codiceSenzaImposta(codice); });
        for (QWidget* widget : {static_cast<QWidget*>(nome), static_cast<QWidget*>(natura)})
            legami.visibile(widget, [this, codice] { return !m_form.codiceSenzaImposta(codice).isEmpty(); });
        griglia->addWidget(nome, codice, 0);
        griglia->addWidget(natura, codice, 1);
        m_nature.push_back(natura);
        m_percorso.push_back(natura);
    }
    chiudi(griglia);
    return gruppo;
}

} // namespace bor
