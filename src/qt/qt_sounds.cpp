// Sounds through Qt Multimedia.
#include "qt/qt_sounds.h"

#include <cstdio>
#include <utility>

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QBuffer>
#include <QMediaDevices>
#include <QThread>

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// What a thread that hangs in its sound server is given when the program ends.
constexpr unsigned long kPatienceMilliseconds = 200;

// Sounds at the same time; a further one is dropped.
constexpr qsizetype kVoices = 4;

QAudioFormat FormatOf(const Wave& wave) {
    QAudioFormat format;
    format.setSampleRate(wave.samplesPerSecond);
    format.setChannelCount(wave.channels);
    format.setSampleFormat(wave.bits == 8 ? QAudioFormat::UInt8 : QAudioFormat::Int16);
    return format;
}

// Without a device the game is silent, in the log as well.
void LogWithoutSoundServer(QtMsgType type, const QMessageLogContext& context,
                           const QString& message) {
    if (message.contains(u"PulseAudioService"_s)) {
        return;
    }
    if (QLatin1String(context.category).startsWith("qt.multimedia"_L1)) {
        return;
    }
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

}  // namespace

// Lives on the sound thread. Sounds may overlap: a slow device would swallow one that is cut short.
class SoundPlayer final : public QObject {
  public:
    void Play(const Wave& wave) {
        const QAudioDevice device = QMediaDevices::defaultAudioOutput();
        const QAudioFormat format = FormatOf(wave);
        if (device.isNull() || !device.isFormatSupported(format)) {
            return;
        }
        if (findChildren<QAudioSink*>().size() >= kVoices) {
            return;
        }
        auto* sink = new QAudioSink(device, format, this);
        auto* samples = new QBuffer(sink);
        samples->setData(wave.samples);
        samples->open(QIODevice::ReadOnly);
        connect(sink, &QAudioSink::stateChanged, sink, [sink](QAudio::State state) {
            if (state != QAudio::ActiveState) {
                sink->deleteLater();
            }
        });
        sink->start(samples);
    }
};

QtSounds::QtSounds() : isWaiting_(std::make_shared<std::atomic<bool>>(false)) {}

QtSounds::~QtSounds() {
    End();
}

bool QtSounds::Load(int slot, const std::filesystem::path& path) {
    waves_.erase(slot);
    std::optional<Wave> wave = ReadWave(path);
    if (!wave) {
        return false;
    }
    waves_.emplace(slot, *std::move(wave));
    return true;
}

void QtSounds::Play(int slot) {
    const auto found = waves_.find(slot);
    if (found == waves_.end() || isWaiting_->exchange(true)) {
        return;
    }
    if (thread_ == nullptr) {
        StartThread();
    }
    QMetaObject::invokeMethod(
        player_,
        [player = player_, wave = found->second, isWaiting = isWaiting_] {
            player->Play(wave);
            *isWaiting = false;
        },
        Qt::QueuedConnection);
}

bool QtSounds::End() {
    QThread* thread = std::exchange(thread_, nullptr);
    if (thread == nullptr) {
        return true;
    }
    thread->quit();
    if (!thread->wait(kPatienceMilliseconds)) {
        return false;
    }
    delete thread;
    return true;
}

void QtSounds::StartThread() {
    qInstallMessageHandler(LogWithoutSoundServer);
    thread_ = new QThread;
    player_ = new SoundPlayer;
    player_->moveToThread(thread_);
    QObject::connect(thread_, &QThread::finished, player_, &QObject::deleteLater);
    thread_->start();
}

std::unique_ptr<GameSounds> MakeSounds() {
    return std::make_unique<QtSounds>();
}

}  // namespace vemo
