// The column beside the board.
#include "qt/side_column.h"

#include <algorithm>
#include <cmath>

#include <QLabel>
#include <QPushButton>
#include <QShortcut>

#include "game/menus.h"
#include "qt/clock_bar.h"
#include "qt/color_label.h"
#include "qt/hint_panel.h"
#include "qt/screen_text.h"
#include "qt/sud_tekst.h"
#include "qt/text_panel.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// The buttons and their menu twins. The access keys are none of the menu bar's.
struct CommandButton {
    const char* name;
    const char* caption;
    CommandId twin;
};
constexpr std::array<CommandButton, kCommandButtons> kCommandTable = {{
    {"CommandHint", "H&int", CommandId::SolveHint},
    {"CommandUndo", "&Undo", CommandId::SolveUndo},
    {"CommandRedo", "&Redo", CommandId::SolveRedo},
    {"CommandResetCell", "Reset &Cell", CommandId::SolveResetCell},
    {"CommandRestart", "R&estart", CommandId::SolveRestart},
    {"CommandSolution", "Solutio&n", CommandId::SolveSolution},
}};
constexpr std::size_t kHintButton = 0;
constexpr const char* kShowMeCaption = "Sho&w Me";

// A hint is found before that: its button shall not turn into another under the mouse.
constexpr int kStopAppears = 250;  // milliseconds

QPushButton* MakeButton(const QString& name, const QString& caption, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    // A click leaves the focus where the keys are wanted: on the board.
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QLabel* MakeCaption(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

// Without the mark of its access key.
QString Plain(QString caption) {
    return caption.remove(QLatin1Char('&'));
}

int WidthOf(const QFontMetrics& metrics, const QString& caption) {
    return metrics.horizontalAdvance(Plain(caption));
}

}  // namespace

SideColumn::SideColumn(Game& game, QWidget* parent)
    : QWidget(parent), clock_(new ClockBar(game, this)), hint_(new HintPanel(game, this)) {
    setObjectName(u"SideColumn"_s);
    setAccessibleName(u"Play"_s);
    MakeCommands(game);
    digitCaption_ = MakeCaption(u"Show one digit"_s, this);
    MakeDigits(game);
    colorCaption_ = MakeCaption(u"Colors (left and right button)"_s, this);
    MakeColors(game);
    link_ = MakeButton(u"CommandLink"_s, u"Lin&k"_s, this);
    link_->setCheckable(true);
    link_->setToolTip(
        u"Draw links from mark to mark: strong with the left button, weak with the right (L)"_s);
    connect(link_, &QPushButton::clicked, this, [&game] { game.CommandLinkClick(); });
    MakeMaking(game);
}

void SideColumn::ShowScreen(const Screen& screen, const BoardColors& colors) {
    clock_->ShowScreen(screen);
    hint_->ShowScreen(screen, colors);
    sudTekst_->ShowScreen(screen);
    ShowCommands(screen);
    ShowParts(screen);
    for (int digit = 1; digit <= kDigits; ++digit) {
        digits_[static_cast<std::size_t>(digit - 1)]->setChecked(digit == screen.digitFilter);
    }
    for (ColorLabel* label : colors_) {
        label->ShowState(screen, colors);
    }
    link_->setChecked(screen.isLinkMode);
}

void SideColumn::ShowCommands(const Screen& screen) {
    for (std::size_t index = 0; index < commands_.size(); ++index) {
        commands_[index]->setEnabled(screen.Command(kCommandTable[index].twin).isEnabled);
    }
    const bool isShowMe = screen.Command(CommandId::SolveShowMe).isEnabled;
    QPushButton& hint = *commands_[kHintButton];
    hint.setText(QString::fromLatin1(
        screen.hintButton == "Hint" ? kCommandTable[kHintButton].caption : kShowMeCaption));
    hint.setEnabled(hint.isEnabled() || isShowMe);
    // One button is what to press next.
    hint.setDefault(!screen.canApply);
    validate_->setEnabled(screen.Command(CommandId::SudokuValidate).isEnabled);
    cancel_->setEnabled(screen.isMaking && screen.isBoardEnabled);
}

// Either the buttons of play or those of the making; what runs long enough can be stopped where it
// was begun.
void SideColumn::ShowParts(const Screen& screen) {
    const bool isMaking = screen.isMaking;
    const bool isRunning = screen.Command(CommandId::SolveStop).isEnabled;
    if (!isRunning) {
        stopDelay_.stop();
        stop_->hide();
    } else if (stop_->isHidden() && !stopDelay_.isActive()) {
        stopDelay_.start();
    }
    for (QWidget* part : PartsOfPlay()) {
        part->setHidden(isMaking);
    }
    making_->setVisible(isMaking);
    cancel_->setVisible(isMaking);
    const bool canStop = !stop_->isHidden();
    validate_->setVisible(isMaking && !canStop);
    commands_[kHintButton]->setVisible(!isMaking && !canStop);
    if (isMaking != isMaking_) {
        isMaking_ = isMaking;
        Arrange();
    }
}

std::vector<QWidget*> SideColumn::PartsOfPlay() const {
    std::vector<QWidget*> parts = {digitCaption_, colorCaption_, link_};
    parts.insert(parts.end(), commands_.begin() + kHintButton + 1, commands_.end());
    parts.insert(parts.end(), digits_.begin(), digits_.end());
    parts.insert(parts.end(), colors_.begin(), colors_.end());
    return parts;
}

void SideColumn::SetScale(double scale) {
    if (std::abs(scale - scale_) < 0.01) {
        return;
    }
    scale_ = scale;
    QFont font = parentWidget()->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    setFont(font);
    Arrange();
}

void SideColumn::resizeEvent(QResizeEvent*) {
    Arrange();
}

void SideColumn::MakeCommands(Game& game) {
    for (std::size_t index = 0; index < commands_.size(); ++index) {
        const CommandButton& row = kCommandTable[index];
        QPushButton* button =
            MakeButton(QString::fromLatin1(row.name), QString::fromLatin1(row.caption), this);
        const std::string_view shortcut = RowOf(row.twin).shortcut;
        if (!shortcut.empty()) {
            button->setToolTip(u"%1 (%2)"_s.arg(Plain(button->text()), ToQString(shortcut)));
        }
        connect(button, &QPushButton::clicked, this, [&game, twin = row.twin] {
            if (twin == CommandId::SolveHint) {
                game.CommandHintClick();
            } else {
                game.Run(twin);
            }
        });
        commands_[index] = button;
    }
}

void SideColumn::MakeDigits(Game& game) {
    for (int digit = 1; digit <= kDigits; ++digit) {
        QPushButton* button = MakeButton(u"Command1_%1"_s.arg(digit), QString::number(digit), this);
        button->setCheckable(true);
        button->setAccessibleName(u"Show digit %1"_s.arg(digit));
        button->setToolTip(u"Show where %1 is and can be (Alt+%1)"_s.arg(digit));
        connect(button, &QPushButton::clicked, this, [&game, digit] { game.Command1Click(digit); });
        digits_[static_cast<std::size_t>(digit - 1)] = button;
    }
}

void SideColumn::MakeColors(Game& game) {
    for (int color = 0; color < kBrushColors; ++color) {
        colors_[static_cast<std::size_t>(color)] = new ColorLabel(
            color, [&game, color](MouseButton button) { game.LabelColorMouseUp(color, button); },
            this);
    }
}

void SideColumn::MakeMaking(Game& game) {
    sudTekst_ = new SudTekst(game, this);
    making_ = new TextPanel(sudTekst_, this);
    validate_ = MakeButton(u"CommandValidate"_s, u"V&alidate"_s, this);
    validate_->setToolTip(u"Check the sudoku, rate it and play it"_s);
    validate_->setDefault(true);
    connect(validate_, &QPushButton::clicked, this,
            [&game] { game.Run(CommandId::SudokuValidate); });
    cancel_ = MakeButton(u"CommandCancel"_s, u"&Cancel"_s, this);
    cancel_->setToolTip(u"Give this sudoku up"_s);
    connect(cancel_, &QPushButton::clicked, this, [&game] { game.CommandCancelClick(); });
    stop_ = MakeButton(u"CommandStop"_s, u"Sto&p"_s, this);
    // A button's own shortcut would show it pressed for a while before it acts.
    auto* escape = new QShortcut(Qt::Key_Escape, stop_);
    connect(escape, &QShortcut::activated, stop_, &QPushButton::click);
    stop_->setToolTip(u"Stop (Esc)"_s);
    stop_->setDefault(true);
    stop_->hide();
    connect(stop_, &QPushButton::clicked, this, [&game] { game.Run(CommandId::SolveStop); });
    stopDelay_.setSingleShot(true);
    stopDelay_.setInterval(kStopAppears);
    connect(&stopDelay_, &QTimer::timeout, this, [this, &game] {
        stop_->show();
        ShowParts(game.Current());
    });
}

ColumnTexts SideColumn::Texts() const {
    const QFontMetrics metrics = fontMetrics();
    ColumnTexts texts;
    texts.line = metrics.height();
    for (const CommandButton& row : kCommandTable) {
        texts.command = std::max(texts.command, WidthOf(metrics, QString::fromLatin1(row.caption)));
    }
    texts.link = WidthOf(metrics, link_->text());
    return texts;
}

void SideColumn::Arrange() {
    const ColumnPlan plan = PlanColumn(size(), Texts());
    clock_->setGeometry(plan.clock);
    hint_->setGeometry(isMaking_ ? plan.hintOfMaking : plan.hint);
    for (std::size_t index = 0; index < commands_.size(); ++index) {
        commands_[index]->setGeometry(plan.commands[index]);
    }
    digitCaption_->setGeometry(plan.digitCaption);
    for (std::size_t index = 0; index < digits_.size(); ++index) {
        digits_[index]->setGeometry(plan.digits[index]);
    }
    colorCaption_->setGeometry(plan.colorCaption);
    for (std::size_t index = 0; index < colors_.size(); ++index) {
        colors_[index]->setGeometry(plan.colors[index]);
    }
    link_->setGeometry(plan.link);
    making_->setGeometry(plan.making);
    validate_->setGeometry(plan.validate);
    cancel_->setGeometry(plan.cancel);
    stop_->setGeometry(isMaking_ ? plan.validate : plan.commands[kHintButton]);
}

}  // namespace vemo
