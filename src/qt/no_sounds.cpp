// A build without a way to play sounds.
#include "qt/make_sounds.h"

namespace vemo {
namespace {

class NoSounds final : public GameSounds {
  public:
    bool Load(int, const std::filesystem::path&) override { return false; }
    void Play(int) override {}
    bool End() override { return true; }
};

}  // namespace

std::unique_ptr<GameSounds> MakeSounds() {
    return std::make_unique<NoSounds>();
}

}  // namespace vemo
