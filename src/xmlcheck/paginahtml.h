// Puts a readable page together: headings, pairs of caption and value, tables. Only the view of invoices uses
// it.
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
    void voce(const QString& nome, const QString& valore) {
        if (valore.isEmpty())
            return;
        aggiungi(nome, u"<p><b>", u":</b> ");
        aggiungi(valore, {}, u"</p>\n");
    }
    /// Columns whose name begins with ">" are numbers, aligned to the right.
    void tabella(const QStringList& colonne, const QList<QStringList>& righe);

    QString html(const QString& nomePagina) const;

private:
    /// Text between two pieces of markup; nothing without text.
    void aggiungi(const QString& testo, QStringView prima, QStringView dopo) {
        if (!testo.isEmpty())
            m_corpo.append(prima).append(testo.toHtmlEscaped()).append(dopo);
    }

    QString m_corpo;
};

/// The parts of one invoice body.
void mostraDocumento(PaginaHtml& pagina, const Nodo& corpo);
void mostraRighe(PaginaHtml& pagina, const Nodo& corpo);

/// "1234.50" as "1.234,50", with the decimals that it has; any other text as it stands.
QString numeroItaliano(const QString& testo);
/// "2015-03-31" as "31/03/2015"; any other text as it stands.
QString dataItaliana(const QString& testo);

} // namespace bor
