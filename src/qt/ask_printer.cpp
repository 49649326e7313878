// The question for a printer.
#include "qt/ask_printer.h"

#include <QPrintDialog>
#include <QPrinter>

namespace vemo {

using namespace Qt::StringLiterals;

bool AskPrinter(QPrinter& printer, const QString& document, int pages, QWidget* parent) {
    printer.setDocName(document);
    QPrintDialog dialog(&printer, parent);
    dialog.setMinMax(1, pages);
    dialog.setWindowTitle(u"Print - %1"_s.arg(document));
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace vemo
