// Reading wave files.
#include "qt/wave.h"

#include <QFile>
#include <QtEndian>

namespace vemo {
namespace {

// A wave file is a RIFF file: chunks of a name, a length and a content of even length.
constexpr qsizetype kRiffHeader = 12;
constexpr qsizetype kChunkHeader = 8;
constexpr qsizetype kFormatChunk = 16;
constexpr int kPlainSamples = 1;
// A sound of the game is short; what is larger is none.
constexpr qint64 kLargestFile = 16 << 20;

template <typename Number>
Number At(const QByteArray& bytes, qsizetype offset) {
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

bool ReadFormat(const QByteArray& bytes, qsizetype offset, qsizetype length, Wave& wave) {
    if (length < kFormatChunk || At<quint16>(bytes, offset) != kPlainSamples) {
        return false;
    }
    wave.channels = At<quint16>(bytes, offset + 2);
    wave.samplesPerSecond = static_cast<int>(At<quint32>(bytes, offset + 4));
    wave.bits = At<quint16>(bytes, offset + 14);
    const bool isKnownSize = wave.bits == 8 || wave.bits == 16;
    return isKnownSize && (wave.channels == 1 || wave.channels == 2) &&
           wave.samplesPerSecond >= 4000 && wave.samplesPerSecond <= 192000;
}

}  // namespace

std::optional<Wave> ReadWave(const std::filesystem::path& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kLargestFile) {
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    if (bytes.size() < kRiffHeader || !bytes.startsWith("RIFF") || bytes.mid(8, 4) != "WAVE") {
        return std::nullopt;
    }
    Wave wave;
    bool hasFormat = false;
    for (qsizetype at = kRiffHeader; at + kChunkHeader <= bytes.size();) {
        const QByteArray name = bytes.mid(at, 4);
        const qsizetype length = At<quint32>(bytes, at + 4);
        at += kChunkHeader;
        if (length > bytes.size() - at) {
            return std::nullopt;
        }
        if (name == "fmt ") {
            hasFormat = ReadFormat(bytes, at, length, wave);
        } else if (name == "data" && hasFormat && length > 0) {
            wave.samples = bytes.mid(at, length);
            return wave;
        }
        at += length + length % 2;
    }
    return std::nullopt;
}

}  // namespace vemo
