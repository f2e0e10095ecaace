#include "archive/promemoria.h"

#include "common/percorsi.h"

namespace bor {

namespace {

constexpr QStringView quando = u"verifica/quando";
constexpr QStringView errori = u"verifica/errori";
constexpr QStringView avvisi = u"verifica/avvisi";
constexpr QStringView copie = u"copie/cartella";

} // namespace

Promemoria::Promemoria(const Percorsi& percorsi, double codiceazienda)
    : m_file(percorsi.promemoria(codiceazienda)) {}

std::optional<UltimaVerifica> Promemoria::verifica() const {
    const QSettings file(m_file, QSettings::IniFormat);
    const UltimaVerifica ultima{file.value(quando).toDateTime(), file.value(errori).toInt(),
                                file.value(avvisi).toInt()};
    return ultima.quando.isValid() ? std::optional(ultima) : std::nullopt;
}

void Promemoria::segnaVerifica(const UltimaVerifica& verifica) const {
    QSettings file(m_file, QSettings::IniFormat);
    file.setValue(quando, verifica.quando.toUTC().toString(Qt::ISODate));
    file.setValue(errori, verifica.errori);
    file.setValue(avvisi, verifica.avvisi);
}

QString Promemoria::cartellaCopie() const {
    return QSettings(m_file, QSettings::IniFormat).value(copie).toString();
}

void Promemoria::segnaCartellaCopie(const QString& cartella) const {
    QSettings(m_file, QSettings::IniFormat).setValue(copie, cartella);
}

} // namespace bor
