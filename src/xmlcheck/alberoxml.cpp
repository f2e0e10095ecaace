#include "xmlcheck/alberoxml.h"

#include "xmlcheck/riparazionexml.h"

#include <QStringList>
#include <libxml/tree.h>

#include <algorithm>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString testoDi(const xmlChar* caratteri) {
    return QString::fromUtf8(reinterpret_cast<const char*>(caratteri));
}

class Copiatore {
public:
    explicit Copiatore(std::vector<Rilievo>* segnati) : m_segnati(segnati) {}

    void copia(const xmlNode* sorgente, Nodo& nodo) {
        nodo.nome = nome(sorgente).testo;
        nodo.spazio = spazio(sorgente->ns);
        nodo.riga = static_cast<int>(xmlGetLineNo(sorgente));
        const std::size_t elementi = xmlChildElementCount(const_cast<xmlNode*>(sorgente));
        copiaTesto(sorgente, nodo, elementi > 0);
        for (const xmlAttr* a = sorgente->properties; a; a = a->next)
            nodo.attributi.push_back(
                {testoDi(a->name), spazio(a->ns), a->children ? testoDi(a->children->content) : QString()});
        if (m_segnati)
            raccogliSegni(nodo);
        nodo.figli.resize(elementi);
        if (elementi > 0)
            copiaFigli(sorgente, nodo);
    }

private:
    /// The parser keeps each name once: it is made a text once, and its address tells it from the others.
    struct Nome {
        QString testo;
        const Nodo* padre = nullptr; ///< the element whose children are being counted
        int volte = 0;
    };

    Nome& nome(const xmlNode* nodo) {
        Nome& trovato = m_nomi[nodo->name];
        if (trovato.testo.isEmpty())
            trovato.testo = testoDi(nodo->name);
        return trovato;
    }

    QString spazio(const xmlNs* spazio) {
        if (!spazio)
            return {};
        QString& trovato = m_spazi[spazio];
        if (trovato.isEmpty())
            trovato = testoDi(spazio->href);
        return trovato;
    }

    static void copiaTesto(const xmlNode* sorgente, Nodo& nodo, bool fraElementi) {
        for (const xmlNode* n = sorgente->children; n; n = n->next)
            if ((n->type == XML_TEXT_NODE || n->type == XML_CDATA_SECTION_NODE) &&
                !(fraElementi && xmlIsBlankNode(n)))
                nodo.testo += testoDi(n->content);
    }

    /// Sisters of one name get their numbers in two passes: looking at all of them for each takes minutes on
    /// a hostile file.
    void copiaFigli(const xmlNode* sorgente, Nodo& nodo) {
        const auto perOgniFiglio = [&](auto fai) {
            std::size_t posto = 0;
            for (const xmlNode* n = sorgente->children; n; n = n->next)
                if (n->type == XML_ELEMENT_NODE)
                    fai(n, nodo.figli[posto++]);
        };
        perOgniFiglio([&](const xmlNode* n, Nodo& figlio) {
            Nome& suo = nome(n);
            if (suo.padre != &nodo)
                suo = {suo.testo, &nodo, 0};
            figlio.numero = ++suo.volte;
            figlio.padre = &nodo;
        });
        perOgniFiglio([&](const xmlNode* n, Nodo& figlio) {
            if (nome(n).volte == 1)
                figlio.numero = 0;
        });
        perOgniFiglio([&](const xmlNode* n, Nodo& figlio) { copia(n, figlio); });
    }

    void raccogliSegni(Nodo& nodo) {
        std::vector<Rilievo> trovati;
        for (const Segno segno : segni) {
            const QChar c(static_cast<char16_t>(segno));
            if (!nodo.testo.contains(c))
                continue;
            nodo.testo.remove(c);
            trovati.push_back(rilievoDelSegno(segno));
        }
        for (Rilievo& r : trovati) {
            r.elemento = nodo.percorso();
            r.riga = nodo.riga;
            r.valore = nodo.testo.trimmed();
            r.codice = u"00200"_s;
            m_segnati->push_back(std::move(r));
        }
    }

    std::vector<Rilievo>* m_segnati;
    std::unordered_map<const xmlChar*, Nome> m_nomi;
    std::unordered_map<const xmlNs*, QString> m_spazi;
};

} // namespace

std::unique_ptr<Nodo> copiaAlbero(const xmlNode* radice, std::vector<Rilievo>* segnati) {
    auto copia = std::make_unique<Nodo>();
    Copiatore(segnati).copia(radice, *copia);
    return copia;
}

const Nodo* Nodo::figlio(QStringView nomeFiglio) const {
    const auto trovato =
        std::ranges::find_if(figli, [nomeFiglio](const Nodo& n) { return n.nome == nomeFiglio; });
    return trovato == figli.end() ? nullptr : &*trovato;
}

QString Nodo::valore(QStringView nomeFiglio) const {
    const Nodo* n = figlio(nomeFiglio);
    return n ? n->testo.trimmed() : QString();
}

QString Nodo::percorso() const {
    QStringList passi;
    for (const Nodo* n = this; n->padre; n = n->padre)
        passi.prepend(n->numero > 0 ? u"%1[%2]"_s.arg(n->nome).arg(n->numero) : n->nome);
    return passi.join(u'/');
}

} // namespace bor
