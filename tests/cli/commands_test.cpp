// What each command answers.
#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/invoke.h"
#include "cli/ladder_options.h"
#include "support/puzzles.h"

namespace vemo {
namespace {

const std::string kSolution =
    "123456789456789123789123456234567891567891234891234567345678912678912345912345678";
const std::string kUnique = "." + kSolution.substr(1);
const std::string kClash = "11" + std::string(79, '.');

// Without the digits 1 and 2, which can change places.
std::string Ambiguous() {
    std::string puzzle = kSolution;
    for (char& cell : puzzle) {
        cell = cell <= '2' ? '.' : cell;
    }
    return puzzle;
}

// An open grid whose only pattern is the pair 1, 2 at A1 and A2, of row A and of the first box.
std::string NakedPairPosition() {
    std::string line = std::string(81, '.') + "\t12,12";
    for (int cell = 2; cell < 81; ++cell) {
        line += ",123456789";
    }
    return line + '\n';
}

std::string Removals(const std::vector<std::string>& cells) {
    std::string text;
    for (const std::string& cell : cells) {
        text += "remove " + cell + " 1\nremove " + cell + " 2\n";
    }
    return text + '\n';
}

const std::string kPairOfRow = Removals({"A3", "A4", "A5", "A6", "A7", "A8", "A9"});
const std::string kPairOfBox = Removals({"A3", "B1", "B2", "B3", "C1", "C2", "C3"});

void ExpectRun(const std::vector<std::string>& words, const std::string& input, ExitCode code,
               const std::string& out) {
    const Outcome result = Invoke(words, input);
    EXPECT_EQ(result.code, code) << words[0];
    EXPECT_EQ(result.out, out) << words[0];
    EXPECT_EQ(result.err, "") << words[0];
}

TEST(Solve, CountsTheSolutionsOfEachPuzzle) {
    ExpectRun(
        {"solve", "-"}, kUnique + "\n" + kSolution, ExitCode::Fine,
        kUnique + "\tunique\t" + kSolution + "\n" + kSolution + "\tunique\t" + kSolution + "\n");
    ExpectRun({"solve", "-"}, kClash + "\n" + Ambiguous() + "\n", ExitCode::FaultyLine,
              kClash + "\tnone\t\n" + Ambiguous() + "\tmultiple\t\n");
    ExpectRun({"solve", "--jsonl", "-"}, "# one\n" + kUnique + "\n", ExitCode::Fine,
              R"({"line":2,"puzzle":")" + kUnique + R"(","result":"unique","solution":")" +
                  kSolution + "\"}\n");
}

TEST(Solve, ReportsItsThreeAnswersInWords) {
    ExpectRun({"solve", "--report", "-"}, kUnique + "\n" + kClash + "\n" + Ambiguous(),
              ExitCode::FaultyLine,
              kUnique + "\tThis Sudoku has one unique solution\t" + kSolution + "\n" + kClash +
                  "\tThis Sudoku has no solution\t\n" + Ambiguous() +
                  "\tThis Sudoku has more than one solution\t\n");
    ExpectRun({"solve", "--report", "--jsonl", "-"}, kClash, ExitCode::FaultyLine,
              R"({"line":1,"puzzle":")" + kClash +
                  R"(","result":"This Sudoku has no solution","solution":""})" + "\n");
}

TEST(Rate, NamesLevelHardestTechniqueAndSteps) {
    const std::string fields = "\t1\tEasy\tHidden Single\t1\n";
    const std::string log = "Hidden Single 1 in box at cell A1";
    ExpectRun({"rate", "-"}, kUnique, ExitCode::Fine, kUnique + fields);
    ExpectRun({"rate", "--log", "-"}, kUnique, ExitCode::Fine, kUnique + fields + log + "\n");
    ExpectRun({"rate", "-"}, kClash + "\n" + Ambiguous(), ExitCode::FaultyLine,
              kClash + "\t0\tnone\t\t0\n" + Ambiguous() + "\t0\tmultiple\t\t0\n");
    ExpectRun({"rate", "--jsonl", "--log", "-"}, kUnique, ExitCode::Fine,
              R"({"line":1,"puzzle":")" + kUnique +
                  R"(","level":1,"name":"Easy","hardest":"Hidden Single","steps":1,"log":[")" +
                  log + "\"]}\n");
}

TEST(Rate, TheCorpusHoldsTheLevelsThatItNames) {
    const Outcome result = Invoke({"rate", VEMO_TEST_DATA "/corpus.txt"});
    EXPECT_EQ(result.code, ExitCode::Fine);
    EXPECT_EQ(result.err, "");
    std::istringstream lines(result.out);
    int number = 0;
    for (std::string line; std::getline(lines, line); ++number) {
        const int level = line.at(82) - '0';
        EXPECT_TRUE(number % 4 < 3 ? level == number % 4 + 1 : level > 3) << line;
    }
    EXPECT_EQ(number, 400);
}

// Line n+1 of the file is the position of slot n; some lines are replaced.
std::string OrderFile(const std::vector<std::pair<std::size_t, std::string>>& replaced) {
    const std::string name = testing::TempDir() + "vemo_order.txt";
    std::ofstream file(name, std::ios::binary);
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
        const auto line =
            std::ranges::find(replaced, slot, [](const auto& at) { return at.first; });
        file << (line == replaced.end() ? std::to_string(slot) : line->second) << "\r\n";
    }
    return name;
}

TEST(Rate, AnOrderAndSwitchesMakeTheLadder) {
    std::ostringstream messages;
    std::istringstream in;
    Streams streams{in, messages, messages};
    Arguments arguments;
    arguments.options = {
        {"--order", OrderFile({{8, "9"}, {9, "10"}, {10, "8"}})}, {"--off", "12"}, {"--off", "11"}};
    const ChosenLadder chosen = ChooseLadder(arguments, streams);
    std::vector<int> slots;
    for (const LadderStep& at : chosen.ladder) {
        EXPECT_EQ(at.mode, Mode::Apply);
        if (at.step->slot >= kFirstMovableSlot && slots.size() < 4) {
            slots.push_back(at.step->slot);
        }
    }
    EXPECT_EQ(slots, (std::vector<int>{10, 8, 9, 13}));

    const std::string corpus = VEMO_TEST_DATA "/corpus.txt";
    const std::string fixed = Invoke({"rate", corpus}).out;
    EXPECT_EQ(Invoke({"rate", "--order", OrderFile({}), corpus}).out, fixed);
    const Outcome with = Invoke({"rate", "-"}, test::kNeedsTrials);
    EXPECT_NE(with.out.find("\t8\tMayhem\tBifurcation\t"), std::string::npos) << with.out;
    const Outcome without = Invoke({"rate", "--off=39", "-"}, test::kNeedsTrials);
    EXPECT_EQ(without.code, ExitCode::Fine);
    EXPECT_NE(without.out.find("\t9\tOutlaw\t"), std::string::npos) << without.out;
}

TEST(Rate, AWrongOrderIsNamed) {
    const std::string name = OrderFile({});
    const struct {
        std::vector<std::pair<std::size_t, std::string>> replaced;
        const char* named;
    } cases[] = {
        {{{20, "2O"}}, "line 21 is no position from 0 to 39"},
        {{{20, "40"}}, "line 21 is no position from 0 to 39"},
        {{{20, "21"}}, "a position stands there twice"},
        {{{7, "8"}, {8, "7"}}, "one of the slots 0 to 7 and 39 is moved"},
        {{{30, "30\n31"}}, "forty lines are needed"},
    };
    for (const auto& [replaced, named] : cases) {
        const Outcome result = Invoke({"rate", "--order", OrderFile(replaced), "-"}, kUnique);
        EXPECT_EQ(result.code, ExitCode::Usage) << named;
        EXPECT_NE(result.err.find(name + ": "), std::string::npos) << result.err;
        EXPECT_NE(result.err.find(named), std::string::npos) << result.err;
    }
    const Outcome missing = Invoke({"rate", "--order", "no such file", "-"}, kUnique);
    EXPECT_EQ(missing.code, ExitCode::InputOutput);
    EXPECT_NE(missing.err.find("no such file cannot be read"), std::string::npos);
}

TEST(Hint, ExplainsTheNextStep) {
    const std::string text =
        "HIDDEN SINGLE: Since number 1 in the top left block appears only at cell A1, it must be "
        "there";
    ExpectRun({"hint", "-"}, kUnique + "\n" + kSolution + "\n" + NakedPairPosition(),
              ExitCode::Fine,
              "Hidden single\n" + text +
                  "\nplace A1 1\n\nnone\n\nNaked Pair\nNAKED PAIR: Since "
                  "cells A1 and A2 in row A contains only the candidates 1 and 2, those candidates "
                  "can't appear anywhere else in that row\n" +
                  kPairOfRow);
    ExpectRun({"hint", "--jsonl", "-"}, kUnique + "\n" + kSolution, ExitCode::Fine,
              R"({"line":1,"title":"Hidden single","text":")" + text +
                  R"(","place":[{"cell":"A1","digit":1}],"remove":[]})" + "\n" +
                  R"({"line":2,"title":"","text":"","place":[],"remove":[]})" + "\n");
}

TEST(Find, LooksForOneKindOfStepAlone) {
    const std::string position = NakedPairPosition();
    const std::string removed = " => Removed candidates 1 and 2 from cells ";
    const std::string all = "Naked Pair: Row A" + removed + "A3 A4 A5 A6 A7 A8 A9\n" + kPairOfRow +
                            "Naked Pair: Box 1" + removed + "A3 B1 B2 B3 C1 C2 C3\n" + kPairOfBox;
    ExpectRun({"find", "--technique", "Naked Pair", "-"}, position, ExitCode::Fine, kPairOfRow);
    ExpectRun({"find", "--technique", "Naked Pair", "--all", "-"}, position, ExitCode::Fine, all);
    ExpectRun({"find", "--slot", "7", "-"}, position, ExitCode::Fine, kPairOfRow);
    ExpectRun({"find", "--technique", "Hidden Pair", "-"}, position + kUnique, ExitCode::Fine,
              "none\n\nnone\n\n");
    // Both units of the single place the same digit: one find.
    ExpectRun({"find", "--slot", "3", "--all", "--jsonl", "-"}, kUnique, ExitCode::Fine,
              R"({"line":1,"finds":[{"title":"Hidden single","log":)"
              R"("Hidden Single 1 in box at cell A1","place":[{"cell":"A1","digit":1}],)"
              R"("remove":[]}]})"
              "\n");
}

}  // namespace
}  // namespace vemo
