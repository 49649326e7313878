// The playing time of one game. It counts from the time of day, passes midnight, takes penalties
// and stands still while it is stopped.
#pragma once

namespace vemo {

class PlayClock {
  public:
    // A new game, or one resumed after `elapsed` seconds; the clock runs.
    void Start(int secondOfDay, int elapsed = 0);
    // The clock keeps what it shows.
    void Stop() { isRunning_ = false; }
    // Goes on from what it shows; the time in between is not counted.
    void Resume(int secondOfDay);
    // Counts on, if it runs.
    void Tick(int secondOfDay);
    // Moves the start of the game back. Also while the clock is stopped.
    void Penalty(int seconds, int secondOfDay);
    void Reset();

    bool IsRunning() const { return isRunning_; }
    int Elapsed() const { return elapsed_; }

  private:
    int start_ = 0;    // second of the day; negative where the game began before midnight
    int elapsed_ = 0;  // seconds
    bool isRunning_ = false;
};

}  // namespace vemo
