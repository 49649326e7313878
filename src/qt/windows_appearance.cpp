// The appearance that Windows asks for: the player's choice for programs, in the registry.
#include <windows.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QSettings>

#include "qt/desktop_portal.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kChoices(
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize");

std::optional<Tone> ToneOfPrograms() {
    const QSettings choices(kChoices, QSettings::NativeFormat);
    const QVariant isLight = choices.value(u"AppsUseLightTheme"_s);
    if (!isLight.isValid()) {
        return std::nullopt;
    }
    return isLight.toInt() != 0 ? Tone::Light : Tone::Dark;
}

// Windows tells every window of a change in its settings.
class ChoiceListener final : public QObject, public QAbstractNativeEventFilter {
  public:
    explicit ChoiceListener(ToneListener listener) : listener_(std::move(listener)) {
        QCoreApplication::instance()->installNativeEventFilter(this);
        QMetaObject::invokeMethod(
            this, [this] { Tell(); }, Qt::QueuedConnection);
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
        if (static_cast<const MSG*>(message)->message == WM_SETTINGCHANGE) {
            Tell();
        }
        return false;
    }

  private:
    void Tell() {
        const std::optional<Tone> tone = ToneOfPrograms();
        if (!isTold_ || tone != tone_) {
            isTold_ = true;
            tone_ = tone;
            listener_(tone);
        }
    }

    ToneListener listener_;
    std::optional<Tone> tone_;
    bool isTold_ = false;
};

}  // namespace

std::unique_ptr<QObject> ListenToDesktop(ToneListener listener) {
    return std::make_unique<ChoiceListener>(std::move(listener));
}

}  // namespace vemo
