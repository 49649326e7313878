// Fish: their texts, which comes first, and what only looks like one.
#include <gtest/gtest.h>

#include "solver/patterns.h"

namespace vemo {
namespace {

using namespace test;

struct FishCase {
    const char* rule;
    StepRow step;
    std::vector<Pattern> patterns;
    const char* log;  // empty: nothing is found
    const char* hint;
};

TEST(Fish, TheFirstFindIsTheOnePromisedInItsWords) {
    const FishCase cases[] = {
        {"rows as base lines, written as plain indices",
         kXWing,
         {{Row('A'), "4", "A3 A7"}, {Row('D'), "4", "D3 D7"}},
         "X-Wing in Rows: Row1=0 Row2=3 => Removed candidate 4 from cell(s) "
         "B3 B7 C3 C7 E3 E7 F3 F7 G3 G7 H3 H7 J3 J7",
         "X-WING: Since number 4 appears only twice in both A and D, and this number appears in "
         "the same two columns 3 and 7, this number can't appear anywhere else in these columns"},
        {"columns as base lines",
         kXWing,
         {{Column(3), "4", "A3 J3"}, {Column(7), "4", "A7 J7"}},
         "X-Wing in Columns: Column1=2 Column2=6 => Removed candidate 4 from cell(s) "
         "A1 A2 A4 A5 A6 A8 A9 J1 J2 J4 J5 J6 J8 J9",
         "X-WING: Since number 4 appears only twice in both 3 and 7, and this number appears in "
         "the same two rows A and J, this number can't appear anywhere else in these rows"},
        {"all digits with rows before any digit with columns",
         kXWing,
         {{Column(3), "2", "A3 D3"},
          {Column(7), "2", "A7 D7"},
          {Row('G'), "4", "G1 G9"},
          {Row('J'), "4", "J1 J9"}},
         "X-Wing in Rows: Row1=6 Row2=8 => Removed candidate 4 from cell(s) "
         "A1 A9 B1 B9 C1 C9 D1 D9 E1 E9 F1 F9 H1 H9",
         nullptr},
        {"within a digit by the pair of crossing lines, not by the base lines",
         kXWing,
         {{Row('A'), "5", "A2 A3"},
          {Row('B'), "5", "B2 B3"},
          {Row('G'), "5", "G1 G9"},
          {Row('J'), "5", "J1 J9"}},
         "X-Wing in Rows: Row1=6 Row2=8 => Removed candidate 5 from cell(s) "
         "C1 C9 D1 D9 E1 E9 F1 F9 H1 H9",
         nullptr},
        {"a third place on a base line spoils it",
         kXWing,
         {{Row('A'), "4", "A3 A7"}, {Row('D'), "4", "D3 D5 D7"}},
         "",
         nullptr},
        {"three lines on the same two crossing lines are none",
         kXWing,
         {{Row('A'), "4", "A3 A7"}, {Row('D'), "4", "D3 D7"}, {Row('G'), "4", "G3 G7"}},
         "",
         nullptr},
        {"one that takes nothing is passed over",
         kXWing,
         {{Row('A'), "4", "A3 A7"},
          {Row('D'), "4", "D3 D7"},
          {Column(3), "4", "A3 D3"},
          {Column(7), "4", "A7 D7"}},
         "",
         nullptr},
    };
    for (const FishCase& at : cases) {
        SCOPED_TRACE(at.rule);
        const FirstFind first = SearchFirst(StepAt(at.step), GridWith(at.patterns));
        ASSERT_EQ(first.any, *at.log != '\0');
        if (first.any) {
            EXPECT_EQ(LogLine(first.found), at.log);
        }
        if (at.hint != nullptr) {
            EXPECT_EQ(HintText(first.found), at.hint);
        }
    }
}

}  // namespace
}  // namespace vemo
