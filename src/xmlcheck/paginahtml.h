// Puts a readable page together: headings, pairs of caption and value, tables. Only the view of invoices uses
// it. What no person reads to its end, more than 2,000 rows of a table or 4,000 items of a page, is cut
// there, and the page says so.
#pragma once

#include "xmlcheck/letturaxml.h"

#include <QStringList>

namespace bor {

class PaginaHtml {
public:
    void titolo(const QString& testo) { aggiungi(testo, u"<h1>", u"</h1>\n"); }
    void sezione(const QString& testo) { aggiungi(testo, u"<h2>", u"</h2>\n"); }
    void paragrafo(const QString& testo) { aggiungi(testo, u"<p>", u"</p>\n"); }
    /// Caption and value of one line; nothing without a value.
    void voce(const QString& nome, const QString& valore);
    /// Columns whose name begins with ">" are numbers, aligned to the right.
    void tabella(const QStringList& colonne, const QList<QStringList>& righe);

    /// What follows stands in the first of two columns, then in the second, then over the whole width again.
    void affianca() { m_corpo += u"<table width=\"100%\"><tr><td width=\"50%\">\n"; }
    void secondaColonna() { m_corpo += u"</td><td width=\"50%\">\n"; }
    void fineColonne() { m_corpo += u"</td></tr></table>\n"; }

    QString html(const QString& nomePagina) const;

private:
    /// Text between two pieces of markup; nothing without text.
    void aggiungi(const QString& testo, QStringView prima, QStringView dopo) {
        if (!testo.isEmpty() && !nonEntra())
            m_corpo.append(prima).append(breve(testo)).append(dopo);
    }
    /// True when the page is full; otherwise the item counts as part of it.
    bool nonEntra();
    /// The text as part of the page, cut where no element of the format is as long.
    static QString breve(const QString& testo);

    QString m_corpo;
    int m_voci = 0;
    qsizetype m_fuori = 0; ///< items that did not fit
};

/// The parts of one invoice body.
void mostraDocumento(PaginaHtml& pagina, const Nodo& corpo);
void mostraRighe(PaginaHtml& pagina, const Nodo& corpo);

/// "1234.50" as "1.234,50", with the decimals that it has; any other text as it stands.
QString numeroItaliano(const QString& testo);
/// "2015-03-31" as "31/03/2015"; any other text as it stands.
QString dataItaliana(const QString& testo);

} // namespace bor
