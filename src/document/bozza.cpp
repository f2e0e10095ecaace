#include "document/bozza.h"

#include "common/posti.h"
#include "document/visita.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace bor {

namespace {

// The last two digits are the version: they count up when a member comes, goes or changes its meaning.
constexpr QByteArrayView marcaBozza = "BORBOZ02";
constexpr QByteArrayView marcaRighe = "BORRIG01";
constexpr auto algoritmo = QCryptographicHash::Sha256;
constexpr qsizetype lunghezzaImpronta = 32;

template <class T>
concept Record = disposizioneDiFile<std::remove_const_t<T>>;

void visita(auto& a, Tale<Bozza> auto& x) {
    auto& [scritta, documento, suFile, inTestata, righe, righep] = x;
    a(scritta, documento, suFile, inTestata, righe, righep);
}

void visita(auto& a, Tale<RigheSospese> auto& x) {
    auto& [ddd, dddp, trasporto, pratica, scorporo] = x;
    a(tabellaFissa(ddd, righeMerce), tabellaFissa(dddp, righeParcella), trasporto, pratica, scorporo);
}

int quante(const TabellaRighe&) {
    return righeMerce;
}
int quante(const TabellaRighep&) {
    return righeParcella;
}

class Scrittore {
public:
    explicit Scrittore(QByteArray& bytes) : m_flusso(&bytes, QIODevice::WriteOnly) {
        m_flusso.setVersion(QDataStream::Qt_6_0);
    }

    void operator()(const auto&... parti) { (metti(parti), ...); }

private:
    void metti(const QString& testo) { m_flusso << testo; }
    void metti(bool x) { m_flusso << x; }
    void metti(double x) { m_flusso << x; }
    void metti(const QDateTime& momento) { m_flusso << momento.toMSecsSinceEpoch(); }
    template <class N>
    void metti(const Limitato<N>& x) {
        m_flusso << qint32{intero(x.numero)};
    }
    template <class T, std::size_t N>
    void metti(const std::array<T, N>& parti) {
        for (const T& parte : parti)
            metti(parte);
    }
    template <class V>
    void metti(const TabellaFissa<V>& tabella) {
        using Riga = typename V::value_type;
        const auto usata = [](const Riga& riga) { return !(riga == Riga()); };
        const auto fine = std::find_if(tabella.righe.rbegin(), tabella.righe.rend(), usata).base();
        m_flusso << static_cast<quint32>(fine - tabella.righe.begin());
        std::for_each(tabella.righe.begin(), fine, [this](const Riga& riga) { metti(riga); });
    }
    template <class T>
    void metti(const std::optional<T>& parte) {
        metti(parte.has_value());
        if (parte)
            metti(tabellaFissa(*parte, quante(*parte)));
    }
    template <Record R>
    void metti(const R& record) {
        m_flusso.writeRawData(reinterpret_cast<const char*>(&record), sizeof(R));
    }
    void metti(const auto& parte) { visita(*this, parte); }

    QDataStream m_flusso;
};

class Lettore {
public:
    explicit Lettore(const QByteArray& bytes) : m_flusso(bytes) { m_flusso.setVersion(QDataStream::Qt_6_0); }

    void operator()(auto&&... parti) { (prendi(parti), ...); }
    /// Everything was there, and nothing is left.
    bool completo() const { return m_flusso.status() == QDataStream::Ok && m_flusso.atEnd(); }

private:
    void prendi(QString& testo) { m_flusso >> testo; }
    void prendi(bool& x) { m_flusso >> x; }
    void prendi(double& x) {
        m_flusso >> x;
        if (!std::isfinite(x))
            x = 0;
    }
    void prendi(QDateTime& momento) {
        constexpr qint64 fineAnno9999 = 253402300799000;
        qint64 x = 0;
        m_flusso >> x;
        momento = QDateTime::fromMSecsSinceEpoch(x >= 0 && x <= fineAnno9999 ? x : 0);
    }
    template <class N>
    void prendi(Limitato<N>& x) {
        qint32 n = 0;
        m_flusso >> n;
        x.numero = static_cast<N>(n >= x.minimo && n <= x.massimo ? n : x.altrimenti);
    }
    template <class T, std::size_t N>
    void prendi(std::array<T, N>& parti) {
        for (T& parte : parti)
            prendi(parte);
    }
    template <class V>
    void prendi(TabellaFissa<V>& tabella) {
        quint32 usate = 0;
        m_flusso >> usate;
        tabella.righe.assign(postoDaZero(tabella.quante), {});
        if (usate > tabella.righe.size())
            m_flusso.setStatus(QDataStream::ReadCorruptData);
        for (std::size_t i = 0; i < usate && m_flusso.status() == QDataStream::Ok; ++i)
            prendi(tabella.righe[i]);
    }
    template <class T>
    void prendi(std::optional<T>& parte) {
        bool presente = false;
        prendi(presente);
        if (!presente)
            return parte.reset();
        auto intera = tabellaFissa(parte.emplace(), quante(T()));
        prendi(intera);
    }
    template <Record R>
    void prendi(R& record) {
        std::array<char, sizeof(R)> bytes{};
        if (m_flusso.readRawData(bytes.data(), sizeof(R)) == sizeof(R))
            std::memcpy(&record, bytes.data(), sizeof(R));
        else
            m_flusso.setStatus(QDataStream::ReadPastEnd);
    }
    void prendi(auto& parte) { visita(*this, parte); }

    QDataStream m_flusso;
};

template <class T>
QByteArray chiudi(QByteArrayView marca, const T& cosa) {
    QByteArray corpo;
    Scrittore scrittore(corpo);
    visita(scrittore, cosa);
    return marca.toByteArray() + QCryptographicHash::hash(corpo, algoritmo) + corpo;
}

template <class T>
std::optional<T> apri(QByteArrayView marca, QByteArrayView bytes) {
    const qsizetype testa = marca.size() + lunghezzaImpronta;
    if (bytes.size() < testa || !bytes.startsWith(marca))
        return std::nullopt;
    const QByteArray corpo = bytes.sliced(testa).toByteArray();
    if (QCryptographicHash::hash(corpo, algoritmo) != bytes.sliced(marca.size(), lunghezzaImpronta))
        return std::nullopt;
    Lettore lettore(corpo);
    T cosa;
    visita(lettore, cosa);
    return lettore.completo() ? std::optional(std::move(cosa)) : std::nullopt;
}

} // namespace

QByteArray codifica(const Bozza& bozza) {
    return chiudi(marcaBozza, bozza);
}

QByteArray codifica(const RigheSospese& righe) {
    return chiudi(marcaRighe, righe);
}

std::optional<Bozza> decodificaBozza(QByteArrayView bytes) {
    return apri<Bozza>(marcaBozza, bytes);
}

std::optional<RigheSospese> decodificaRighe(QByteArrayView bytes) {
    return apri<RigheSospese>(marcaRighe, bytes);
}

} // namespace bor
