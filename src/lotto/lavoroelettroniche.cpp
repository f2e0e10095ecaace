#include "lotto/lavoroelettroniche.h"

#include "einvoice/borftepa.h"
#include "lotto/rilievilotto.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Documents of which the names are given out together: the file of names is written anew for each such lot.
constexpr std::size_t perVolta = 16;

/// What became of a file.
struct Prodotto {
    EsitoRiga esito = EsitoRiga::Fatta;
    QString testo;
};

Prodotto prodotto(const EsitoFel& esito) {
    if (esito.stato != EsitoFel::Stato::Scritta)
        return {EsitoRiga::NonFatta, u"non scritta: "_s + primoRilievo(esito.rilievi)};
    const QString file = QFileInfo(esito.percorso).fileName();
    return esito.rilievi.empty() ? Prodotto{EsitoRiga::Fatta, file}
                                 : Prodotto{EsitoRiga::ConRilievi, file + u": "_s + riassunto(esito.rilievi)};
}

/// The file of 2014, made as its form makes it from the data that were entered there.
Prodotto del2014(Contesto& contesto, Documento& documento, const std::function<QStringList()>& messaggi) {
    Borftepa form(contesto, documento);
    form.attiva();
    const QStringList rifiuti = messaggi();
    if (!rifiuti.isEmpty())
        return {EsitoRiga::NonFatta, u"2014, non scritta: "_s + rifiuti.first()};
    form.genera();
    const auto rilievi = form.controlla();
    const QStringList detti = messaggi();
    if (!rilievi)
        return {EsitoRiga::NonFatta, u"2014, non scritta: "_s + detti.value(detti.size() - 1)};
    const QString fatta = detti.value(0);
    return rilievi->empty()
               ? Prodotto{EsitoRiga::Fatta, u"2014: "_s + fatta}
               : Prodotto{EsitoRiga::ConRilievi, u"2014: "_s + fatta + u": "_s + riassunto(*rilievi)};
}

} // namespace

LavoroElettroniche::LavoroElettroniche(const Contesto& contesto, const QString& cartellaPdf)
    : Lavoro(contesto), m_generatore(GeneratoreFel::perAzienda(this->contesto(), cartellaPdf)) {
    m_presi.reserve(perVolta);
}

QString LavoroElettroniche::titolo() const {
    return u"Fatture elettroniche dei documenti scelti"_s;
}

QString LavoroElettroniche::proposta(std::vector<Candidato>& candidati) {
    const auto pa = std::ranges::count_if(candidati, [](const Candidato& c) { return c.dentro() && c.pa; });
    QString testo =
        u"Scrivere la fattura elettronica di %1 nella cartella %2?\nQuelle già scritte vengono "
        "sostituite, con lo stesso nome."_s.arg(contoDocumenti(quantiDentro(candidati)),
                                                QDir::toNativeSeparators(m_generatore.cartella()));
    if (pa > 0)
        testo += u"\nHanno anche i dati della fattura PA del 2014, di cui si riscrive il file: %1."_s.arg(pa);
    return testo;
}

void LavoroElettroniche::prendi(std::size_t riga, Documento documento) {
    InUscitaFel uscita = m_generatore.prepara(documento);
    m_presi.push_back({riga, std::move(documento), std::move(uscita)});
    if (m_presi.size() == perVolta)
        nomina();
}

void LavoroElettroniche::nomina() {
    std::vector<InUscitaFel*> uscite;
    for (Preso& preso : m_presi)
        uscite.push_back(&preso.uscita);
    m_generatore.nomina(uscite);
    m_emette = true;
}

bool LavoroElettroniche::gira() {
    if (!m_emette)
        return false;
    if (m_seguente < m_presi.size())
        emetti(m_presi[m_seguente++]);
    if (m_seguente < m_presi.size())
        return true;
    m_presi.clear();
    m_seguente = 0;
    m_emette = false;
    return true;
}

void LavoroElettroniche::emetti(Preso& preso) {
    Prodotto oggi = prodotto(m_generatore.emetti(preso.documento, std::move(preso.uscita)));
    if (preso.documento.fatturaPa()) {
        const Prodotto pa = del2014(contesto(), preso.documento, [this] { return prendiMessaggi(); });
        oggi.testo += u"; "_s + pa.testo;
        if (oggi.esito != pa.esito)
            oggi.esito = EsitoRiga::ConRilievi;
    }
    racconta(preso.riga, oggi.esito, oggi.testo);
}

void LavoroElettroniche::interrompi() {
    for (; m_seguente < m_presi.size(); ++m_seguente)
        racconta(m_presi[m_seguente].riga, EsitoRiga::NonFatta, motivoInterrotto);
    m_presi.clear();
    m_seguente = 0;
    m_emette = false;
}

} // namespace bor
