#include "prospetti/memoriaprospetti.h"

#include "archive/promemoria.h"
#include "common/percorsi.h"

#include <QSettings>

namespace bor {

namespace {

constexpr QStringView gruppoScadenzario = u"scadenzario";
constexpr QStringView annoMensili = u"mensili/anno";

} // namespace

MemoriaProspetti::MemoriaProspetti(const Percorsi& percorsi, double codiceazienda)
    : m_file(percorsi.promemoria(codiceazienda)) {}

ScelteScadenzario MemoriaProspetti::scadenzario() const {
    QSettings file(m_file, QSettings::IniFormat);
    file.beginGroup(gruppoScadenzario);
    ScelteScadenzario scelte;
    if (file.contains(u"periodo"))
        scelte.periodo = sceltaRicordata(file, u"periodo", PeriodoScadenze::DalAl);
    scelte.giorni = {file.value(u"dal").toDate(), file.value(u"al").toDate()};
    scelte.gruppi = sceltaRicordata(file, u"gruppi", GruppiScadenze::PerPagamento);
    scelte.riba = sceltaRicordata(file, u"riba", SceltaRiba::SenzaRiba);
    return scelte;
}

void MemoriaProspetti::segna(const ScelteScadenzario& scelte) const {
    QSettings file(m_file, QSettings::IniFormat);
    file.remove(gruppoScadenzario);
    file.beginGroup(gruppoScadenzario);
    if (scelte.periodo)
        file.setValue(u"periodo", ordinale(*scelte.periodo));
    if (scelte.giorni.dal.isValid())
        file.setValue(u"dal", scelte.giorni.dal.toString(Qt::ISODate));
    if (scelte.giorni.al.isValid())
        file.setValue(u"al", scelte.giorni.al.toString(Qt::ISODate));
    file.setValue(u"gruppi", ordinale(scelte.gruppi));
    file.setValue(u"riba", ordinale(scelte.riba));
}

int MemoriaProspetti::anno() const {
    return QSettings(m_file, QSettings::IniFormat).value(annoMensili).toInt();
}

void MemoriaProspetti::segnaAnno(int anno) const {
    QSettings file(m_file, QSettings::IniFormat);
    if (anno == 0)
        file.remove(annoMensili);
    else
        file.setValue(annoMensili, anno);
}

} // namespace bor
