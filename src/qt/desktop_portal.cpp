// The appearance that the desktop asks for.
#include "qt/desktop_portal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// Names and values of the portal's interface.
constexpr QLatin1StringView kService("org.freedesktop.portal.Desktop");
constexpr QLatin1StringView kPath("/org/freedesktop/portal/desktop");
constexpr QLatin1StringView kInterface("org.freedesktop.portal.Settings");
constexpr QLatin1StringView kGroup("org.freedesktop.appearance");
constexpr QLatin1StringView kKey("color-scheme");
constexpr uint kPrefersDark = 1;
constexpr uint kPrefersLight = 2;

std::optional<Tone> ToneOfScheme(uint scheme) {
    switch (scheme) {
    case kPrefersDark:
        return Tone::Dark;
    case kPrefersLight:
        return Tone::Light;
    default:
        return std::nullopt;
    }
}

// Older portals wrap the value twice.
uint Unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value.toUInt();
}

// Without a bus the toolkit would start one; other platforms have no portal.
bool HasPortal() {
    const QString platform = QGuiApplication::platformName();
    const bool isDesktop = platform == "xcb"_L1 || platform.startsWith("wayland"_L1);
    return isDesktop && !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS");
}

}  // namespace

class DesktopListener final : public QObject {
    Q_OBJECT

  public:
    explicit DesktopListener(ToneListener listener) : listener_(std::move(listener)) {
        QDBusConnection bus = QDBusConnection::sessionBus();
        bus.connect(kService, kPath, kInterface, u"SettingChanged"_s, this,
                    SLOT(SettingChanged(QDBusMessage)));
        QDBusMessage question =
            QDBusMessage::createMethodCall(kService, kPath, kInterface, u"Read"_s);
        question << QString(kGroup) << QString(kKey);
        auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
            const QDBusPendingReply<QDBusVariant> reply = *answer;
            if (reply.isValid()) {
                listener_(ToneOfScheme(Unwrapped(reply.value().variant())));
            }
            answer->deleteLater();
        });
    }

  private Q_SLOTS:
    // Group, key and value.
    void SettingChanged(const QDBusMessage& signal) {
        const QVariantList values = signal.arguments();
        if (values.size() == 3 && values[0] == kGroup && values[1] == kKey) {
            listener_(ToneOfScheme(Unwrapped(values[2])));
        }
    }

  private:
    ToneListener listener_;
};

std::unique_ptr<QObject> ListenToDesktop(ToneListener listener) {
    if (!HasPortal()) {
        return nullptr;
    }
    return std::make_unique<DesktopListener>(std::move(listener));
}

}  // namespace vemo

#include "desktop_portal.moc"
