// The per-user settings store.
#pragma once

#include <QSettings>

#include "platform/settings_store.h"

namespace vemo {

class QtSettings final : public SettingsStore {
  public:
    // The user's own: one file in the configuration folder; the registry on Windows.
    QtSettings();
    // Another file, for tests.
    explicit QtSettings(const QString& path);

    std::string Get(std::string_view section, std::string_view key,
                    std::string_view fallback) override;
    void Save(std::string_view section, std::string_view key, std::string_view value) override;
    void Flush() override;

  private:
    QSettings settings_;
};

}  // namespace vemo
