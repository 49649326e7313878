// The column beside the board.
#include "qt/side_column.h"

#include <algorithm>
#include <cmath>

#include <QLabel>
#include <QPushButton>

#include "game/menus.h"
#include "qt/clock_bar.h"
#include "qt/color_label.h"
#include "qt/hint_panel.h"
#include "qt/screen_text.h"

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
}

void SideColumn::ShowScreen(const Screen& screen, const BoardColors& colors) {
    clock_->ShowScreen(screen);
    hint_->ShowScreen(screen, colors);
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
    for (int digit = 1; digit <= kDigits; ++digit) {
        digits_[static_cast<std::size_t>(digit - 1)]->setChecked(digit == screen.digitFilter);
    }
    for (ColorLabel* label : colors_) {
        label->ShowState(screen, colors);
    }
    link_->setChecked(screen.isLinkMode);
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
    hint_->setGeometry(plan.hint);
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
}

}  // namespace vemo
