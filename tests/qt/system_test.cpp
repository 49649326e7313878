// The program's dealings with the system: settings, wave files, its command line.
#include <QFile>

#include "qt/arguments.h"
#include "qt/demo.h"
#include "qt/qt_settings.h"
#include "qt/wave.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class SystemTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void SettingsSurviveTheirStore();
    void AMissingSettingIsItsDefault();
    void TheShippedSoundsAreRead();
    void DamagedWaveFilesAreRefused_data();
    void DamagedWaveFilesAreRefused();
    void TheCommandLineIsRead();

  private:
    QString In(const QString& name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
};

void SystemTest::SettingsSurviveTheirStore() {
    const QString path = In(u"settings.conf"_s);
    {
        QtSettings store(path);
        store.Save("Options", "Wells", "False");
        store.Save("Technique", "Order39", "8");
        store.Flush();
        // Another program sees what was flushed.
        QVERIFY(QtSettings(path).Get("Options", "Wells", "True") == "False");
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QVERIFY(text.contains("[Options]\nWells=False\n"));
    QVERIFY(text.contains("[Technique]\nOrder39=8\n"));
}

void SystemTest::AMissingSettingIsItsDefault() {
    QtSettings store(In(u"empty.conf"_s));
    QVERIFY(store.Get("Options", "TimeOn", "True") == "True");
    store.Save("Options", "TimeOn", "");
    QVERIFY(store.Get("Options", "TimeOn", "True").empty());
}

void SystemTest::TheShippedSoundsAreRead() {
    for (const char* name : {"Applause", "Discard", "Assign", "ResetCell", "Solution", "Label",
                             "UndoRedo", "Hint", "Error", "Giggle"}) {
        const std::optional<Wave> wave =
            ReadWave(std::string(VEMO_ASSETS "/sounds/") + name + ".wav");
        QVERIFY2(wave.has_value(), name);
        const int bytesPerSecond = wave->samplesPerSecond * wave->channels * wave->bits / 8;
        QVERIFY(wave->samples.size() > 0 && wave->samples.size() <= 2 * bytesPerSecond);
    }
}

void SystemTest::DamagedWaveFilesAreRefused_data() {
    QTest::addColumn<QByteArray>("content");
    QFile good(QStringLiteral(VEMO_ASSETS "/sounds/Label.wav"));
    QVERIFY(good.open(QIODevice::ReadOnly));
    const QByteArray wave = good.readAll();
    QByteArray packed = wave;
    packed[20] = 17;
    QByteArray endless = wave;
    endless.replace(40, 4, "\xff\xff\xff\xff");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("no wave file at all, but long enough to look like one");
    QTest::newRow("header alone") << wave.left(12);
    QTest::newRow("no samples") << wave.left(44);
    QTest::newRow("cut short") << wave.left(wave.size() - 100);
    QTest::newRow("packed") << packed;
    QTest::newRow("longer than its file") << endless;
}

void SystemTest::DamagedWaveFilesAreRefused() {
    QFETCH(QByteArray, content);
    QFile file(In(u"damaged.wav"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    QVERIFY(!ReadWave(file.fileName().toStdU16String()));
    QVERIFY(!ReadWave(In(u"missing.wav"_s).toStdU16String()));
}

void SystemTest::TheCommandLineIsRead() {
    QVERIFY(ReadArguments({}).task == Arguments::Task::Play);
    const Arguments demo = ReadArguments({u"--demo"_s, u"a.png"_s});
    QVERIFY(demo.task == Arguments::Task::Demo);
    QCOMPARE(demo.demoFile, u"a.png"_s);
    QVERIFY(ReadArguments({u"--demo"_s}).error.contains(u"--demo"_s));
    QVERIFY(ReadArguments({u"--dmeo"_s}).error.contains(u"--dmeo"_s));
    QCOMPARE(WhyNoDisplay({}), QString());
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        qunsetenv(variable);
    }
    QVERIFY(WhyNoDisplay({}).contains(u"DISPLAY"_s));
    QCOMPARE(WhyNoDisplay({u"-platform"_s, u"offscreen"_s}), QString());
}

}  // namespace vemo::test

int main(int argc, char** argv) {
    return vemo::test::RunWindowTests<vemo::test::SystemTest>(argc, argv);
}

#include "system_test.moc"
