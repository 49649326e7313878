// What several commands write alike.
#pragma once

#include <string>
#include <string_view>

#include "cli/json.h"
#include "solver/brute_force.h"
#include "solver/find.h"

namespace vemo {

// Of solutions counted to two: "unique", "none" or "multiple".
std::string_view SolutionCountWord(int count);
// The same of a search, or that it was given up.
std::string_view AnswerWord(const BruteForceResult& result);

// What a rating says of a puzzle.
struct RatingFields {
    int level = 0;
    std::string_view name{};
    std::string_view hardest{};  // technique
    int steps = 0;
};
// The level is 1..9; kNoSlot has no name.
RatingFields FieldsOf(int level, int hardestSlot, int steps);

// puzzle TAB level TAB name TAB hardest TAB steps.
std::string RatingText(const std::string& puzzle, const RatingFields& rating);
// The fields of a rating under these names, "level" to "steps".
void AddRating(const RatingFields& rating, JsonObject& object);

// The block of a position that nothing is found on.
inline constexpr std::string_view kNoFind = "none\n\n";

// "place A1 5" and "remove B2 7", one a line.
std::string EffectLines(const Find& find);

// "place" and "remove": lists of {"cell":"A1","digit":5}.
void AddEffects(const Find& find, JsonObject& object);

}  // namespace vemo
