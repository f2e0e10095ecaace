// The elements of an electronic invoice in XML, and its parts in the order of the file. Only
// fatturapa/scrivifattura.cpp writes with them.
#pragma once

#include "fatturapa/fattura.h"
#include "fatturapa/scrivifattura.h"

#include <QXmlStreamWriter>

namespace bor {

class ElementiXml {
public:
    /// `testo` is what the writer writes into.
    ElementiXml(QXmlStreamWriter& scrittore, QString& testo) : m_scrittore(scrittore), m_testo(testo) {}

    template <class F>
    void blocco(const QString& nome, F contenuto) {
        aCapo();
        m_scrittore.writeStartElement(nome);
        ++m_livello;
        contenuto();
        --m_livello;
        aCapo();
        m_scrittore.writeEndElement();
    }
    void testo(const QString& nome, const QString& valore) {
        aCapo();
        m_scrittore.writeTextElement(nome, valore);
    }
    /// Only when there is something.
    void sePieno(const QString& nome, const QString& valore) {
        if (!valore.isEmpty())
            testo(nome, valore);
    }
    void data(const QString& nome, QDate data) { sePieno(nome, data.toString(Qt::ISODate)); }
    void importo(const QString& nome, double x) { testo(nome, testoDecimali(x, 2, 2)); }
    /// With up to eight decimals.
    void importo8(const QString& nome, double x) { testo(nome, testoDecimali(x, 2, 8)); }
    void si(const QString& nome, bool vero) {
        if (vero)
            testo(nome, QStringLiteral("SI"));
    }

private:
    /// The writer's own indent takes as long as all the rest. No characters at all still end a start tag.
    void aCapo() {
        m_scrittore.writeCharacters(QString());
        m_testo.append(u'\n').resize(m_testo.size() + 2 * m_livello, u' ');
    }

    QXmlStreamWriter& m_scrittore;
    QString& m_testo;
    int m_livello = 1; ///< elements still open
};

void scriviTestata(ElementiXml& xml, const FatturaElettronica& f);
void scriviDatiGenerali(ElementiXml& xml, const FatturaElettronica& f);
void scriviBeniServizi(ElementiXml& xml, const FatturaElettronica& f);
void scriviPagamento(ElementiXml& xml, const PagamentoFel& pagamento);

/// A VAT number; nothing without one.
void scriviIdFiscale(ElementiXml& xml, const QString& nome, const QString& paese, const QString& codice);
void scriviAnagrafica(ElementiXml& xml, const SoggettoFel& soggetto);

} // namespace bor
