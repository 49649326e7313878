// Every window of the game: each control has a name and is reached by Tab, each menu entry by a
// letter, and nothing is cut off or overlaps, with texts of the usual and of twice their size. A
// new window is a row of the table.
#include "qt/window_checks.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

void OpenHintWindow(WindowFixture& fixture) {
    fixture.game.CommandHintClick();
    fixture.game.TextHintDblClick();
}

template <CommandId kCommand>
void RunCommand(WindowFixture& fixture) {
    fixture.game.Run(kCommand);
}

struct WindowRow {
    const char* name;
    void (*open)(WindowFixture& fixture);
};

constexpr WindowRow kWindows[] = {
    {"FormHint", OpenHintWindow},
    {"FormLog", RunCommand<CommandId::SolveLog>},
    {"SolveTech", RunCommand<CommandId::SolveManager>},
    {"FormGenerator", RunCommand<CommandId::SudokuGenerator>},
    {"FormColors", RunCommand<CommandId::OptionsColors>},
    {"FormCollection", RunCommand<CommandId::SudokuCheck>},
    {"FormPrint", RunCommand<CommandId::SudokuPrint>},
    {"FormHelp", RunCommand<CommandId::HelpContents>},
};

class WindowsTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void cleanup() {
        fixture_.reset();
        QApplication::setFont(system_);
    }

    void EveryControlHasANameAndIsReachedByTheKeyboard_data() { AddWindows({1.0}); }
    void EveryControlHasANameAndIsReachedByTheKeyboard() {
        QWidget& window = Open();
        QCOMPARE(Nameless(window).join(u'\n'), QString());
        QCOMPARE(OutOfTabsReach(window).join(u'\n'), QString());
        QCOMPARE(EntriesWithoutLetter(window).join(u'\n'), QString());
    }

    void NothingIsCutOffAndNothingOverlaps_data() { AddWindows({1.0, 2.0}); }
    void NothingIsCutOffAndNothingOverlaps() {
        QWidget& window = Open();
        CheckRoom(window);
        for (const QSize& size : {QSize(0, 0), QSize(1400, 480), QSize(480, 1000)}) {
            window.resize(size.expandedTo(window.minimumSize()));
            QCoreApplication::processEvents();
            CheckRoom(window);
        }
    }

  private:
    static void AddWindows(std::initializer_list<double> sizes) {
        QTest::addColumn<int>("number");
        QTest::addColumn<double>("text");
        for (const double text : sizes) {
            for (int number = 0; number < int(std::size(kWindows)); ++number) {
                const QString row =
                    u"%1, text %2"_s.arg(QLatin1String(kWindows[number].name)).arg(text);
                QTest::newRow(qPrintable(row)) << number << text;
            }
        }
    }

    QWidget& Open() {
        QFETCH(int, number);
        QFETCH(double, text);
        QFont font = system_;
        font.setPointSizeF(system_.pointSizeF() * text);
        QApplication::setFont(font);
        fixture_ = std::make_unique<WindowFixture>();
        fixture_->OpenFirstEasy();
        kWindows[number].open(*fixture_);
        auto& window = fixture_->Find<QWidget>(kWindows[number].name);
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window)) {
            qFatal("%s does not become active", kWindows[number].name);
        }
        QCoreApplication::processEvents();
        return window;
    }

    static void CheckRoom(QWidget& window) {
        const QString size = u"%1 x %2\n"_s.arg(window.width()).arg(window.height());
        const QStringList faults = Overlaps(window) + CutTexts(window);
        QVERIFY2(faults.isEmpty(), qPrintable(size + faults.join(u'\n')));
    }

    const QFont system_ = QApplication::font();
    std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::WindowsTest)

#include "windows_test.moc"
