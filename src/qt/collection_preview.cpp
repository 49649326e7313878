// The sudoku of a collection that is looked at.
#include "qt/collection_preview.h"

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>

#include "game/collection_texts.h"
#include "qt/board_picture.h"
#include "qt/form_controls.h"
#include "qt/grid_screen.h"
#include "qt/row_table.h"
#include "qt/screen_text.h"
#include "qt/solve_button.h"
#include "qt/wrap_layout.h"
#include "tools/puzzle_table.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kGap = 8;
constexpr int kBoardSide = 264;
constexpr int kNameLines = 4;

// Number, clues, rating, state: a line each.
QString NameOf(const CollectionWindow& window) {
    const std::uint32_t number = window.Current();
    if (number == CollectionWindow::kNoRow) {
        return window.IsOpen() ? u"No sudoku is selected"_s : QString();
    }
    const TableRow& row = window.Table().Row(number);
    QStringList lines{u"Sudoku %1, %2 clues"_s.arg(ToQString(Grouped(std::size_t{number} + 1)))
                          .arg(row.Facts().clues)};
    if (row.Level() != 0) {
        lines << u"%1, %2 steps"_s.arg(ToQString(LevelName(row.Level()))).arg(row.Steps())
              << HardestText(row.Level(), row.HardestSlot());
    }
    lines << ToQString(window.StateOf(number));
    return lines.join(QLatin1Char('\n'));
}

}  // namespace

CollectionPreview::CollectionPreview(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    board_ = new BoardPicture(this);
    board_->setObjectName(u"BoardSelected"_s);
    board_->setAccessibleName(u"Selected sudoku"_s);
    board_->setFixedSize(kBoardSide, kBoardSide);
    name_ = MakeText(u"LabelSelectedSudoku"_s, this);
    name_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    name_->setMinimumHeight(kNameLines * fontMetrics().lineSpacing());
    play_ = new QPushButton(u"&Play"_s, this);
    play_->setObjectName(u"CommandPlaySelected"_s);
    connect(play_, &QPushButton::clicked, this, &CollectionPreview::PlayWanted);
    solve_ = new SolveButton(
        u"So&lve"_s,
        [&game](MouseButton button, Released released) {
            game.Collection().CommandSolveMouseUp(button, released);
        },
        this);
    solve_->setObjectName(u"CommandSolve"_s);
    solve_->setToolTip(
        u"Solve the selected sudoku step by step; the right mouse button tells how many "
        "solutions it has"_s);
    copy_ = new QPushButton(u"Cop&y"_s, this);
    copy_->setObjectName(u"CommandCopy"_s);
    copy_->setToolTip(u"Copy the selected sudokus, one a line (Ctrl+C)"_s);
    connect(copy_, &QPushButton::clicked, this, [this] { Copy(); });
    auto* buttons = new QWidget(this);
    auto* line = new WrapLayout(buttons, kGap);
    for (QPushButton* button : {play_, static_cast<QPushButton*>(solve_), copy_}) {
        line->addWidget(button);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    column->addWidget(board_, 0, Qt::AlignHCenter);
    column->addWidget(name_);
    column->addWidget(buttons);
    column->addStretch(1);
}

void CollectionPreview::ShowSelected(const BoardColors& colors) {
    const CollectionWindow& window = game_.Collection().Window();
    const bool isSelected = window.Current() != CollectionWindow::kNoRow;
    board_->ShowBoard(ScreenOf(window.Board()), colors);
    board_->setAccessibleDescription(isSelected ? RowsOf(window.Board().AllDigits()) : QString());
    name_->setText(NameOf(window));
    ShowButtons();
}

void CollectionPreview::ShowButtons() {
    const CollectionWindow& window = game_.Collection().Window();
    const QString refusal = ToQString(game_.Collection().WhyNotPlay());
    play_->setEnabled(refusal.isEmpty());
    play_->setToolTip(refusal.isEmpty() ? u"Open this sudoku in the main window (Enter)"_s
                                        : refusal);
    const bool isSelected = window.Current() != CollectionWindow::kNoRow;
    solve_->setEnabled(isSelected && !window.IsBusy());
    copy_->setEnabled(window.ChosenCount() > 0);
}

void CollectionPreview::Copy() {
    const QString text = ToQString(game_.Collection().Window().CopyText());
    if (!text.isEmpty()) {
        QApplication::clipboard()->setText(text);
    }
}

}  // namespace vemo
