// What several commands write alike.
#include "cli/answers.h"

#include <span>

#include "cli/time_limit.h"
#include "model/levels.h"
#include "solver/catalogue.h"
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

std::string_view SolutionCountWord(int count) {
    return count == 1 ? "unique" : count == 0 ? "none" : "multiple";
}

std::string_view AnswerWord(const BruteForceResult& result) {
    return result.stopped ? kTimeout : SolutionCountWord(result.solutionCount);
}

std::string EffectLines(const Find& find) {
    return Lines("place", Items(find.placements)) + Lines("remove", Items(find.removals));
}

void AddEffects(const Find& find, JsonObject& object) {
    object.AddJson("place", List(Items(find.placements)));
    object.AddJson("remove", List(Items(find.removals)));
}

RatingFields FieldsOf(int level, int hardestSlot, int steps) {
    const bool hasSlot = hardestSlot != kNoSlot;
    return {level, LevelName(level),
            hasSlot ? Slots()[static_cast<std::size_t>(hardestSlot)].caption : "", steps};
}

std::string RatingText(const std::string& puzzle, const RatingFields& rating) {
    std::string text = puzzle + '\t' + std::to_string(rating.level) + '\t';
    text.append(rating.name).append("\t").append(rating.hardest).append("\t");
    return text.append(std::to_string(rating.steps));
}

void AddRating(const RatingFields& rating, JsonObject& object) {
    object.Add("level", rating.level).Add("name", rating.name);
    object.Add("hardest", rating.hardest).Add("steps", rating.steps);
}

}  // namespace vemo
