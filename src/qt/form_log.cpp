// The window of the solve log.
#include "qt/form_log.h"

#include <QAction>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>

#include "qt/find_bar.h"
#include "qt/growing_text.h"
#include "qt/print_preview.h"
#include "qt/print_text.h"
#include "qt/text_panel.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kSize(600, 600);
constexpr QSize kLeastSize(320, 240);
constexpr int kMargin = 8;
constexpr int kDelay = 40;  // milliseconds

GrowingText* MakeText(QWidget* parent) {
    auto* text = new GrowingText(parent);
    text->setObjectName(u"TextLog"_s);
    text->setAccessibleName(u"Solve log"_s);
    text->setPlaceholderText(
        u"The log is empty. Autosolve and Scan, both in the menu Solve of the main window, write "
        "each of their steps into it."_s);
    return text;
}

}  // namespace

FormLog::FormLog(Game& game, QWidget* parent) : FormWindow(game, Form::FormLog, parent) {
    setObjectName(u"FormLog"_s);
    setWindowTitle(u"Solve log"_s);
    auto* content = new QWidget(this);
    text_ = MakeText(content);
    find_ = new FindBar(*text_, content);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kMargin);
    column->addWidget(new TextPanel(text_, content), 1);
    column->addWidget(find_);
    setCentralWidget(content);
    MakeWindowMenu();
    MakeEditMenu();
    delay_.setSingleShot(true);
    delay_.setInterval(kDelay);
    connect(&delay_, &QTimer::timeout, this, [this] { ShowText(); });
    setMinimumSize(kLeastSize);
    resize(kSize);
    text_->setFocus();
}

void FormLog::ShowScreen() {
    const bool isBusy = CurrentGame().CurrentSession().IsBusy();
    if (!isBusy) {
        ShowText();
    } else if (!delay_.isActive()) {
        delay_.start();
    }
    const bool isEmpty = CurrentGame().SolveLogText().empty();
    const bool isUsable = !isEmpty && !isBusy;
    save_->setEnabled(isUsable);
    print_->setEnabled(isUsable);
    selectAll_->setEnabled(!isEmpty);
    openFind_->setEnabled(!isEmpty);
}

void FormLog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && find_->isVisible()) {
        find_->Close();
    } else {
        FormWindow::keyPressEvent(event);
    }
}

void FormLog::MakeWindowMenu() {
    menuBar()->setAccessibleName(u"Menu"_s);
    QMenu* menu = menuBar()->addMenu(u"&Window"_s);
    Game& game = CurrentGame();
    save_ = menu->addAction(u"Save &As..."_s, QKeySequence(u"Ctrl+S"_s), this,
                            [&game] { game.mnuLogSave(); });
    print_ = menu->addAction(u"&Print..."_s, QKeySequence(u"Ctrl+P"_s), this, [this] { Print(); });
    menu->addSeparator();
    menu->addAction(u"&Close Window"_s, QKeySequence(u"Ctrl+W"_s), this, [this] { close(); });
}

void FormLog::MakeEditMenu() {
    QMenu* menu = menuBar()->addMenu(u"&Edit"_s);
    QAction* copy =
        menu->addAction(u"&Copy"_s, QKeySequence(u"Ctrl+C"_s), text_, [this] { text_->copy(); });
    copy->setEnabled(false);
    connect(text_, &QPlainTextEdit::copyAvailable, copy, &QAction::setEnabled);
    selectAll_ = menu->addAction(u"Select &All"_s, QKeySequence(u"Ctrl+A"_s), text_,
                                 [this] { text_->selectAll(); });
    menu->addSeparator();
    openFind_ =
        menu->addAction(u"&Find..."_s, QKeySequence(u"Ctrl+F"_s), this, [this] { find_->Open(); });
}

void FormLog::ShowText() {
    text_->ShowText(CurrentGame().SolveLogText());
}

void FormLog::Print() {
    const auto make = [this](const QPageSize& paper) {
        return TextPrintout(windowTitle(), text_->toPlainText(), paper);
    };
    PrintPreview(CurrentGame(), make, this).exec();
}

}  // namespace vemo
