// The examples: one position for each kind of find, with its log line, its explanation and what it
// does.
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "solver/patterns.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kUniqueRectangleSlot = 24;

// One line of the file, by its columns.
struct Example {
    std::string technique;
    int slot = kNoSlot;
    bool isFirstInLadder = false;  // no earlier step finds anything
    Grid grid;
    std::string log;
    std::string hint;
    std::string removals;    // "A1-4 B2-7"
    std::string placements;  // "A1=4 B2=4"
};

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) {
        parts.push_back(part);
    }
    return parts;
}

// The digits that are no clues are placed, then each open cell keeps the listed marks: "- 12 |
// ...".
Grid GridOf(const std::string& givens, const std::string& digits, const std::string& marks) {
    Grid grid = Grid::FromClues(ParseDigits(givens));
    const Digits all = ParseDigits(digits);
    std::istringstream words(marks);
    for (int cell = 0; cell < kCells; ++cell) {
        std::string word;
        do {
            words >> word;
        } while (word == "|");
        const int digit = all[static_cast<std::size_t>(cell)];
        if (digit != 0 && grid.Digit(cell) == 0) {
            grid.Zet(digit, cell);
        }
        if (digit == 0) {
            Discard(grid, cell, static_cast<Marks>(kAllMarks & ~DigitsNamed(word)));
        }
    }
    return grid;
}

std::vector<Example> Examples() {
    std::ifstream file(std::filesystem::path(VEMO_TEST_DATA) / "technique_examples.tsv");
    std::vector<Example> examples;
    std::string line;
    std::getline(file, line);  // the names of the columns
    while (std::getline(file, line)) {
        std::vector<std::string> columns = Split(line, '\t');
        columns.resize(14);
        examples.push_back({columns[0], std::stoi(columns[1]), columns[4] == "1",
                            GridOf(columns[5], columns[6], columns[7]), columns[8], columns[9],
                            columns[12], columns[13]});
    }
    return examples;
}

const Step& StepOf(const Example& example) {
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
FirstFind FindAlone(const Example& example) {
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

FirstFind FindOfLadder(const Example& example) {
    FirstFind first;
    Solver solver(example.grid);
    if (solver.Pass(HintLadder(TechniqueSettings())) == PassResult::Hint) {
        first.Offer(solver.LastFind());
    }
    return first;
}

TEST(Examples, AreAnsweredWithTheirEffectsAndTexts) {
    const std::vector<Example> examples = Examples();
    ASSERT_EQ(examples.size(), 48u);
    for (const Example& example : examples) {
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
