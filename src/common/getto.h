// Bytes on their way to a device, gathered in large pieces. A list of 32,000 rows has a quarter of a million
// cells: none of them becomes a text of its own on the way.
#pragma once

#include <QByteArrayView>
#include <QDate>
#include <QStringEncoder>
#include <QStringView>

#include <array>
#include <cstring>
#include <vector>

class QIODevice;

namespace bor {

class Getto {
public:
    explicit Getto(QIODevice& uscita) : m_uscita(uscita) {}

    void aggiungi(char c) {
        *posto(1) = c;
        ++m_presi;
    }
    void aggiungi(QByteArrayView bytes) {
        const auto quanti = static_cast<std::size_t>(bytes.size());
        std::memcpy(posto(quanti), bytes.data(), quanti);
        m_presi += quanti;
    }
    /// In UTF-8.
    void testo(QStringView testo);
    void intero(qint64 numero);
    /// With exactly so many decimals, rounded as `testoFisso` does.
    void fisso(double x, int decimali, char virgola);
    /// With the decimals that it has.
    void numero(double x, char virgola);
    /// "31/12/2015"
    void giornoMeseAnno(QDate data);
    /// "2015-12-31"
    void annoMeseGiorno(QDate data);

    /// Between two rows: hands on what has gathered.
    void respira() {
        if (m_presi >= pieno)
            svuota();
    }
    /// False when not all could be written.
    bool svuota();
    bool riuscito() const { return m_riuscito; }

private:
    static constexpr std::size_t pieno = 1 << 18;

    /// Room for so many bytes behind those that are taken.
    char* posto(std::size_t quanti) {
        if (m_bytes.size() - m_presi < quanti)
            m_bytes.resize(2 * (m_presi + quanti));
        return m_bytes.data() + m_presi;
    }
    /// The eight digits of a day, year first. In a list the same days come again and again, and to take one
    /// apart is dearer than to write it.
    const std::array<char, 8>& cifre(QDate data);

    struct CifreGiorno {
        qint64 giorno = -1; ///< Julian day; -1 for none yet
        std::array<char, 8> cifre{};
    };

    QIODevice& m_uscita;
    std::array<CifreGiorno, 1024> m_giorni; ///< by the last bits of the day
    std::vector<char> m_bytes;
    std::size_t m_presi = 0;
    QStringEncoder m_utf8{QStringEncoder::Utf8, QStringConverter::Flag::Stateless};
    bool m_riuscito = true;
};

} // namespace bor
