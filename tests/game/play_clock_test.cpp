// The playing time: penalties, midnight, pauses.
#include "game/play_clock.h"

#include <gtest/gtest.h>

namespace vemo {
namespace {

constexpr int kNoon = 12 * 3600;
constexpr int kBeforeMidnight = 86390;

TEST(PlayClock, CountsFromItsStartAcrossMidnight) {
    PlayClock clock;
    clock.Start(kNoon);
    clock.Tick(kNoon + 4503);
    EXPECT_EQ(clock.Elapsed(), 4503);

    clock.Start(kBeforeMidnight);
    clock.Tick(86399);
    EXPECT_EQ(clock.Elapsed(), 9);
    clock.Tick(0);
    EXPECT_EQ(clock.Elapsed(), 10);
    clock.Tick(3590);
    EXPECT_EQ(clock.Elapsed(), 3600);
}

TEST(PlayClock, AResumedGameGoesOnFromItsTimeEvenIfItIsOlderThanTheDay) {
    PlayClock clock;
    clock.Start(kNoon, 754);
    clock.Tick(kNoon + 1);
    EXPECT_EQ(clock.Elapsed(), 755);
    clock.Start(60, 3600);
    EXPECT_EQ(clock.Elapsed(), 3600);
    clock.Tick(62);
    EXPECT_EQ(clock.Elapsed(), 3602);
    clock.Start(60, 200000);
    clock.Tick(61);
    EXPECT_EQ(clock.Elapsed(), 200001);
}

TEST(PlayClock, APenaltyMovesTheStartBack) {
    PlayClock clock;
    clock.Start(kNoon);
    clock.Tick(kNoon + 30);
    clock.Penalty(15, kNoon + 30);
    EXPECT_EQ(clock.Elapsed(), 45);
    clock.Tick(kNoon + 31);
    EXPECT_EQ(clock.Elapsed(), 46);
    // Time that no tick has counted yet is not lost.
    clock.Penalty(10, kNoon + 36);
    EXPECT_EQ(clock.Elapsed(), 61);
}

TEST(PlayClock, APenaltyJustAfterMidnightKeepsTheTimeRight) {
    PlayClock clock;
    clock.Start(kBeforeMidnight);
    clock.Tick(5);
    clock.Penalty(120, 5);
    EXPECT_EQ(clock.Elapsed(), 135);
    clock.Tick(6);
    EXPECT_EQ(clock.Elapsed(), 136);
    clock.Tick(200);
    EXPECT_EQ(clock.Elapsed(), 330);
}

TEST(PlayClock, StoppedTimeIsNotCountedButPenaltiesAre) {
    PlayClock clock;
    clock.Start(kBeforeMidnight - 100);
    clock.Tick(kBeforeMidnight);
    clock.Stop();
    clock.Tick(kBeforeMidnight + 5);
    clock.Penalty(20, kBeforeMidnight + 5);
    clock.Tick(kBeforeMidnight + 6);
    EXPECT_EQ(clock.Elapsed(), 120);
    clock.Resume(30);  // on the next day, after less of it than was played
    EXPECT_EQ(clock.Elapsed(), 120);
    clock.Tick(31);
    EXPECT_EQ(clock.Elapsed(), 121);
    clock.Reset();
    clock.Tick(kNoon);
    EXPECT_EQ(clock.Elapsed(), 0);
}

}  // namespace
}  // namespace vemo
