// The menu bar, built from the game's menu table.
#include "qt/menu_bar.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QPainter>

#include "game/menus.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// Their keys do more than the entry does, or something else, or have more than one form: the window
// listens to them.
bool IsKeyOfWindow(CommandId id) {
    return id == CommandId::SolveHint || id == CommandId::SolveResetCell ||
           id == CommandId::HelpContents;
}

void SetUp(QAction& action, const MenuRow& row) {
    action.setCheckable(row.kind != MenuRowKind::Command);
    action.setMenuRole(QAction::NoRole);
    if (row.shortcut.empty()) {
        return;
    }
    action.setShortcut(QKeySequence(ToQString(row.shortcut)));
    if (IsKeyOfWindow(row.id)) {
        action.setShortcutContext(Qt::WidgetShortcut);
    }
}

}  // namespace

MenuBar::MenuBar(Game& game, QWidget* parent) : QMenuBar(parent) {
    setAccessibleName(u"Menu"_s);
    QMenu* menu = nullptr;
    for (const MenuRow& row : MenuRows()) {
        menu = MenuNamed(ToQString(row.menu), this);
        if (row.beginsGroup) {
            menu->addSeparator();
        }
        if (!row.submenu.empty()) {
            menu = MenuNamed(ToQString(row.submenu), menu);
        }
        QAction* action = menu->addAction(ToQString(row.caption));
        SetUp(*action, row);
        if (row.kind == MenuRowKind::Radio) {
            auto* group = menu->findChild<QActionGroup*>(QString(), Qt::FindDirectChildrenOnly);
            if (group == nullptr) {
                group = new QActionGroup(menu);
                group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
            }
            group->addAction(action);
        }
        connect(action, &QAction::triggered, this, [this, &game, id = row.id] {
            game.Run(id);
            // A click ticks the entry before the game has answered.
            ShowScreen(game.Current());
        });
        actions_[static_cast<std::size_t>(row.id)] = action;
    }
}

void MenuBar::ShowScreen(const Screen& screen) {
    for (std::size_t index = 0; index < actions_.size(); ++index) {
        const CommandView& view = screen.commands[index];
        actions_[index]->setEnabled(view.isEnabled);
        if (actions_[index]->isCheckable()) {
            actions_[index]->setChecked(view.isChecked);
        }
    }
}

void MenuBar::paintEvent(QPaintEvent* event) {
    QMenuBar::paintEvent(event);
    QPainter painter(this);
    painter.fillRect(QRect(0, height() - 1, width(), 1), palette().mid());
}

QMenu* MenuBar::MenuNamed(const QString& title, QWidget* parent) {
    for (QMenu* menu : parent->findChildren<QMenu*>(Qt::FindDirectChildrenOnly)) {
        if (menu->title() == title) {
            return menu;
        }
    }
    auto* owner = qobject_cast<QMenu*>(parent);
    QMenu* menu = owner != nullptr ? owner->addMenu(title) : addMenu(title);
    return menu;
}

}  // namespace vemo
