// What the operator types to find a document in the register.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace bor {

/// A document answers to the beginning of its number, of number and year ("12/2015"), of one of its dates,
/// or of its amount; a customer to any part of his name, accents and case alike. Points in an amount are
/// thousands where they stand so; without a comma its whole part has to be complete.
class CercaFatture {
public:
    explicit CercaFatture(const QString& testo);

    /// Nothing is searched: everything answers.
    bool vuota() const { return m_nome.isEmpty(); }
    bool trovaNome(const QString& nome) const;
    /// Texts as they are on file, dates `yyyymmdd`.
    bool trovaDocumento(QByteArrayView numero, QByteArrayView datareg, QByteArrayView datadoc,
                        double totale) const;

private:
    /// The digits typed of an amount: 12,5 is 125 with one decimal.
    struct Importo {
        qint64 cifre = 0;
        int decimali = 0;
        bool negativo = false;
    };

    static std::optional<Importo> leggiImporto(const QString& testo);
    bool trovaData(QByteArrayView data) const;
    bool trovaImporto(double totale) const;

    QString m_nome;     ///< as `piega` makes it
    QByteArray m_testo; ///< upper case, in the code page
    QByteArray m_data;  ///< the beginning of "dd/mm/yyyy"; empty where the text is none
    std::optional<Importo> m_importo;
};

} // namespace bor
