// JSON as the commands write it: one object a line.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vemo {

// A string in its quotes, escaped. The text is ASCII or UTF-8.
std::string JsonString(std::string_view text);
// The items are JSON already.
std::string JsonArray(const std::vector<std::string>& items);

class JsonObject {
  public:
    JsonObject& Add(std::string_view name, std::string_view text);
    JsonObject& Add(std::string_view name, long number);
    // The value is JSON already.
    JsonObject& AddJson(std::string_view name, std::string_view json);

    std::string Text() const { return "{" + fields_ + "}"; }
    std::string Line() const { return Text() + '\n'; }
    // The text of an object that has these fields and more behind them.
    std::string Beginning() const { return "{" + fields_ + ","; }

  private:
    std::string fields_;
};

}  // namespace vemo
