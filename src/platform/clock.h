// The time of day.
#pragma once

namespace vemo {

inline constexpr int kSecondsPerDay = 86400;

class Clock {
  public:
    virtual ~Clock() = default;

    // Whole seconds since local midnight, 0..86399.
    virtual int SecondOfDay() = 0;
};

}  // namespace vemo
