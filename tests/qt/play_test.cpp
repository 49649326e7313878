// One real Easy puzzle, opened through the menu and finished, by mouse and by keyboard.
#include <QLabel>
#include <QPushButton>

#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class PlayTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void AnEasyPuzzleIsFinishedByMouse();
    void AnEasyPuzzleIsFinishedByKeyboardAlone();
    void AnEmptyBoardOffersTheLevels();

  private:
    static void ExpectBestTimes(BoxScript& boxes) {
        boxes.Expect(
            {u"Congratulations"_s, u"New best time for this Sudoku!!!"_s, QMessageBox::Ok});
        boxes.Expect({u"Congratulations"_s, u"New best time for this Level!!!"_s, QMessageBox::Ok});
    }
    static void CheckFinished(WindowFixture& fixture) {
        QCOMPARE(fixture.boxes.TakeFaults(), QString());
        QVERIFY(fixture.game.CurrentSession().phase == PlayPhase::Finished);
        QVERIFY(!fixture.Find<QWidget>("CommandHint").isEnabled());
        QVERIFY(fixture.window.Menus().ActionOf(CommandId::SudokuNext)->isEnabled());
    }
};

void PlayTest::AnEasyPuzzleIsFinishedByMouse() {
    WindowFixture fixture(QStringLiteral(VEMO_ASSETS));
    QCOMPARE(fixture.Find<QLabel>("Panel1").text(), u"Level: Medium"_s);
    fixture.ClickMenu(LevelCommand(1));
    QCOMPARE(fixture.Find<QLabel>("Panel1").text(), u"Level: Easy"_s);
    fixture.ClickMenu(CommandId::SudokuNext);
    QCOMPARE(fixture.Find<QLabel>("Panel2").text(), u"Number: 1"_s);
    QVERIFY(fixture.Shown().isBoardEnabled);
    ExpectBestTimes(fixture.boxes);
    int steps = 0;
    for (int cell = 0; cell < kCells; ++cell) {
        const auto index = static_cast<std::size_t>(cell);
        if (fixture.Shown().cells[index].digit == 0) {
            fixture.ClickMark(cell, fixture.Solution()[index]);
            QCOMPARE(fixture.Find<QLabel>("LabelStap").text(), u"Step %1"_s.arg(++steps));
        }
    }
    CheckFinished(fixture);
}

void PlayTest::AnEasyPuzzleIsFinishedByKeyboardAlone() {
    WindowFixture fixture(QStringLiteral(VEMO_ASSETS));
    fixture.Key(Qt::Key_L, Qt::AltModifier);
    fixture.Key(Qt::Key_E);
    fixture.Key(Qt::Key_N, Qt::ControlModifier);
    QVERIFY(fixture.Shown().isBoardEnabled);
    ExpectBestTimes(fixture.boxes);
    for (int tries = 0; tries < kCells && fixture.Shown().isBoardEnabled; ++tries) {
        const auto cell = static_cast<std::size_t>(fixture.Shown().selectedCell);
        if (fixture.Shown().cells[cell].digit == 0) {
            fixture.Key(Qt::Key_0 + fixture.Solution()[cell]);
            QCOMPARE(fixture.Shown().cells[cell].digit, int{fixture.Solution()[cell]});
        }
        fixture.Key(Qt::Key_Right, Qt::ControlModifier);
    }
    CheckFinished(fixture);
}

void PlayTest::AnEmptyBoardOffersTheLevels() {
    WindowFixture fixture(QStringLiteral(VEMO_ASSETS));
    const auto& cards = fixture.Find<QWidget>("LevelCards");
    QVERIFY(cards.isVisible());
    QTest::mouseClick(&fixture.Find<QPushButton>("LevelCard2"), Qt::LeftButton);
    QVERIFY(!cards.isVisible());
    QVERIFY(fixture.Shown().isBoardEnabled);
    QCOMPARE(fixture.Find<QLabel>("Panel1").text(), u"Level: Medium"_s);
    QVERIFY(fixture.window.Board().hasFocus());
}

}  // namespace vemo::test

int main(int argc, char** argv) {
    return vemo::test::RunWindowTests<vemo::test::PlayTest>(argc, argv);
}

#include "play_test.moc"
