// Puts the tree of an XML file together from what the parser meets on its way. Only the reader uses it.
#pragma once

#include "xmlcheck/letturaxml.h"

#include <string>
#include <unordered_map>

namespace bor {

class AlberoXml {
public:
    /// Names and namespaces are UTF-8; the parser keeps each of them once, at one address.
    void apri(const char* nome, const char* spazio, int riga);
    void attributo(const char* nome, const char* spazio, const QString& valore);
    void testo(const char* caratteri, std::size_t quanti);
    void chiudi();

    /// How many elements were opened before the one that is open now; -1 when none is.
    int aperto() const { return m_aperti.empty() ? -1 : m_aperti.back().ordine; }

    /// The tree, with whatever is still open closed; null when there was no element. The builder is then
    /// empty.
    std::unique_ptr<Nodo> albero();

private:
    struct Aperto {
        Nodo nodo;
        int ordine = 0;
        std::string testo;
    };
    struct Sorelle {
        Nodo* prima = nullptr;
        int quante = 0;
    };

    QString parola(const char* utf8);
    void numeraFigli(Nodo& nodo);

    std::vector<Aperto> m_aperti;
    int m_elementi = 0;
    std::unique_ptr<Nodo> m_radice;
    std::unordered_map<const char*, QString> m_parole;
    std::unordered_map<const QChar*, Sorelle> m_sorelle; ///< by name, while children are numbered
};

/// The element opened as number `ordine`; null for -1.
const Nodo* nodoDiOrdine(const Nodo& radice, int ordine);

/// Takes the marks of repaired text out of the tree and tells what they say.
void raccogliSegni(Nodo& radice, std::vector<Rilievo>& rilievi);

} // namespace bor
