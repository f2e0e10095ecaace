#include "xmlcheck/letturaxml.h"

#include "xmlcheck/alberoxml.h"
#include "xmlcheck/riparazionexml.h"

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
    int elemento = -1; ///< where the parser stood: number of the element in the order of the file
    QString aperto;
    QString chiuso;
};

/// One run of the parser.
struct Analisi {
    const Limite& limite;
    bool soloIntero; ///< a file with an error is of no use
    AlberoXml albero;
    std::vector<ErroreSintassi> errori;
    int elementi = 0;
    bool interrotta = false;
};

const QString rigenera = u"Generare di nuovo il file, o chiederlo di nuovo a chi lo ha emesso."_s;
const QString codiceForma = u"00200"_s;

const char* utf8(const void* caratteri) {
    return static_cast<const char*>(caratteri);
}

QString percorsoDi(const Nodo* radice, int elemento) {
    const Nodo* nodo = radice ? nodoDiOrdine(*radice, elemento) : nullptr;
    return nodo ? nodo->percorso() : QString();
}

Rilievo rilievoDi(const ErroreSintassi& errore, const Nodo* radice) {
    Rilievo r{.elemento = percorsoDi(radice, errore.elemento), .riga = errore.riga, .codice = codiceForma};
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
std::vector<Rilievo> rilieviDi(const std::vector<ErroreSintassi>& errori, const Nodo* radice) {
    std::vector<Rilievo> rilievi;
    bool altri = false;
    for (const ErroreSintassi& errore : errori) {
        const bool chiusura = errore.codice == XML_ERR_TAG_NAME_MISMATCH;
        if (chiusura || !altri)
            rilievi.push_back(rilievoDi(errore, radice));
        altri = altri || !chiusura;
    }
    return rilievi;
}

struct Contesti {
    void operator()(xmlParserCtxt* contesto) const { xmlFreeParserCtxt(contesto); }
    void operator()(xmlDoc* documento) const { xmlFreeDoc(documento); }
};

Analisi& analisiDi(void* contesto) {
    return *static_cast<Analisi*>(static_cast<xmlParserCtxt*>(contesto)->_private);
}

void raccogliErrore(void* contesto, xmlError* errore) {
    Analisi& analisi = analisiDi(contesto);
    if (errore->level != XML_ERR_WARNING && analisi.errori.size() < erroriMassimi)
        analisi.errori.push_back({errore->code, errore->line, analisi.albero.aperto(),
                                  QString::fromUtf8(errore->str1), QString::fromUtf8(errore->str2)});
    if (analisi.soloIntero && !analisi.errori.empty())
        xmlStopParser(static_cast<xmlParserCtxt*>(contesto));
}

/// The parser gives each attribute as name, prefix, namespace, and both ends of its value, in which "&" is
/// still written by its number.
void aggiungiAttributi(AlberoXml& albero, const xmlChar** attributi, int quanti) {
    constexpr int passo = 5;
    for (int i = 0; i < quanti * passo; i += passo) {
        const QByteArrayView valore(utf8(attributi[i + 3]), utf8(attributi[i + 4]));
        albero.attributo(utf8(attributi[i]), utf8(attributi[i + 2]),
                         QString::fromUtf8(valore).replace(u"&#38;"_s, u"&"_s));
    }
}

/// Stops the parser where its time is over.
void iniziaElemento(void* chi, const xmlChar* nome, const xmlChar*, const xmlChar* spazio, int,
                    const xmlChar**, int quantiAttributi, int, const xmlChar** attributi) {
    constexpr int ogniTanti = 64; // asking for the time takes longer than an element
    auto* contesto = static_cast<xmlParserCtxt*>(chi);
    Analisi& analisi = analisiDi(chi);
    if (analisi.elementi++ % ogniTanti == 0 && analisi.limite.passato()) {
        analisi.interrotta = true;
        xmlStopParser(contesto);
        return;
    }
    analisi.albero.apri(utf8(nome), utf8(spazio), contesto->input->line);
    aggiungiAttributi(analisi.albero, attributi, quantiAttributi);
}

void fineElemento(void* chi, const xmlChar*, const xmlChar*, const xmlChar*) {
    analisiDi(chi).albero.chiudi();
}

void testo(void* chi, const xmlChar* caratteri, int quanti) {
    analisiDi(chi).albero.testo(utf8(caratteri), static_cast<std::size_t>(quanti));
}

/// Parses without network and without replacing entities, recovering where it can.
void analizza(const QByteArray& contenuto, Analisi& analisi) {
    const std::unique_ptr<xmlParserCtxt, Contesti> contesto(xmlNewParserCtxt());
    if (!contesto)
        return;
    contesto->_private = &analisi;
    xmlSAXHandler& sax = *contesto->sax;
    sax.serror = raccogliErrore;
    sax.startElementNs = iniziaElemento;
    sax.endElementNs = fineElemento;
    sax.characters = sax.ignorableWhitespace = sax.cdataBlock = testo;
    sax.comment = nullptr;
    sax.processingInstruction = nullptr;
    sax.reference = nullptr;
    const std::unique_ptr<xmlDoc, Contesti> vuoto(
        xmlCtxtReadMemory(contesto.get(), contenuto.constData(), static_cast<int>(contenuto.size()), nullptr,
                          "UTF-8", XML_PARSE_RECOVER | XML_PARSE_NONET | XML_PARSE_BIG_LINES));
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
    Analisi analisi{.limite = limite, .soloIntero = true};
    analizza(contenuto, analisi);
    if (analisi.interrotta)
        lettura.rilievi.push_back(tempoScaduto());
    else if (analisi.errori.empty())
        lettura.radice = analisi.albero.albero();
    return analisi.interrotta || lettura.radice;
}

void leggiRiparato(const QByteArray& contenuto, const Limite& limite, LetturaXml& lettura) {
    const TestoRiparato riparato = riparaXml(contenuto);
    if (riparato.segni > segniMassimi) {
        lettura.rilievi.push_back(nonLetto(u"Il file ha troppi caratteri errati e non è stato letto."_s));
        return;
    }
    Analisi analisi{.limite = limite, .soloIntero = false};
    analizza(riparato.testo.toUtf8(), analisi);
    if (analisi.interrotta) {
        lettura.rilievi.push_back(tempoScaduto());
        return;
    }
    lettura.radice = analisi.albero.albero();
    lettura.rilievi = rilieviDi(analisi.errori, lettura.radice.get());
    if (lettura.radice)
        raccogliSegni(*lettura.radice, lettura.rilievi);
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
