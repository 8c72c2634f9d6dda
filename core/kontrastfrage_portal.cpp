// The desktop's settings as the portal of the freedesktop.org specifications tells them.
#include "core/kontrastfrage.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>

#include <array>
#include <memory>
#include <utility>

namespace {

struct Einstellung {
    const char* bereich;
    const char* schluessel;
};
// The common setting (1: higher contrast), and the one that the desktop of Debian 12 has had before it
// (true). One of them is enough.
constexpr std::array einstellungen{Einstellung{"org.freedesktop.appearance", "contrast"},
                                   Einstellung{"org.gnome.desktop.a11y.interface", "high-contrast"}};

struct Stand {
    std::function<void(bool hoch)> sagen;
    std::array<bool, einstellungen.size()> hoch{};
};

// The portal wraps values once more than it says.
QVariant Ausgepackt(QVariant wert) {
    while (wert.metaType() == QMetaType::fromType<QDBusVariant>()) {
        wert = wert.value<QDBusVariant>().variant();
    }
    return wert;
}

void Fragen(const std::shared_ptr<Stand>& stand, std::size_t stelle) {
    QDBusMessage frage = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
    const Einstellung& einstellung = einstellungen.at(stelle);
    frage << QLatin1String(einstellung.bereich) << QLatin1String(einstellung.schluessel);
    auto* antwort = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(frage), qApp);
    QObject::connect(antwort, &QDBusPendingCallWatcher::finished, antwort, [stand, stelle, antwort] {
        antwort->deleteLater();
        const QDBusPendingReply<QDBusVariant> wert = *antwort;
        if (!wert.isError()) { // else there is no such setting, or no portal at all
            stand->hoch.at(stelle) = Ausgepackt(wert.value().variant()).toUInt() == 1;
            stand->sagen(stand->hoch.front() || stand->hoch.back());
        }
    });
}

void AlleFragen(const std::shared_ptr<Stand>& stand) {
    for (std::size_t i = 0; i < einstellungen.size(); ++i) {
        Fragen(stand, i);
    }
}

} // namespace

void KontrastBeobachten(std::function<void(bool hoch)> sagen) {
    if (!QDBusConnection::sessionBus().isConnected()) {
        return;
    }
    const auto stand = std::make_shared<Stand>(Stand{std::move(sagen)});
    AlleFragen(stand);
    // Whoever has changed the setting was in another program meanwhile.
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, qGuiApp,
                     [stand](Qt::ApplicationState zustand) {
                         if (zustand == Qt::ApplicationActive) {
                             AlleFragen(stand);
                         }
                     });
}
