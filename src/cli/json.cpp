// JSON as the commands write it.
#include "cli/json.h"

namespace vemo {

std::string JsonString(std::string_view text) {
    static constexpr std::string_view kHex = "0123456789abcdef";
    std::string json = "\"";
    for (char character : text) {
        const unsigned byte = static_cast<unsigned char>(character);
        if (character == '"' || character == '\\') {
            json += '\\';
            json += character;
        } else if (byte < ' ') {
            json.append("\\u00") += kHex[byte >> 4];
            json += kHex[byte & 15];
        } else {
            json += character;
        }
    }
    return json + '"';
}

std::string JsonArray(const std::vector<std::string>& items) {
    std::string json = "[";
    for (const std::string& item : items) {
        json.append(json.size() > 1 ? "," : "").append(item);
    }
    return json + ']';
}

JsonObject& JsonObject::Add(std::string_view name, std::string_view text) {
    return AddJson(name, JsonString(text));
}

JsonObject& JsonObject::Add(std::string_view name, long number) {
    return AddJson(name, std::to_string(number));
}

JsonObject& JsonObject::AddJson(std::string_view name, std::string_view json) {
    fields_.append(fields_.empty() ? "" : ",").append(JsonString(name)).append(":").append(json);
    return *this;
}

}  // namespace vemo
