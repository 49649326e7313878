// A program killed at any moment while it saves leaves the old record or the new one.
#include <chrono>
#include <csignal>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>

#include "model/files.h"
#include "platform/plain_files.h"
#include "support/temp_folder.h"

namespace vemo {
namespace {

constexpr int kLevel = 1;
constexpr int kRounds = 500;

PlayState StateFilledWith(Marks marks, std::int16_t mask) {
    PlayState state;
    state.elapsed = {mask, 7};
    state.pencilMarks.fill(marks);
    state.undoCount = kSavedSteps;
    state.history.fill({80, mask, 0, mask, mask, mask});
    return state;
}

// The child: saves one state after the other until it is killed, and tells of the first.
[[noreturn]] void SaveForever(RecordFiles& files, int number, const PlayState& a,
                              const PlayState& b, int told) {
    files.WritePlayState(kLevel, number, b);
    while (write(told, "x", 1) != 1) {
    }
    for (;;) {
        files.WritePlayState(kLevel, number, a);
        files.WritePlayState(kLevel, number, b);
    }
}

void SaveAndKill(RecordFiles& files, int number, const PlayState& a, const PlayState& b,
                 std::chrono::microseconds delay) {
    int told[2];
    ASSERT_EQ(pipe(told), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        SaveForever(files, number, a, b, told[1]);
    }
    char byte = 0;
    EXPECT_EQ(read(told[0], &byte, 1), 1);
    std::this_thread::sleep_for(delay);
    EXPECT_EQ(kill(child, SIGKILL), 0);
    EXPECT_EQ(waitpid(child, nullptr, 0), child);
    close(told[0]);
    close(told[1]);
}

// Record 2 lies within one page of the disk, record 3 across two.
class KilledWrite : public testing::TestWithParam<int> {};

TEST_P(KilledWrite, LeavesTheOldRecordOrTheNewOne) {
    const int number = GetParam();
    const test::TempFolder folder;
    PlainFiles disk;
    RecordFiles files(disk, folder.Path());
    const PlayState a = StateFilledWith(kAllMarks, 511);
    const PlayState b = StateFilledWith(2, 1);
    const PlayState neighbour = StateFilledWith(64, 85);
    for (int record = 1; record <= 5; ++record) {
        ASSERT_FALSE(files.WritePlayState(kLevel, record, record == number ? a : neighbour));
    }
    std::mt19937 random(7);
    int oldOnes = 0;
    for (int round = 0; round < kRounds; ++round) {
        SaveAndKill(files, number, a, b, std::chrono::microseconds(random() % 400));
        EXPECT_EQ(disk.Size(files.ProgressPath(kLevel)), 5 * kPlayStateRecordSize);
        for (int record = 1; record <= 5; ++record) {
            const PlayState state = files.ReadPlayState(kLevel, record);
            if (record != number) {
                ASSERT_EQ(state, neighbour) << "record " << record << ", round " << round;
                continue;
            }
            ASSERT_TRUE(state == a || state == b) << "torn in round " << round;
            oldOnes += state == a ? 1 : 0;
        }
    }
    // Otherwise nothing was killed while it wrote.
    EXPECT_GT(oldOnes, 0);
    EXPECT_LT(oldOnes, kRounds);
}

INSTANTIATE_TEST_SUITE_P(Records, KilledWrite, testing::Values(2, 3));

}  // namespace
}  // namespace vemo
