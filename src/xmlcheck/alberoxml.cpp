#include "xmlcheck/alberoxml.h"

#include "xmlcheck/riparazionexml.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

bool bianchi(const std::string& testo) {
    return testo.find_first_not_of(" \t\r\n") == std::string::npos;
}

const Nodo* conta(const Nodo& nodo, int& ancora) {
    if (ancora-- == 0)
        return &nodo;
    for (const Nodo& figlio : nodo.figli)
        if (const Nodo* trovato = conta(figlio, ancora))
            return trovato;
    return nullptr;
}

} // namespace

void AlberoXml::apri(const char* nome, const char* spazio, int riga) {
    if (!m_aperti.empty() && bianchi(m_aperti.back().testo))
        m_aperti.back().testo.clear();
    m_aperti.push_back(
        {{.nome = parola(nome), .spazio = parola(spazio), .testo = {}, .riga = riga}, m_elementi++, {}});
}

void AlberoXml::attributo(const char* nome, const char* spazio, const QString& valore) {
    m_aperti.back().nodo.attributi.push_back({parola(nome), parola(spazio), valore});
}

void AlberoXml::testo(const char* caratteri, std::size_t quanti) {
    if (!m_aperti.empty())
        m_aperti.back().testo.append(caratteri, quanti);
}

/// An element's children stay where they are once it is closed; what they point to is set then.
void AlberoXml::chiudi() {
    if (m_aperti.empty())
        return;
    Aperto chiuso = std::move(m_aperti.back());
    m_aperti.pop_back();
    Nodo& nodo = chiuso.nodo;
    if (nodo.figli.empty() || !bianchi(chiuso.testo))
        nodo.testo = QString::fromStdString(chiuso.testo);
    numeraFigli(nodo);
    for (Nodo& figlio : nodo.figli)
        for (Nodo& nipote : figlio.figli)
            nipote.padre = &figlio;
    if (!m_aperti.empty()) {
        m_aperti.back().nodo.figli.push_back(std::move(nodo));
        return;
    }
    m_radice = std::make_unique<Nodo>(std::move(nodo));
    for (Nodo& figlio : m_radice->figli)
        figlio.padre = m_radice.get();
}

std::unique_ptr<Nodo> AlberoXml::albero() {
    while (!m_aperti.empty())
        chiudi();
    return std::move(m_radice);
}

QString AlberoXml::parola(const char* utf8) {
    if (!utf8)
        return {};
    QString& trovata = m_parole[utf8];
    if (trovata.isNull())
        trovata = QString::fromUtf8(utf8);
    return trovata;
}

/// In one go: looking at all sisters for each takes minutes on a hostile file.
void AlberoXml::numeraFigli(Nodo& nodo) {
    if (nodo.figli.size() < 2)
        return;
    for (Nodo& figlio : nodo.figli) {
        Sorelle& sorelle = m_sorelle[figlio.nome.constData()];
        if (++sorelle.quante == 1) {
            sorelle.prima = &figlio;
            continue;
        }
        sorelle.prima->numero = 1;
        figlio.numero = sorelle.quante;
    }
    for (const Nodo& figlio : nodo.figli)
        m_sorelle[figlio.nome.constData()] = {};
}

const Nodo* nodoDiOrdine(const Nodo& radice, int ordine) {
    return ordine < 0 ? nullptr : conta(radice, ordine);
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
        r.elemento = nodo.percorso();
        r.riga = nodo.riga;
        r.valore = nodo.testo.trimmed();
        r.codice = u"00200"_s;
        rilievi.push_back(std::move(r));
    }
    for (Nodo& figlio : nodo.figli)
        raccogliSegni(figlio, rilievi);
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
