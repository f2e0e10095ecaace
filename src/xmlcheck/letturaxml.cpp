#include "xmlcheck/letturaxml.h"

#include "xmlcheck/alberoxml.h"
#include "xmlcheck/riparazionexml.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <algorithm>
#include <ctime>
#include <optional>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// A file that is no invoice at all gives thousands of errors; the first ones tell it all.
constexpr std::size_t erroriMassimi = 30;

/// The receiving system takes files of five million bytes at most.
constexpr qsizetype byteMassimi = 5'000'000;

/// The longest invoice, of 9999 lines with 20 elements each, has fewer.
constexpr qsizetype elementiMassimi = 250'000;

/// An invoice has five in its first element and none below. The parser compares each with all the others.
constexpr qsizetype attributiMassimi = 5000;

/// What reading may still take of the processor: what else runs on the machine does not count.
class Limite {
public:
    explicit Limite(std::chrono::milliseconds tempo)
        : m_fine(std::clock() + static_cast<std::clock_t>(tempo.count()) * CLOCKS_PER_SEC / 1000) {}
    bool passato() const { return std::clock() >= m_fine; }

private:
    std::clock_t m_fine;
};

struct ErroreSintassi {
    int codice = 0;
    int riga = 0;
    const xmlNode* nodo = nullptr; ///< where the parser stood; lives as long as the document
    QString aperto;
    QString chiuso;
};

/// One run of the parser.
struct Analisi {
    const Limite& limite;
    std::vector<ErroreSintassi> errori;
    int elementi = 0;
    bool interrotta = false;
};

const QString rigenera = u"Generare di nuovo il file, o chiederlo di nuovo a chi lo ha emesso."_s;
const QString codiceForma = u"00200"_s;

QString testoDi(const void* caratteri) {
    return QString::fromUtf8(static_cast<const char*>(caratteri));
}

bool stessoNome(const xmlNode* a, const xmlNode* b) {
    return a->type == XML_ELEMENT_NODE && b->type == XML_ELEMENT_NODE && xmlStrEqual(a->name, b->name);
}

QString conNumero(const QString& nome, int numero) {
    return u"%1[%2]"_s.arg(nome).arg(numero);
}

/// Name, with its number from 1 where it has sisters of that name.
QString passo(const xmlNode* nodo) {
    int prima = 0;
    int dopo = 0;
    for (const xmlNode* n = nodo->prev; n; n = n->prev)
        prima += stessoNome(n, nodo) ? 1 : 0;
    for (const xmlNode* n = nodo->next; n && dopo == 0; n = n->next)
        dopo += stessoNome(n, nodo) ? 1 : 0;
    const QString nome = testoDi(nodo->name);
    return prima + dopo > 0 ? conNumero(nome, prima + 1) : nome;
}

QString percorsoDi(const xmlNode* nodo) {
    QString percorso;
    for (; nodo && nodo->type == XML_ELEMENT_NODE && nodo->parent && nodo->parent->type == XML_ELEMENT_NODE;
         nodo = nodo->parent)
        percorso = percorso.isEmpty() ? passo(nodo) : passo(nodo) + u'/' + percorso;
    return percorso;
}

Rilievo rilievoDi(const ErroreSintassi& errore) {
    Rilievo r{.elemento = percorsoDi(errore.nodo), .riga = errore.riga, .codice = codiceForma};
    switch (errore.codice) {
    case XML_ERR_TAG_NAME_MISMATCH:
        r.valore = u"</%1>"_s.arg(errore.chiuso);
        r.motivo = u"L'elemento <%1> è chiuso da un'etichetta diversa."_s.arg(errore.aperto);
        r.rimedio = u"Nel file, alla riga %1, scrivere </%2>: nessuna maschera lo cambia."_s.arg(errore.riga)
                        .arg(errore.aperto);
        break;
    case XML_ERR_TAG_NOT_FINISHED:
    case XML_ERR_DOCUMENT_EMPTY:
    case XML_ERR_DOCUMENT_END:
        r.motivo = u"Il file è vuoto o interrotto."_s;
        r.rimedio = rigenera;
        break;
    default:
        r.motivo = u"Da qui in poi il file non è un XML ben formato."_s;
        r.rimedio =
            u"Cercare in questa riga i segni \"<\" e \">\" e toglierli dai testi, poi generare di nuovo il "
            "file."_s;
    }
    return r;
}

/// One finding for each wrong end tag, but only the first of the other errors, from which the rest follow.
std::vector<Rilievo> rilieviDi(const std::vector<ErroreSintassi>& errori) {
    std::vector<Rilievo> rilievi;
    bool altri = false;
    for (const ErroreSintassi& errore : errori) {
        const bool chiusura = errore.codice == XML_ERR_TAG_NAME_MISMATCH;
        if (chiusura || !altri)
            rilievi.push_back(rilievoDi(errore));
        altri = altri || !chiusura;
    }
    return rilievi;
}

struct Contesti {
    void operator()(xmlParserCtxt* contesto) const { xmlFreeParserCtxt(contesto); }
    void operator()(xmlDoc* documento) const { xmlFreeDoc(documento); }
};

void raccogliErrore(void* chi, xmlError* errore) {
    const auto* contesto = static_cast<const xmlParserCtxt*>(chi);
    auto& errori = static_cast<Analisi*>(contesto->_private)->errori;
    if (errore->level != XML_ERR_WARNING && errori.size() < erroriMassimi)
        errori.push_back(
            {errore->code, errore->line, contesto->node, testoDi(errore->str1), testoDi(errore->str2)});
}

/// Stops the parser at the element where its time is over.
void iniziaElemento(void* chi, const xmlChar* nome, const xmlChar* prefisso, const xmlChar* spazio,
                    int quantiSpazi, const xmlChar** spazi, int quantiAttributi, int predefiniti,
                    const xmlChar** attributi) {
    constexpr int ogniTanti = 64; // asking for the time takes longer than an element
    auto* contesto = static_cast<xmlParserCtxt*>(chi);
    auto& analisi = *static_cast<Analisi*>(contesto->_private);
    if (analisi.elementi++ % ogniTanti == 0 && analisi.limite.passato()) {
        analisi.interrotta = true;
        xmlStopParser(contesto);
        return;
    }
    xmlSAX2StartElementNs(chi, nome, prefisso, spazio, quantiSpazi, spazi, quantiAttributi, predefiniti,
                          attributi);
}

/// Parses without network and without replacing entities, recovering where it can.
std::unique_ptr<xmlDoc, Contesti> analizza(const QByteArray& utf8, Analisi& analisi) {
    const std::unique_ptr<xmlParserCtxt, Contesti> contesto(xmlNewParserCtxt());
    if (!contesto)
        return nullptr;
    contesto->_private = &analisi;
    contesto->sax->serror = raccogliErrore;
    contesto->sax->startElementNs = iniziaElemento;
    return std::unique_ptr<xmlDoc, Contesti>(
        xmlCtxtReadMemory(contesto.get(), utf8.constData(), static_cast<int>(utf8.size()), nullptr, "UTF-8",
                          XML_PARSE_RECOVER | XML_PARSE_NONET | XML_PARSE_BIG_LINES));
}

Rilievo nonLetto(const QString& motivo) {
    return {.motivo = motivo, .rimedio = rigenera, .codice = codiceForma};
}

Rilievo tempoScaduto() {
    return nonLetto(u"Il file è troppo complesso: dopo un secondo la lettura è stata interrotta."_s);
}

/// Between two "<" lies at the most one start tag.
bool troppiAttributi(QByteArrayView contenuto) {
    qsizetype fine = 0;
    for (qsizetype inizio = contenuto.indexOf('<'); inizio >= 0; inizio = fine) {
        fine = contenuto.indexOf('<', inizio + 1);
        const QByteArrayView etichetta =
            contenuto.sliced(inizio, (fine < 0 ? contenuto.size() : fine) - inizio);
        const bool inizia = etichetta.size() > 1 && etichetta[1] != '!' && etichetta[1] != '?';
        if (inizia && etichetta.size() > attributiMassimi &&
            std::ranges::count(etichetta, '=') > attributiMassimi)
            return true;
    }
    return false;
}

/// Why a file is not even parsed; nothing when it is.
std::optional<Rilievo> troppo(const QByteArray& contenuto) {
    if (contenuto.size() > byteMassimi)
        return Rilievo{.valore = u"%1 byte"_s.arg(contenuto.size()),
                       .motivo = u"Il file supera i 5.000.000 di byte ammessi e non è stato letto."_s,
                       .rimedio = u"Dividere il documento in più documenti, o togliere gli allegati."_s,
                       .codice = u"00003"_s};
    if (contenuto.contains("<!DOCTYPE"))
        return nonLetto(u"Il file contiene una dichiarazione DOCTYPE, che non è ammessa."_s);
    if (contenuto.count('<') > 2 * elementiMassimi)
        return nonLetto(u"Il file ha troppi elementi per essere una fattura e non è stato letto."_s);
    if (troppiAttributi(contenuto))
        return nonLetto(u"Il file ha un elemento con migliaia di attributi e non è stato letto."_s);
    return std::nullopt;
}

/// A file with nothing to repair, which is nearly every file, is parsed as it stands. False for any other.
bool leggiIntero(const QByteArray& contenuto, const Limite& limite, LetturaXml& lettura) {
    if (!diUtf8(contenuto))
        return false;
    Analisi analisi{limite, {}};
    const auto documento = analizza(contenuto, analisi);
    if (analisi.interrotta)
        lettura.rilievi.push_back(tempoScaduto());
    else if (const xmlNode* radice = documento ? xmlDocGetRootElement(documento.get()) : nullptr;
             radice && analisi.errori.empty())
        lettura.radice = copiaAlbero(radice, nullptr);
    return analisi.interrotta || lettura.radice;
}

void leggiRiparato(const QByteArray& contenuto, const Limite& limite, LetturaXml& lettura) {
    const TestoRiparato riparato = riparaXml(contenuto);
    if (riparato.segni > segniMassimi) {
        lettura.rilievi.push_back(nonLetto(u"Il file ha troppi caratteri errati e non è stato letto."_s));
        return;
    }
    Analisi analisi{limite, {}};
    const auto documento = analizza(riparato.testo.toUtf8(), analisi);
    if (analisi.interrotta) {
        lettura.rilievi.push_back(tempoScaduto());
        return;
    }
    lettura.rilievi = rilieviDi(analisi.errori);
    if (const xmlNode* radice = documento ? xmlDocGetRootElement(documento.get()) : nullptr)
        lettura.radice = copiaAlbero(radice, &lettura.rilievi);
}

} // namespace

LetturaXml leggiXml(const QByteArray& contenuto, std::chrono::milliseconds tempo) {
    LetturaXml lettura;
    const Limite limite(tempo);
    if (auto motivo = troppo(contenuto))
        lettura.rilievi.push_back(*std::move(motivo));
    else if (!leggiIntero(contenuto, limite, lettura))
        leggiRiparato(contenuto, limite, lettura);
    return lettura;
}

} // namespace bor
