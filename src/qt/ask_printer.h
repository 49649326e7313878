// The question for a printer, or for a PDF file.
#pragma once

#include <QString>

class QPrinter;
class QWidget;

namespace vemo {

// Why no printer can be asked for here, as a sentence; empty where one can.
QString WhyNoPrinter();

// False where the player cancels. `document` names what is printed, which has so many pages.
bool AskPrinter(QPrinter& printer, const QString& document, int pages, QWidget* parent);

}  // namespace vemo
