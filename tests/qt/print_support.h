// Answers for the dialogs of printing, and what stands in a PDF file.
#pragma once

#include <functional>

#include <QApplication>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "qt/print_preview.h"

namespace vemo::test {

// Does `deed` as soon as a modal dialog of this kind is there.
template <typename Dialog>
void WhenAsked(const std::function<void(Dialog&)>& deed) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, qApp, [timer, deed] {
        if (auto* dialog = dynamic_cast<Dialog*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            deed(*dialog);
        }
    });
    timer->start(5);
}

// The next question for a printer is answered with a file.
inline void ChoosePrinterFile(const QString& path, QDialog::DialogCode code) {
    WhenAsked<QPrintDialog>([path, code](QPrintDialog& dialog) {
        dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
        dialog.printer()->setOutputFileName(path);
        dialog.done(code);
    });
}

// Opens a preview, prints from it, and closes it; answers what it said in the end.
inline QString PrintFromPreview(const std::function<void()>& open, const QString& path,
                                QDialog::DialogCode code = QDialog::Accepted) {
    QString said;
    ChoosePrinterFile(path, code);
    WhenAsked<PrintPreview>([&said, code](PrintPreview& preview) {
        auto* print = preview.findChild<QPushButton*>(QStringLiteral("CommandPrint"));
        auto* message = preview.findChild<QLabel*>(QStringLiteral("LabelPrintMessage"));
        print->click();
        if (code == QDialog::Accepted) {
            QTRY_VERIFY(print->isEnabled() && !message->text().isEmpty());
        }
        said = message->text();
        preview.reject();
    });
    open();
    return said;
}

// Windows asks for its printers itself, and the tools that read printed pages back are not there.
#define VEMO_NEED_PRINTED_PAGES()                              \
    if (QSysInfo::kernelType() == QLatin1String("winnt")) {    \
        QSKIP("the pages cannot be read back on this system"); \
    }

// What one of the PDF tools writes about a file.
inline QString ToolOutput(const char* tool, const QStringList& arguments) {
    QProcess process;
    process.start(QLatin1String(tool), arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        qFatal("%s does not read the file", tool);
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}
inline QString PdfText(const QString& path) {
    return ToolOutput("pdftotext", {path, QStringLiteral("-")});
}
inline int PdfPages(const QString& path) {
    const QString info = ToolOutput("pdfinfo", {path});
    return info.section(QStringLiteral("Pages:"), 1).section(u'\n', 0, 0).trimmed().toInt();
}

}  // namespace vemo::test
