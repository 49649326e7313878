// The question for a printer, or for a PDF file.
#pragma once

class QPrinter;
class QString;
class QWidget;

namespace vemo {

// False where the player cancels. `document` names what is printed, which has so many pages.
bool AskPrinter(QPrinter& printer, const QString& document, int pages, QWidget* parent);

}  // namespace vemo
