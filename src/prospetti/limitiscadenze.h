// The period of the due list: one of the usual ones, or the days that the operator types.
#pragma once

#include "common/orologio.h"
#include "common/periodo.h"

#include <QStringList>

#include <functional>
#include <optional>

namespace bor {

enum class PeriodoScadenze { DaOggi, QuestoMese, MeseProssimo, Tutte, DalAl };

class LimitiScadenze {
public:
    /// `cambiati` is called after each choice of the operator.
    LimitiScadenze(const Orologio& orologio, std::function<void()> cambiati)
        : m_orologio(orologio), m_cambiati(std::move(cambiati)) {}

    PeriodoScadenze periodo() const { return m_periodo; }
    void cambiaPeriodo(PeriodoScadenze periodo);
    /// First and last day as their boxes show them; empty for no limit. What is typed there is a period of
    /// its own, of which a text that is no date limits nothing.
    const QString& dal() const { return m_dal; }
    const QString& al() const { return m_al; }
    void cambiaDal(const QString& testo);
    void cambiaAl(const QString& testo);

    std::optional<QDate> primo() const { return m_primo; }
    std::optional<QDate> ultimo() const { return m_ultimo; }
    /// Until the operator has chosen: from today on, or all where nothing is due from today on, so that
    /// whoever opens an archive of past years does not find an empty list.
    void proponi(bool daOggi);

    /// What the operator has chosen; nothing before he has.
    std::optional<PeriodoScadenze> scelto() const {
        return m_scelto ? std::optional(m_periodo) : std::nullopt;
    }
    /// Captions of the boxes whose text is no date, or half a one.
    QStringList errati() const;
    /// Takes up what was chosen in another run; `giorni` are those of `PeriodoScadenze::DalAl`.
    void riprendi(PeriodoScadenze periodo, const Giorni& giorni);

private:
    void metti(PeriodoScadenze periodo);
    void limita(const Giorni& giorni);

    const Orologio& m_orologio;
    std::function<void()> m_cambiati;
    PeriodoScadenze m_periodo = PeriodoScadenze::DaOggi;
    bool m_scelto = false;
    std::optional<QDate> m_primo;
    std::optional<QDate> m_ultimo;
    QString m_dal;
    QString m_al;
};

} // namespace bor
