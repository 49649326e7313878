// The three records byte by byte, whole and damaged.
#include "model/records.h"

#include <algorithm>
#include <initializer_list>

#include <gtest/gtest.h>

#include "support/puzzles.h"

namespace vemo {
namespace {

template <typename Array>
void Put(Array& bytes, std::size_t offset, std::initializer_list<int> values) {
    for (int value : values) {
        bytes[offset++] = static_cast<std::uint8_t>(value);
    }
}

// A puzzle with one clue, 8 at J9, and best time 258:59.
PuzzleRecord Puzzle() {
    PuzzleRecord record;
    record.solution = test::PlainSolution();
    record.clues[80] = record.solution[80];
    record.best = {258, 59};
    return record;
}
PuzzleBytes PuzzleInBytes() {
    PuzzleBytes bytes{};
    Put(bytes, 80, {8});
    std::ranges::copy(test::PlainSolution(), bytes.begin() + 81);
    Put(bytes, 162, {0x02, 0x01, 59, 0});
    return bytes;
}

// 5 at A1 and 9 at J9, two cells with marks, 300:07 played, two steps in the history.
PlayState State() {
    PlayState state;
    state.digits[0] = 5;
    state.digits[80] = 9;
    state.elapsed = {300, 7};
    state.pencilMarks[1] = 1022;
    state.pencilMarks[79] = 514;
    state.undoCount = 2;
    state.history[0] = {80, 511, 1029, 1, 256, 170};
    state.history[1] = {3, 16, 0, 0, 2, 511};
    return state;
}
PlayStateBytes StateInBytes() {
    PlayStateBytes bytes{};
    Put(bytes, 0, {5});
    Put(bytes, 80, {9, 0x2C, 0x01, 7, 0});
    Put(bytes, 87, {0xFE, 0x03});
    Put(bytes, 243, {0x02, 0x02});
    Put(bytes, 247, {2, 0});
    Put(bytes, 249, {80, 0, 3, 0});
    Put(bytes, 449, {0xFF, 0x01, 16, 0});
    Put(bytes, 649, {0x05, 0x04, 0, 0});
    Put(bytes, 849, {1, 0, 0, 0});
    Put(bytes, 1049, {0x00, 0x01, 2, 0});
    Put(bytes, 1249, {0xAA, 0x00, 0xFF, 0x01});
    return bytes;
}

const LevelStatistics kStatistics = {.lastNumber = 0x12345,
                                     .inProgress = true,
                                     .best = {12, 34},
                                     .solvedCount = 0x01020304,
                                     .totalMinutes = 7,
                                     .totalSeconds = 70000,
                                     .average = {5, 58}};
const StatisticsBytes kStatisticsInBytes = {0x45, 0x23, 0x01, 0, 0xFF, 0xFF, 12, 0, 34,
                                            0,    4,    3,    2, 1,    7,    0,  0, 0,
                                            0x70, 0x11, 0x01, 0, 5,    0,    58, 0};

TEST(Records, AreLaidOutByteByByte) {
    EXPECT_EQ(Pack(Puzzle()), PuzzleInBytes());
    EXPECT_EQ(UnpackPuzzle(PuzzleInBytes()), Puzzle());
    EXPECT_EQ(Pack(State()), StateInBytes());
    EXPECT_EQ(UnpackPlayState(StateInBytes()), State());
    EXPECT_EQ(Pack(kStatistics), kStatisticsInBytes);
    EXPECT_EQ(UnpackStatistics(kStatisticsInBytes), kStatistics);
    EXPECT_EQ(UnpackPlayState(PlayStateBytes{}), PlayState{});
    EXPECT_EQ(UnpackStatistics(StatisticsBytes{}), LevelStatistics{});
}

struct Damage {
    const char* what;
    std::size_t offset;
    std::initializer_list<int> bytes;
};

TEST(Records, WhatIsImpossibleInAPlayStateCostsNoMoreThanItMust) {
    const auto expectLeft = [](const PlayState& expected, std::initializer_list<Damage> damages) {
        for (const Damage& damage : damages) {
            PlayStateBytes bytes = StateInBytes();
            Put(bytes, damage.offset, damage.bytes);
            EXPECT_EQ(UnpackPlayState(bytes), expected) << damage.what;
        }
    };
    expectLeft(PlayState{}, {{"digit 200", 40, {200}},
                             {"digit 10", 40, {10}},
                             {"a digit twice in its row", 2, {5}},
                             {"a mask with bit 0", 87, {0xFF, 0x03}},
                             {"a mask with bit 10", 87, {0xFE, 0x07}},
                             {"a negative mask", 87, {0xFE, 0xFF}},
                             {"marks in a filled cell", 85, {2, 0}}});
    PlayState withoutTime = State();
    withoutTime.elapsed = {};
    expectLeft(withoutTime, {{"seconds 90", 83, {90}},
                             {"seconds 60", 83, {60}},
                             {"seconds -1", 83, {0xFF, 0xFF}},
                             {"minutes -1", 81, {0xFF, 0xFF}}});
    PlayState withoutHistory = State();
    withoutHistory.undoCount = 0;
    withoutHistory.history = {};
    expectLeft(withoutHistory, {{"UndoCount 5000", 247, {0x88, 0x13}},
                                {"UndoCount 101", 247, {101}},
                                {"UndoCount -1", 247, {0xFF, 0xFF}},
                                {"undo cell 81", 251, {81}},
                                {"undo cell -1", 249, {0xFF, 0xFF}},
                                {"undo marks 512", 451, {0, 2}},
                                {"undo digit 10", 649, {10}},
                                {"a negative kind", 649, {1, 0x80}},
                                {"a negative row mask", 849, {0xFF, 0xFF}},
                                {"column mask 512", 1049, {0, 2}},
                                {"box mask 512", 1251, {0, 2}}});
    // Only the entries that count are looked at.
    PlayState unused = State();
    unused.history[2].cell = 81;
    expectLeft(unused, {{"cell 81 in entry 3 of 2", 253, {81}}});
}

TEST(Records, APuzzleIsWholeWhenItsSolutionIsOneOfItsClues) {
    PuzzleRecord untimed = Puzzle();
    untimed.best = {};
    PuzzleBytes impossibleTime = PuzzleInBytes();
    Put(impossibleTime, 164, {90});
    EXPECT_EQ(UnpackPuzzle(impossibleTime), untimed);
    EXPECT_TRUE(IsWhole(untimed));
    for (const Damage& damage : {Damage{"clue 200", 80, {200}},
                                 {"a clue that the solution lacks", 0, {2}},
                                 {"solution digit 0", 100, {0}},
                                 {"solution digit 10", 100, {10}},
                                 {"a solution with a digit twice", 81, {2}}}) {
        PuzzleBytes bytes = PuzzleInBytes();
        Put(bytes, damage.offset, damage.bytes);
        EXPECT_FALSE(IsWhole(UnpackPuzzle(bytes))) << damage.what;
    }
}

TEST(Records, ImpossibleStatisticsReadAsZeroEachForItself) {
    StatisticsBytes bytes = kStatisticsInBytes;
    LevelStatistics expected = kStatistics;
    const auto damage = [&](std::size_t offset, std::initializer_list<int> values) {
        Put(bytes, offset, values);
        EXPECT_EQ(UnpackStatistics(bytes), expected) << "bytes from " << offset;
    };
    expected.lastNumber = 0;
    damage(3, {0x80});
    expected.best = {};
    damage(8, {90});
    expected.solvedCount = 0;
    damage(10, {0xFF, 0xFF, 0xFF, 0xFF});
    expected.totalMinutes = 0;
    damage(17, {0x80});
    expected.totalSeconds = 0;
    damage(21, {0xFF});
    expected.average = {};
    damage(22, {0xFE, 0xFF});
}

TEST(Records, APlayStateBelongsToAPuzzleWhoseCluesItHolds) {
    PuzzleRecord puzzle;
    puzzle.clues[80] = 9;
    PlayState state;
    EXPECT_FALSE(BelongsTo(state, puzzle));
    state.digits[0] = 1;
    EXPECT_FALSE(BelongsTo(state, puzzle));
    state.digits[80] = 9;
    EXPECT_TRUE(BelongsTo(state, puzzle));
    state.digits[80] = 8;
    EXPECT_FALSE(BelongsTo(state, puzzle));
    EXPECT_FALSE(BelongsTo(PlayState{}, PuzzleRecord{}));
}

}  // namespace
}  // namespace vemo
