// The window "Solving Techniques Manager".
#include "qt/solve_tech_window.h"

#include <algorithm>
#include <utility>

#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>

#include "qt/technique_rows.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPad = 16;
constexpr int kGap = 8;
constexpr int kLeastListHeight = 120;
constexpr double kDeskShare = 0.9;  // of the desk's height that the window takes at most

QPushButton* MakeButton(const QString& name, const QString& text, const QString& toolTip,
                        QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

}  // namespace

SolveTechWindow::SolveTechWindow(Game& game, QWidget* parent)
    : FormWindow(game, Form::SolveTech, parent) {
    setObjectName(u"SolveTech"_s);
    setWindowTitle(u"Solving Techniques Manager"_s);
    auto* content = new QWidget(this);
    setCentralWidget(content);
    auto* area = new QScrollArea(content);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setAccessibleName(u"Techniques"_s);
    area->setMinimumHeight(kLeastListHeight);
    rows_ = new TechniqueRows(game, *area);

    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(kPad, kPad, kPad, kPad);
    column->setSpacing(kGap);
    column->addWidget(MakeCaptions());
    column->addWidget(area, 1);
    column->addLayout(MakeButtons());
    AlignColumns();
    const int bar = area->verticalScrollBar()->sizeHint().width();
    area->setMinimumWidth(rows_->minimumSizeHint().width() + bar);
    const int rowsBeyondHint = rows_->sizeHint().height() - area->sizeHint().height();
    const int height = sizeHint().height() + std::max(0, rowsBeyondHint);
    const int most = static_cast<int>(kDeskShare * screen()->availableGeometry().height());
    resize(sizeHint().width(), std::min(height, most));

    const auto shortcut = [this](QKeyCombination keys, void (Game::*handler)()) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this,
                [this, handler] { (CurrentGame().*handler)(); });
    };
    shortcut(Qt::ALT | Qt::Key_Up, &Game::KnopUp);
    shortcut(Qt::ALT | Qt::Key_Down, &Game::KnopDown);
    ShowScreen();
}

QWidget* SolveTechWindow::MakeCaptions() {
    auto* bar = new QWidget(this);
    captions_ = new QGridLayout(bar);
    captions_->setVerticalSpacing(0);
    captions_->setColumnStretch(kTechniqueColumns, 1);
    const std::pair<TechniqueColumn, QString> captions[] = {
        {TechniqueColumn::Number, QString()},
        {TechniqueColumn::Technique, u"Technique"_s},
        {TechniqueColumn::Level, u"Level"_s},
        {TechniqueColumn::Include, u"Include"_s},
        {TechniqueColumn::Halt, u"Autosolve halt on ..."_s},
    };
    for (const auto& [column, caption] : captions) {
        auto* label = new QLabel(caption, bar);
        label->setAccessibleName(caption.isEmpty() ? u"Position"_s : caption);
        label->setForegroundRole(QPalette::PlaceholderText);
        label->setToolTip(MeaningOf(column));
        captions_->addWidget(label, 0, static_cast<int>(column));
    }
    return bar;
}

QLayout* SolveTechWindow::MakeButtons() {
    up_ =
        MakeButton(u"KnopUp"_s, u"Move &Up"_s, u"Move the selected technique up (Alt+Up)"_s, this);
    down_ = MakeButton(u"KnopDown"_s, u"Move Do&wn"_s,
                       u"Move the selected technique down (Alt+Down)"_s, this);
    defaults_ = MakeButton(u"CommandDefaults"_s, u"&Defaults"_s,
                           u"All techniques in their first order, all included, no halts"_s, this);
    ok_ = MakeButton(u"CommandOK"_s, u"&OK"_s, u"Close this window (Enter)"_s, this);
    ok_->setDefault(true);
    const auto connectTo = [this](QPushButton* button, void (Game::*handler)()) {
        connect(button, &QPushButton::clicked, this,
                [this, handler] { (CurrentGame().*handler)(); });
    };
    connectTo(up_, &Game::KnopUp);
    connectTo(down_, &Game::KnopDown);
    connectTo(defaults_, &Game::CommandDefaultsClick);
    connectTo(ok_, &Game::CommandOK);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(kGap);
    for (QPushButton* button : {up_, down_}) {
        button->setAutoRepeat(true);
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    buttons->addWidget(defaults_);
    buttons->addWidget(ok_);
    return buttons;
}

// The captions stand over their columns.
void SolveTechWindow::AlignColumns() {
    const auto* grid = static_cast<QGridLayout*>(rows_->layout());
    const QMargins margins = grid->contentsMargins();
    captions_->setContentsMargins(margins.left(), 0, margins.right(), 0);
    captions_->setHorizontalSpacing(grid->horizontalSpacing());
    for (int number = 0; number < kTechniqueColumns; ++number) {
        const auto column = static_cast<TechniqueColumn>(number);
        const int caption = captions_->itemAtPosition(0, number)->sizeHint().width();
        const int width = std::max(caption, rows_->WantedWidth(column));
        captions_->setColumnMinimumWidth(number, width);
        rows_->SetWidth(column, width);
    }
}

void SolveTechWindow::ShowScreen() {
    const SolveTech& manager = CurrentGame().TechniqueManager();
    const bool isBusy = CurrentGame().CurrentSession().IsBusy();
    const bool wasBusy = !rows_->isEnabled();
    if (isBusy && !wasBusy) {
        focusBeforeBusy_ = focusWidget();
    }
    rows_->ShowScreen();
    rows_->setEnabled(!isBusy);
    Enable(*up_, manager.CanGoUp());
    Enable(*down_, manager.CanGoDown());
    Enable(*defaults_, !manager.AreDefaults());
    if (wasBusy && !isBusy && focusBeforeBusy_ != nullptr) {
        focusBeforeBusy_->setFocus();
    }
}

// Where a button that goes off has the keyboard, the next one would take it, and the key that is
// pressed again with it.
void SolveTechWindow::Enable(QPushButton& button, bool isUseful) {
    const bool isEnabled = rows_->isEnabled() && isUseful;
    if (!isEnabled && rows_->isEnabled() && focusWidget() == &button) {
        rows_->FocusSelected();
    }
    button.setEnabled(isEnabled);
}

void SolveTechWindow::showEvent(QShowEvent* event) {
    FormWindow::showEvent(event);
    rows_->FocusSelected();
    rows_->RevealSelected();
}

void SolveTechWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        FormWindow::keyPressEvent(event);
        return;
    }
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    (button != nullptr ? button : ok_)->click();
}

}  // namespace vemo
