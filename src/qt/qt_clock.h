// The local time of day.
#pragma once

#include <QTime>

#include "platform/clock.h"

namespace vemo {

class QtClock final : public Clock {
  public:
    int SecondOfDay() override { return QTime::currentTime().msecsSinceStartOfDay() / 1000; }
};

}  // namespace vemo
