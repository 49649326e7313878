// The program's dealings with the system: settings, wave files, its command line.
#include <QFile>
#include <QRegularExpression>

#include "qt/arguments.h"
#include "qt/demo.h"
#include "qt/display.h"
#include "qt/qt_settings.h"
#include "qt/wave.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class SystemTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void SettingsSurviveTheirStore() {
        const QString path = In(u"settings.conf"_s);
        {
            QtSettings store(path);
            QVERIFY(store.Get("Options", "TimeOn", "True") == "True");
            store.Save("Options", "TimeOn", "");
            QVERIFY(store.Get("Options", "TimeOn", "True").empty());
            store.Save("Options", "Wells", "False");
            store.Save("Technique", "Order39", "8");
            store.Flush();
            // Another program sees what was flushed.
            QVERIFY(QtSettings(path).Get("Options", "Wells", "True") == "False");
        }
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        const QByteArray text = file.readAll();
        QVERIFY(text.contains("\nWells=False\n"));
        QVERIFY(text.contains("[Technique]\nOrder39=8\n"));
    }

    void TheShippedSoundsAreRead() {
        for (const char* name : {"Applause", "Discard", "Assign", "ResetCell", "Solution", "Label",
                                 "UndoRedo", "Hint", "Error", "Giggle"}) {
            const std::optional<Wave> wave =
                ReadWave(std::string(VEMO_ASSETS "/sounds/") + name + ".wav");
            QVERIFY2(wave.has_value(), name);
            const int bytesPerSecond = wave->samplesPerSecond * wave->channels * wave->bits / 8;
            QVERIFY(wave->samples.size() > 0 && wave->samples.size() <= 2 * bytesPerSecond);
        }
    }

    void DamagedWaveFilesAreRefused() {
        QFile good(QStringLiteral(VEMO_ASSETS "/sounds/Label.wav"));
        QVERIFY(good.open(QIODevice::ReadOnly));
        const QByteArray wave = good.readAll();
        QByteArray packed = wave;
        packed[20] = 17;
        QByteArray endless = wave;
        endless.replace(40, 4, "\xff\xff\xff\xff");
        const std::pair<const char*, QByteArray> damages[] = {
            {"empty", {}},
            {"text", "no wave file at all, but long enough to look like one"},
            {"header alone", wave.left(12)},
            {"no samples", wave.left(44)},
            {"cut short", wave.left(wave.size() - 100)},
            {"packed", packed},
            {"longer than its file", endless},
        };
        for (const auto& [damage, content] : damages) {
            QFile file(In(u"damaged.wav"_s));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
            file.close();
            QVERIFY2(!ReadWave(file.fileName().toStdU16String()), damage);
        }
        QVERIFY(!ReadWave(In(u"missing.wav"_s).toStdU16String()));
    }

    void TheCommandLineIsRead() {
        QVERIFY(ReadArguments({}).task == Arguments::Task::Play);
        const Arguments demo = ReadArguments({u"--demo"_s, u"a.png"_s});
        QVERIFY(demo.task == Arguments::Task::Demo);
        QCOMPARE(demo.demoFile, u"a.png"_s);
        QCOMPARE(ReadArguments({u"one.sdk"_s}).puzzleFile, u"one.sdk"_s);
        QVERIFY(ReadArguments({u"one.sdk"_s, u"two.sdk"_s}).error.contains(u"two.sdk"_s));
        QVERIFY(ReadArguments({u"--demo"_s}).error.contains(u"--demo"_s));
        const QStringList beside = {u"--demo"_s, u"a.png"_s, u"one.sdk"_s};
        QVERIFY(ReadArguments(beside).error.contains(u"one.sdk"_s));
        const QStringList both = {u"--demo"_s, u"a.png"_s, u"--print"_s, u"Easy"_s};
        QVERIFY(ReadArguments(both).error.contains(u"--print"_s));
        QVERIFY(ReadArguments({u"--dmeo"_s}).error.contains(u"--dmeo"_s));
    }

    void TheManualPageNamesEveryOption() {
        QFile page(QStringLiteral(VEMO_TEST_DATA "/../../packaging/debian/vemosud2.6"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(page.readAll()).replace(u"\\-"_s, u"-"_s);
        auto options = QRegularExpression(u"--[a-z-]+"_s).globalMatch(UsageText());
        QVERIFY(options.hasNext());
        while (options.hasNext()) {
            const QString option = options.next().captured();
            QVERIFY2(text.contains(option), qPrintable(option));
        }
    }

    void ADisplayIsLookedForInTheEnvironment() {
        QCOMPARE(WhyNoDisplay({u"-platform"_s, u"offscreen"_s}), QString());
        QVERIFY(!NeedsNoDisplay({}));
        if (QSysInfo::kernelType() == u"winnt"_s) {
            QSKIP("every program of this system has a display");
        }
        QCOMPARE(WhyNoDisplay({}), QString());
        for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            qunsetenv(variable);
        }
        QVERIFY(WhyNoDisplay({}).contains(u"DISPLAY"_s));
        QCOMPARE(WhyNoDisplay({u"-platform"_s, u"offscreen"_s}), QString());
        QCOMPARE(PlatformFor({u"--demo"_s, u"a.png"_s}), "offscreen");
        qputenv("DISPLAY", ":0");
        QCOMPARE(PlatformFor({u"--demo"_s, u"a.png"_s}), "");
        QCOMPARE(PlatformFor({u"--print"_s, u"Easy:1"_s}), "offscreen");
        QCOMPARE(PlatformFor({u"--print"_s, u"Easy:1"_s, u"-platform"_s, u"xcb"_s}), "");
        qunsetenv("DISPLAY");
    }

  private:
    QString In(const QString& name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
};

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::SystemTest)

#include "system_test.moc"
