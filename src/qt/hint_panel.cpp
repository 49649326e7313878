// The panel beside the board that explains the hint.
#include "qt/hint_panel.h"

#include <algorithm>

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

#include "qt/legend.h"
#include "qt/reading_box.h"
#include "qt/screen_text.h"
#include "qt/text_panel.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kTightHeight = 13;  // in lines, below which everything moves together
constexpr int kLeastLines = 4;    // of the text, for which other parts give way

QPushButton* MakeButton(const QString& name, const QString& text, const QString& toolTip,
                        QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

ReadingBox* MakeTextBox(Game& game, QWidget* parent) {
    auto* text = new ReadingBox(parent);
    text->setObjectName(u"TextHint"_s);
    text->setAccessibleName(u"Hint"_s);
    text->setToolTip(u"Double-click, or press Enter, for the hint window"_s);
    text->setAccessibleDescription(text->toolTip());
    text->OnOpen([&game] { game.TextHintDblClick(); });
    return text;
}

}  // namespace

HintPanel::HintPanel(Game& game, QWidget* parent)
    : QFrame(parent),
      game_(game),
      caption_(new QLabel(this)),
      text_(MakeTextBox(game, this)),
      legend_(new Legend(this)),
      apply_(MakeButton(u"CommandApply"_s, u"&Apply"_s, u"Carry out this hint (F12)"_s, this)),
      more_(MakeButton(u"CommandMore"_s, u"Learn &More"_s,
                       u"The help on this technique, with an example (F1)"_s, this)) {
    setObjectName(u"HintPanel"_s);
    setAccessibleName(u"Hint panel"_s);
    caption_->setObjectName(u"LabelHint"_s);
    caption_->setWordWrap(true);
    caption_->setTextFormat(Qt::PlainText);
    caption_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    apply_->setDefault(true);
    connect(apply_, &QPushButton::clicked, this, [&game] { game.CommandApplyClick(); });
    connect(more_, &QPushButton::clicked, this, [&game] { game.CommandMoreClick(); });
}

void HintPanel::ShowScreen(const Screen& screen, const BoardColors& colors) {
    const QString caption = ToQString(screen.hintCaption);
    const QString text = ToQString(screen.textHint);
    const bool isLegendNew = legend_->ShowEntries(screen.legend, colors);
    if (caption == caption_->text() && text == text_->toPlainText() && !isLegendNew &&
        screen.canApply == apply_->isEnabled() && screen.hasHelpOnHint == more_->isEnabled()) {
        return;
    }
    caption_->setText(caption);
    text_->ShowText(text);
    apply_->setEnabled(screen.canApply);
    more_->setEnabled(screen.hasHelpOnHint);
    Arrange();
}

void HintPanel::paintEvent(QPaintEvent*) {
    PaintPanel(*this, text_->hasFocus() ? PanelFocus::Within : PanelFocus::Without);
}

void HintPanel::resizeEvent(QResizeEvent*) {
    Arrange();
}

void HintPanel::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() != QEvent::FontChange) {
        return;
    }
    QFont bold = font();
    bold.setWeight(QFont::Bold);
    caption_->setFont(bold);
    Arrange();
}

// The text box is no higher than its text: to the player all of the panel is "this window".
void HintPanel::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        game_.TextHintDblClick();
    }
}

// The text is as high as it needs to be; where there is no room for it, it scrolls. Where that
// would leave too little of it to read, the legend goes, which the hint window has, too, and then
// the title, with which the text begins.
void HintPanel::Arrange() {
    const int line = fontMetrics().height();
    const bool isTight = height() < kTightHeight * line;
    const int pad = isTight ? line / 2 : line * 3 / 4;
    const int gap = isTight ? line / 3 : line / 2;
    const QRect room = rect().adjusted(pad, pad, -pad, -pad);
    const bool hasButtons = apply_->isEnabled() || more_->isEnabled();
    const int buttonsHeight = hasButtons ? line * (isTight ? 7 : 8) / 4 : 0;
    int captionHeight = caption_->text().isEmpty() ? 0 : caption_->heightForWidth(room.width());
    int legendHeight = legend_->heightForWidth(room.width());
    const auto withGap = [gap](int height) { return height > 0 ? height + gap : 0; };
    const auto left = [&] {
        return room.height() - withGap(captionHeight) - withGap(legendHeight) -
               withGap(buttonsHeight);
    };
    const int least = std::min(text_->HeightFor(room.width()), text_->HeightOfLines(kLeastLines));
    for (int* part : {&legendHeight, &captionHeight}) {
        if (left() < least) {
            *part = 0;
        }
    }
    const int textRoom = left();
    int top = room.top();
    const auto place = [&room, &top](QWidget* part, int width, int height, int after) {
        part->setVisible(height > 0);
        if (height <= 0) {
            return;
        }
        part->setGeometry(room.left(), top, width, height);
        top += height + after;
    };
    place(caption_, room.width(), captionHeight, gap);
    text_->PlaceIn({room.left(), top, room.width(), textRoom});
    top = text_->geometry().bottom() + 1 + gap;
    place(legend_, room.width(), legendHeight, gap);
    PlaceButtons({room.left(), top, room.width(), buttonsHeight}, gap);
}

// Beside each other. The way to the help goes where there is no room for its caption: F1 leads
// there, too.
void HintPanel::PlaceButtons(const QRect& row, int gap) {
    int left = row.left();
    for (QPushButton* button : {apply_, more_}) {
        const int room = row.right() + 1 - left;
        const int needed = button->sizeHint().width();
        const bool isShown = button->isEnabled() && (button == apply_ || needed <= room);
        button->setVisible(isShown);
        if (isShown) {
            const int width = std::min(needed + fontMetrics().height(), room);
            button->setGeometry(left, row.top(), width, row.height());
            left += width + gap;
        }
    }
}

}  // namespace vemo
