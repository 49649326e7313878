// What the hint window shows.
#include "qt/hint_content.h"

#include <algorithm>
#include <cmath>

#include <QLabel>
#include <QPainter>

#include "qt/board_picture.h"
#include "qt/hint_sheet.h"
#include "qt/legend.h"
#include "qt/reading_box.h"
#include "qt/screen_text.h"
#include "qt/text_panel.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// The window at which the texts have the system's size, and how fast and far they grow with it.
constexpr double kPlainArea = 760.0 * 520.0;
constexpr double kGrowth = 0.3;
constexpr double kLargestTexts = 1.5;

constexpr double kFocusRadius = 4;

double TextScale(QSize size) {
    const double area = static_cast<double>(size.width()) * size.height();
    return std::clamp(std::pow(area / kPlainArea, kGrowth), 1.0, kLargestTexts);
}

}  // namespace

class HintCard final : public QWidget {
  public:
    explicit HintCard(QWidget* parent);

    // Answers whether its height may have changed.
    bool ShowHint(const HintWindow& window, const BoardColors& colors);
    int HeightFor(int width) const { return CardHeight(HeightsFor(width), fontMetrics().height()); }
    void PlaceIn(const QRect& place);

  protected:
    void paintEvent(QPaintEvent*) override {
        PaintPanel(*this, text_->hasFocus() ? PanelFocus::Within : PanelFocus::Without);
    }

  private:
    CardHeights HeightsFor(int width) const;

    QLabel* caption_;
    ReadingBox* text_;
    Legend* legend_;
};

HintCard::HintCard(QWidget* parent)
    : QWidget(parent),
      caption_(new QLabel(this)),
      text_(new ReadingBox(this)),
      legend_(new Legend(this)) {
    caption_->setObjectName(u"LabelHintCaption"_s);
    caption_->setWordWrap(true);
    caption_->setTextFormat(Qt::PlainText);
    caption_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    text_->setObjectName(u"TextHintCopy"_s);
    text_->setAccessibleName(u"Explanation"_s);
}

bool HintCard::ShowHint(const HintWindow& window, const BoardColors& colors) {
    const QString heading = HintHeading(window);
    const QString words = HintWords(window);
    const bool isLegendNew = legend_->ShowEntries(window.board.legend, colors);
    if (heading == caption_->text() && words == text_->toPlainText() && !isLegendNew) {
        return false;
    }
    caption_->setText(heading);
    text_->ShowText(words);
    return true;
}

void HintCard::PlaceIn(const QRect& place) {
    QFont bold = font();
    bold.setWeight(QFont::Bold);
    caption_->setFont(bold);
    const CardPlan plan = PlanCard(place, HeightsFor(place.width()), fontMetrics().height());
    setGeometry(plan.card);
    const QPoint corner = plan.card.topLeft();
    caption_->setGeometry(plan.caption.translated(-corner));
    text_->PlaceIn(plan.text.translated(-corner));
    legend_->setGeometry(plan.legend.translated(-corner));
    legend_->setVisible(!plan.legend.isEmpty());
}

CardHeights HintCard::HeightsFor(int width) const {
    const int room = CardRoom(width, fontMetrics().height());
    return {caption_->heightForWidth(room), text_->HeightFor(room), legend_->heightForWidth(room)};
}

HintContent::HintContent(QWidget* parent)
    : QWidget(parent),
      board_(new BoardPicture(this)),
      card_(new HintCard(this)),
      note_(new ReadingBox(this)) {
    board_->setObjectName(u"GridCopy"_s);
    board_->setAccessibleName(u"Copy of the sudoku grid"_s);
    card_->setAccessibleName(u"Hint"_s);
    note_->setObjectName(u"LabelNote"_s);
    note_->setAccessibleName(u"Saved picture"_s);
    note_->setVisible(false);
}

void HintContent::ShowHint(const HintWindow& window, const BoardColors& colors) {
    board_->ShowBoard(window.board, colors);
    const bool isCardNew = card_->ShowHint(window, colors);
    const QString note = ToQString(window.note);
    if (isCardNew || note != note_->toPlainText()) {
        note_->ShowText(note);
        Arrange();
    }
}

// The menu bar ends with a line, and a text with the focus has a frame.
void HintContent::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(QRect(0, 0, width(), 1), palette().mid());
    if (note_->hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().highlight(), 2));
        painter.drawRoundedRect(note_->geometry().adjusted(-3, -3, 3, 3), kFocusRadius,
                                kFocusRadius);
    }
}

void HintContent::resizeEvent(QResizeEvent*) {
    QFont scaled = parentWidget()->font();
    scaled.setPointSizeF(scaled.pointSizeF() * TextScale(size()));
    setFont(scaled);
    Arrange();
}

void HintContent::Arrange() {
    const int line = fontMetrics().height();
    const HintPlan plan = PlanHint(
        size(), line, [this](int width) { return card_->HeightFor(width) + NoteHeight(width); });
    board_->setGeometry(plan.board);
    QRect place = plan.column;
    const int noteHeight = NoteHeight(place.width());
    place.setHeight(std::max(1, place.height() - noteHeight));
    card_->PlaceIn(place);
    note_->setVisible(noteHeight > 0);
    if (noteHeight > 0) {
        note_->PlaceIn({place.left(), card_->geometry().bottom() + 1 + line / 2, place.width(),
                        noteHeight - line / 2});
    }
    update();
}

// With the gap above it.
int HintContent::NoteHeight(int width) const {
    return note_->toPlainText().isEmpty() ? 0
                                          : note_->HeightFor(width) + fontMetrics().height() / 2;
}

}  // namespace vemo
