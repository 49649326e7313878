// The panel beside the board that explains the hint.
#include "qt/hint_panel.h"

#include <algorithm>

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QTextLayout>

#include "qt/legend.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr double kRadius = 8;
constexpr int kTightHeight = 13;  // in lines, below which everything moves together
// What the text box keeps around its lines.
constexpr int kTextSlack = 4;

// Its focus is shown by the panel around it.
class TextBox final : public QPlainTextEdit {
  public:
    using QPlainTextEdit::QPlainTextEdit;

  protected:
    void focusInEvent(QFocusEvent* event) override {
        QPlainTextEdit::focusInEvent(event);
        parentWidget()->update();
    }
    void focusOutEvent(QFocusEvent* event) override {
        QPlainTextEdit::focusOutEvent(event);
        parentWidget()->update();
    }
};

QPlainTextEdit* MakeTextBox(QWidget* parent) {
    auto* text = new TextBox(parent);
    text->setObjectName(u"TextHint"_s);
    text->setAccessibleName(u"Hint"_s);
    text->setReadOnly(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setFrameShape(QFrame::NoFrame);
    text->setTabChangesFocus(true);
    text->setUndoRedoEnabled(false);
    text->document()->setDocumentMargin(0);
    text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text->viewport()->setAutoFillBackground(false);
    return text;
}

}  // namespace

HintPanel::HintPanel(Game& game, QWidget* parent)
    : QFrame(parent),
      caption_(new QLabel(this)),
      text_(MakeTextBox(this)),
      legend_(new Legend(this)),
      apply_(new QPushButton(u"&Apply"_s, this)) {
    setObjectName(u"HintPanel"_s);
    setAccessibleName(u"Hint panel"_s);
    caption_->setObjectName(u"LabelHint"_s);
    caption_->setWordWrap(true);
    caption_->setTextFormat(Qt::PlainText);
    caption_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    apply_->setObjectName(u"CommandApply"_s);
    apply_->setToolTip(u"Carry out this hint (F12)"_s);
    apply_->setFocusPolicy(Qt::TabFocus);
    apply_->setDefault(true);
    connect(apply_, &QPushButton::clicked, this, [&game] { game.CommandApplyClick(); });
}

void HintPanel::ShowScreen(const Screen& screen, const BoardColors& colors) {
    const QString caption = ToQString(screen.hintCaption);
    const QString text = ToQString(screen.textHint);
    const bool isLegendNew = legend_->ShowEntries(screen.legend, colors);
    if (caption == caption_->text() && text == text_->toPlainText() && !isLegendNew &&
        screen.canApply == apply_->isEnabled()) {
        return;
    }
    caption_->setText(caption);
    if (text != text_->toPlainText()) {
        text_->setPlainText(text);
    }
    apply_->setEnabled(screen.canApply);
    Arrange();
}

void HintPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool hasFocus = text_->hasFocus();
    const double line = hasFocus ? 2 : 1;
    painter.setPen(QPen(palette().color(hasFocus ? QPalette::Highlight : QPalette::Mid), line));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2),
                            kRadius, kRadius);
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

// The text is as high as it needs to be; where there is no room for it, it scrolls.
void HintPanel::Arrange() {
    const int line = fontMetrics().height();
    const bool isTight = height() < kTightHeight * line;
    const int pad = isTight ? line / 2 : line * 3 / 4;
    const int gap = isTight ? line / 3 : line / 2;
    const QRect room = rect().adjusted(pad, pad, -pad, -pad);
    const bool hasCaption = !caption_->text().isEmpty();
    const int captionHeight = hasCaption ? caption_->heightForWidth(room.width()) + gap : 0;
    const int legendHeight = legend_->heightForWidth(room.width());
    const int applyHeight = apply_->isEnabled() ? line * (isTight ? 7 : 8) / 4 : 0;
    const int below =
        (legendHeight > 0 ? legendHeight + gap : 0) + (applyHeight > 0 ? applyHeight + gap : 0);
    const int wanted = TextHeight(room.width());
    const int textHeight = std::min(wanted, WholeLines(room.height() - captionHeight - below));
    // A bar that is there narrows the lines, so that it would go on being needed.
    text_->setVerticalScrollBarPolicy(wanted <= textHeight ? Qt::ScrollBarAlwaysOff
                                                           : Qt::ScrollBarAsNeeded);

    int top = room.top();
    const auto place = [&room, &top](QWidget* part, int width, int height, int after) {
        part->setVisible(height > 0);
        if (height <= 0) {
            return;
        }
        part->setGeometry(room.left(), top, width, height);
        top += height + after;
    };
    place(caption_, room.width(), captionHeight - gap, gap);
    place(text_, room.width(), textHeight, gap);
    place(legend_, room.width(), legendHeight, gap);
    place(apply_, std::min(room.width(), apply_->sizeHint().width() + 2 * line), applyHeight, 0);
}

// The largest height up to `height` that shows no line in part; one line at least.
int HintPanel::WholeLines(int height) const {
    const int line = text_->fontMetrics().lineSpacing();
    return std::max(1, (height - kTextSlack) / line) * line + kTextSlack;
}

// Counted here, since the text box itself lays nothing out while it is hidden.
int HintPanel::TextHeight(int width) const {
    QTextOption option;
    option.setWrapMode(text_->wordWrapMode());
    int lines = 0;
    for (const QString& paragraph : text_->toPlainText().split(u'\n')) {
        QTextLayout layout(paragraph, text_->font());
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width - 1);
        }
        layout.endLayout();
        lines += std::max(1, layout.lineCount());
    }
    return lines * text_->fontMetrics().lineSpacing() + kTextSlack;
}

}  // namespace vemo
