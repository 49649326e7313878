// Which puzzles are looked for.
#include "tools/puzzle_filter.h"

namespace vemo {

bool PuzzleFilter::Likes(const ClueFacts& facts) const {
    return clues.Holds(facts.clues) && digits.Holds(facts.digits) &&
           emptyBoxes.Holds(facts.emptyBoxes) && (!symmetry || facts.Has(*symmetry)) &&
           (!isSymmetrical || facts.symmetries != 0);
}

bool PuzzleFilter::LikesRating(const RatedPuzzle& rated) const {
    return LikesLevel(rated.rating) &&
           (neededSlot == kNoSlot || NeedsTechnique(rated, neededSlot, FixedLadder()));
}

}  // namespace vemo
