// Everything below the menu bar.
#include "qt/window_content.h"

#include <QEvent>

#include "qt/board_widget.h"
#include "qt/level_cards.h"
#include "qt/side_column.h"
#include "qt/status_panels.h"
#include "qt/window_plan.h"

namespace vemo {

using namespace Qt::StringLiterals;

// Made in the order of the Tab key.
WindowContent::WindowContent(Game& game, QWidget* parent)
    : QWidget(parent),
      board_(new BoardWidget(game, this)),
      cards_(new LevelCards(game, this)),
      column_(new SideColumn(game, this)),
      status_(new StatusPanels(this)) {
    setAccessibleName(u"Sudoku"_s);
}

void WindowContent::ShowScreen(const Screen& screen, const BoardColors& colors) {
    const QWidget* focused = focusWidget();
    const bool hadCards = !cards_->isHidden();
    board_->ShowScreen(screen, colors);
    cards_->ShowScreen(screen, colors);
    column_->ShowScreen(screen, colors);
    status_->ShowScreen(screen);
    Arrange();
    if (!hadCards && !cards_->isHidden() && focused == board_) {
        cards_->setFocus();
    } else if (focused != focusWidget()) {
        // What had the focus was switched off: the keys go back to the board.
        board_->setFocus();
    }
}

void WindowContent::resizeEvent(QResizeEvent*) {
    Arrange();
}

// A hidden widget hears of its size when it is shown; before, the cards lay over a board of none.
void WindowContent::showEvent(QShowEvent*) {
    Arrange();
}

void WindowContent::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        Arrange();
    }
}

void WindowContent::Arrange() {
    status_->FitInto(size());
    const int bar = status_->heightForWidth(width());
    status_->setGeometry(0, height() - bar, width(), bar);
    const WindowPlan plan = PlanWindow(QSize(width(), height() - bar), fontMetrics().height());
    board_->setGeometry(plan.board);
    cards_->setGeometry(board_->BoardRect().translated(plan.board.topLeft()));
    column_->SetScale(plan.textScale);
    column_->setGeometry(plan.column);
}

}  // namespace vemo
