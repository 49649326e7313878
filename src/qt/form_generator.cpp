// The window of the generator.
#include "qt/form_generator.h"

#include <algorithm>

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "qt/board_picture.h"
#include "qt/form_controls.h"
#include "qt/grid_screen.h"
#include "qt/made_list.h"
#include "qt/order_controls.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPad = 16;
constexpr int kGap = 8;
constexpr int kTick = 100;  // milliseconds
constexpr int kLeastRows = 6;
constexpr int kBoardSide = 216;
// Of the list that are seen beside the order: at first, and at least.
constexpr int kListCharacters = 92;
constexpr int kLeastListCharacters = 56;
constexpr QSize kLeastSize(480, 360);
constexpr double kDeskShare = 0.9;  // of the desk's height that the window takes at most

QString NameOf(const MadeSudoku& made) {
    const QString level = ToQString(LevelName(made.rated.rating));
    return made.IsStored() ? u"%1, number %2"_s.arg(level).arg(made.number)
                           : u"%1, not stored"_s.arg(level);
}

}  // namespace

FormGenerator::FormGenerator(Game& game, QWidget* parent)
    : FormWindow(game, Form::FormGenerator, parent) {
    setObjectName(u"FormGenerator"_s);
    setWindowTitle(u"Generator"_s);
    auto* content = new QWidget(this);
    auto* body = new QWidget(content);
    order_ = new OrderControls(game, body);
    results_ = MakeResults();
    sides_ = new QBoxLayout(QBoxLayout::LeftToRight, body);
    sides_->setContentsMargins(kPad, kPad, kPad, kPad);
    sides_->setSpacing(2 * kPad);
    sides_->addWidget(order_);
    sides_->addWidget(results_, 1);
    area_ = new QScrollArea(content);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setWidgetResizable(true);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setAccessibleName(u"Order and results"_s);
    area_->setWidget(body);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(area_, 1);
    column->addWidget(MakeFoot());
    setCentralWidget(content);
    setMinimumSize(kLeastSize);
    const int wanted = body->sizeHint().height() + content->sizeHint().height();
    const int most = static_cast<int>(kDeskShare * screen()->availableGeometry().height());
    resize(WidthBeside(kListCharacters), std::min(wanted, most));
    timer_.setInterval(kTick);
    connect(&timer_, &QTimer::timeout, this, [this] {
        CurrentGame().GeneratorTick();
        if (!CurrentGame().CurrentGenerator().IsSearching()) {
            timer_.stop();
        }
    });
}

QWidget* FormGenerator::MakeResults() {
    auto* results = new QWidget(this);
    counts_ = MakeText(u"LabelCounts"_s, results);
    counts_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    list_ = new MadeList(CurrentGame(), results);
    const QFontMetrics metrics = fontMetrics();
    list_->setMinimumHeight(kLeastRows * metrics.height() * 3 / 2);
    connect(list_, &QTableView::doubleClicked, this, [this] { CurrentGame().CommandPlay(); });
    auto* column = new QVBoxLayout(results);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    column->addWidget(counts_);
    column->addWidget(list_, 1);
    column->addWidget(MakeSelected());
    return results;
}

QWidget* FormGenerator::MakeSelected() {
    auto* selected = new QWidget(this);
    board_ = new BoardPicture(selected);
    board_->setObjectName(u"BoardMade"_s);
    board_->setAccessibleName(u"Selected sudoku"_s);
    board_->setFixedSize(kBoardSide, kBoardSide);
    selected_ = MakeText(u"LabelSelected"_s, selected);
    selected_->setWordWrap(false);
    play_ = new QPushButton(u"&Play"_s, selected);
    play_->setObjectName(u"CommandPlay"_s);
    connect(play_, &QPushButton::clicked, this, [this] { CurrentGame().CommandPlay(); });
    auto* line = new QHBoxLayout(selected);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(kPad);
    line->addWidget(board_);
    auto* column = new QVBoxLayout;
    column->addStretch(1);
    column->addWidget(selected_);
    column->addWidget(play_, 0, Qt::AlignLeft);
    line->addLayout(column, 1);
    return selected;
}

QWidget* FormGenerator::MakeFoot() {
    auto* foot = new QWidget(this);
    message_ = MakeText(u"LabelMessage"_s, foot);
    start_ = MakeButton(u"CommandStart"_s, u"&Start"_s, &Game::CommandStart);
    start_->setDefault(true);
    cancel_ = MakeButton(u"CommandStopSearch"_s, u"&Cancel"_s, &Game::CommandStopSearch);
    store_ = MakeButton(u"CommandStore"_s, u"S&tore"_s, &Game::CommandStore);
    store_->setToolTip(u"Try again to add the sudokus that are not stored to their levels"_s);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(kGap);
    for (QPushButton* button : {start_, cancel_, store_}) {
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    auto* column = new QVBoxLayout(foot);
    column->setContentsMargins(kPad, kGap, kPad, kPad);
    column->setSpacing(kGap);
    column->addWidget(message_);
    column->addLayout(buttons);
    return foot;
}

QPushButton* FormGenerator::MakeButton(const QString& name, const QString& text,
                                       void (Game::*handler)()) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    Game& game = CurrentGame();
    connect(button, &QPushButton::clicked, this, [&game, handler] { (game.*handler)(); });
    return button;
}

void FormGenerator::ShowScreen(const BoardColors& colors) {
    const GeneratorWindow& window = CurrentGame().CurrentGenerator();
    ShowCounts();
    list_->ShowMade(window);
    ShowSelected(colors);
    message_->setText(ToQString(window.Message()));
    message_->setForegroundRole(window.IsWarning() ? QPalette::BrightText : QPalette::WindowText);
    ShowButtons();
    order_->ShowOrder(window);
    if (window.IsSearching() && !timer_.isActive()) {
        timer_.start();
    }
}

void FormGenerator::ShowCounts() {
    const GeneratorWindow& window = CurrentGame().CurrentGenerator();
    counts_->setVisible(window.HasSearched());
    const QLocale locale(QLocale::English);
    counts_->setText(u"%1 tried, %2 per second, in %3. Seed %4"_s.arg(
        locale.toString(qlonglong(window.Counts().tried)),
        locale.toString(window.TriesPerSecond(), 'f', 0), TimeText(window.Passed()),
        QString::number(window.Searched().seed)));
}

void FormGenerator::ShowSelected(const BoardColors& colors) {
    const MadeSudoku* made = CurrentGame().CurrentGenerator().Selected();
    const Digits clues = made == nullptr ? Digits{} : made->rated.puzzle.clues;
    board_->ShowBoard(ScreenOf(clues), colors);
    board_->setAccessibleDescription(made == nullptr ? QString() : RowsOf(clues));
    selected_->setText(made == nullptr ? QString() : NameOf(*made));
    const QString refusal = ToQString(CurrentGame().WhyNotPlay());
    play_->setEnabled(refusal.isEmpty());
    play_->setToolTip(refusal.isEmpty() ? u"Open this sudoku in the main window (Enter)"_s
                                        : refusal);
}

void FormGenerator::ShowButtons() {
    const GeneratorWindow& window = CurrentGame().CurrentGenerator();
    const bool isSearching = window.IsSearching();
    const bool hasChanged = cancel_->isEnabled() != isSearching;
    // What is on first: what goes off cannot keep the keyboard.
    cancel_->setEnabled(isSearching || hasChanged);
    start_->setEnabled(window.CanStart() || hasChanged);
    if (hasChanged) {
        MoveFocus(isSearching);
    }
    cancel_->setEnabled(isSearching);
    start_->setEnabled(window.CanStart());
    start_->setToolTip(ToQString(window.Error()));
    store_->setVisible(window.Unstored() > 0);
}

void FormGenerator::MoveFocus(bool isSearching) {
    QWidget* focus = focusWidget();
    if (isSearching && (focus == start_ || order_->isAncestorOf(focus))) {
        cancel_->setFocus();
    } else if (!isSearching && focus == cancel_) {
        QWidget* next = list_;
        if (CurrentGame().CurrentGenerator().Made().empty()) {
            next = start_;
        }
        next->setFocus();
        area_->ensureWidgetVisible(list_);
    }
}

void FormGenerator::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (isEnter && focusWidget() == list_) {
        CurrentGame().CommandPlay();
    } else if (isEnter && button != nullptr) {
        button->click();
    } else {
        FormWindow::keyPressEvent(event);
    }
}

void FormGenerator::resizeEvent(QResizeEvent* event) {
    FormWindow::resizeEvent(event);
    Arrange();
}

// Side by side where both fit, below each other otherwise.
void FormGenerator::Arrange() {
    const bool isWide = width() >= WidthBeside(kLeastListCharacters);
    sides_->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

int FormGenerator::WidthBeside(int characters) const {
    return order_->sizeHint().width() + characters * fontMetrics().averageCharWidth() + 4 * kPad;
}

}  // namespace vemo
