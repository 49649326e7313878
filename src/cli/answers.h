// What several commands write alike.
#pragma once

#include <string>
#include <string_view>

#include "cli/json.h"
#include "solver/brute_force.h"
#include "solver/find.h"

namespace vemo {

// "unique", "none" or "multiple".
std::string_view SolutionCountWord(const BruteForceResult& result);

// The block of a position that nothing is found on.
inline constexpr std::string_view kNoFind = "none\n\n";

// "place A1 5" and "remove B2 7", one a line.
std::string EffectLines(const Find& find);

// "place" and "remove": lists of {"cell":"A1","digit":5}.
void AddEffects(const Find& find, JsonObject& object);

}  // namespace vemo
