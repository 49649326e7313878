// The clock of the puzzle in play.
#include "game/timer.h"

namespace vemo {
namespace {

bool ShallClockRun(const Stage& stage) {
    const Session& session = stage.session;
    return stage.options.timeOn && session.IsBoardOn() && !session.isMinimized;
}

}  // namespace

void StartClock(Stage& stage, int elapsed) {
    PlayClock& clock = stage.session.clock;
    clock.Reset();
    if (stage.options.timeOn) {
        clock.Start(stage.clock.SecondOfDay(), elapsed);
    }
    UpdateClock(stage);
}

void UpdateClock(Stage& stage) {
    PlayClock& clock = stage.session.clock;
    const int now = stage.clock.SecondOfDay();
    clock.Tick(now);
    if (!ShallClockRun(stage)) {
        clock.Stop();
    } else if (!clock.IsRunning()) {
        clock.Resume(now);
    }
}

void Penalty(Stage& stage, int seconds) {
    if (stage.options.timeOn) {
        stage.session.clock.Penalty(seconds, stage.clock.SecondOfDay());
    }
}

void TogglePause(Stage& stage) {
    Session& session = stage.session;
    if (session.IsPlaying() && stage.options.timeOn) {
        session.isStoppedByPlayer = !session.isStoppedByPlayer;
        UpdateClock(stage);
    }
}

void SetMinimized(Stage& stage, bool isMinimized) {
    stage.session.isMinimized = isMinimized;
    UpdateClock(stage);
}

void ToggleTimer(Stage& stage) {
    stage.session.isStoppedByPlayer = false;
    FlipOption(stage, &Options::timeOn);
    UpdateClock(stage);
}

}  // namespace vemo
