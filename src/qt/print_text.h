// Prints a plain text over as many pages as it needs.
#pragma once

class QPrinter;
class QString;

namespace vemo {

// In black on white, within the printer's margins; the title and the page's number stand below each
// page. Of the printer's page range only those pages are printed. Answers how many pages the whole
// text has, 0 where the printer cannot be opened.
int PrintText(QPrinter& printer, const QString& title, const QString& text);

}  // namespace vemo
