#include "common/tabella.h"

#include "common/getto.h"
#include "common/posti.h"

#include <QBuffer>
#include <QRegularExpression>
#include <QSaveFile>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

CelleRiga::~CelleRiga() = default;

namespace {

/// A spreadsheet takes the text for a formula: by its first character, whatever blanks stand before it.
bool sembraFormula(QStringView testo) {
    if (testo.front().isLetterOrNumber())
        return false;
    const auto conta = [](QChar c) { return c != u' ' && c != QChar::Nbsp; };
    const auto primo = std::find_if(testo.begin(), testo.end(), conta);
    if (primo == testo.end() || (*primo >= u' ' && !QStringView(u"=+-@").contains(*primo)))
        return false;
    static const QRegularExpression numero(u"^[+-]\\d+(\\.\\d{3})*(,\\d+)?$"_s);
    return !numero.match(testo.trimmed().toString()).hasMatch();
}

class CelleCsv : public CelleRiga {
public:
    CelleCsv(Getto& getto, int colonne) : m_getto(getto), m_colonne(colonne) {}

    void testo(QStringView testo) override {
        if (!apri() || testo.isEmpty())
            return;
        const bool formula = sembraFormula(testo);
        bool virgolette = false;
        for (const QChar c : testo)
            virgolette |= c == u';' || c == u'"' || c < u' ';
        if (virgolette)
            m_getto.aggiungi('"');
        if (formula)
            m_getto.aggiungi('\'');
        if (virgolette)
            m_getto.testo(testo.toString().replace(u'"', u"\"\""_s));
        else
            m_getto.testo(testo);
        if (virgolette)
            m_getto.aggiungi('"');
    }
    void numero(double numero) override {
        if (apri())
            m_getto.numero(numero, ',');
    }
    void importo(double importo) override {
        if (apri())
            m_getto.fisso(importo, decimali, ',');
    }
    void data(QDate data) override {
        if (!apri() || !data.isValid())
            return;
        m_getto.giornoMeseAnno(data);
    }
    void vuota() override { apri(); }

    void fineRiga() {
        while (m_colonna < m_colonne)
            vuota();
        m_getto.aggiungi(QByteArrayView("\r\n"));
        m_getto.respira();
        m_colonna = 0;
    }

    int decimali = 2;

private:
    bool apri() {
        if (m_colonna >= m_colonne)
            return false;
        if (m_colonna++ > 0)
            m_getto.aggiungi(';');
        return true;
    }

    Getto& m_getto;
    int m_colonne;
    int m_colonna = 0;
};

/// A character that cannot stand in a text of JSON as it is.
void protetto(Getto& getto, QChar c) {
    if (c < u' ') {
        getto.aggiungi(QByteArrayView("\\u"));
        getto.aggiungi(QByteArray::number(c.unicode(), 16).rightJustified(4, '0'));
    } else {
        getto.aggiungi('\\');
        getto.testo(QStringView(&c, 1));
    }
}

void stringa(Getto& getto, QStringView testo) {
    getto.aggiungi('"');
    const auto daProteggere = [](QChar c) { return c < u' ' || c == u'"' || c == u'\\'; };
    for (auto c = testo.begin(); c != testo.end();) {
        const auto fine = std::find_if(c, testo.end(), daProteggere);
        getto.testo({c, fine});
        for (c = fine; c != testo.end() && daProteggere(*c); ++c)
            protetto(getto, *c);
    }
    getto.aggiungi('"');
}

class CelleJson : public CelleRiga {
public:
    CelleJson(Getto& getto, const Tabella& tabella) : m_getto(getto), m_decimali(tabella.decimali) {
        for (const ColonnaTabella& colonna : tabella.colonne)
            m_chiavi.push_back(chiave(colonna.chiave.isEmpty() ? colonna.didascalia : colonna.chiave));
    }

    void testo(QStringView testo) override {
        if (apri())
            stringa(m_getto, testo);
    }
    void numero(double numero) override {
        if (apri())
            m_getto.numero(numero, '.');
    }
    void importo(double importo) override {
        if (apri())
            m_getto.fisso(importo, m_decimali, '.');
    }
    void data(QDate data) override {
        if (!data.isValid()) {
            vuota();
        } else if (apri()) {
            m_getto.aggiungi('"');
            m_getto.annoMeseGiorno(data);
            m_getto.aggiungi('"');
        }
    }
    void vuota() override {
        if (apri())
            m_getto.aggiungi(QByteArrayView("null"));
    }

    void inizioRiga() {
        m_getto.aggiungi('{');
        m_colonna = 0;
    }
    void fineRiga() {
        while (m_colonna < quantiIn(m_chiavi))
            vuota();
        m_getto.aggiungi('}');
        m_getto.respira();
    }

private:
    /// As it stands before each value.
    static QByteArray chiave(const QString& nome) {
        QBuffer bytes;
        bytes.open(QIODevice::WriteOnly);
        Getto getto(bytes);
        stringa(getto, nome);
        getto.aggiungi(':');
        getto.svuota();
        return bytes.data();
    }
    bool apri() {
        if (m_colonna >= quantiIn(m_chiavi))
            return false;
        if (m_colonna > 0)
            m_getto.aggiungi(',');
        m_getto.aggiungi(elemento(m_chiavi, m_colonna++));
        return true;
    }

    Getto& m_getto;
    int m_decimali;
    std::vector<QByteArray> m_chiavi;
    int m_colonna = 0;
};

bool daLeggere(const Tabella& tabella, int riga) {
    return !tabella.subtotale || !tabella.subtotale(riga);
}

} // namespace

bool scriviCsv(const Tabella& tabella, QIODevice& uscita) {
    Getto getto(uscita);
    CelleCsv celle(getto, quantiIn(tabella.colonne));
    celle.decimali = tabella.decimali;
    // The signature by which spreadsheets know the encoding.
    getto.aggiungi(QByteArrayView("\xEF\xBB\xBF"));
    for (const ColonnaTabella& colonna : tabella.colonne)
        celle.testo(colonna.didascalia);
    celle.fineRiga();
    for (int r = 0; r < tabella.righe && getto.riuscito(); ++r) {
        if (!daLeggere(tabella, r))
            continue;
        tabella.riga(r, celle);
        celle.fineRiga();
    }
    return getto.svuota();
}

bool scriviJson(const Tabella& tabella, QIODevice& uscita) {
    Getto getto(uscita);
    CelleJson celle(getto, tabella);
    getto.aggiungi(QByteArrayView("{\"titolo\":"));
    stringa(getto, tabella.titolo);
    getto.aggiungi(QByteArrayView(",\"filtro\":"));
    stringa(getto, tabella.filtro);
    getto.aggiungi(QByteArrayView(",\"righe\":["));
    QByteArrayView fra = "\n";
    for (int r = 0; r < tabella.righe && getto.riuscito(); ++r) {
        if (!daLeggere(tabella, r))
            continue;
        getto.aggiungi(std::exchange(fra, ",\n"));
        celle.inizioRiga();
        tabella.riga(r, celle);
        celle.fineRiga();
    }
    getto.aggiungi(']');
    if (tabella.totali) {
        getto.aggiungi(QByteArrayView(",\n\"totali\":"));
        celle.inizioRiga();
        tabella.totali(celle);
        celle.fineRiga();
    }
    getto.aggiungi(QByteArrayView("}\n"));
    return getto.svuota();
}

QString salvaFile(const QString& percorso, const std::function<bool(QIODevice&)>& scrivi) {
    QSaveFile file(percorso);
    // A commit reports success even after a flush that failed, so the flush is asked for and looked at first.
    const bool scritto = file.open(QIODevice::WriteOnly) && scrivi(file) && file.flush();
    if (scritto && file.error() == QFileDevice::NoError && file.commit())
        return {};
    const bool vietato =
        file.error() == QFileDevice::PermissionsError || file.error() == QFileDevice::OpenError;
    return u"Il file %1 non si è potuto scrivere: %2."_s.arg(
        percorso,
        vietato ? u"controllate la cartella e i suoi permessi"_s : u"controllate lo spazio sul disco"_s);
}

} // namespace bor
