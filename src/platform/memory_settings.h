// A settings store that lives and dies with the program: for tests and for demonstrations that
// must leave no trace.
#pragma once

#include <map>

#include "platform/settings_store.h"

namespace vemo {

class MemorySettings final : public SettingsStore {
  public:
    std::string Get(std::string_view section, std::string_view key,
                    std::string_view fallback) override;
    void Save(std::string_view section, std::string_view key, std::string_view value) override;
    void Flush() override {}

  private:
    std::map<std::string, std::string, std::less<>> values_;
};

}  // namespace vemo
