#include "common/tabella.h"

#include "common/numeri.h"
#include "common/posti.h"

#include <QIODevice>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStringEncoder>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

CelleRiga::~CelleRiga() = default;

namespace {

/// What a table becomes, byte by byte. A list of 32,000 rows has a quarter of a million cells: none of them
/// becomes a text of its own on the way.
class Getto {
public:
    explicit Getto(QIODevice& uscita) : m_uscita(uscita) { m_bytes.reserve(2 * pieno); }

    void aggiungi(char c) { m_bytes.append(c); }
    void aggiungi(QByteArrayView bytes) { m_bytes.append(bytes); }
    void testo(QStringView testo) {
        const qsizetype prima = m_bytes.size();
        m_bytes.resize(prima + m_utf8.requiredSpace(testo.size()));
        m_bytes.resize(m_utf8.appendToBuffer(m_bytes.data() + prima, testo) - m_bytes.constData());
    }
    void intero(qint64 numero) {
        std::array<char, 24> cifre{};
        const auto fine = std::to_chars(cifre.data(), cifre.data() + cifre.size(), numero);
        aggiungi(QByteArrayView(cifre.data(), fine.ptr));
    }
    /// The number with exactly so many decimals, as `testoFisso` rounds it.
    void fisso(double x, int decimali, char virgola) {
        const double centesimi = x * 100;
        const double vicino = std::nearbyint(centesimi);
        // Far from the middle between two cents, and with digits to spare, both ways of rounding agree.
        if (decimali == 2 && std::fabs(centesimi) < 1e12 && std::fabs(centesimi - vicino) < 0.25) {
            const auto n = static_cast<qint64>(std::fabs(vicino));
            if (vicino < 0)
                aggiungi('-');
            intero(n / 100);
            aggiungi(virgola);
            aggiungi(cifra(n % 100 / 10));
            aggiungi(cifra(n % 10));
        } else {
            testo(testoFisso(x, decimali).replace(u'.', QLatin1Char(virgola)));
        }
    }
    void numero(double x, char virgola) {
        if (std::fabs(x) < 1e15 && x == std::trunc(x))
            intero(static_cast<qint64>(x));
        else
            testo(testoDecimale(x).replace(u'.', QLatin1Char(virgola)));
    }
    void dueCifre(int n) {
        aggiungi(cifra(n / 10 % 10));
        aggiungi(cifra(n % 10));
    }
    void quattroCifre(int n) {
        dueCifre(n / 100);
        dueCifre(n);
    }

    /// Between two rows: hands on what has gathered.
    void respira() {
        if (m_bytes.size() >= pieno)
            svuota();
    }
    /// False when not all could be written.
    bool svuota() {
        m_riuscito = m_riuscito && m_uscita.write(m_bytes) == m_bytes.size();
        m_bytes.resize(0);
        return m_riuscito;
    }
    bool riuscito() const { return m_riuscito; }

private:
    static constexpr qsizetype pieno = 1 << 18;
    static char cifra(qint64 n) { return static_cast<char>('0' + n); }

    QIODevice& m_uscita;
    QByteArray m_bytes;
    QStringEncoder m_utf8{QStringEncoder::Utf8, QStringConverter::Flag::Stateless};
    bool m_riuscito = true;
};

/// A spreadsheet takes the text for a formula: by its first character, whatever blanks stand before it.
bool sembraFormula(QStringView testo) {
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
        const bool virgolette = std::any_of(testo.begin(), testo.end(), [](QChar c) {
            return c == u';' || c == u'"' || c == u'\n' || c == u'\r' || c == u'\t';
        });
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
        m_getto.dueCifre(data.day());
        m_getto.aggiungi('/');
        m_getto.dueCifre(data.month());
        m_getto.aggiungi('/');
        m_getto.quattroCifre(data.year());
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

class CelleJson : public CelleRiga {
public:
    CelleJson(Getto& getto, const Tabella& tabella) : m_getto(getto), m_decimali(tabella.decimali) {
        for (const ColonnaTabella& colonna : tabella.colonne)
            m_chiavi.push_back(colonna.chiave.isEmpty() ? colonna.didascalia : colonna.chiave);
    }

    void testo(QStringView testo) override {
        if (apri())
            stringa(testo);
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
            m_getto.quattroCifre(data.year());
            m_getto.aggiungi('-');
            m_getto.dueCifre(data.month());
            m_getto.aggiungi('-');
            m_getto.dueCifre(data.day());
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
    void stringa(QStringView testo) {
        m_getto.aggiungi('"');
        const auto daScrivere = [](QChar c) { return c < u' ' || c == u'"' || c == u'\\'; };
        for (auto c = testo.begin(); c != testo.end();) {
            const auto fine = std::find_if(c, testo.end(), daScrivere);
            m_getto.testo({c, fine});
            for (c = fine; c != testo.end() && daScrivere(*c); ++c)
                protetto(*c);
        }
        m_getto.aggiungi('"');
    }

private:
    void protetto(QChar c) {
        if (c < u' ') {
            m_getto.aggiungi(QByteArrayView("\\u"));
            m_getto.aggiungi(QByteArray::number(c.unicode(), 16).rightJustified(4, '0'));
        } else {
            m_getto.aggiungi('\\');
            m_getto.testo(QStringView(&c, 1));
        }
    }
    bool apri() {
        if (m_colonna >= quantiIn(m_chiavi))
            return false;
        if (m_colonna > 0)
            m_getto.aggiungi(',');
        stringa(elemento(m_chiavi, m_colonna++));
        m_getto.aggiungi(':');
        return true;
    }

    Getto& m_getto;
    int m_decimali;
    std::vector<QString> m_chiavi;
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
    celle.stringa(tabella.titolo);
    getto.aggiungi(QByteArrayView(",\"filtro\":"));
    celle.stringa(tabella.filtro);
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
