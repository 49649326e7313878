// The examples: one position for each kind of find, with its log line, its explanation and what it
// does.
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "solver/patterns.h"
#include "tools/technique_examples.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kUniqueRectangleSlot = 24;

const Step& StepOf(const TechniqueExample& example) {
    return example.slot == kNoSlot ? StepsOutsideTheLadder()[0] : StepOfSlot(example.slot);
}

template <typename Effects>
std::string Written(const Effects& effects, const char* joint) {
    std::string text;
    for (const auto& [cell, digit] : effects) {
        text += (text.empty() ? "" : " ") + CellName(cell) + joint + std::to_string(digit);
    }
    return text;
}

// Of the technique alone, the first find of the example's kind.
FirstFind FindAlone(const TechniqueExample& example) {
    FirstFind first;
    const std::string name = example.log.substr(0, example.log.find(':'));
    for (const Find& find : SearchAll(StepOf(example), example.grid)) {
        if (LogLine(find).starts_with(name)) {
            first.Offer(find);
            break;
        }
    }
    return first;
}

FirstFind FindOfLadder(const TechniqueExample& example) {
    FirstFind first;
    Solver solver(example.grid);
    if (solver.Pass(HintLadder(TechniqueSettings())) == PassResult::Hint) {
        first.Offer(solver.LastFind());
    }
    return first;
}

TEST(Examples, AreAnsweredWithTheirEffectsAndTexts) {
    std::ifstream file(std::filesystem::path(VEMO_TEST_DATA) / "technique_examples.tsv");
    const std::vector<TechniqueExample> examples = ReadTechniqueExamples(file);
    ASSERT_EQ(examples.size(), 48u);
    for (const TechniqueExample& example : examples) {
        SCOPED_TRACE(example.technique);
        // The hidden rectangles that a ladder of slots 3 to 39 meets first are of a more general
        // form than those of the run that chose the examples.
        const bool isLadders = example.isFirstInLadder && example.slot <= kUniqueRectangleSlot;
        const FirstFind first = isLadders ? FindOfLadder(example) : FindAlone(example);
        ASSERT_TRUE(first.any);
        EXPECT_EQ(LogLine(first.found), example.log);
        EXPECT_EQ(HintText(first.found), example.hint);
        EXPECT_TRUE(first.found.secondColor.empty() || !ColorWordsOf(first.found).second.empty())
            << "the legend has a word for the other colour";
        EXPECT_EQ(Written(first.found.removals, "-"), example.removals);
        EXPECT_EQ(Written(first.found.placements, "="), example.placements);
    }
}

}  // namespace
}  // namespace vemo
