// What several commands write alike.
#include "cli/answers.h"

#include <span>

#include "solver/text.h"

namespace vemo {
namespace {

std::string Lines(const char* deed, std::span<const CellDigit> effects) {
    std::string text;
    for (const auto& [cell, digit] : effects) {
        text.append(deed).append(" ").append(CellName(cell)).append(" ");
        text.append(std::to_string(digit)) += '\n';
    }
    return text;
}

std::string List(std::span<const CellDigit> effects) {
    std::vector<std::string> items;
    for (const auto& [cell, digit] : effects) {
        items.push_back(JsonObject().Add("cell", CellName(cell)).Add("digit", digit).Text());
    }
    return JsonArray(items);
}

}  // namespace

std::string_view SolutionCountWord(const BruteForceResult& result) {
    return result.IsUnique() ? "unique" : result.solutionCount == 0 ? "none" : "multiple";
}

std::string EffectLines(const Find& find) {
    return Lines("place", Items(find.placements)) + Lines("remove", Items(find.removals));
}

void AddEffects(const Find& find, JsonObject& object) {
    object.AddJson("place", List(Items(find.placements)));
    object.AddJson("remove", List(Items(find.removals)));
}

}  // namespace vemo
