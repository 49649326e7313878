// Every part of the window has its room at every size: nothing overlaps, no text is cut.
#include <QAbstractButton>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

#include "qt/hint_panel.h"
#include "qt/reading_box.h"
#include "qt/window_checks.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class LayoutTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void EverythingHasItsRoom_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("text");
        QTest::newRow("smallest") << QSize(480, 480) << 1.0;
        QTest::newRow("usual") << QSize(1120, 800) << 1.0;
        QTest::newRow("tall") << QSize(700, 1100) << 1.0;
        QTest::newRow("narrow") << QSize(480, 1000) << 1.0;
        QTest::newRow("flat") << QSize(1400, 480) << 1.0;
        QTest::newRow("large") << QSize(2560, 1440) << 1.0;
        QTest::newRow("smallest, large text") << QSize(480, 480) << 2.0;
        QTest::newRow("small, large text") << QSize(720, 620) << 2.0;
        QTest::newRow("usual, large text") << QSize(1120, 800) << 2.0;
        QTest::newRow("tall, large text") << QSize(700, 1100) << 2.0;
    }

    void EverythingHasItsRoom() {
        QFETCH(QSize, size);
        QFETCH(double, text);
        const TextSize textSize(text);
        WindowFixture fixture;
        fixture.window.resize(size);
        QCOMPARE(fixture.window.size(), size);
        const auto check = [&] {
            QCOMPARE(Overlaps(fixture.window).join(u'\n'), QString());
            QCOMPARE(CutTexts(fixture.window).join(u'\n'), QString());
            const BoardWidget& board = fixture.window.Board();
            QVERIFY(std::abs(board.BoardRect().width() - board.BoardRect().height()) <= 1);
            QVERIFY(board.rect().contains(board.BoardRect()));
            // The board is the thing.
            QVERIFY(board.BoardRect().width() * 2 > std::min(size.width(), size.height()));
        };
        check();
        fixture.OpenFirstEasy();
        QTest::mouseClick(&fixture.Find<QAbstractButton>("LabelColor0"), Qt::LeftButton);
        QTest::mouseClick(&fixture.Find<QAbstractButton>("LabelColor9"), Qt::RightButton);
        fixture.game.CommandHintClick();
        check();
        fixture.game.mnuSudokuMake();
        check();
        // Three lines of the text can be seen at least.
        const auto& box = fixture.Find<QPlainTextEdit>("SudTekst");
        QVERIFY(box.viewport()->height() >= 3 * box.fontMetrics().lineSpacing());
    }

    void TheColumnGoesBelowInATallWindow() {
        WindowFixture fixture;
        const auto& column = fixture.Find<QWidget>("SideColumn");
        fixture.window.resize(1120, 800);
        QVERIFY(column.geometry().left() > fixture.window.Board().geometry().right());
        fixture.window.resize(600, 1000);
        QVERIFY(column.geometry().top() > fixture.window.Board().geometry().bottom());
    }

    void LongStatusTextsWrap() {
        WindowFixture fixture;
        const auto& first = fixture.Find<QLabel>("Panel1");
        const auto& last = fixture.Find<QLabel>("Panel5");
        fixture.window.resize(1120, 800);
        QCOMPARE(last.y(), first.y());
        fixture.window.resize(480, 480);
        QVERIFY(last.y() > first.geometry().bottom());
        QCOMPARE(last.text(), u"Level Average Time: 00:00"_s);
    }

    // Fonts of any size: their lines are as high as the text box makes them.
    void AHintIsReadToItsEnd() {
        const QString chain =
            u"AIC - WEAK DISCONTINUITY: Since number 5 at cell H9 would lead along "_s +
            u"the chain H9(5) - H6(5) = H6(2) - D6(2) = D6(8) - A6(8) = "_s.repeated(5);
        QWidget parent;
        parent.resize(400, 2000);
        ReadingBox box(&parent);
        parent.show();
        const double system = parent.font().pointSizeF();
        for (double size = 0.8 * system; size < 2 * system; size += 0.1) {
            QFont font = parent.font();
            font.setPointSizeF(size);
            box.setFont(font);
            box.ShowText(chain);
            box.PlaceIn({0, 0, 220, 2000});
            box.moveCursor(QTextCursor::End);
            QCOMPARE(box.verticalScrollBar()->maximum(), 0);
            QVERIFY2(box.cursorRect().bottom() <= box.viewport()->height(),
                     qPrintable(font.toString()));
        }

        // In a small window other parts make room for it.
        WindowFixture fixture;
        fixture.window.resize(480, 480);
        fixture.OpenFirstEasy();
        Screen screen = fixture.Shown();
        screen.hintCaption = "Hint - AIC - Weak Discontinuity";
        screen.textHint = chain.toStdString();
        screen.legend = {{Role::Pattern, "on"}, {Role::Second, "off"}, {Role::Attacked, "goes"}};
        screen.canApply = true;
        auto& panel = static_cast<HintPanel&>(fixture.Find<QFrame>("HintPanel"));
        panel.ShowScreen(screen, fixture.window.CurrentColors());
        const auto& text = static_cast<ReadingBox&>(fixture.Find<QPlainTextEdit>("TextHint"));
        QVERIFY(text.height() >= text.HeightOfLines(4));
        QCOMPARE(Overlaps(panel).join(u'\n'), QString());
    }
};

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::LayoutTest)

#include "layout_test.moc"
