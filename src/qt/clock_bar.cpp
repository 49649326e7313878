// The line above the hint panel.
#include "qt/clock_bar.h"

#include <algorithm>

#include <QEvent>
#include <QPainter>
#include <QPushButton>

#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr double kTimeShare = 0.82;  // of the bar's height

// Every figure takes the same room, so that the time does not tremble while it runs.
class TimeLabel final : public QLabel {
  public:
    using QLabel::QLabel;

    QSize sizeHint() const override {
        int width = 0;
        for (QChar character : text()) {
            width += AdvanceOf(character);
        }
        return {width, fontMetrics().height()};
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(palette().color(foregroundRole()));
        QRect place = rect();
        for (QChar character : text()) {
            place.setWidth(AdvanceOf(character));
            painter.drawText(place, Qt::AlignCenter, character);
            place.translate(place.width(), 0);
        }
    }

  private:
    int AdvanceOf(QChar character) const {
        if (!character.isDigit()) {
            return fontMetrics().horizontalAdvance(character);
        }
        int widest = 0;
        for (char figure = '0'; figure <= '9'; ++figure) {
            widest = std::max(widest, fontMetrics().horizontalAdvance(QLatin1Char(figure)));
        }
        return widest;
    }
};

// Two bars, or a triangle while the clock is stopped.
class PauseButton final : public QPushButton {
  public:
    using QPushButton::QPushButton;

  protected:
    void paintEvent(QPaintEvent* event) override {
        QPushButton::paintEvent(event);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().brush(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                         QPalette::ButtonText));
        const double unit = height() / 16.0;
        const QPointF middle = QRectF(rect()).center();
        if (isChecked()) {
            const QPointF corners[] = {middle + QPointF(-3, -4) * unit,
                                       middle + QPointF(4, 0) * unit,
                                       middle + QPointF(-3, 4) * unit};
            painter.drawPolygon(corners, 3);
            return;
        }
        for (double left : {-3.5, 1.0}) {
            painter.drawRoundedRect(
                QRectF(middle + QPointF(left, -4) * unit, QSizeF(2.5, 8) * unit), 0.5 * unit,
                0.5 * unit);
        }
    }
};

}  // namespace

ClockBar::ClockBar(Game& game, QWidget* parent)
    : QWidget(parent),
      time_(new TimeLabel(this)),
      pause_(new PauseButton(this)),
      step_(new QLabel(this)) {
    setObjectName(u"ClockBar"_s);
    setAccessibleName(u"Clock and steps"_s);
    time_->setObjectName(u"LabelTijd"_s);
    time_->setToolTip(u"Elapsed time"_s);
    time_->setTextFormat(Qt::PlainText);
    pause_->setObjectName(u"CommandPause"_s);
    pause_->setCheckable(true);
    pause_->setFocusPolicy(Qt::TabFocus);
    connect(pause_, &QPushButton::clicked, this, [&game] { game.CommandPauseClick(); });
    step_->setObjectName(u"LabelStap"_s);
    step_->setToolTip(u"Step counter"_s);
    step_->setTextFormat(Qt::PlainText);
    step_->setForegroundRole(QPalette::PlaceholderText);
}

void ClockBar::ShowScreen(const Screen& screen) {
    const QString time = ToQString(screen.timeText);
    const QString step = ToQString(screen.stepText);
    const bool isWider = time.size() != time_->text().size() || step.size() != step_->text().size();
    time_->setText(time);
    time_->setAccessibleName(u"Elapsed time "_s + time);
    step_->setText(step);
    time_->setVisible(screen.isClockShown);
    pause_->setVisible(screen.isClockShown);
    // A stopped clock can go on; a running one can be stopped while the board is in play.
    pause_->setEnabled((screen.isBoardEnabled && !screen.isMaking) || screen.isClockStopped);
    pause_->setChecked(screen.isClockStopped);
    const QString deed = screen.isClockStopped ? u"Go on"_s : u"Stop the clock"_s;
    pause_->setAccessibleName(deed);
    pause_->setToolTip(deed + u" (Pause)"_s);
    if (isWider) {
        Arrange();
    }
}

void ClockBar::resizeEvent(QResizeEvent*) {
    Arrange();
}

void ClockBar::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange) {
        return;
    }
    Arrange();
}

void ClockBar::Arrange() {
    QFont large = font();
    large.setPixelSize(std::max(1, static_cast<int>(kTimeShare * height())));
    large.setWeight(QFont::DemiBold);
    time_->setFont(large);
    const int timeWidth = std::min(time_->sizeHint().width(), width());
    time_->setGeometry(0, 0, timeWidth, height());
    const int side = std::min(height(), fontMetrics().height() * 7 / 4);
    const int gap = fontMetrics().height() / 2;
    pause_->setGeometry(timeWidth + gap, (height() - side) / 2, side, side);
    const int stepWidth = step_->sizeHint().width();
    step_->setGeometry(width() - stepWidth, 0, stepWidth, height());
}

}  // namespace vemo
