// The hint window's content as one sheet.
#include "qt/hint_sheet.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QPainter>

#include "qt/board_picture.h"
#include "qt/legend.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kWordFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
constexpr int kBottomless = 1 << 24;
constexpr double kCardRadius = 8;  // logical pixels

// Sizes of the printed text, in points: the largest with which all of it is on the page.
constexpr double kLargestPrint = 12;
constexpr double kSmallestPrint = 5;
constexpr double kPrintStep = 0.5;
constexpr double kPrintMargin = 15;  // millimetres
constexpr double kPointsPerInch = 72;
constexpr double kLogicalPerInch = 96;
constexpr double kPaperShade = 0.12;

int WordsHeight(const QFont& font, int width, const QString& text) {
    const QRect room(0, 0, width, kBottomless);
    return QFontMetrics(font).boundingRect(room, kWordFlags, text).height();
}

QFont Sized(QFont font, double pixels) {
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
    return font;
}

// Without colours, too, a hint's cells are told from those of its rows, columns and boxes.
BoardColors PaperColors(const ColorSet& light) {
    BoardColors colors{ThemeOf(Tone::Light), light};
    colors.theme.window = colors.theme.panel = colors.theme.board = Qt::white;
    const QColor shaded = Mixed(colors.Hint(HintColor::HintCell), colors.theme.text, kPaperShade);
    colors.chosen.hint[static_cast<std::size_t>(HintColor::HintCell)] = shaded.rgb() & RGB_MASK;
    return colors;
}

}  // namespace

QString HintHeading(const HintWindow& window) {
    const QString caption = ToQString(window.caption);
    return caption == u"Hint - "_s ? u"Hint"_s : caption;
}

QString HintWords(const HintWindow& window) {
    return window.text.empty()
               ? u"There is no hint here yet. Press Hint (F12) in the main window: the explanation "
                 "then stands here, beside a copy of the grid with the hint's colors."_s
               : ToQString(window.text);
}

HintSheet::HintSheet(const HintWindow& window, const BoardColors& colors, const QFont& font,
                     double scale)
    : window_(window),
      colors_(colors),
      font_(font),
      bold_(font),
      scale_(scale),
      line_(QFontMetrics(font).height()) {
    bold_.setWeight(QFont::Bold);
}

QSize HintSheet::SizeFor(QSize size) const {
    const QRect column = PlanFor(size).column;
    const int height = CardHeight(HeightsFor(column.width()), line_);
    return {size.width(), size.height() + std::max(0, height - column.height())};
}

void HintSheet::Paint(QPainter& painter, QSize size) const {
    const HintPlan plan = PlanFor(size);
    PaintBoardPicture(painter, plan.board, scale_, window_.board, colors_, font_);
    PaintCard(painter, plan.column);
}

HintPlan HintSheet::PlanFor(QSize size) const {
    return PlanHint(size, line_,
                    [this](int width) { return CardHeight(HeightsFor(width), line_); });
}

CardHeights HintSheet::HeightsFor(int width) const {
    const int room = CardRoom(width, line_);
    return {WordsHeight(bold_, room, HintHeading(window_)),
            WordsHeight(font_, room, HintWords(window_)),
            LegendPainter(window_.board.legend, font_).HeightFor(room)};
}

void HintSheet::PaintCard(QPainter& painter, const QRect& place) const {
    const CardPlan plan = PlanCard(place, HeightsFor(place.width()), line_);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colors_.theme.line, scale_));
    painter.setBrush(colors_.theme.panel);
    const double inset = scale_ / 2;
    painter.drawRoundedRect(QRectF(plan.card).adjusted(inset, inset, -inset, -inset),
                            kCardRadius * scale_, kCardRadius * scale_);
    painter.setPen(colors_.theme.text);
    painter.setFont(bold_);
    painter.drawText(plan.caption, kWordFlags, HintHeading(window_));
    painter.setFont(font_);
    painter.drawText(plan.text, kWordFlags, HintWords(window_));
    LegendPainter(window_.board.legend, font_).Paint(painter, plan.legend, colors_);
    painter.restore();
}

Printout HintPrintout(const HintWindow& window, const ColorSet& light, const QPageSize& paper) {
    const QRectF room = RoomOn(paper, kPrintMargin);
    const QSize page = room.size().toSize();
    const auto sheet = [](const HintWindow& shown, const BoardColors& colors, double points) {
        const QFont font = Sized(QApplication::font(), points * kDotsPerInch / kPointsPerInch);
        return HintSheet(shown, colors, font, kDotsPerInch / kLogicalPerInch);
    };
    const BoardColors colors = PaperColors(light);
    double points = kLargestPrint;
    while (points > kSmallestPrint &&
           sheet(window, colors, points).SizeFor(page).height() > page.height()) {
        points -= kPrintStep;
    }
    const auto paint = [=](QPainter& painter, int) {
        painter.translate(room.topLeft());
        sheet(window, colors, points).Paint(painter, page);
    };
    return {HintHeading(window), paper, 1, paint};
}

}  // namespace vemo
