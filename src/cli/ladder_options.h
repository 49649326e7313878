// The options by which a rating takes a player's own order and switches.
#pragma once

#include "cli/commands.h"
#include "solver/solver.h"

namespace vemo {

inline constexpr Option kOrderOption = {"--order", "FILE",
                                        "take the techniques in the order of FILE"};
inline constexpr Option kOffOption = {"--off", "SLOT",
                                      "leave out a slot, 8 to 39; may be repeated"};

// How they are described in the help.
inline constexpr std::string_view kLadderNotes =
    "A rating takes all techniques in their fixed order. With --order or --off it is that\n"
    "of a batch check with a player's own settings: FILE has forty lines, line n+1 the\n"
    "position, 0 to 39, of slot n. Slots 0 to 7 and 39 keep their places.\n";

struct ChosenLadder {
    Ladder ladder;
    CommandResult refusal{};  // with a code other than Fine there is no ladder
};

// The fixed ladder where neither option is given.
ChosenLadder ChooseLadder(const Arguments& arguments, Streams& streams);

}  // namespace vemo
