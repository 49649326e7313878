// The arithmetic of the playing time, in seconds of the day.
#include "game/play_clock.h"

#include "platform/clock.h"

namespace vemo {

void PlayClock::Start(int secondOfDay, int elapsed) {
    elapsed_ = elapsed;
    Resume(secondOfDay);
}

void PlayClock::Resume(int secondOfDay) {
    isRunning_ = true;
    start_ = secondOfDay - elapsed_;
}

void PlayClock::Tick(int secondOfDay) {
    if (!isRunning_) {
        return;
    }
    // Midnight has passed since the start.
    const int now = secondOfDay < start_ ? secondOfDay + kSecondsPerDay : secondOfDay;
    elapsed_ = now - start_;
}

void PlayClock::Penalty(int seconds, int secondOfDay) {
    // What has passed since the last tick must not get lost.
    Tick(secondOfDay);
    elapsed_ += seconds;
    if (isRunning_) {
        Resume(secondOfDay);
    }
}

void PlayClock::Reset() {
    *this = PlayClock();
}

}  // namespace vemo
