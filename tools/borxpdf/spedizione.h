// The mail that PDFs go out with, as the company's texts and the suite's settings want it. Used by the
// command and by the batch.
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace bor {
class Percorsi;
}

namespace bor::pdf {

struct LayoutPdf;

struct Spedizione {
    struct Pdf {
        QString nome; // DOS path
        QByteArray byte;
    };
    QString layout; // DOS path: invoices or fee bills, and of which company
    QString indirizzo;
    QString testo; // empty: that of the layout
    std::vector<Pdf> pdf;
};

/// Sends them in one mail, waits for the server's word and notes it in the user's log of mails. On failure
/// `errore` says why in Italian, to follow a colon.
bool spedisciPdf(const Spedizione& spedizione, const LayoutPdf& layout, const Percorsi& percorsi,
                 QString& errore);

} // namespace bor::pdf
