// Sends documents by e-mail. Used by the command once the PDFs are on disk.
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace bor::pdf {

struct ImpostazioniPosta;

struct Allegato {
    QString nome; // without folder
    QByteArray pdf;
};

struct Messaggio {
    QString destinatario; // must be a valid address
    QString oggetto;
    QString testo; // lines ended by "\n"
    std::vector<Allegato> allegati;
};

/// Sends and waits for the server's word. On failure `errore` says why in Italian.
bool spedisci(const ImpostazioniPosta& posta, const Messaggio& messaggio, QString& errore);

/// A text as it stands in a header: plain when it can, else as encoded words of UTF-8; 120 characters at
/// most. Line ends and other control characters become blanks, so the text can never begin a header of its
/// own.
QByteArray testoIntestazione(const QString& testo);

} // namespace bor::pdf
