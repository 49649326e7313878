// Menus, keys and the mouse: what each of them does to the game.
#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>

#include "game/menus.h"
#include "qt/keys.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class ControlsTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        fixture_ = std::make_unique<WindowFixture>();
        fixture_->OpenFirstEasy();
    }
    void cleanup() { fixture_.reset(); }

    void MenusAreThoseOfTheTable() {
        QStringList shown;
        const std::function<void(QMenu*, const QString&)> read = [&](QMenu* menu,
                                                                     const QString& path) {
            for (QAction* action : menu->actions()) {
                if (action->menu() != nullptr) {
                    read(action->menu(), path + action->text() + u'/');
                } else if (!action->isSeparator()) {
                    shown << path + action->text() + u'|' + action->shortcut().toString();
                }
            }
        };
        for (QAction* title : fixture_->window.Menus().actions()) {
            read(title->menu(), title->text() + u'/');
        }
        QStringList expected;
        for (const MenuRow& row : MenuRows()) {
            QString path = QString::fromUtf8(row.menu) + u'/';
            if (!row.submenu.empty()) {
                path += QString::fromUtf8(row.submenu) + u'/';
            }
            expected << path + QString::fromUtf8(row.caption) + u'|' +
                            QString::fromUtf8(row.shortcut);
            const QAction* action = fixture_->window.Menus().ActionOf(row.id);
            QCOMPARE(action->isEnabled(), fixture_->Shown().Command(row.id).isEnabled);
        }
        QCOMPARE(shown, expected);
    }

    void ClosingAsksAndStaysOnNo() {
        fixture_->boxes.Expect(
            {u"Quit Vemo Sudoku"_s, u"Do you really want to quit ?"_s, QMessageBox::No});
        QVERIFY(!fixture_->window.close());
        QVERIFY(fixture_->window.isVisible());
        fixture_->boxes.Expect({u"Quit Vemo Sudoku"_s, u"Do you really want to quit ?"_s,
                                QMessageBox::Yes, QMessageBox::Yes});
        fixture_->Key(Qt::Key_Q, Qt::ControlModifier);
        QVERIFY(!fixture_->window.isVisible());
    }

    void KeysOfTheBoard() {
        using Kind = KeyAction::Kind;
        const Qt::KeyboardModifiers pad = Qt::KeypadModifier;
        const Qt::KeyboardModifiers control = Qt::ControlModifier;
        struct Row {
            Qt::Key key;
            Qt::KeyboardModifiers modifiers;
            Kind kind;
            int digit = 0;
        };
        for (const Row& row : {Row{Qt::Key_3, {}, Kind::Assign, 3},
                               // Some layouts need Shift to type a digit.
                               {Qt::Key_3, Qt::ShiftModifier, Kind::Assign, 3},
                               {Qt::Key_7, pad, Kind::Assign, 7},
                               {Qt::Key_Up, pad, Kind::Move},
                               {Qt::Key_9, control, Kind::ToggleMark, 9},
                               {Qt::Key_1, control | pad, Kind::ToggleMark, 1},
                               // Without Num Lock.
                               {Qt::Key_End, control | pad, Kind::ToggleMark, 1},
                               {Qt::Key_Clear, control | pad, Kind::ToggleMark, 5},
                               {Qt::Key_Up, control | pad, Kind::ToggleMark, 8},
                               {Qt::Key_Up, control, Kind::Move},
                               {Qt::Key_4, Qt::AltModifier, Kind::FilterDigit, 4},
                               {Qt::Key_0, {}, Kind::ResetCell},
                               {Qt::Key_Delete, {}, Kind::ResetCell},
                               {Qt::Key_Backspace, {}, Kind::ResetCell},
                               {Qt::Key_F12, {}, Kind::Hint},
                               {Qt::Key_Z, control | Qt::ShiftModifier, Kind::Redo},
                               {Qt::Key_L, {}, Kind::LinkMode},
                               {Qt::Key_Pause, {}, Kind::Pause}}) {
            const std::string name = QKeySequence(row.key | row.modifiers).toString().toStdString();
            for (const bool isHeld : {false, true}) {
                const QKeyEvent event(QEvent::KeyPress, row.key, row.modifiers, QString(), isHeld);
                const std::optional<KeyAction> action = ActionOf(event);
                QVERIFY2(action.has_value() == (!isHeld || row.kind == Kind::Move), name.c_str());
                QVERIFY2(!action || action->kind == row.kind, name.c_str());
                QVERIFY2(!action || action->digit == row.digit, name.c_str());
            }
        }
    }

    void DigitKeysWorkWhileAButtonHasTheFocus() {
        const int cell = EmptyCell();
        const int right = fixture_->Solution()[static_cast<std::size_t>(cell)];
        const int wrong = WrongMark(cell);
        fixture_->ClickMark(cell, wrong, Qt::RightButton);
        QVERIFY(!Mark(cell, wrong).isShown);
        fixture_->Find<QPushButton>("CommandUndo").setFocus();
        fixture_->Key(Qt::Key_0 + right);
        QCOMPARE(View(cell).digit, right);
        fixture_->Key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(View(cell).digit, 0);
        fixture_->Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(View(cell).digit, right);
    }

    void TheHintKeyExplainsAndThenApplies() {
        auto& apply = fixture_->Find<QPushButton>("CommandApply");
        QVERIFY(!apply.isVisible());
        fixture_->Key(Qt::Key_F12);
        QVERIFY(apply.isVisible());
        QVERIFY(fixture_->Find<QLabel>("LabelHint").text().startsWith(u"Hint - "_s));
        QCOMPARE(fixture_->Find<QPlainTextEdit>("TextHint").toPlainText(),
                 QString::fromStdString(fixture_->Shown().textHint));
        fixture_->Key(Qt::Key_F12);
        QVERIFY(!apply.isVisible());
        QCOMPARE(fixture_->game.CurrentSession().history.StepCount(), 1);
    }

    void AReleaseElsewhereDoesNothing() {
        BoardWidget& board = fixture_->window.Board();
        const int cell = EmptyCell();
        const int digit = fixture_->Solution()[static_cast<std::size_t>(cell)];
        const QPoint mark = board.MarkCenter(cell, digit).toPoint();
        const QPoint otherMark = board.MarkCenter(cell, digit % 9 + 1).toPoint();
        const QPoint otherCell = board.MarkCenter((cell + 1) % kCells, digit).toPoint();
        for (const QPoint& end : {otherMark, otherCell}) {
            QTest::mousePress(&board, Qt::LeftButton, {}, mark);
            QTest::mouseRelease(&board, Qt::LeftButton, {}, end);
            QCOMPARE(fixture_->game.CurrentSession().history.StepCount(), 0);
        }
    }

    void BrushesAreArmedByMouseAndKeyboardAndPaint() {
        BoardWidget& board = fixture_->window.Board();
        auto& first = fixture_->Find<QAbstractButton>("LabelColor0");
        auto& second = fixture_->Find<QAbstractButton>("LabelColor1");
        QTest::mouseClick(&first, Qt::LeftButton);
        QTest::mouseClick(&second, Qt::RightButton);
        QCOMPARE(first.text(), u" L"_s);
        QCOMPARE(second.text(), u" R"_s);
        QVERIFY(board.cursor().shape() == Qt::BitmapCursor);
        fixture_->ClickMark(40, 5, Qt::RightButton);
        QCOMPARE(View(40).brush, 1);
        const QPoint columnLabel(board.CellRect(4).center().x(), board.CellRect(4).top() - 12);
        QTest::mouseClick(&board, Qt::LeftButton, {}, columnLabel);
        QCOMPARE(fixture_->Shown().columnLabels[4].brush, 0);
        QCOMPARE(View(4).brush, 0);
        QCOMPARE(fixture_->game.CurrentSession().history.StepCount(), 0);
        QTest::keyClick(&first, Qt::Key_Space);
        QTest::keyClick(&second, Qt::Key_Space, Qt::ShiftModifier);
        QCOMPARE(first.text(), QString());
        QCOMPARE(second.text(), QString());
        QVERIFY(board.cursor().shape() == Qt::ArrowCursor);
    }

    void LinksAreDrawnInLinkMode() {
        const int cell = EmptyCell();
        const int right = fixture_->Solution()[static_cast<std::size_t>(cell)];
        fixture_->Key(Qt::Key_L);
        QVERIFY(fixture_->Find<QPushButton>("CommandLink").isChecked());
        fixture_->ClickMark(cell, right, Qt::RightButton);
        fixture_->ClickMark(cell, WrongMark(cell), Qt::RightButton);
        QCOMPARE(fixture_->Shown().links.size(), std::size_t{1});
        QVERIFY(!fixture_->Shown().links[0].isStrong);
    }

    void OneDigitIsShownByItsButton() {
        auto& seven = fixture_->Find<QPushButton>("Command1_7");
        QTest::mouseClick(&seven, Qt::LeftButton);
        QVERIFY(seven.isChecked());
        fixture_->Key(Qt::Key_3, Qt::AltModifier);
        QVERIFY(!seven.isChecked());
        QCOMPARE(fixture_->Shown().digitFilter, 3);
    }

    void MinimizingStopsTheClock() {
        const PlayClock& clock = fixture_->game.CurrentSession().clock;
        QVERIFY(clock.IsRunning());
        fixture_->window.showMinimized();
        QTRY_VERIFY(!clock.IsRunning());
        fixture_->window.showNormal();
        QTRY_VERIFY(clock.IsRunning());
    }

    void PauseCoversTheBoard() {
        auto& button = fixture_->Find<QPushButton>("CommandPause");
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(fixture_->Shown().isBoardCovered);
        QVERIFY(button.isChecked());
        fixture_->Key(Qt::Key_Pause);
        QVERIFY(!fixture_->Shown().isBoardCovered);
        QVERIFY(!button.isChecked());
    }

  private:
    // The first cell in which a digit can still be placed, and a candidate that does not belong
    // there.
    int EmptyCell() const {
        for (int cell = 0; cell < kCells; ++cell) {
            if (View(cell).digit == 0 && WrongMark(cell) != 0) {
                return cell;
            }
        }
        return kNoCell;
    }

    int WrongMark(int cell) const {
        for (int digit = 1; digit <= kDigits; ++digit) {
            if (Mark(cell, digit).isShown &&
                digit != fixture_->Solution()[static_cast<std::size_t>(cell)]) {
                return digit;
            }
        }
        return 0;
    }

    const CellView& View(int cell) const {
        return fixture_->Shown().cells[static_cast<std::size_t>(cell)];
    }
    const MarkView& Mark(int cell, int digit) const {
        return fixture_->Shown()
            .marks[static_cast<std::size_t>(cell)][static_cast<std::size_t>(digit - 1)];
    }

    std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::ControlsTest)

#include "controls_test.moc"
