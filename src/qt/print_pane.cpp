// The preview of a printout, and the buttons that print it.
#include "qt/print_pane.h"

#include <algorithm>

#include <QBoxLayout>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>

#include "qt/ask_printer.h"
#include "qt/message_box.h"
#include "qt/page_view.h"
#include "qt/print_run.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPad = 16;
constexpr int kGap = 8;
constexpr int kSlice = 15;  // milliseconds of painting before the window has its turn
constexpr int kZooms[] = {50, 75, 100, 150, 200, 300};

}  // namespace

PrintPane::PrintPane(Game& game, QWidget* parent)
    : QWidget(parent), game_(game), view_(new PageView(this)) {
    view_->setObjectName(u"PageView"_s);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kPad, kPad, kPad, kPad);
    column->setSpacing(kGap);
    column->addLayout(MakeTop());
    column->addWidget(view_, 1);
    column->addLayout(MakeFoot());
    view_->onTurned = [this] { ShowState(); };
    connect(&timer_, &QTimer::timeout, this, [this] { GoOn(); });
    AddKeys();
    ShowState();
}

PrintPane::~PrintPane() = default;

QLayout* PrintPane::MakeTop() {
    previous_ = MakeButton(u"CommandPrevious"_s, u"P&revious"_s, nullptr);
    previous_->setToolTip(u"The page before (Page Up)"_s);
    connect(previous_, &QPushButton::clicked, this, [this] { Turn(-1); });
    next_ = MakeButton(u"CommandNext"_s, u"&Next"_s, nullptr);
    next_->setToolTip(u"The next page (Page Down)"_s);
    connect(next_, &QPushButton::clicked, this, [this] { Turn(1); });
    page_ = new QSpinBox(this);
    page_->setObjectName(u"SpinPage"_s);
    page_->setAccessibleName(u"Page"_s);
    page_->setPrefix(u"Page "_s);
    connect(page_, &QSpinBox::valueChanged, this, [this](int page) { view_->TurnTo(page - 1); });
    zoom_ = new QComboBox(this);
    zoom_->setObjectName(u"ComboZoom"_s);
    zoom_->setAccessibleName(u"Zoom"_s);
    zoom_->setToolTip(u"Ctrl++ nearer, Ctrl+- farther, Ctrl+0 whole page"_s);
    zoom_->addItem(u"Whole page"_s, PageView::kWholePage);
    zoom_->addItem(u"Page width"_s, PageView::kPageWidth);
    for (int percent : kZooms) {
        zoom_->addItem(u"%1 %"_s.arg(percent), percent);
    }
    connect(zoom_, &QComboBox::currentIndexChanged, this,
            [this] { view_->SetZoom(zoom_->currentData().toInt()); });
    auto* line = new QHBoxLayout;
    line->setSpacing(kGap);
    for (QWidget* widget : {static_cast<QWidget*>(previous_), static_cast<QWidget*>(page_),
                            static_cast<QWidget*>(next_)}) {
        line->addWidget(widget);
    }
    line->addStretch(1);
    line->addWidget(zoom_);
    return line;
}

QLayout* PrintPane::MakeFoot() {
    message_ = new QLabel(this);
    message_->setObjectName(u"LabelPrintMessage"_s);
    message_->setTextFormat(Qt::PlainText);
    message_->setWordWrap(true);
    progress_ = new QProgressBar(this);
    progress_->setObjectName(u"ProgressPrint"_s);
    progress_->setAccessibleName(u"Pages painted"_s);
    progress_->setTextVisible(false);
    // The buttons stay where they are while it is hidden.
    QSizePolicy policy = progress_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(policy);
    print_ = MakeButton(u"CommandPrint"_s, u"&Print..."_s, &PrintPane::Print);
    print_->setDefault(true);
    save_ = MakeButton(u"CommandSavePdf"_s, u"&Save as PDF..."_s, &PrintPane::SavePdf);
    stop_ = MakeButton(u"CommandStopPrint"_s, u"S&top"_s, &PrintPane::Stop);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(kGap);
    for (QPushButton* button : {print_, save_, stop_}) {
        buttons->addWidget(button);
    }
    buttons->addWidget(progress_, 1);
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addWidget(message_);
    column->addLayout(buttons);
    return column;
}

QPushButton* PrintPane::MakeButton(const QString& name, const QString& text,
                                   void (PrintPane::*handler)()) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    if (handler != nullptr) {
        connect(button, &QPushButton::clicked, this, handler);
    }
    return button;
}

void PrintPane::AddKeys() {
    const auto add = [this](const QKeySequence& keys, auto handler) {
        auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, handler);
    };
    add(u"Ctrl++"_s, [this] { ZoomBy(1); });
    add(u"Ctrl+="_s, [this] { ZoomBy(1); });
    add(u"Ctrl+-"_s, [this] { ZoomBy(-1); });
    add(u"Ctrl+0"_s, [this] { zoom_->setCurrentIndex(0); });
    add(u"Ctrl+P"_s, [this] { print_->click(); });
    add(u"Ctrl+S"_s, [this] { save_->click(); });
}

void PrintPane::ShowPrintout(const Printout& printout) {
    printout_ = printout;
    message_->clear();
    view_->ShowPrintout(printout);
}

void PrintPane::ShowNote(const QString& note, NoteKind kind) {
    if (run_ == nullptr) {
        Tell(note, kind);
    }
}

void PrintPane::ShowIdle(bool isIdle) {
    isIdle_ = isIdle;
    ShowState();
}

void PrintPane::Turn(int pages) {
    view_->TurnTo(view_->PageNumber() + pages);
}

// To the next larger or smaller of the percents.
void PrintPane::ZoomBy(int steps) {
    const double percent = view_->Percent();
    const auto* end = std::end(kZooms);
    const auto* found = steps > 0 ? std::upper_bound(kZooms, end, percent + 1)
                                  : std::lower_bound(kZooms, end, percent - 1);
    if (steps < 0 && found == kZooms) {
        return;
    }
    found -= steps < 0 ? 1 : 0;
    if (found != end) {
        zoom_->setCurrentIndex(zoom_->findData(*found));
    }
}

void PrintPane::Print() {
    if (const QString reason = WhyNoPrinter(); !reason.isEmpty()) {
        Tell(reason, NoteKind::Warning);
        return;
    }
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageLayout(WholePaper(printout_.paper));
    if (AskPrinter(*printer, printout_.name, printout_.pages, this)) {
        pdfFile_.clear();
        Begin(std::make_unique<PrintRun>(printout_, std::move(printer)));
    }
}

void PrintPane::SavePdf() {
    if (const auto file = game_.AskPdfFile(printout_.name.toStdString())) {
        pdfFile_ = *file;
        Begin(std::make_unique<PrintRun>(printout_));
    }
}

void PrintPane::Begin(std::unique_ptr<PrintRun> run) {
    run_ = std::move(run);
    timer_.start();
    ShowState();
    stop_->setFocus();
}

void PrintPane::GoOn() {
    QElapsedTimer time;
    time.start();
    while (!run_->IsOver() && time.elapsed() < kSlice) {
        if (!run_->Step()) {
            const QString where = run_->Where();
            Stop();
            Tell(u"It cannot be printed there: %1"_s.arg(where), NoteKind::Warning);
            return;
        }
    }
    if (run_->IsOver()) {
        Finish();
    } else {
        ShowState();
    }
}

void PrintPane::Finish() {
    timer_.stop();
    const bool isGood = run_->End();
    const std::unique_ptr<PrintRun> run = std::move(run_);
    ShowState();
    if (!isGood) {
        Tell(u"It cannot be printed there: %1"_s.arg(run->Where()), NoteKind::Warning);
    } else if (pdfFile_.empty()) {
        Tell(u"Pages printed: %1. %2"_s.arg(run->Done()).arg(run->Where()), NoteKind::Plain);
    } else if (game_.StorePdf(pdfFile_, run->Pdf())) {
        Tell(u"Saved: %1"_s.arg(ToQString(Utf8(pdfFile_))), NoteKind::Plain);
    }
    view_->setFocus();
}

void PrintPane::Stop() {
    if (run_ == nullptr) {
        return;
    }
    timer_.stop();
    run_.reset();
    ShowState();
    Tell(pdfFile_.empty() ? u"Stopped."_s : u"Stopped: nothing was saved."_s, NoteKind::Plain);
    view_->setFocus();
}

void PrintPane::Tell(const QString& message, NoteKind kind) {
    message_->setText(message);
    message_->setForegroundRole(kind == NoteKind::Warning ? QPalette::BrightText
                                                          : QPalette::WindowText);
}

void PrintPane::ShowState() {
    const int pages = printout_.pages;
    const bool isRunning = run_ != nullptr;
    const bool canPrint = pages > 0 && isIdle_ && !isRunning;
    {
        const QSignalBlocker blocker(page_);
        page_->setRange(std::min(1, pages), pages);
        page_->setSuffix(u" of %1"_s.arg(pages));
        page_->setValue(view_->PageNumber() + 1);
    }
    page_->setEnabled(pages > 1);
    previous_->setEnabled(view_->PageNumber() > 0);
    next_->setEnabled(view_->PageNumber() + 1 < pages);
    stop_->setVisible(isRunning);
    progress_->setVisible(isRunning);
    print_->setEnabled(canPrint);
    save_->setEnabled(canPrint);
    if (isRunning) {
        progress_->setRange(0, run_->Total());
        progress_->setValue(run_->Done());
        Tell(u"Page %1 of %2..."_s.arg(run_->Done()).arg(run_->Total()), NoteKind::Plain);
    }
}

}  // namespace vemo
