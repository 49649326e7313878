// Puts a printout on paper or into a file.
#include "qt/print_run.h"

#include <algorithm>
#include <utility>

#include <QPdfWriter>
#include <QPrinter>

namespace vemo {

using namespace Qt::StringLiterals;

PrintRun::PrintRun(Printout printout, std::unique_ptr<QPrinter> printer)
    : printout_(std::move(printout)), printer_(printer.get()), end_(printout_.pages) {
    if (printer_->printRange() == QPrinter::PageRange && printer_->fromPage() > 0) {
        first_ = std::min(printer_->fromPage() - 1, end_);
        end_ = printer_->toPage() == 0 ? end_ : std::clamp(printer_->toPage(), first_, end_);
    }
    next_ = first_;
    device_ = std::move(printer);
}

PrintRun::PrintRun(Printout printout) : printout_(std::move(printout)), end_(printout_.pages) {
    pdf_.open(QIODevice::WriteOnly);
    auto writer = std::make_unique<QPdfWriter>(&pdf_);
    writer->setResolution(static_cast<int>(kDotsPerInch));
    writer->setTitle(printout_.name);
    writer->setCreator(u"Vemo Sudoku 2"_s);
    writer->setPageLayout(WholePaper(printout_.paper));
    device_ = std::move(writer);
}

PrintRun::~PrintRun() {
    Stop();
}

bool PrintRun::Step() {
    const bool isReady = painter_.isActive() ? device_->newPage() : painter_.begin(device_.get());
    if (!isReady) {
        end_ = next_;
        return false;
    }
    painter_.save();
    const double scale = painter_.device()->logicalDpiX() / kDotsPerInch;
    painter_.scale(scale, scale);
    printout_.paint(painter_, next_);
    painter_.restore();
    ++next_;
    return true;
}

void PrintRun::Stop() {
    end_ = next_;
    if (!painter_.isActive()) {
        return;
    }
    if (printer_ != nullptr) {
        printer_->abort();
    }
    painter_.end();
}

bool PrintRun::End() {
    return painter_.end() && (printer_ == nullptr || printer_->printerState() != QPrinter::Error);
}

QString PrintRun::Where() const {
    if (printer_ == nullptr) {
        return {};
    }
    return printer_->outputFileName().isEmpty() ? printer_->printerName()
                                                : printer_->outputFileName();
}

Bytes PrintRun::Pdf() const {
    return {pdf_.data().begin(), pdf_.data().end()};
}

Bytes PdfOf(const Printout& printout) {
    PrintRun run(printout);
    while (!run.IsOver()) {
        if (!run.Step()) {
            return {};
        }
    }
    return run.End() ? run.Pdf() : Bytes();
}

}  // namespace vemo
