// The playing time: penalties, midnight, pauses.
#include "game/play_clock.h"

#include <random>

#include <gtest/gtest.h>

#include "platform/clock.h"

namespace vemo {
namespace {

// Beside a plain count of the seconds, from any time of the day, for half a day at most.
TEST(PlayClock, CountsWhatPassesWhileItRunsAndEveryPenalty) {
    std::mt19937 random(1);
    const auto below = [&](int end) { return static_cast<int>(random() % unsigned(end)); };
    for (int play = 0; play < 500; ++play) {
        SCOPED_TRACE("play " + std::to_string(play));
        int now = below(kSecondsPerDay);
        int expected = below(std::min(now, 3600) + 1);  // a resumed game
        PlayClock clock;
        clock.Start(now, expected);
        for (int event = 0; event < 60; ++event) {
            const int passed = below(700);
            now = (now + passed) % kSecondsPerDay;
            expected += clock.IsRunning() ? passed : 0;
            const int deed = below(5);
            if (deed == 0) {
                // Time that no tick has counted yet is not lost.
                clock.Penalty(120, now);
                expected += 120;
            } else {
                clock.Tick(now);
            }
            ASSERT_EQ(clock.Elapsed(), expected);
            if (deed == 1) {
                clock.IsRunning() ? clock.Stop() : clock.Resume(now);
            }
        }
        clock.Reset();
        clock.Tick(now);
        ASSERT_EQ(clock.Elapsed(), 0);
    }
}

TEST(PlayClock, AResumedGameMayBeOlderThanTheDay) {
    PlayClock clock;
    clock.Start(60, 200000);
    clock.Tick(62);
    EXPECT_EQ(clock.Elapsed(), 200002);
}

}  // namespace
}  // namespace vemo
