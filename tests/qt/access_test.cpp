// What a screen reader finds, and that texts can be read in both appearances.
#include <QAccessible>
#include <QLabel>

#include "qt/screen_text.h"
#include "qt/theme.h"
#include "qt/window_checks.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class AccessTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void CellsSayWhatTheyHoldAndWhatAHintSaysOfThem() {
        Screen screen;
        screen.legend = {{Role::Pattern, "one color"}, {Role::Attacked, "goes"}};
        screen.marks[6][1].role = Role::Pattern;
        screen.marks[6][2].role = Role::Attacked;
        QCOMPARE(CellHintText(screen, 6), u"one color 2, goes 3"_s);
        QCOMPARE(CellHintText(screen, 7), QString());
        screen.cells[0] = {.digit = 5, .isClue = true};
        screen.cells[21].digit = 7;
        for (const std::size_t digit : {1, 4, 9}) {
            screen.marks[11][digit - 1].isShown = true;
        }
        QCOMPARE(CellText(screen, 0), u"A1, clue 5"_s);
        QCOMPARE(CellText(screen, 11), u"B3, marks 1 4 9"_s);
        QCOMPARE(CellText(screen, 21), u"C4, 7"_s);
        QCOMPARE(CellText(screen, 80), u"J9, empty"_s);
        screen.isBoardCovered = true;
        QCOMPARE(CellText(screen, 0), u"A1, covered"_s);
    }

    void TheBoardIsATableOfItsCells() {
        WindowFixture fixture;
        fixture.OpenFirstEasy();
        BoardWidget& board = fixture.window.Board();
        QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&board);
        QVERIFY(table->tableInterface() != nullptr);
        QCOMPARE(table->childCount(), kCells);
        for (int cell = 0; cell < kCells; ++cell) {
            QAccessibleInterface* child = table->child(cell);
            QCOMPARE(child->text(QAccessible::Name), CellText(fixture.Shown(), cell));
            QCOMPARE(table->indexOfChild(child), cell);
            QCOMPARE(table->tableInterface()->cellAt(cell / 9, cell % 9), child);
            QCOMPARE(table->childAt(child->rect().center().x(), child->rect().center().y()), child);
        }
        board.setFocus();
        fixture.Key(Qt::Key_Right);
        const int selected = fixture.Shown().selectedCell;
        QCOMPARE(table->focusChild(), table->child(selected));
        QVERIFY(table->child(selected)->state().focused);
        QVERIFY(!table->child((selected + 1) % kCells)->state().focused);
    }

    void NothingThatCanBeReachedIsWithoutAName() {
        WindowFixture fixture;
        QCOMPARE(Nameless(fixture.window).join(u'\n'), QString());
        QCOMPARE(EntriesWithoutLetter(fixture.window).join(u'\n'), QString());
        fixture.OpenFirstEasy();
        fixture.game.CommandHintClick();
        QCOMPARE(Nameless(fixture.window).join(u'\n'), QString());
        fixture.game.mnuSudokuMake();
        QCOMPARE(Nameless(fixture.window).join(u'\n'), QString());
    }

    void TabReachesEveryControl() {
        WindowFixture fixture;
        fixture.OpenFirstEasy();
        fixture.game.CommandHintClick();
        fixture.window.Board().setFocus();
        QStringList reached;
        do {
            reached << QApplication::focusWidget()->objectName();
            fixture.Key(Qt::Key_Tab);
        } while (!reached.contains(QApplication::focusWidget()->objectName()));
        for (const char* name :
             {"Grid", "TextHint", "CommandPause", "CommandApply", "CommandHint", "CommandSolution",
              "Command1_1", "Command1_9", "LabelColor0", "LabelColor9", "CommandLink"}) {
            QVERIFY2(reached.contains(QLatin1String(name)), name);
        }
    }

    void TextsAreReadable() {
        const Colors all = BuiltInColors();
        for (const BoardColors& colors :
             {BoardColors{ThemeOf(Tone::Light), all.light}, {ThemeOf(Tone::Dark), all.dark}}) {
            CheckReadable(colors);
            QVERIFY(!QTest::currentTestFailed());
        }
    }

    void TheWindowFollowsTheSystemUnlessToldOtherwise() {
        const QPalette system = QApplication::palette();
        {
            WindowFixture fixture;
            const auto window = [&fixture] { return fixture.window.CurrentColors().theme.window; };
            QCOMPARE(window(), ThemeOf(Tone::Light).window);
            fixture.game.Run(CommandId::AppearanceDark);
            QCOMPARE(window(), ThemeOf(Tone::Dark).window);
            QTRY_COMPARE(fixture.Find<QLabel>("Panel1").palette().color(QPalette::WindowText),
                         ThemeOf(Tone::Dark).text);
            fixture.game.Run(CommandId::AppearanceSystem);
            QCOMPARE(window(), ThemeOf(Tone::Light).window);
        }
        const QPalette dark(QColor(0x30, 0x30, 0x30), QColor(0x20, 0x20, 0x20));
        QApplication::setPalette(dark);
        WindowFixture fixture;
        QCOMPARE(fixture.window.CurrentColors().theme.window, ThemeOf(Tone::Dark).window);
        QApplication::setPalette(system);
        QTRY_COMPARE(fixture.window.CurrentColors().theme.window, ThemeOf(Tone::Light).window);
    }

  private:
    static void CheckReadable(const BoardColors& colors) {
        const Theme& theme = colors.theme;
        for (const QColor& text : {theme.text, theme.softText, theme.accent, theme.wrong}) {
            QVERIFY(Contrast(text, theme.window) >= kReadable);
            QVERIFY(Contrast(text, theme.panel) >= kReadable);
        }
        QVERIFY(Contrast(theme.accentText, theme.accent) >= kReadable);
        for (const QColor& ground : {theme.board, theme.sameDigit, colors.Hint(HintColor::HintCell),
                                     colors.Hint(HintColor::UnitTint)}) {
            for (const QColor& text : {theme.clue, theme.own, theme.mark}) {
                QVERIFY(Contrast(text, ground) >= kReadable);
            }
            // Colours of the player's choice are moved as far as it takes.
            for (const QColor& text : {colors.Hint(HintColor::Attacked), ground, theme.accent}) {
                QVERIFY(Contrast(MadeReadable(text, ground), ground) >= kReadable);
            }
        }
        BoardColors alike = colors;
        alike.chosen.brushText = alike.chosen.brush;
        for (int brush = 0; brush < kBrushColors; ++brush) {
            QVERIFY(Contrast(alike.BrushText(brush), alike.Brush(brush)) >= kReadable);
        }
        for (const HintColor filled : {HintColor::Pattern, HintColor::Placed}) {
            QVERIFY(Contrast(ReadableOn(colors.Hint(filled)), colors.Hint(filled)) >= kReadable);
        }
    }
};

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::AccessTest)

#include "access_test.moc"
