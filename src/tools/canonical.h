// One form for all puzzles that are the same puzzle under another look.
#pragma once

#include <set>

#include "model/files.h"
#include "model/grid.h"

namespace vemo {

// Two puzzles are equivalent where relabelling the digits, transposing the grid, and exchanging
// bands, stacks, rows within a band and columns within a stack turn one into the other: 1.2 * 10^12
// ways. Equivalent puzzles, and no others, have equal forms; the form is one of the puzzle's own
// looks. The puzzle has the one solution given.
Digits CanonicalForm(const Digits& clues, const Digits& solution);

// The same of clues alone, whatever solutions they have; it is another look than the one above. Up
// to a second for a grid with next to no clues.
Digits CanonicalClues(const Digits& clues);

// Adds the forms of the puzzles of a level's file; damaged records are passed over.
void AddCanonicalForms(RecordFiles& records, int level, std::set<Digits>& forms);

}  // namespace vemo
