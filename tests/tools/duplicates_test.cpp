// Duplicates among many puzzles.
#include "tools/duplicates.h"

#include <gtest/gtest.h>

#include "tools/dig.h"

namespace vemo {
namespace {

TEST(DuplicateSearch, TellsExactOnesFromOtherLooksAndNamesTheFirst) {
    Random random(3);
    const Digits one = DigPuzzle({}, Symmetry::None, random).clues;
    const Digits other = DigPuzzle({}, Symmetry::None, random).clues;
    Digits several = one;  // without its solution being the only one
    for (std::size_t at = 0; at < 40; ++at) {
        several[at] = 0;
    }
    DuplicateSearch search;
    std::uint32_t number = 0;
    for (const Digits& puzzle :
         {other, one, Transposed(one), several, one, Transposed(one), Transposed(several),
          DigPuzzle({}, Symmetry::None, random).clues}) {
        search.Add(number++, SignsOf(puzzle));
    }
    const std::vector<Duplicate> found = search.Take();
    struct Row {
        std::uint32_t number;
        std::uint32_t of;
        Sameness sameness;
    };
    const std::vector<Row> expected = {{2, 1, Sameness::Equivalent},
                                       {4, 1, Sameness::Exact},
                                       {5, 2, Sameness::Exact},
                                       {6, 3, Sameness::Equivalent}};
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t at = 0; at < found.size(); ++at) {
        EXPECT_EQ(found[at].number, expected[at].number);
        EXPECT_EQ(found[at].of, expected[at].of);
        EXPECT_EQ(found[at].sameness, expected[at].sameness);
    }
    EXPECT_TRUE(search.Take().empty());
}

}  // namespace
}  // namespace vemo
