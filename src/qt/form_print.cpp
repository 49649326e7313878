// The window "Print".
#include "qt/form_print.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "qt/print_controls.h"
#include "qt/print_pages_painter.h"
#include "qt/print_pane.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPad = 16;
constexpr QSize kSize(960, 800);
constexpr int kLeastPane = 400;
constexpr double kDeskShare = 0.9;      // of the desk's height that the window takes at most
constexpr double kControlsShare = 0.4;  // of the height, above the pages

}  // namespace

FormPrint::FormPrint(Game& game, QWidget* parent) : FormWindow(game, Form::FormPrint, parent) {
    setObjectName(u"FormPrint"_s);
    auto* content = new QWidget(this);
    area_ = new QScrollArea(content);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setWidgetResizable(true);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area_->setAccessibleName(u"Order"_s);
    auto* order = new QWidget(area_);
    controls_ = new PrintControls(game, order);
    auto* column = new QVBoxLayout(order);
    column->setContentsMargins(kPad, kPad, 0, kPad);
    column->addWidget(controls_);
    area_->setWidget(order);
    pane_ = new PrintPane(game, content);
    sides_ = new QBoxLayout(QBoxLayout::LeftToRight, content);
    sides_->setContentsMargins(0, 0, 0, 0);
    sides_->setSpacing(0);
    sides_->addWidget(area_);
    sides_->addWidget(pane_, 1);
    setCentralWidget(content);
    const int most = static_cast<int>(kDeskShare * screen()->availableGeometry().height());
    resize(kSize.width(), std::min(kSize.height(), most));
}

void FormPrint::ShowScreen() {
    const PrintWindow& window = CurrentGame().CurrentPrint();
    controls_->ShowOrder(window);
    if (version_ != window.Version()) {
        version_ = window.Version();
        ShowJob();
    }
    pane_->ShowIdle(!CurrentGame().CurrentSession().IsBusy());
}

void FormPrint::ShowJob() {
    const PrintWindow& window = CurrentGame().CurrentPrint();
    const QString name = ToQString(window.Name());
    setWindowTitle(u"Print - %1"_s.arg(name));
    pane_->ShowPrintout(PrintoutOf(window.Job(), name));
    const bool isWrong = !window.Error().empty();
    pane_->ShowNote(ToQString(isWrong ? window.Error() : window.Notice()),
                    isWrong ? PrintPane::NoteKind::Warning : PrintPane::NoteKind::Plain);
}

void FormPrint::closeEvent(QCloseEvent* event) {
    FormWindow::closeEvent(event);
    if (event->isAccepted()) {
        pane_->Stop();
    }
}

void FormPrint::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (isEnter && button != nullptr) {
        button->click();
    } else {
        FormWindow::keyPressEvent(event);
    }
}

// The order beside the pages, or above them where there is no room.
void FormPrint::resizeEvent(QResizeEvent* event) {
    FormWindow::resizeEvent(event);
    const int across =
        controls_->sizeHint().width() + 2 * kPad + area_->verticalScrollBar()->sizeHint().width();
    const bool isWide = width() >= across + kLeastPane;
    sides_->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    area_->setMinimumWidth(across);
    area_->setMaximumWidth(isWide ? across : QWIDGETSIZE_MAX);
    area_->setMaximumHeight(isWide ? QWIDGETSIZE_MAX : static_cast<int>(kControlsShare * height()));
}

}  // namespace vemo
