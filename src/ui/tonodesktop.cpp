#include "ui/tonodesktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

// The settings portal, which the desktops have in common; Qt itself knows the scheme only from 6.5 on.
const QString servizio = u"org.freedesktop.portal.Desktop"_s;
const QString oggetto = u"/org/freedesktop/portal/desktop"_s;
const QString interfaccia = u"org.freedesktop.portal.Settings"_s;
// Its answers.
constexpr uint preferisceScuro = 1;
constexpr uint preferisceChiaro = 2;

} // namespace

std::optional<Tono> tonoRisposto(QVariant risposta) {
    while (risposta.canConvert<QDBusVariant>())
        risposta = risposta.value<QDBusVariant>().variant();
    bool numero = false;
    switch (risposta.toUInt(&numero)) {
    case preferisceScuro:
        return Tono::Scuro;
    case preferisceChiaro:
        return Tono::Chiaro;
    default:
        return std::nullopt;
    }
}

std::function<Tono()> chiediTono(const QPalette& ricevuta) {
    constexpr int attesa = 300;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return [ricevuta] { return tonoDi(ricevuta); };
    QDBusMessage domanda = QDBusMessage::createMethodCall(servizio, oggetto, interfaccia, u"Read"_s);
    domanda << u"org.freedesktop.appearance"_s << u"color-scheme"_s;
    return [ricevuta, chiamata = bus.asyncCall(domanda, attesa)]() mutable {
        chiamata.waitForFinished();
        const QDBusMessage risposta = chiamata.reply();
        const auto tono = risposta.type() == QDBusMessage::ReplyMessage
                              ? tonoRisposto(risposta.arguments().value(0))
                              : std::nullopt;
        return tono.value_or(tonoDi(ricevuta));
    };
}

void seguiDesktop(QObject* padre, const std::function<void()>& cambiata) {
    // Several settings change together; and a timer has the slot that the bus asks for.
    auto* pausa = new QTimer(padre);
    pausa->setSingleShot(true);
    QObject::connect(pausa, &QTimer::timeout, padre, cambiata);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected())
        bus.connect(servizio, oggetto, interfaccia, u"SettingChanged"_s, pausa, SLOT(start()));
}

} // namespace bor
