// Puts a printout on paper or into a file, page by page, so that its window stays alive meanwhile.
#pragma once

#include <memory>

#include <QBuffer>
#include <QPainter>

#include "platform/files.h"
#include "qt/printout.h"

class QPagedPaintDevice;
class QPrinter;

namespace vemo {

class PrintRun {
  public:
    // To a printer that the player has chosen: of its page range only those pages.
    PrintRun(Printout printout, std::unique_ptr<QPrinter> printer);
    // To a PDF file, which is kept in memory until it is whole.
    explicit PrintRun(Printout printout);
    ~PrintRun();
    PrintRun(const PrintRun&) = delete;
    PrintRun& operator=(const PrintRun&) = delete;

    // Paints the next page. False where the device refuses it: the run is over then.
    bool Step();
    bool IsOver() const { return next_ == end_; }
    int Done() const { return next_ - first_; }
    int Total() const { return end_ - first_; }
    // Ends it before its time: what has not left for the printer does not.
    void Stop();
    // Ends it when all pages are painted. False where the device fails at last.
    bool End();

    // The printer, or the file that it writes; empty for a PDF file of our own.
    QString Where() const;
    Bytes Pdf() const;

  private:
    Printout printout_;
    QBuffer pdf_;
    std::unique_ptr<QPagedPaintDevice> device_;
    QPrinter* printer_ = nullptr;  // the device, where it is one
    QPainter painter_;
    int first_ = 0;  // the pages from 0, the end is not among them
    int next_ = 0;
    int end_ = 0;
};

// The whole printout as a PDF file at once; empty where it cannot be made.
Bytes PdfOf(const Printout& printout);

}  // namespace vemo
