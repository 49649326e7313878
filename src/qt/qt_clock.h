// The local time of day.
#pragma once

#include <QElapsedTimer>
#include <QTime>

#include "platform/clock.h"

namespace vemo {

// Counted on from the start of the program: a system clock that is set anew, or summer time that
// ends, is no playing time.
class QtClock final : public Clock {
  public:
    QtClock() { sinceStart_.start(); }

    int SecondOfDay() override {
        const qint64 second = (start_ + sinceStart_.elapsed()) / 1000;
        return static_cast<int>(second % kSecondsPerDay);
    }

  private:
    const qint64 start_ = QTime::currentTime().msecsSinceStartOfDay();
    QElapsedTimer sinceStart_;
};

}  // namespace vemo
