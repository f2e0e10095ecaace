#include "xmlcheck/letturaxml.h"

#include "xmlcheck/riparazionexml.h"

#include <QHash>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <algorithm>
#include <climits>
#include <memory>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// A file that is no invoice at all gives thousands of errors; the first ones tell it all.
constexpr std::size_t erroriMassimi = 30;

/// The receiving system takes files of five million bytes at most.
constexpr qsizetype byteMassimi = 5'000'000;

/// The longest invoice, of 9999 lines with 20 elements each, has fewer.
constexpr int elementiMassimi = 250'000;

struct ErroreSintassi {
    int codice = 0;
    int riga = 0;
    const xmlNode* nodo = nullptr; ///< where the parser stood; lives as long as the document
    QString aperto;
    QString chiuso;
};

using ErroriSintassi = std::vector<ErroreSintassi>;

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
std::vector<Rilievo> rilieviDi(const ErroriSintassi& errori) {
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

void raccogliSegni(Nodo& nodo, std::vector<Rilievo>& rilievi) {
    std::vector<Rilievo> trovati;
    for (const Segno segno : segni) {
        const QChar c(static_cast<char16_t>(segno));
        if (!nodo.testo.contains(c))
            continue;
        nodo.testo.remove(c);
        trovati.push_back(rilievoDelSegno(segno));
    }
    for (Rilievo& r : trovati) {
        r.elemento = nodo.percorso;
        r.riga = nodo.riga;
        r.valore = nodo.testo.trimmed();
        r.codice = codiceForma;
        rilievi.push_back(r);
    }
}

/// `segnati`: takes what the marks of repaired text say; null for a text without marks.
Nodo copiaNodo(const xmlNode* sorgente, const QString& percorso, std::vector<Rilievo>* rilievi);

/// Numbers the sisters of one name in two passes: looking at all of them for each takes minutes on a hostile
/// file.
void copiaFigli(const xmlNode* sorgente, Nodo& nodo, std::vector<Rilievo>* segnati) {
    QHash<QString, int> quanti;
    for (const xmlNode* n = sorgente->children; n; n = n->next)
        if (n->type == XML_ELEMENT_NODE)
            ++quanti[testoDi(n->name)];
    QHash<QString, int> visti;
    for (const xmlNode* n = sorgente->children; n; n = n->next) {
        if (n->type != XML_ELEMENT_NODE)
            continue;
        const QString nome = testoDi(n->name);
        const QString passo = quanti[nome] > 1 ? conNumero(nome, ++visti[nome]) : nome;
        nodo.figli.push_back(
            copiaNodo(n, nodo.percorso.isEmpty() ? passo : nodo.percorso + u'/' + passo, segnati));
    }
}

QString spazioDi(const xmlNs* spazio) {
    return spazio ? testoDi(spazio->href) : QString();
}

Nodo copiaNodo(const xmlNode* sorgente, const QString& percorso, std::vector<Rilievo>* segnati) {
    Nodo nodo{.nome = testoDi(sorgente->name),
              .spazio = spazioDi(sorgente->ns),
              .percorso = percorso,
              .testo = {},
              .riga = static_cast<int>(xmlGetLineNo(sorgente))};
    for (const xmlNode* n = sorgente->children; n; n = n->next)
        if (n->type == XML_TEXT_NODE || n->type == XML_CDATA_SECTION_NODE)
            nodo.testo += testoDi(n->content);
    for (const xmlAttr* a = sorgente->properties; a; a = a->next)
        nodo.attributi.push_back(
            {testoDi(a->name), spazioDi(a->ns), a->children ? testoDi(a->children->content) : QString()});
    if (segnati)
        raccogliSegni(nodo, *segnati);
    copiaFigli(sorgente, nodo, segnati);
    return nodo;
}

struct Contesti {
    void operator()(xmlParserCtxt* contesto) const { xmlFreeParserCtxt(contesto); }
    void operator()(xmlDoc* documento) const { xmlFreeDoc(documento); }
};

/// Parses without network and without replacing entities, recovering where it can.
std::unique_ptr<xmlDoc, Contesti> analizza(const QByteArray& utf8, ErroriSintassi& errori) {
    const std::unique_ptr<xmlParserCtxt, Contesti> contesto(xmlNewParserCtxt());
    if (!contesto || utf8.size() > INT_MAX)
        return nullptr;
    contesto->_private = &errori;
    contesto->sax->serror = [](void* chi, auto* errore) {
        const auto* analisi = static_cast<const xmlParserCtxt*>(chi);
        auto& raccolti = *static_cast<ErroriSintassi*>(analisi->_private);
        if (errore->level != XML_ERR_WARNING && raccolti.size() < erroriMassimi)
            raccolti.push_back(
                {errore->code, errore->line, analisi->node, testoDi(errore->str1), testoDi(errore->str2)});
    };
    return std::unique_ptr<xmlDoc, Contesti>(
        xmlCtxtReadMemory(contesto.get(), utf8.constData(), static_cast<int>(utf8.size()), nullptr, "UTF-8",
                          XML_PARSE_RECOVER | XML_PARSE_NONET | XML_PARSE_BIG_LINES));
}

/// Why a text is not even parsed; nothing when it is.
std::optional<Rilievo> troppo(const QString& testo) {
    if (testo.contains(u"<!DOCTYPE"_s))
        return Rilievo{.valore = u"<!DOCTYPE"_s,
                       .motivo = u"Il file contiene una dichiarazione DOCTYPE, che non è ammessa."_s,
                       .rimedio = rigenera,
                       .codice = codiceForma};
    const auto segnati = std::ranges::count_if(testo, [](QChar c) {
        return std::ranges::find(segni, static_cast<Segno>(c.unicode())) != segni.end();
    });
    if (segnati > segniMassimi)
        return Rilievo{.motivo = u"Il file ha troppi caratteri errati e non è stato letto."_s,
                       .rimedio = rigenera,
                       .codice = codiceForma};
    if (testo.count(u'<') > 2 * elementiMassimi)
        return Rilievo{.motivo = u"Il file ha troppi elementi per essere una fattura e non è stato letto."_s,
                       .rimedio = rigenera,
                       .codice = codiceForma};
    return std::nullopt;
}

/// A file with nothing to repair, which is nearly every file, is parsed as it stands; nothing for any other.
std::optional<Nodo> leggiIntero(const QByteArray& contenuto) {
    if (!diUtf8(contenuto) || contenuto.contains("<!DOCTYPE") || contenuto.count('<') > 2 * elementiMassimi)
        return std::nullopt;
    ErroriSintassi errori;
    const auto documento = analizza(contenuto, errori);
    const xmlNode* radice = documento && errori.empty() ? xmlDocGetRootElement(documento.get()) : nullptr;
    return radice ? std::optional<Nodo>(copiaNodo(radice, QString(), nullptr)) : std::nullopt;
}

} // namespace

const Nodo* Nodo::figlio(QStringView nomeFiglio) const {
    const auto trovato = std::find_if(figli.begin(), figli.end(),
                                      [nomeFiglio](const Nodo& n) { return n.nome == nomeFiglio; });
    return trovato == figli.end() ? nullptr : &*trovato;
}

QString Nodo::valore(QStringView nomeFiglio) const {
    const Nodo* n = figlio(nomeFiglio);
    return n ? n->testo.trimmed() : QString();
}

LetturaXml leggiXml(const QByteArray& contenuto) {
    LetturaXml lettura;
    if (contenuto.size() > byteMassimi) {
        lettura.rilievi.push_back(
            {.valore = u"%1 byte"_s.arg(contenuto.size()),
             .motivo = u"Il file supera i 5.000.000 di byte ammessi e non è stato letto."_s,
             .rimedio = u"Dividere il documento in più documenti, o togliere gli allegati."_s,
             .codice = u"00003"_s});
        return lettura;
    }
    if (auto radice = leggiIntero(contenuto)) {
        lettura.radice = std::move(radice);
        return lettura;
    }
    const QString testo = riparaXml(contenuto);
    if (auto motivo = troppo(testo)) {
        lettura.rilievi.push_back(*std::move(motivo));
        return lettura;
    }
    ErroriSintassi errori;
    const auto documento = analizza(testo.toUtf8(), errori);
    lettura.rilievi = rilieviDi(errori);
    const xmlNode* radice = documento ? xmlDocGetRootElement(documento.get()) : nullptr;
    if (!radice)
        return lettura;
    lettura.radice = copiaNodo(radice, QString(), &lettura.rilievi);
    return lettura;
}

} // namespace bor
