// Sounds through the player of Windows: one at a time, the next cuts it short.
#include <map>
#include <windows.h>

#include <QByteArray>
#include <QFile>

#include "qt/make_sounds.h"
#include "qt/wave.h"
// After windows.h.
#include <mmsystem.h>

namespace vemo {
namespace {

class WindowsSounds final : public GameSounds {
  public:
    ~WindowsSounds() override { End(); }

    bool Load(int slot, const std::filesystem::path& path) override;
    void Play(int slot) override;
    bool End() override;

  private:
    std::map<int, QByteArray> files_;
};

bool WindowsSounds::Load(int slot, const std::filesystem::path& path) {
    if (files_.contains(slot)) {
        End();
        files_.erase(slot);
    }
    QFile file(path);
    if (!ReadWave(path) || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    files_.emplace(slot, file.readAll());
    return true;
}

void WindowsSounds::Play(int slot) {
    const auto found = files_.find(slot);
    if (found != files_.end()) {
        PlaySoundW(reinterpret_cast<LPCWSTR>(found->second.constData()), nullptr,
                   SND_MEMORY | SND_ASYNC | SND_NODEFAULT);
    }
}

// The system reads a file's bytes for as long as it plays them.
bool WindowsSounds::End() {
    PlaySoundW(nullptr, nullptr, 0);
    return true;
}

}  // namespace

std::unique_ptr<GameSounds> MakeSounds() {
    return std::make_unique<WindowsSounds>();
}

}  // namespace vemo
