// The window of the help.
#include "qt/form_help.h"

#include <algorithm>
#include <iterator>

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>

#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

using Way = HelpBrowser::Way;

constexpr QSize kSize(1000, 720);
constexpr QSize kLeastSize(420, 320);
constexpr int kGap = 8;
constexpr int kContentsCharacters = 38;
constexpr int kPageCharacters = 50;  // that a page wants beside them
constexpr double kRowHeight = 1.4;   // in lines
constexpr int kPageRole = Qt::UserRole;

QPushButton* MakeButton(const QString& name, const QString& text, const QString& toolTip,
                        QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    return button;
}

}  // namespace

FormHelp::FormHelp(Game& game, QWidget* parent)
    : FormWindow(game, Form::FormHelp, parent),
      pages_(HelpPages()),
      index_(game.HelpFolder(), pages_),
      text_(new HelpBrowser(game.HelpFolder(), this)),
      contents_(new QTreeWidget(this)),
      search_(new QLineEdit(this)),
      found_(new QLabel(this)),
      sides_(new QSplitter(this)) {
    setObjectName(u"FormHelp"_s);
    setWindowTitle(u"Help"_s);
    setMinimumSize(kLeastSize);
    MakeContents();
    sides_->setAccessibleName(u"Contents and page"_s);
    sides_->setChildrenCollapsible(false);
    sides_->addWidget(contents_);
    sides_->addWidget(text_);
    sides_->setStretchFactor(1, 1);
    sides_->handle(1)->setAccessibleName(u"Border of the contents"_s);
    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(kGap, kGap, kGap, kGap);
    column->setSpacing(kGap);
    column->addWidget(MakeTop());
    column->addWidget(sides_, 1);
    setCentralWidget(content);
    MakeMenus();
    resize(kSize);
    text_->OnLinkOut(
        [&game](const QString& address) { game.HelpLinkClicked(address.toStdString()); });
    connect(text_, &QTextBrowser::sourceChanged, this, [this] { FollowPage(); });
    connect(text_, &QTextBrowser::backwardAvailable, back_, &QWidget::setEnabled);
    connect(text_, &QTextBrowser::forwardAvailable, forward_, &QWidget::setEnabled);
    text_->setFocus();
}

void FormHelp::ShowPage(const std::string& page) {
    if (!page.empty()) {
        text_->ShowPage(ToQString(page));
    }
}

void FormHelp::ShowScreen(const BoardColors& colors) {
    text_->SetColors(colors);
}

void FormHelp::keyPressEvent(QKeyEvent* event) {
    const bool isSearching = search_->hasFocus();
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape && !search_->text().isEmpty()) {
        search_->clear();
        text_->setFocus();
    } else if (isSearching && isEnter) {
        SearchOn(event->modifiers().testFlag(Qt::ShiftModifier) ? Way::Backward : Way::Forward);
    } else if (event->key() == Qt::Key_F1) {
        text_->ShowPage(ToQString(kHelpHome));
    } else {
        FormWindow::keyPressEvent(event);
    }
}

// The contents stand above the page where there is no room beside it.
void FormHelp::resizeEvent(QResizeEvent* event) {
    FormWindow::resizeEvent(event);
    const int character = fontMetrics().averageCharWidth();
    const bool isNarrow = width() < (kContentsCharacters + kPageCharacters) * character;
    const Qt::Orientation wanted = isNarrow ? Qt::Vertical : Qt::Horizontal;
    if (sides_->orientation() != wanted || event->oldSize().isEmpty()) {
        sides_->setOrientation(wanted);
        const int contents = isNarrow ? height() / 4 : kContentsCharacters * character;
        sides_->setSizes({contents, (isNarrow ? height() : width()) - contents});
    }
}

QWidget* FormHelp::MakeTop() {
    auto* top = new QWidget(this);
    back_ = MakeButton(u"CommandBack"_s, u"&Back"_s, u"The page before (Alt+Left)"_s, top);
    forward_ = MakeButton(u"CommandForward"_s, u"&Forward"_s,
                          u"The page that Back came from (Alt+Right)"_s, top);
    auto* home = MakeButton(u"CommandHome"_s, u"&Welcome"_s, u"The first page (Alt+Home)"_s, top);
    back_->setEnabled(false);
    forward_->setEnabled(false);
    connect(back_, &QPushButton::clicked, text_, &QTextBrowser::backward);
    connect(forward_, &QPushButton::clicked, text_, &QTextBrowser::forward);
    connect(home, &QPushButton::clicked, this, [this] { ShowPage(std::string(kHelpHome)); });
    search_->setObjectName(u"TextSearch"_s);
    search_->setAccessibleName(u"Search the help"_s);
    search_->setPlaceholderText(u"Search the help"_s);
    search_->setToolTip(u"Ctrl+F; Enter goes on to the next place"_s);
    search_->setClearButtonEnabled(true);
    connect(search_, &QLineEdit::textChanged, this, [this] { Search(); });
    found_->setObjectName(u"LabelFound"_s);
    found_->setTextFormat(Qt::PlainText);
    found_->hide();
    auto* line = new QHBoxLayout(top);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(kGap);
    for (QPushButton* button : {back_, forward_, home}) {
        line->addWidget(button);
    }
    line->addStretch(1);
    line->addWidget(found_);
    line->addWidget(search_, 2);
    return top;
}

void FormHelp::MakeContents() {
    contents_->setObjectName(u"Contents"_s);
    contents_->setAccessibleName(u"Contents"_s);
    contents_->setHeaderHidden(true);
    contents_->setFrameShape(QFrame::NoFrame);
    contents_->setIndentation(fontMetrics().height());
    contents_->setUniformRowHeights(true);
    const QSize row(0, static_cast<int>(kRowHeight * fontMetrics().height()));
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    QTreeWidgetItem* chapter = nullptr;
    for (std::size_t page = 0; page < pages_.size(); ++page) {
        const QString name = ToQString(pages_[page].chapter);
        if (chapter == nullptr || chapter->text(0) != name) {
            chapter = new QTreeWidgetItem(contents_, {name});
            chapter->setFlags(Qt::ItemIsEnabled);
            chapter->setExpanded(true);
            chapter->setFont(0, bold);
            chapter->setSizeHint(0, row);
        }
        auto* entry = new QTreeWidgetItem(chapter, {ToQString(pages_[page].title)});
        entry->setData(0, kPageRole, ToQString(pages_[page].file));
        entries_.push_back(entry);
    }
    connect(contents_, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem* entry) { ShowEntry(entry); });
}

void FormHelp::MakeMenus() {
    menuBar()->setAccessibleName(u"Menu"_s);
    const auto add = [this](QMenu* menu, const QString& caption, const char* key,
                            const auto& handler) {
        return menu->addAction(caption, QKeySequence(QLatin1StringView(key)), this, handler);
    };
    QMenu* window = menuBar()->addMenu(u"&Window"_s);
    add(window, u"&Close Window"_s, "Ctrl+W", [this] { close(); });
    QMenu* edit = menuBar()->addMenu(u"&Edit"_s);
    QAction* copy = add(edit, u"&Copy"_s, "Ctrl+C", [this] { text_->copy(); });
    copy->setEnabled(false);
    connect(text_, &QTextEdit::copyAvailable, copy, &QAction::setEnabled);
    add(edit, u"&Search..."_s, "Ctrl+F", [this] {
        search_->setFocus();
        search_->selectAll();
    });
    add(edit, u"&Next Place"_s, "F3", [this] { SearchOn(Way::Forward); });
    add(edit, u"&Previous Place"_s, "Shift+F3", [this] { SearchOn(Way::Backward); });
    QMenu* go = menuBar()->addMenu(u"&Go"_s);
    add(go, u"&Back"_s, "Alt+Left", [this] { text_->backward(); });
    add(go, u"&Forward"_s, "Alt+Right", [this] { text_->forward(); });
    add(go, u"&Welcome"_s, "Alt+Home", [this] { ShowPage(std::string(kHelpHome)); });
    QMenu* view = menuBar()->addMenu(u"&View"_s);
    QAction* larger = add(view, u"&Larger"_s, "Ctrl++", [this] { text_->Zoom(1); });
    // Where the plus needs Shift, the key alone will do.
    larger->setShortcuts({QKeySequence(u"Ctrl++"_s), QKeySequence(u"Ctrl+="_s)});
    add(view, u"&Smaller"_s, "Ctrl+-", [this] { text_->Zoom(-1); });
    add(view, u"&Normal Size"_s, "Ctrl+0", [this] { text_->Zoom(0); });
}

void FormHelp::FollowPage() {
    const QString page = text_->Page();
    for (std::size_t index = 0; index < pages_.size(); ++index) {
        if (ToQString(pages_[index].file) != page) {
            continue;
        }
        const QSignalBlocker quiet(contents_);
        contents_->setCurrentItem(entries_[index]);
        contents_->scrollToItem(entries_[index]);
        setWindowTitle(ToQString(pages_[index].title) + u" - Help"_s);
    }
    MarkWords();
}

// Where only some of the words are on the page, it is none of those that were found.
void FormHelp::MarkWords() {
    const QStringList words = Words();
    for (std::size_t page = 0; page < pages_.size(); ++page) {
        if (entries_[page] == contents_->currentItem() && !words.isEmpty() &&
            index_.HasWords(page, words)) {
            text_->MarkWords(words);
            return;
        }
    }
    text_->MarkWords({});
}

void FormHelp::Search() {
    const QStringList words = Words();
    int found = 0;
    for (std::size_t page = 0; page < pages_.size(); ++page) {
        const bool isFound = words.isEmpty() || index_.HasWords(page, words);
        entries_[page]->setHidden(!isFound);
        found += isFound ? 1 : 0;
    }
    for (int index = 0; index < contents_->topLevelItemCount(); ++index) {
        QTreeWidgetItem* chapter = contents_->topLevelItem(index);
        bool isEmpty = true;
        for (int child = 0; child < chapter->childCount(); ++child) {
            isEmpty = isEmpty && chapter->child(child)->isHidden();
        }
        chapter->setHidden(isEmpty);
    }
    found_->setText(words.isEmpty() ? QString()
                    : found == 0    ? u"Not found"_s
                    : found == 1    ? u"1 page"_s
                                    : u"%1 pages"_s.arg(found));
    found_->setVisible(!words.isEmpty());
    MarkWords();
}

// Past the last place on the page, the first on the next page that has the words, and round. From
// another page, the one that has them in its title.
void FormHelp::SearchOn(Way way) {
    if (text_->ShowNextPlace(way)) {
        return;
    }
    std::vector<QTreeWidgetItem*> found;
    std::ranges::copy_if(entries_, std::back_inserter(found),
                         [](const QTreeWidgetItem* entry) { return !entry->isHidden(); });
    if (found.empty()) {
        return;
    }
    const auto now = std::ranges::find(found, contents_->currentItem());
    if (now == found.end()) {
        const auto best = std::ranges::find_if(
            found, [this](const auto* entry) { return HasWords(entry->text(0), Words()); });
        contents_->setCurrentItem(best == found.end() ? found.front() : *best);
        return;
    }
    const std::size_t step = way == Way::Forward ? 1 : found.size() - 1;
    const std::size_t next = static_cast<std::size_t>(now - found.begin()) + step;
    contents_->setCurrentItem(found[next % found.size()]);
}

void FormHelp::ShowEntry(const QTreeWidgetItem* entry) {
    const QString page = entry == nullptr ? QString() : entry->data(0, kPageRole).toString();
    if (!page.isEmpty() && page != text_->Page()) {
        text_->ShowPage(page);
    }
}

QStringList FormHelp::Words() const {
    return search_->text().split(u' ', Qt::SkipEmptyParts);
}

}  // namespace vemo
