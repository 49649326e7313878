// The board's geometry and painting: crisp, square, and the same under the mouse as on the screen.
#include <QImage>
#include <QPainter>

#include "qt/board_diff.h"
#include "qt/board_geometry.h"
#include "qt/board_links.h"
#include "qt/board_painter.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class BoardTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void TheBoardFillsItsRoom() {
        struct Case {
            QSize room;
            double scale;
        };
        for (const auto& [size, scale] : {Case{{300, 300}, 1},
                                          {{740, 740}, 1},
                                          {{1111, 1111}, 1.5},
                                          {{2000, 900}, 2},
                                          {{900, 2000}, 3}}) {
            for (const WellsRoom wells : {WellsRoom::None, WellsRoom::Kept}) {
                const BoardGeometry board = FitBoard(size, scale, wells);
                const QRect room(QPoint(0, 0), size);
                QVERIFY(room.contains(board.Board()));
                for (const UnitKind kind : {UnitKind::Row, UnitKind::Column}) {
                    const QRect strip = board.UnitStrip(kind, 8);
                    QVERIFY(room.contains(strip));
                    QVERIFY(!strip.intersects(board.Board()));
                }
                // One pixel more for each cell would not fit any more.
                const int left = std::min(size.width() - board.strip.width(),
                                          size.height() - board.strip.height());
                QVERIFY(left - board.Board().width() < 9 + 2 * board.thick);
            }
        }
    }

    void AMarkIsClickedWhereItIsDrawn() {
        const BoardGeometry board = FitBoard(QSize(611, 611), 1, WellsRoom::Kept);
        using Kind = BoardTarget::Kind;
        for (int cell = 0; cell < kCells; ++cell) {
            for (int digit = 1; digit <= kDigits; ++digit) {
                const BoardTarget target{Kind::Cell, cell, digit};
                QVERIFY(board.At(board.MarkCenter(cell, digit)) == target);
            }
        }
        for (int index = 0; index < 9; ++index) {
            const QPointF row = QRectF(board.UnitStrip(UnitKind::Row, index)).center();
            const QPointF column = QRectF(board.UnitStrip(UnitKind::Column, index)).center();
            QVERIFY((board.At(row) == BoardTarget{Kind::RowLabel, index, 0}));
            QVERIFY((board.At(column) == BoardTarget{Kind::ColumnLabel, index, 0}));
        }
        QVERIFY(board.At(QPointF(1, 1)) == BoardTarget());
    }

    // Along the middle of the first row of cells there is only the ground and whole lines between:
    // a line that fell between two pixels would leave a third colour.
    void LinesAreCrisp() {
        WindowFixture fixture;
        fixture.Find<QWidget>("LevelCards").hide();
        BoardWidget& board = fixture.window.Board();
        const QImage picture = fixture.window.grab().toImage();
        const Theme& theme = fixture.window.CurrentColors().theme;
        const double scale = picture.devicePixelRatio();
        const QRect rect(board.mapTo(&fixture.window, board.BoardRect().topLeft()),
                         board.BoardRect().size());
        const int y = static_cast<int>((rect.top() + rect.height() / 18.0) * scale);
        QSet<QRgb> seen;
        for (int x = static_cast<int>((rect.left() + 3) * scale); x < (rect.right() - 3) * scale;
             ++x) {
            seen.insert(picture.pixel(x, y));
        }
        QCOMPARE(seen,
                 (QSet<QRgb>{theme.board.rgb(), theme.thinLine.rgb(), theme.thickLine.rgb()}));
    }

    void RolesAreToldApartWithoutColor() {
        const BoardGeometry board = FitBoard(QSize(700, 700), 1, WellsRoom::None);
        BoardColors colors{ThemeOf(Tone::Light), BuiltInColors().light};
        colors.chosen.hint.fill(0x404040);
        QSet<QByteArray> shapes;
        for (const Role role :
             {Role::None, Role::Pattern, Role::Second, Role::Attacked, Role::Placed}) {
            Screen screen;
            screen.marks[40][4] = {.isShown = true, .role = role};
            QImage image(700, 700, QImage::Format_RGB32);
            QPainter painter(&image);
            BoardPainter(painter, board, colors, QFont()).Paint(screen, image.rect(), {});
            painter.end();
            const QImage cell =
                image.copy(board.Cell(40)).convertToFormat(QImage::Format_Grayscale8);
            shapes.insert(
                QByteArray(reinterpret_cast<const char*>(cell.constBits()), cell.sizeInBytes()));
        }
        QCOMPARE(shapes.size(), 5);
    }

    void LinksRunAroundDigits() {
        const BoardGeometry board = FitBoard(QSize(700, 700), 1, WellsRoom::None);
        Screen screen;
        for (const std::size_t cell : {37, 38, 39, 40, 41, 42, 43}) {
            screen.cells[cell].digit = 5;
        }
        // Straight through the middles of seven digits.
        const QPainterPath path = LinkPath({36, 5, 44, 5, true, false}, board, screen);
        for (int sample = 0; sample <= 50; ++sample) {
            const QPointF point = path.pointAtPercent(sample / 50.0);
            for (const int cell : {37, 38, 39, 40, 41, 42, 43}) {
                const QPointF away = point - QRectF(board.Cell(cell)).center();
                QVERIFY(std::hypot(away.x(), away.y()) > 0.2 * board.cell);
            }
        }
    }

    void OnlyWhatChangedIsPaintedAnew() {
        const Screen before;
        Screen after = before;
        QVERIFY(!CompareBoards(before, after).Any());
        after.timeText = "00:01";
        QVERIFY(!CompareBoards(before, after).Any());
        after.marks[7][3].isShown = true;
        after.cells[9].brush = 2;
        after.selectedCell = 80;
        const BoardDiff diff = CompareBoards(before, after);
        QVERIFY(!diff.isAll);
        QVERIFY(diff.cells == (CellSet::Of(7) | CellSet::Of(9) | CellSet::Of(80)));
        after.rowWells[2] = MarkOf(4);
        QVERIFY(CompareBoards(before, after).isAll);
    }
};

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::BoardTest)

#include "board_test.moc"
