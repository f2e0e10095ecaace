// The figures of a year on screen: what was invoiced by month and VAT register, as a table and a chart.
#pragma once

#include "prospetti/memoriaprospetti.h"
#include "prospetti/prospetto.h"
#include "prospetti/sommemensili.h"

namespace bor {

/// Columns of the table, in their order on screen.
enum class ColonnaMese { Mese, Registro, Documenti, Imponibile, Imposta, Esente, Totale, Ritenute };
inline constexpr int colonneMese = 8;

class DatiMensili : public Prospetto {
public:
    explicit DatiMensili(Contesto& c);

    /// Years with documents, the latest first; this year where there is none.
    const QList<int>& anni() const { return m_anni; }
    int anno() const { return m_anno; }
    /// Position in `anni`.
    int postoAnno() const { return static_cast<int>(m_anni.indexOf(m_anno)); }
    void cambiaAnno(int posto);
    /// VAT registers that the year has, all of them together in front.
    QStringList registri() const;
    int postoRegistro() const { return static_cast<int>(m_registri.indexOf(m_registro)) + 1; }
    void cambiaRegistro(int posto);

    int righe() const override { return quantiIn(m_righe); }
    QString testo(int riga, ColonnaMese colonna) const;
    bool totale(int riga) const override;
    /// Of a month (1 to 12) of the year, in the registers chosen.
    SommeDocumenti mese(int mese) const;
    /// Name of a month, 1 to 12.
    static QString nomeMese(int mese);

    Tabella tabella() const override;

private:
    struct Riga {
        QString mese;
        int registro; ///< -1 for several
        SommeDocumenti somme;
        bool totale;
    };

    void svuota() override { m_somme.svuota(); }
    void prendi(int, const Fte& fte, const F2e& f2e) override { m_somme.aggiungi(fte, f2e); }
    void completa() override;
    void scegli() override;
    int annoProposto() const;
    SommeDocumenti somme(int anno, int mese) const;
    void aggiungiMese(const QString& nome, int anno, int mese);
    void celle(const Riga& riga, CelleRiga& celle) const;

    MemoriaProspetti m_memoria;
    SommeMensili m_somme;
    QList<int> m_anni;
    QList<int> m_registri; ///< those of the year
    int m_anno;
    int m_registro = -1; ///< -1 for all
    std::vector<Riga> m_righe;
};

} // namespace bor
