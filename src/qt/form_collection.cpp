// The window "Check and Import".
#include "qt/form_collection.h"

#include <utility>

#include <QApplication>
#include <QBoxLayout>
#include <QDropEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>

#include "game/collection_texts.h"
#include "qt/collection_actions.h"
#include "qt/collection_filter.h"
#include "qt/collection_foot.h"
#include "qt/collection_preview.h"
#include "qt/collection_table.h"
#include "qt/dropped_files.h"
#include "qt/form_controls.h"
#include "qt/growing_text.h"
#include "qt/layout_dialog.h"
#include "qt/screen_text.h"
#include "qt/text_panel.h"
#include "qt/wrap_layout.h"
#include "tools/puzzle_table.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPad = 16;
constexpr int kGap = 8;
constexpr int kTick = 50;  // milliseconds
constexpr int kLeastRows = 7;
constexpr int kLeastLogLines = 3;
// Of the table that are seen beside the other pieces: at first, and at least.
constexpr int kTableCharacters = 130;
constexpr int kLeastTableCharacters = 76;
// Of the table and the log in their height.
constexpr int kTableShare = 400;
constexpr int kLogShare = 100;
constexpr QSize kLeastSize(420, 360);
constexpr int kHeight = 800;
constexpr double kDeskShare = 0.95;  // of the desk that the window takes at most

enum GridRow : int { kTopRow, kFilterRow, kTableRow, kActionRow, kPreviewRow };
enum GridColumn : int { kFilterColumn, kTableColumn, kPreviewColumn, kGridColumns };

// "list.txt: 9,980 sudokus, 120 shown, 20 taken off".
QString OpenText(const CollectionWindow& window) {
    if (!window.IsOpen()) {
        return u"No sudokus are open"_s;
    }
    const std::size_t all = window.Table().Size();
    const std::size_t shown = window.Shown().Size();
    const std::size_t removed = window.RemovedCount();
    QString text = u"%1: %2 sudokus"_s.arg(ToQString(window.Name()), ToQString(Grouped(all)));
    if (shown + removed != all) {
        text += u", %1 shown"_s.arg(ToQString(Grouped(shown)));
    }
    if (removed > 0) {
        text += u", %1 taken off"_s.arg(ToQString(Grouped(removed)));
    }
    return text;
}

// Takes what room there is, and gives the others no reason to scroll.
class ModestSplitter final : public QSplitter {
  public:
    using QSplitter::QSplitter;
    QSize sizeHint() const override { return minimumSizeHint(); }
};

bool IsOfFiles(const QDropEvent& event) {
    return AreFiles(event.mimeData()->urls());
}

}  // namespace

FormCollection::FormCollection(Game& game, QWidget* parent)
    : FormWindow(game, Form::FormCollection, parent) {
    setObjectName(u"FormCollection"_s);
    setWindowTitle(u"Check and Import"_s);
    setAcceptDrops(true);
    auto* content = new QWidget(this);
    area_ = new QScrollArea(content);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setWidgetResizable(true);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setAccessibleName(u"Sudokus and filters"_s);
    area_->setWidget(MakeBody());
    foot_ = new CollectionFoot(game, content);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(area_, 1);
    column->addWidget(foot_);
    setCentralWidget(content);
    setMinimumSize(kLeastSize);
    const QSize desk = screen()->availableGeometry().size() * kDeskShare;
    const int pieces = filter_->sizeHint().width() + preview_->sizeHint().width() + 2 * kPad;
    const int width = pieces + kTableCharacters * fontMetrics().averageCharWidth() + 2 * kPad;
    resize(QSize(width, kHeight).boundedTo(desk));
    timer_.setInterval(kTick);
    connect(&timer_, &QTimer::timeout, this, [this] { Tick(); });
    open_->setFocus();
}

QWidget* FormCollection::MakeTop(QWidget* body) {
    auto* top = new QWidget(body);
    name_ = MakeText(u"LabelOpen"_s, top);
    QFont bold = name_->font();
    bold.setWeight(QFont::DemiBold);
    name_->setFont(bold);
    auto* openers = new QWidget(top);
    auto* line = new WrapLayout(openers, kGap);
    open_ =
        MakeOpener(u"CommandOpenFile"_s, u"&Open..."_s, u"Open files of sudokus in any format"_s);
    connect(open_, &QPushButton::clicked, this,
            [this] { CurrentGame().Collection().CommandOpenFile(); });
    level_ = MakeLevelButton();
    layout_ =
        MakeOpener(u"CommandLayout"_s, u"L&ayout..."_s,
                   u"Say how the open file is to be read: for records of a foreign program"_s);
    connect(layout_, &QPushButton::clicked, this, [this] { AskLayout(); });
    filterButton_ = MakeOpener(u"CommandFilters"_s, u"&Filters"_s, u"Which sudokus are shown"_s);
    filterButton_->setCheckable(true);
    connect(filterButton_, &QPushButton::toggled, this, [this] { Arrange(); });
    for (QPushButton* button : {open_, level_, layout_, filterButton_}) {
        line->addWidget(button);
    }
    auto* column = new QVBoxLayout(top);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    column->addWidget(name_);
    column->addWidget(openers);
    return top;
}

QPushButton* FormCollection::MakeOpener(const QString& name, const QString& text,
                                        const QString& toolTip) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    return button;
}

QPushButton* FormCollection::MakeLevelButton() {
    auto* menu = new QMenu(this);
    for (int level = 1; level <= kLevels; ++level) {
        menu->addAction(u"&%1  %2"_s.arg(level).arg(ToQString(LevelName(level))), this,
                        [this, level] { CurrentGame().Collection().CommandOpenLevel(level); });
    }
    QPushButton* button = MakeMenuButton(u"CommandLevel"_s, u"Le&vel"_s, *menu, this);
    button->setToolTip(u"Show the sudokus of a level"_s);
    return button;
}

QWidget* FormCollection::MakeBody() {
    auto* body = new QWidget(area_);
    QWidget* top = MakeTop(body);
    filter_ = new CollectionFilter(CurrentGame(), body);
    rows_ = MakeRows();
    actions_ = new CollectionActions(CurrentGame(), body);
    preview_ = new CollectionPreview(CurrentGame(), body);
    connect(table_, &CollectionTable::CopyWanted, preview_, &CollectionPreview::Copy);
    connect(preview_, &CollectionPreview::PlayWanted, this,
            [this] { CurrentGame().Collection().CommandPlay(); });
    connect(table_, &QTableView::doubleClicked, this,
            [this] { CurrentGame().Collection().CommandPlay(); });
    grid_ = new QGridLayout(body);
    grid_->setContentsMargins(kPad, kPad, kPad, kGap);
    grid_->setHorizontalSpacing(kPad);
    grid_->setVerticalSpacing(kGap);
    grid_->setColumnStretch(kTableColumn, 1);
    grid_->setRowStretch(kTableRow, 1);
    grid_->addWidget(top, kTopRow, 0, 1, kGridColumns);
    grid_->addWidget(actions_, kActionRow, 0, 1, kGridColumns);
    return body;
}

// The table above the log, to be shared out by the player.
QSplitter* FormCollection::MakeRows() {
    auto* rows = new ModestSplitter(Qt::Vertical, this);
    rows->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    rows->setChildrenCollapsible(false);
    rows->setAccessibleName(u"Sudokus and report"_s);
    table_ = new CollectionTable(CurrentGame(), rows);
    log_ = new GrowingText(rows);
    log_->setObjectName(u"TextCollectionLog"_s);
    log_->setAccessibleName(u"Report and steps"_s);
    log_->setPlaceholderText(
        u"What was read, rejected and imported, and the steps of solved sudokus"_s);
    auto* panel = new TextPanel(log_, rows);
    const int line = fontMetrics().height();
    table_->setMinimumHeight(kLeastRows * line * 3 / 2);
    panel->setMinimumHeight(kLeastLogLines * line * 3 / 2);
    rows->addWidget(table_);
    rows->addWidget(panel);
    rows->handle(1)->setAccessibleName(u"Border of table and report"_s);
    rows->setSizes({kTableShare, kLogShare});
    return rows;
}

void FormCollection::ShowScreen(const BoardColors& colors) {
    table_->ShowRows();
    MoveFocus();
    ShowOpen();
    filter_->ShowOrder(Window().Order());
    preview_->ShowSelected(colors);
    ShowLog();
    actions_->ShowUsable();
    foot_->ShowState();
    if (Window().IsBusy() && !timer_.isActive()) {
        timer_.start();
    }
}

void FormCollection::ShowOpen() {
    name_->setText(OpenText(Window()));
    const bool isBusy = Window().IsBusy();
    open_->setEnabled(!isBusy);
    level_->setEnabled(!isBusy);
    layout_->setEnabled(Window().MayReadByLayout());
    const int filters = CollectionFilter::CountSet(Window().Order());
    filterButton_->setText(filters == 0 ? u"&Filters"_s : u"&Filters: %1 set"_s.arg(filters));
}

void FormCollection::ShowLog() {
    if (Window().Opened() != logOf_) {
        logOf_ = Window().Opened();
        log_->Forget();
    }
    log_->ShowText(Window().Log().Text());
}

// What goes off cannot keep the keyboard: while a job runs, Cancel has it, and then the table.
void FormCollection::MoveFocus() {
    const bool isBusy = Window().IsBusy();
    QPushButton& cancel = foot_->CancelButton();
    QWidget* focus = focusWidget();
    const bool isButton = qobject_cast<QPushButton*>(focus) != nullptr;
    if (isBusy && !wasBusy_ && isButton && focus != filterButton_) {
        cancel.setEnabled(true);
        cancel.setFocus();
    } else if (!isBusy && wasBusy_ && focus == &cancel) {
        table_->setFocus();
    }
    cancel.setEnabled(isBusy);
    wasBusy_ = isBusy;
}

void FormCollection::AskLayout() {
    auto* dialog = new LayoutDialog(
        Window().Layout(),
        [this](const RecordLayout& layout) { return Window().PreviewOf(layout); }, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { CurrentGame().Collection().CommandReadBy(dialog->Chosen()); });
    dialog->open();
}

// What ends may load a sudoku: not beneath a box that is about another one.
void FormCollection::Tick() {
    if (QApplication::activeModalWidget() != nullptr) {
        return;
    }
    CurrentGame().Collection().Tick();
    if (!Window().IsBusy()) {
        timer_.stop();
    }
}

void FormCollection::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (isEnter && focusWidget() == table_) {
        CurrentGame().Collection().CommandPlay();
    } else if (isEnter && button != nullptr) {
        button->click();
    } else {
        FormWindow::keyPressEvent(event);
    }
}

void FormCollection::dragEnterEvent(QDragEnterEvent* event) {
    event->setAccepted(IsOfFiles(*event) && !Window().IsBusy());
}

// Whoever drags waits until the drop is over.
void FormCollection::dropEvent(QDropEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
    QTimer::singleShot(0, this, [this, paths = PathsOf(event->mimeData()->urls())] {
        CurrentGame().Collection().Drop(paths);
    });
}

void FormCollection::resizeEvent(QResizeEvent* event) {
    FormWindow::resizeEvent(event);
    Arrange();
}

void FormCollection::changeEvent(QEvent* event) {
    FormWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange && grid_ != nullptr) {
        Arrange();
    }
}

// The filters and the sudoku that is looked at stand beside the table where there is room, above
// and below it otherwise; above it, the filters are shown on demand.
void FormCollection::Arrange() {
    const int table = kLeastTableCharacters * fontMetrics().averageCharWidth() + 2 * kPad;
    const int withPreview = table + preview_->sizeHint().width() + kPad;
    const int withBoth = withPreview + filter_->sizeHint().width() + kPad;
    const bool isPreviewBeside = width() >= withPreview;
    const bool isFilterBeside = width() >= withBoth;
    filterButton_->setVisible(!isFilterBeside);
    filter_->setVisible(isFilterBeside || filterButton_->isChecked());
    for (QWidget* piece : {static_cast<QWidget*>(filter_), static_cast<QWidget*>(rows_),
                           static_cast<QWidget*>(preview_)}) {
        grid_->removeWidget(piece);
    }
    if (isFilterBeside) {
        grid_->addWidget(filter_, kTableRow, kFilterColumn);
    } else {
        grid_->addWidget(filter_, kFilterRow, 0, 1, kGridColumns);
    }
    const int first = isFilterBeside ? kTableColumn : kFilterColumn;
    const int end = isPreviewBeside ? kPreviewColumn : kGridColumns;
    grid_->addWidget(rows_, kTableRow, first, 1, end - first);
    if (isPreviewBeside) {
        grid_->addWidget(preview_, kTableRow, kPreviewColumn);
    } else {
        grid_->addWidget(preview_, kPreviewRow, 0, 1, kGridColumns);
    }
}

}  // namespace vemo
