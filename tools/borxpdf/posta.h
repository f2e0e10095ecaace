// Sends one document by e-mail. Used by the command once the PDF is on disk.
#pragma once

#include <QByteArray>
#include <QString>

namespace bor::pdf {

struct ImpostazioniPosta;

struct Messaggio {
    QString destinatario; // must be a valid address
    QString oggetto;
    QString testo;        // lines ended by "\n"
    QString nomeAllegato; // without folder
    QByteArray allegato;  // a PDF
};

/// Sends and waits for the server's word. On failure `errore` says why in Italian.
bool spedisci(const ImpostazioniPosta& posta, const Messaggio& messaggio, QString& errore);

/// A text as it stands in a header: plain when it can, else as encoded words of UTF-8; 120 characters at
/// most. Line ends and other control characters become blanks, so the text can never begin a header of its
/// own.
QByteArray testoIntestazione(const QString& testo);

} // namespace bor::pdf
