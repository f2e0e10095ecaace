#include "prospetti/datimensili.h"

#include "common/posti.h"
#include "prospetti/totaletesto.h"

#include <array>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int mesi = 12;
constexpr int tutti = -1; ///< VAT registers
const QString senzaData = u"Senza data"_s;

} // namespace

DatiMensili::DatiMensili(Contesto& c)
    : Prospetto(c), m_memoria(c.archivio.percorsi(), c.sessione.codiceazienda), m_anno(m_memoria.anno()) {}

void DatiMensili::completa() {
    m_anni = m_somme.anni();
    if (m_anni.isEmpty())
        m_anni.append(contesto.orologio.oggi().year());
    if (!m_anni.contains(m_anno))
        m_anno = annoProposto();
}

/// This year, or the last one that has documents.
int DatiMensili::annoProposto() const {
    const int oggi = contesto.orologio.oggi().year();
    return m_anni.contains(oggi) ? oggi : m_anni.first();
}

void DatiMensili::cambiaAnno(int posto) {
    m_anno = m_anni.value(posto, m_anno);
    // Whoever looks at this year wants to see the next one when it has come.
    m_memoria.segnaAnno(m_anno == annoProposto() ? 0 : m_anno);
    mostra();
}

void DatiMensili::cambiaRegistro(int posto) {
    m_registro = m_registri.value(posto - 1, tutti);
    mostra();
}

QStringList DatiMensili::registri() const {
    QStringList elenco{u"Tutti"_s};
    for (const int registro : m_registri)
        elenco.append(QString::number(registro));
    return elenco;
}

QString DatiMensili::nomeMese(int mese) {
    static const std::array<QString, mesi> nomi{u"Gennaio"_s,   u"Febbraio"_s, u"Marzo"_s,    u"Aprile"_s,
                                                u"Maggio"_s,    u"Giugno"_s,   u"Luglio"_s,   u"Agosto"_s,
                                                u"Settembre"_s, u"Ottobre"_s,  u"Novembre"_s, u"Dicembre"_s};
    return elemento(nomi, mese - 1);
}

SommeDocumenti DatiMensili::mese(int mese) const {
    return somme(m_anno, mese);
}

SommeDocumenti DatiMensili::somme(int anno, int mese) const {
    SommeDocumenti insieme;
    for (const int registro : m_registri) {
        if (m_registro == tutti || m_registro == registro)
            insieme += m_somme.somme(anno, mese, registro);
    }
    return insieme;
}

/// A row for each register that has documents, and their total where there are several.
void DatiMensili::aggiungiMese(const QString& nome, int anno, int mese) {
    int quanti = 0;
    for (const int registro : m_registri) {
        const SommeDocumenti sue = m_somme.somme(anno, mese, registro);
        if (sue.documenti > 0 && (m_registro == tutti || m_registro == registro)) {
            m_righe.push_back({nome, registro, sue, false});
            ++quanti;
        }
    }
    if (quanti > 1)
        m_righe.push_back({u"Totale "_s + nome.toLower(), tutti, somme(anno, mese), true});
    else if (quanti == 0 && anno != SommeMensili::nessuno)
        m_righe.push_back({nome, m_registro, {}, false});
}

void DatiMensili::scegli() {
    m_registri = m_somme.registriDi(m_anno);
    if (!m_registri.contains(m_registro))
        m_registro = tutti;
    m_righe.clear();
    std::array<SommeDocumenti, SommeMensili::registri> perRegistro;
    SommeDocumenti anno;
    for (int m = 1; m <= mesi; ++m) {
        aggiungiMese(nomeMese(m), m_anno, m);
        anno += somme(m_anno, m);
        for (const int registro : m_registri)
            elemento(perRegistro, registro) += m_somme.somme(m_anno, m, registro);
    }
    for (const int registro : m_registri) {
        if (m_registro == tutti && m_registri.size() > 1)
            m_righe.push_back({u"Totale registro"_s, registro, elemento(perRegistro, registro), true});
    }
    m_righe.push_back({u"Totale %1"_s.arg(m_anno), m_registro, anno, true});
    aggiungiMese(senzaData, SommeMensili::nessuno, SommeMensili::nessuno);
}

bool DatiMensili::totale(int riga) const {
    return riga >= 0 && riga < righe() && elemento(m_righe, riga).totale;
}

QString DatiMensili::testo(int quale, ColonnaMese colonna) const {
    if (quale < 0 || quale >= righe())
        return {};
    const Riga& riga = elemento(m_righe, quale);
    const SommeDocumenti& s = riga.somme;
    const Valuta& valuta = contesto.valuta();
    switch (colonna) {
    case ColonnaMese::Mese:
        return riga.mese;
    case ColonnaMese::Registro:
        return riga.registro == tutti ? QString() : QString::number(riga.registro);
    case ColonnaMese::Documenti:
        return QString::number(s.documenti);
    case ColonnaMese::Imponibile:
        return totaletesto(valuta, s.imponibile);
    case ColonnaMese::Imposta:
        return totaletesto(valuta, s.imposta);
    case ColonnaMese::Esente:
        return totaletesto(valuta, s.esente);
    case ColonnaMese::Totale:
        return totaletesto(valuta, s.totale());
    case ColonnaMese::Ritenute:
        return totaletesto(valuta, s.ritenuta);
    }
    return {};
}

void DatiMensili::celle(const Riga& riga, CelleRiga& celle) const {
    celle.testo(riga.mese);
    celle.testo(riga.registro == tutti ? QString() : QString::number(riga.registro));
    celle.numero(riga.somme.documenti);
    for (const double x : {riga.somme.imponibile, riga.somme.imposta, riga.somme.esente, riga.somme.totale(),
                           riga.somme.ritenuta})
        celle.importo(x);
}

Tabella DatiMensili::tabella() const {
    QString filtro = u"Anno %1, per data di registrazione. Le note di credito sono in meno."_s.arg(m_anno);
    if (m_registro != tutti)
        filtro += u" Solo registro IVA %1."_s.arg(m_registro);
    Tabella tabella{.titolo = u"Dati mensili"_s,
                    .filtro = filtro,
                    .colonne = {{u"Mese"_s, GenereColonna::Testo, 18},
                                {u"Registro IVA"_s, GenereColonna::Testo, 12},
                                {u"Documenti"_s, GenereColonna::Numero, 11},
                                {u"Imponibile"_s, GenereColonna::Importo, 14},
                                {u"Imposta"_s, GenereColonna::Importo, 14},
                                {u"Esente"_s, GenereColonna::Importo, 14},
                                {u"Totale"_s, GenereColonna::Importo, 14},
                                {u"Ritenute"_s, GenereColonna::Importo, 14}},
                    .decimali = contesto.valuta().euro ? 2 : 0};
    tabella.righe = righe();
    tabella.riga = [this](int i, CelleRiga& uscita) { celle(elemento(m_righe, i), uscita); };
    tabella.subtotale = [this](int i) { return totale(i); };
    return tabella;
}

} // namespace bor
