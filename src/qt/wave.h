// Reading wave files.
#pragma once

#include <filesystem>
#include <optional>

#include <QByteArray>

namespace vemo {

// Plain samples, as a sound device takes them.
struct Wave {
    int samplesPerSecond = 0;
    int channels = 0;
    int bits = 0;  // of one sample: 8 unsigned or 16 signed
    QByteArray samples;
};

// Nothing where the file cannot be read, is no wave file, is packed, or holds no sound.
std::optional<Wave> ReadWave(const std::filesystem::path& path);

}  // namespace vemo
