// Sounds through Qt Multimedia. The sound device is touched by the first sound played, on a thread
// of its own: a sound server that does not answer holds up nothing else.
#pragma once

#include <atomic>
#include <map>
#include <memory>

#include "qt/make_sounds.h"
#include "qt/wave.h"

class QThread;

namespace vemo {

class SoundPlayer;

class QtSounds final : public GameSounds {
  public:
    QtSounds();
    ~QtSounds() override;

    bool Load(int slot, const std::filesystem::path& path) override;
    // A sound that comes while the one before has not begun is dropped.
    void Play(int slot) override;
    bool End() override;

  private:
    void StartThread();

    std::map<int, Wave> waves_;
    // Shared with the thread, which may outlive this object when its server does not answer.
    std::shared_ptr<std::atomic<bool>> isWaiting_;
    QThread* thread_ = nullptr;
    SoundPlayer* player_ = nullptr;
};

}  // namespace vemo
