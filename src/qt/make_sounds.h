// The sounds that this build can play.
#pragma once

#include <memory>

#include "platform/sounds.h"

namespace vemo {

// Sounds that are ended before the program ends.
class GameSounds : public Sounds {
  public:
    // False where a thread is left behind that waits for its sound server. Then the ordinary end of
    // the program would wait with it.
    virtual bool End() = 0;
};

// Silence where the program was built without a way to play any.
std::unique_ptr<GameSounds> MakeSounds();

}  // namespace vemo
