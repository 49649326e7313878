// Playing short sound files from numbered slots.
#pragma once

#include <filesystem>

namespace vemo {

class Sounds {
  public:
    virtual ~Sounds() = default;

    // Reads a wave file into a slot, without touching a sound device. False where it cannot be
    // read or is no wave file: the slot is then silent.
    virtual bool Load(int slot, const std::filesystem::path& path) = 0;

    // Starts the slot's sound and returns at once; silent without a device or for an empty slot.
    virtual void Play(int slot) = 0;
};

// No sound at all.
class Silence final : public Sounds {
  public:
    bool Load(int, const std::filesystem::path&) override { return false; }
    void Play(int) override {}
};

}  // namespace vemo
