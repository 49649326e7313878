// How things stand in a collection.
#include "qt/collection_foot.h"

#include <cmath>

#include <QBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

#include "qt/form_controls.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPad = 16;
constexpr int kGap = 8;
constexpr int kProgressSteps = 1000;
constexpr int kProgressHeight = 6;
constexpr double kSlow = 10;  // a second: slower is told more exactly

// What works on one sudoku cannot tell how far it is.
bool IsOfOne(const CollectionWindow& window) {
    return window.Job() == CollectionJob::Solve || window.Job() == CollectionJob::Report;
}

// "45 %, 1,234 per second, 0:00:12 left. Sudoku Brute Solving".
QString StatusText(const CollectionWindow& window) {
    const QString status = ToQString(window.Status());
    if (!window.IsBusy() || IsOfOne(window)) {
        return status;
    }
    QStringList parts{u"%1 %"_s.arg(static_cast<int>(100 * window.Progress()))};
    if (const double perSecond = window.PerSecond(); perSecond > 0) {
        parts << u"%1 per second"_s.arg(
            QLocale(QLocale::English).toString(perSecond, 'f', perSecond < kSlow ? 1 : 0));
    }
    if (const auto left = window.TimeLeft()) {
        parts << u"%1 left"_s.arg(TimeText(*left));
    }
    return parts.join(u", "_s) + u". "_s + status;
}

}  // namespace

CollectionFoot::CollectionFoot(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    progress_ = new QProgressBar(this);
    progress_->setObjectName(u"ProgressCollection"_s);
    progress_->setAccessibleName(u"Progress"_s);
    progress_->setTextVisible(false);
    progress_->setFixedHeight(kProgressHeight);
    // The table keeps its height when a job begins and ends.
    QSizePolicy policy = progress_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(policy);
    message_ = MakeText(u"LabelCollectionMessage"_s, this);
    message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    status_ = MakeLabel(QString(), this);
    status_->setObjectName(u"LabelStatus"_s);
    status_->setMinimumHeight(fontMetrics().lineSpacing());
    status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    status_->setForegroundRole(QPalette::PlaceholderText);
    cancel_ = new QPushButton(u"Ca&ncel"_s, this);
    cancel_->setObjectName(u"CommandCancelJob"_s);
    cancel_->setToolTip(u"What is done stays; the button that began it goes on"_s);
    connect(cancel_, &QPushButton::clicked, this, [&game] { game.Collection().CommandCancel(); });
    auto* texts = new QVBoxLayout;
    texts->setSpacing(kGap / 2);
    texts->addWidget(message_);
    texts->addWidget(status_);
    auto* line = new QHBoxLayout;
    line->setSpacing(kPad);
    line->addLayout(texts, 1);
    line->addWidget(cancel_, 0, Qt::AlignTop);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kPad, 0, kPad, kPad);
    column->setSpacing(kGap);
    column->addWidget(progress_);
    column->addLayout(line);
}

void CollectionFoot::ShowState() {
    const CollectionWindow& window = game_.Collection().Window();
    message_->setText(ToQString(window.Message()));
    message_->setForegroundRole(window.IsWarning() ? QPalette::BrightText : QPalette::WindowText);
    ShowStatus();
    progress_->setVisible(window.IsBusy());
    progress_->setRange(0, IsOfOne(window) ? 0 : kProgressSteps);
    progress_->setValue(static_cast<int>(std::lround(window.Progress() * kProgressSteps)));
}

// In one line, however long: it changes many times a second.
void CollectionFoot::ShowStatus() {
    const QString text = StatusText(game_.Collection().Window());
    status_->setText(fontMetrics().elidedText(text, Qt::ElideRight, status_->width()));
    status_->setToolTip(text);
    status_->setAccessibleName(text);
}

void CollectionFoot::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    ShowStatus();
}

}  // namespace vemo
