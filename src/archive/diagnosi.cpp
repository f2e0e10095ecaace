#include "archive/diagnosi.h"

#include "archive/archivio.h"
#include "common/avvertenze.h"
#include "common/testo.h"
#include "common/versione.h"

#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QStorageInfo>
#include <QSysInfo>

#include <cstring>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr QStringView formatoData = u"dd/MM/yyyy HH:mm";

QString testo(TenutaBlocchi blocchi) {
    switch (blocchi) {
    case TenutaBlocchi::Tengono:
        return u"tengono tra un programma e l'altro"_s;
    case TenutaBlocchi::SoloQui:
        return u"tengono solo tra i programmi di questo computer: due computer possono scrivere insieme"_s;
    case TenutaBlocchi::NonTengono:
        return u"non tengono: due programmi possono scrivere insieme"_s;
    case TenutaBlocchi::NonCiSono:
        return u"il disco non ne ha: due programmi possono scrivere insieme"_s;
    case TenutaBlocchi::NonProvati:
        break;
    }
    return u"non provati: borlano.tot non si può aprire in scrittura"_s;
}

QString testo(const std::optional<UltimaVerifica>& verifica) {
    if (!verifica)
        return u"mai da questo utente"_s;
    return u"%1: %2 errori, %3 avvisi"_s.arg(verifica->quando.toLocalTime().toString(formatoData))
        .arg(verifica->errori)
        .arg(verifica->avvisi);
}

QString descriviDisco(const QString& cartella) {
    const QStorageInfo disco(cartella);
    const QLocale italiano(QLocale::Italian);
    return u"%1, liberi %2 di %3"_s.arg(QString::fromUtf8(disco.fileSystemType()),
                                        italiano.formattedDataSize(disco.bytesAvailable()),
                                        italiano.formattedDataSize(disco.bytesTotal()));
}

/// The names of files that tell nothing about anybody.
bool nomeInnocuo(const QString& nome) {
    static const QRegularExpression suite(
        u"^(borlano\\.[^.]{3}|[fp][0-9]+|fpa[0-9]+|bordoc[0-9]*\\.rto|boraz0\\.[0-9]{3}|borfte|borxpdf|borcopia)$"_s,
        QRegularExpression::CaseInsensitiveOption);
    return suite.match(nome).hasMatch();
}

/// One of the system's own sentences about an error.
bool fraseDiSistema(const QString& testo) {
    constexpr int ultimoErrore = 133;
    for (int errore = 1; errore <= ultimoErrore; ++errore) {
        if (testo == QString::fromLocal8Bit(std::strerror(errore)))
            return true;
    }
    return false;
}

/// A path, which may hold blanks, goes from its first slash to the sentence behind it: of it stays the name
/// of a file of the suite, and of the sentence what the system or this program says.
QString senzaPercorsi(const QString& avvertenza) {
    static const QRegularExpression inizio(u"([A-Za-z]:)?[/\\\\]"_s);
    const qsizetype da = avvertenza.indexOf(inizio);
    if (da < 0)
        return avvertenza;
    QString percorso = avvertenza.mid(da);
    QString seguito;
    for (const QString& frase : {u" is in use by another program"_s, u" is no draft of this version"_s}) {
        if (percorso.endsWith(frase))
            seguito = frase;
    }
    if (const qsizetype duePunti = percorso.lastIndexOf(u": "_s);
        duePunti >= 0 && fraseDiSistema(percorso.mid(duePunti + 2)))
        seguito = percorso.mid(duePunti);
    percorso.chop(seguito.size());
    const QString nome = percorso.mid(percorso.lastIndexOf(QRegularExpression(u"[/\\\\]"_s)) + 1);
    return avvertenza.left(da) + (nomeInnocuo(nome) ? nome : u"(file)"_s) + seguito;
}

/// The names of the customers that a text may be about, and the longer words of which they are made.
QSet<QString> nomiClienti(const Archivio& archivio) {
    constexpr qsizetype parolaLunga = 4;
    QSet<QString> nomi;
    const auto aggiungi = [&nomi](const QString& ragione) {
        const QString nome = puliscitesto(ragione).toLower();
        static const QRegularExpression fuori(u"[^\\w]+"_s, QRegularExpression::UseUnicodePropertiesOption);
        for (const QString& parola : nome.split(fuori, Qt::SkipEmptyParts)) {
            if (parola.size() >= parolaLunga)
                nomi.insert(parola);
        }
    };
    archivio.cli.scorri(1, archivio.leggiTot(Conta::Cli).numero, [&](int, const Cli& cli) {
        aggiungi(cli.sede.ragione1.text());
        aggiungi(cli.sede.ragione2.text());
        return true;
    });
    return nomi;
}

/// Words that customers are called by go.
QString senzaNomi(const QString& testo, const QSet<QString>& nomi) {
    static const QRegularExpression parola(u"\\w+"_s, QRegularExpression::UseUnicodePropertiesOption);
    QString netto;
    qsizetype fine = 0;
    for (const QRegularExpressionMatch& trovata : parola.globalMatch(testo)) {
        const bool nome = nomi.contains(trovata.captured().toLower());
        netto += testo.mid(fine, trovata.capturedStart() - fine) + (nome ? u"(nome)"_s : trovata.captured());
        fine = trovata.capturedEnd();
    }
    return netto + testo.mid(fine);
}

/// So do paths, what is between quotes, and amounts.
QString soloIlGuasto(const QString& avvertenza, const QSet<QString>& nomi) {
    static const QRegularExpression tra(u"\"[^\"]*\""_s);
    static const QRegularExpression importo(u"[0-9][0-9.]*[.,][0-9]+"_s);
    QString testo = senzaPercorsi(avvertenza);
    testo.replace(tra, u"(testo)"_s);
    testo.replace(importo, u"(importo)"_s);
    return senzaNomi(testo, nomi);
}

} // namespace

Diagnosi diagnosi(const Archivio& archivio, double codiceazienda) {
    const QString cartella = archivio.reale(cartellaAzienda(codiceazienda));
    return {versione(),
            cartella,
            descriviDisco(cartella),
            provaBlocchi(archivio.reale(archivio.borlano(u"tot"))),
            Promemoria(archivio.percorsi(), codiceazienda).verifica(),
            avvertenze()};
}

QList<std::pair<QString, QString>> voci(const Diagnosi& diagnosi) {
    return {
        {u"Versione"_s, diagnosi.versione},
        {u"Cartella dell'azienda"_s, diagnosi.cartella},
        {u"Disco"_s, diagnosi.disco},
        {u"Blocchi"_s, testo(diagnosi.blocchi)},
        {u"Ultima verifica"_s, testo(diagnosi.verifica)},
        {u"Sistema"_s, u"%1, Qt %2"_s.arg(QSysInfo::prettyProductName(), QString::fromLatin1(qVersion()))}};
}

QString testoAssistenza(const Diagnosi& diagnosi, const Archivio& archivio) {
    QString intero = u"Borlano, fatture emesse: informazioni del %1\n\n"_s.arg(
        QDateTime::currentDateTime().toString(formatoData));
    const QSet<QString> nomi = nomiClienti(archivio);
    Diagnosi senza = diagnosi;
    senza.cartella = senzaNomi(diagnosi.cartella, nomi);
    for (const auto& [didascalia, valore] : voci(senza))
        intero += didascalia + u": "_s + valore + u'\n';
    intero += u"Avvertimenti di questa esecuzione: %1\n"_s.arg(diagnosi.avvertenze.size());
    for (const QString& avvertenza : diagnosi.avvertenze)
        intero += u"  "_s + soloIlGuasto(avvertenza, nomi) + u'\n';
    return intero;
}

} // namespace bor
