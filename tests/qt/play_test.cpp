// One real Easy puzzle, opened through the menu and finished, by mouse and by keyboard.
#include <QLabel>
#include <QPushButton>

#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class PlayTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void AnEasyPuzzleIsFinishedByMouseAndTheNextByKeyboardAlone() {
        WindowFixture fixture;
        const Screen& shown = fixture.Shown();
        QCOMPARE(fixture.Find<QLabel>("Panel1").text(), u"Level: Medium"_s);
        fixture.ClickMenu(LevelCommand(1));
        QCOMPARE(fixture.Find<QLabel>("Panel1").text(), u"Level: Easy"_s);
        fixture.ClickMenu(CommandId::SudokuNext);
        QCOMPARE(fixture.Find<QLabel>("Panel2").text(), u"Number: 1"_s);
        fixture.boxes.Expect(
            {u"Congratulations"_s, u"New best time for this Sudoku!!!"_s, QMessageBox::Ok});
        fixture.boxes.Expect(
            {u"Congratulations"_s, u"New best time for this Level!!!"_s, QMessageBox::Ok});
        int steps = 0;
        for (int cell = 0; cell < kCells; ++cell) {
            const auto index = static_cast<std::size_t>(cell);
            if (shown.cells[index].digit == 0) {
                fixture.ClickMark(cell, fixture.Solution()[index]);
                QCOMPARE(fixture.Find<QLabel>("LabelStap").text(), u"Step %1"_s.arg(++steps));
            }
        }
        QVERIFY(fixture.game.CurrentSession().phase == PlayPhase::Finished);
        QVERIFY(!fixture.Find<QWidget>("CommandHint").isEnabled());
        QCOMPARE(fixture.boxes.TakeFaults(), QString());

        // Without a counted time there is no best one, and no box.
        fixture.game.mnuOptionsTimer();
        fixture.Key(Qt::Key_L, Qt::AltModifier);
        fixture.Key(Qt::Key_E);
        fixture.Key(Qt::Key_N, Qt::ControlModifier);
        for (int tries = 0; tries < kCells && shown.isBoardEnabled; ++tries) {
            const auto cell = static_cast<std::size_t>(shown.selectedCell);
            if (shown.cells[cell].digit == 0) {
                fixture.Key(Qt::Key_0 + fixture.Solution()[cell]);
                QCOMPARE(shown.cells[cell].digit, int{fixture.Solution()[cell]});
            }
            fixture.Key(Qt::Key_Right, Qt::ControlModifier);
        }
        QVERIFY(fixture.game.CurrentSession().phase == PlayPhase::Finished);
    }

    void AnEmptyBoardOffersTheLevels() {
        WindowFixture fixture;
        const auto& cards = fixture.Find<QWidget>("LevelCards");
        QVERIFY(cards.isVisible());
        QTest::mouseClick(&fixture.Find<QPushButton>("LevelCard2"), Qt::LeftButton);
        QVERIFY(!cards.isVisible());
        QVERIFY(fixture.Shown().isBoardEnabled);
        QCOMPARE(fixture.Find<QLabel>("Panel1").text(), u"Level: Medium"_s);
        QVERIFY(fixture.window.Board().hasFocus());
    }
};

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::PlayTest)

#include "play_test.moc"
