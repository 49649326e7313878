// The window of the colours.
#include "qt/form_colors.h"

#include <algorithm>

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "game/color_sample.h"
#include "qt/board_picture.h"
#include "qt/color_editor.h"
#include "qt/color_list.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPad = 16;
constexpr int kGap = 8;
constexpr int kLeastBoard = 280;
constexpr int kBoard = 380;  // at first
constexpr QSize kLeastSize(420, 360);
constexpr double kDeskShare = 0.9;  // of the desk's height that the window takes at most

}  // namespace

FormColors::FormColors(Game& game, QWidget* parent) : FormWindow(game, Form::FormColors, parent) {
    setObjectName(u"FormColors"_s);
    setWindowTitle(u"Hint Colors"_s);
    auto* content = new QWidget(this);
    auto* body = new QWidget(content);
    list_ = new ColorList(game, body);
    editor_ = new ColorEditor(game, body);
    connect(list_, &QListWidget::itemDoubleClicked, this,
            [this] { editor_->Choose(ColorPart::Color); });
    selected_ = new QBoxLayout(QBoxLayout::TopToBottom);
    selected_->setSpacing(kPad);
    selected_->addWidget(MakeBoard(), 2);
    selected_->addWidget(editor_);
    sides_ = new QBoxLayout(QBoxLayout::LeftToRight);
    sides_->setSpacing(kPad);
    sides_->addWidget(list_);
    sides_->addLayout(selected_, 1);
    auto* rows = new QVBoxLayout(body);
    rows->setContentsMargins(kPad, kPad, kPad, kPad);
    rows->setSpacing(kGap);
    palettes_ = MakePalettes();
    rows->addWidget(palettes_);
    rows->addLayout(sides_, 1);
    auto* area = new QScrollArea(content);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setAccessibleName(u"Colors and a board that shows them"_s);
    area->setWidget(body);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(area, 1);
    QWidget* foot = MakeFoot();
    column->addWidget(foot);
    setCentralWidget(content);
    const int bar = area->verticalScrollBar()->sizeHint().width();
    setMinimumSize(kLeastSize.expandedTo({WidthOfOne() + bar, 0}));
    const int wanted = kBoard + editor_->sizeHint().height() + foot->sizeHint().height() + 6 * kPad;
    const int most = static_cast<int>(kDeskShare * screen()->availableGeometry().height());
    const int width = wanted <= most ? WidthOfTwo() : WidthOfThree();
    resize(width + kBoard - kLeastBoard, std::min(wanted, most));
    list_->setFocus();
}

// When the main window goes, it takes this one along. The text box that loses the keyboard then has
// nobody left to report to.
FormColors::~FormColors() {
    for (QLineEdit* edit : editor_->findChildren<QLineEdit*>()) {
        edit->blockSignals(true);
    }
}

QWidget* FormColors::MakePalettes() {
    auto* palettes = new QWidget(this);
    light_ = MakeOption(u"OptionLight"_s, u"For &light windows"_s, Tone::Light);
    dark_ = MakeOption(u"OptionDark"_s, u"For dar&k windows"_s, Tone::Dark);
    auto* line = new QHBoxLayout(palettes);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(kPad);
    line->addWidget(light_);
    line->addWidget(dark_);
    line->addStretch(1);
    return palettes;
}

QRadioButton* FormColors::MakeOption(const QString& name, const QString& text, Tone tone) {
    auto* option = new QRadioButton(text, this);
    option->setObjectName(name);
    connect(option, &QRadioButton::toggled, this, [this, tone](bool isOn) {
        if (isOn) {
            CurrentGame().ColorTone(tone);
        }
    });
    return option;
}

QWidget* FormColors::MakeBoard() {
    desk_ = new QWidget(this);
    desk_->setAutoFillBackground(true);
    board_ = new BoardPicture(desk_);
    board_->setObjectName(u"BoardSample"_s);
    board_->setAccessibleName(u"A board with these colors"_s);
    board_->setMinimumSize(kLeastBoard, kLeastBoard);
    auto* room = new QVBoxLayout(desk_);
    room->setContentsMargins(kGap, kGap, kGap, kGap);
    room->addWidget(board_);
    return desk_;
}

QWidget* FormColors::MakeFoot() {
    auto* foot = new QWidget(this);
    resetAll_ = MakeButton(u"CommandResetColors"_s, u"Reset &All"_s, &Game::CommandResetColors);
    resetAll_->setToolTip(u"All colors that came with the game, light and dark"_s);
    ok_ = MakeButton(u"CommandOK"_s, u"&OK"_s, &Game::CommandKeepColors);
    ok_->setDefault(true);
    cancel_ = MakeButton(u"CommandCancel"_s, u"Cancel"_s, &Game::CommandCancelColors);
    cancel_->setToolTip(u"Close the window with the colors as they were"_s);
    auto* buttons = new QHBoxLayout(foot);
    buttons->setContentsMargins(kPad, kGap, kPad, kPad);
    buttons->setSpacing(kGap);
    buttons->addWidget(resetAll_);
    buttons->addStretch(1);
    buttons->addWidget(ok_);
    buttons->addWidget(cancel_);
    return foot;
}

QPushButton* FormColors::MakeButton(const QString& name, const QString& text,
                                    void (Game::*handler)()) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    Game& game = CurrentGame();
    connect(button, &QPushButton::clicked, this, [&game, handler] { (game.*handler)(); });
    return button;
}

void FormColors::ShowScreen(const BoardColors& colors) {
    const ColorWindow& window = CurrentGame().CurrentColorWindow();
    const Tone tone = window.ShownTone();
    const BoardColors shown{ThemeOf(tone), window.Shown()};
    (tone == Tone::Dark ? dark_ : light_)->setChecked(true);
    list_->ShowColors(window, shown, colors);
    editor_->ShowColors(window, colors);
    ShowBoard(shown);
    // What goes off cannot keep the keyboard.
    if (!window.CanResetAll() && resetAll_->hasFocus()) {
        list_->setFocus();
    }
    resetAll_->setEnabled(window.CanResetAll());
    ok_->setEnabled(window.CanKeep());
    ok_->setToolTip(window.CanKeep() ? u"Keep the colors and close the window (Enter)"_s
                                     : ToQString(window.Error()));
}

// Also where the windows have the other palette.
void FormColors::ShowBoard(const BoardColors& shown) {
    QPalette palette = desk_->palette();
    palette.setColor(QPalette::Window, shown.theme.window);
    desk_->setPalette(palette);
    board_->ShowBoard(ColorSample(CurrentGame().CurrentColorWindow().Row()), shown);
}

void FormColors::showEvent(QShowEvent* event) {
    FormWindow::showEvent(event);
    if (!event->spontaneous()) {
        CurrentGame().ColorTone(ToneOf(palette()));
    }
}

void FormColors::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    QWidget* focus = focusWidget();
    if (event->key() == Qt::Key_Escape && !CurrentGame().CurrentColorWindow().CanKeep()) {
        CurrentGame().ColorForgetTyped();
    } else if (isEnter && qobject_cast<QLineEdit*>(focus) != nullptr) {
        // It has ended the typing.
    } else if (isEnter) {
        auto* button = qobject_cast<QPushButton*>(focus);
        (button != nullptr ? button : ok_)->click();
    } else {
        FormWindow::keyPressEvent(event);
    }
}

void FormColors::resizeEvent(QResizeEvent* event) {
    FormWindow::resizeEvent(event);
    Arrange();
}

// The board over its controls beside the list; in a low window all three side by side, in a narrow
// one below each other.
void FormColors::Arrange() {
    const bool isLow = height() < kLeastBoard + editor_->sizeHint().height() + 8 * kPad;
    const bool isBeside = isLow && width() >= WidthOfThree();
    selected_->setDirection(isBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    selected_->setStretchFactor(editor_, isBeside ? 1 : 0);
    sides_->setDirection(width() >= WidthOfTwo() ? QBoxLayout::LeftToRight
                                                 : QBoxLayout::TopToBottom);
}

int FormColors::WidthOfOne() const {
    return std::max({kLeastBoard + 2 * kGap, editor_->minimumSizeHint().width(),
                     palettes_->sizeHint().width()}) +
           2 * kPad;
}

int FormColors::WidthOfTwo() const {
    return WidthOfOne() + kPad + list_->sizeHint().width();
}

int FormColors::WidthOfThree() const {
    return WidthOfTwo() + kPad + editor_->minimumSizeHint().width();
}

}  // namespace vemo
