// The per-user settings store.
#include "qt/qt_settings.h"

#include <QStandardPaths>

#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

QString PathOf(std::string_view section, std::string_view key) {
    return ToQString(section) + QLatin1Char('/') + ToQString(key);
}

#ifdef Q_OS_WIN
constexpr QSettings::Format kFormat = QSettings::NativeFormat;

QString UserStore() {
    return u"HKEY_CURRENT_USER\\Software\\"_s + ToQString(kApplicationName);
}
#else
constexpr QSettings::Format kFormat = QSettings::IniFormat;

QString UserStore() {
    return QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) + QLatin1Char('/') +
           ToQString(kApplicationName) + u".conf"_s;
}
#endif

}  // namespace

QtSettings::QtSettings() : settings_(UserStore(), kFormat) {}

QtSettings::QtSettings(const QString& path) : settings_(path, QSettings::IniFormat) {}

std::string QtSettings::Get(std::string_view section, std::string_view key,
                            std::string_view fallback) {
    const QVariant value = settings_.value(PathOf(section, key));
    return value.isValid() ? value.toString().toStdString() : std::string(fallback);
}

void QtSettings::Save(std::string_view section, std::string_view key, std::string_view value) {
    settings_.setValue(PathOf(section, key), ToQString(value));
}

void QtSettings::Flush() {
    settings_.sync();
}

}  // namespace vemo
