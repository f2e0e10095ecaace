#include "xmlcheck/riparazionexml.h"

#include "common/testo.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QChar carattereDi(Segno segno) {
    return QChar(static_cast<char16_t>(segno));
}

bool dichiaraByteSingolo(const QByteArray& contenuto) {
    static const QRegularExpression dichiarazione(
        u"^<\\?xml[^>]*encoding=[\"'](windows-1252|iso-8859-1|iso-8859-15)[\"']"_s,
        QRegularExpression::CaseInsensitiveOption);
    return dichiarazione.match(QString::fromLatin1(contenuto.first(qMin(contenuto.size(), qsizetype(200)))))
        .hasMatch();
}

/// Length in bytes of the UTF-8 character at the front; 0 when there is none.
qsizetype lunghezzaUtf8(QByteArrayView contenuto) {
    const auto primo = static_cast<unsigned char>(contenuto.front());
    const qsizetype lunghezza = primo < 0x80 ? 1 : primo < 0xE0 ? 2 : primo < 0xF0 ? 3 : 4;
    return lunghezza <= contenuto.size() && contenuto.first(lunghezza).isValidUtf8() ? lunghezza : 0;
}

/// Bytes that are the same character in every encoding.
qsizetype lunghezzaAscii(QByteArrayView contenuto) {
    return std::ranges::find_if(contenuto, [](char c) { return static_cast<unsigned char>(c) >= 0x80; }) -
           contenuto.begin();
}

TestoRiparato decodifica(const QByteArray& contenuto) {
    if (dichiaraByteSingolo(contenuto))
        return {daCp1252(contenuto)};
    if (contenuto.isValidUtf8())
        return {QString::fromUtf8(contenuto)};
    TestoRiparato t;
    t.testo.reserve(contenuto.size());
    for (QByteArrayView resto(contenuto); !resto.isEmpty() && t.segni <= segniMassimi;) {
        qsizetype letti = lunghezzaAscii(resto);
        if (letti == 0)
            letti = lunghezzaUtf8(resto);
        if (letti > 0) {
            t.testo += QString::fromUtf8(resto.first(letti));
        } else {
            letti = 1;
            t.testo += carattereDi(Segno::Codifica) + daCp1252(resto.first(letti));
            ++t.segni;
        }
        resto = resto.sliced(letti);
    }
    return t;
}

bool vietatoInXml(QChar c) {
    return (c < u' ' && c != u'\t' && c != u'\n' && c != u'\r') || c == QChar(0xFFFE) || c == QChar(0xFFFF);
}

/// Copies the text once from front to back, repairing on the way.
class Riparatore {
public:
    explicit Riparatore(QStringView testo) : m_testo(testo) { m_uscita.reserve(testo.size()); }

    TestoRiparato ripara() {
        while (m_posizione < m_testo.size() && m_sostituiti <= segniMassimi) {
            copiaSemplici();
            if (m_posizione < m_testo.size() && !copiaTratto(u"<!--", u"-->") &&
                !copiaTratto(u"<![CDATA[", u"]]>") && !copiaTratto(u"<?", u"?>"))
                copiaCarattere();
        }
        return {m_uscita, m_sostituiti};
    }

private:
    /// As far as there is nothing to look at.
    void copiaSemplici() {
        const auto daGuardare = [](QChar c) {
            return c == u'<' || c == u'>' || c == u'&' || vietatoInXml(c) ||
                   c == carattereDi(Segno::Codifica);
        };
        const QStringView tratto = resto();
        const qsizetype lunghezza = std::ranges::find_if(tratto, daGuardare) - tratto.begin();
        m_uscita += tratto.first(lunghezza);
        m_posizione += lunghezza;
    }

    /// Comments and the like hold no markup: over they go as they are, but for what no XML may hold.
    bool copiaTratto(QStringView inizio, QStringView fine) {
        if (m_dentroTag || !resto().startsWith(inizio))
            return false;
        const qsizetype trovata = m_testo.indexOf(fine, m_posizione + inizio.size());
        const qsizetype dopo = trovata < 0 ? m_testo.size() : trovata + fine.size();
        for (; m_posizione < dopo; ++m_posizione)
            m_uscita += vietatoInXml(m_testo[m_posizione]) ? QChar(u' ') : m_testo[m_posizione];
        return true;
    }

    void copiaCarattere() {
        const QChar c = m_testo[m_posizione];
        if (vietatoInXml(c))
            sostituisci(Segno::Controllo, u" ");
        else if (c == u'&' && !iniziaRiferimento())
            sostituisci(Segno::ECommerciale, u"&#38;");
        else if (c == u'<' && !iniziaTag())
            sostituisci(Segno::Minore, u"&#60;");
        else if (!m_dentroTag || c != carattereDi(Segno::Codifica))
            m_uscita += c;
        if (c == u'<')
            m_dentroTag = iniziaTag();
        else if (c == u'>')
            m_dentroTag = false;
        ++m_posizione;
    }

    void sostituisci(Segno segno, QStringView testo) {
        ++m_sostituiti;
        if (!m_dentroTag)
            m_uscita += carattereDi(segno);
        m_uscita += testo;
    }

    /// "&amp;", "&#38;" and the like, by hand: a file may hold a million of them.
    bool iniziaRiferimento() const {
        const QStringView nome = pezzoFino(u';');
        if (!nome.startsWith(u'#'))
            return nome == u"amp" || nome == u"lt" || nome == u"gt" || nome == u"quot" || nome == u"apos";
        const bool esadecimale = nome.size() > 1 && nome[1] == u'x';
        const QStringView cifre = nome.sliced(esadecimale ? 2 : 1);
        bool numero = false;
        (void)cifre.toUInt(&numero, esadecimale ? 16 : 10);
        return numero && cifre.size() <= 7 && cifre[0] != u'+';
    }

    /// What stands between this character and the next `fine`, which must be near.
    QStringView pezzoFino(QChar fine) const {
        constexpr qsizetype massimo = 12;
        const QStringView vicino = resto().sliced(1).left(massimo);
        const qsizetype dove = vicino.indexOf(fine);
        return dove < 0 ? QStringView() : vicino.first(dove);
    }

    bool iniziaTag() const {
        if (m_posizione + 1 >= m_testo.size())
            return false;
        const QChar seguente = m_testo[m_posizione + 1];
        return seguente.isLetter() || seguente == u'_' || seguente == u'/' || seguente == u'!' ||
               seguente == u'?';
    }

    QStringView resto() const { return m_testo.sliced(m_posizione); }

    QStringView m_testo;
    qsizetype m_posizione = 0;
    qsizetype m_sostituiti = 0;
    bool m_dentroTag = false;
    QString m_uscita;
};

} // namespace

bool diUtf8(const QByteArray& contenuto) {
    return contenuto.isValidUtf8() && !dichiaraByteSingolo(contenuto);
}

TestoRiparato riparaXml(const QByteArray& contenuto) {
    const TestoRiparato decodificato = decodifica(contenuto);
    TestoRiparato riparato = Riparatore(decodificato.testo).ripara();
    riparato.segni += decodificato.segni;
    // After its first error the parser drops references by name, but not those by number.
    for (const auto& [nome, numero] : {std::pair(u"&amp;"_s, u"&#38;"_s), std::pair(u"&lt;"_s, u"&#60;"_s),
                                       std::pair(u"&gt;"_s, u"&#62;"_s), std::pair(u"&quot;"_s, u"&#34;"_s),
                                       std::pair(u"&apos;"_s, u"&#39;"_s)})
        riparato.testo.replace(nome, numero);
    return riparato;
}

Rilievo rilievoDelSegno(Segno segno) {
    switch (segno) {
    case Segno::Codifica:
        return {.motivo =
                    u"Il file si dichiara UTF-8, ma qui c'è una lettera scritta in un'altra codifica."_s,
                .rimedio = u"Togliere gli accenti e i segni particolari (\"a'\" al posto di \"à\")"_s};
    case Segno::ECommerciale:
        return {.motivo = u"Il segno \"&\" da solo non può stare in un file XML."_s,
                .rimedio = u"Scrivere \"e\" al posto di \"&\""_s};
    case Segno::Minore:
        return {.motivo = u"Il segno \"<\" non può stare in un testo di un file XML."_s,
                .rimedio = u"Togliere il segno \"<\""_s};
    case Segno::Controllo:
        break;
    }
    return {.motivo = u"Il testo contiene caratteri non stampabili."_s, .rimedio = u"Riscrivere il testo"_s};
}

} // namespace bor
