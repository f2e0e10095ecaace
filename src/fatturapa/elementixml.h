// The elements of an electronic invoice in XML, and its parts in the order of the file. Only
// fatturapa/scrivifattura.cpp writes with them.
#pragma once

#include "fatturapa/fattura.h"
#include "fatturapa/scrivifattura.h"

#include <QXmlStreamWriter>

namespace bor {

class ElementiXml {
public:
    explicit ElementiXml(QXmlStreamWriter& scrittore) : m_scrittore(scrittore) {}

    template <class F>
    void blocco(const QString& nome, F contenuto) {
        m_scrittore.writeStartElement(nome);
        contenuto();
        m_scrittore.writeEndElement();
    }
    void testo(const QString& nome, const QString& valore) { m_scrittore.writeTextElement(nome, valore); }
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
    QXmlStreamWriter& m_scrittore;
};

void scriviTestata(ElementiXml& xml, const FatturaElettronica& f);
void scriviDatiGenerali(ElementiXml& xml, const FatturaElettronica& f);
void scriviBeniServizi(ElementiXml& xml, const FatturaElettronica& f);
void scriviPagamento(ElementiXml& xml, const PagamentoFel& pagamento);

/// A VAT number; nothing without one.
void scriviIdFiscale(ElementiXml& xml, const QString& nome, const QString& paese, const QString& codice);
void scriviAnagrafica(ElementiXml& xml, const SoggettoFel& soggetto);

} // namespace bor
