// What the game asks of its window.
#include "qt/window_view.h"

#include <QApplication>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include "qt/main_window.h"
#include "qt/message_box.h"
#include "qt/screen_text.h"

namespace vemo {

namespace {

constexpr int kYieldMilliseconds = 15;

}  // namespace

Answer WindowView::ShowBox(const Box& box) {
    ShowWindow();
    return ShowMessage(box, Asking());
}

std::optional<std::string> WindowView::Ask(const Question& question) {
    ShowWindow();
    bool isAnswered = false;
    const QString answer =
        QInputDialog::getText(Asking(), ToQString(question.title), ToQString(question.prompt),
                              QLineEdit::Normal, ToQString(question.suggestion), &isAnswered);
    if (!isAnswered) {
        return std::nullopt;
    }
    return answer.toStdString();
}

// A name without an extension gets that of the suggested one.
std::optional<std::filesystem::path> WindowView::AskSaveFile(const SaveQuestion& question) {
    ShowWindow();
    const QString fileName = ToQString(question.fileName);
    QFileDialog dialog(Asking(), ToQString(question.title),
                       QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                       ToQString(question.kind));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QFileInfo(fileName).suffix());
    dialog.selectFile(fileName);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return dialog.selectedFiles().constFirst().toStdU16String();
}

std::vector<std::filesystem::path> WindowView::AskOpenFiles(const OpenQuestion& question) {
    ShowWindow();
    QFileDialog dialog(Asking(), ToQString(question.title),
                       QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                       ToQString(question.kind));
    dialog.setFileMode(QFileDialog::ExistingFiles);
    std::vector<std::filesystem::path> paths;
    if (dialog.exec() == QDialog::Accepted) {
        for (const QString& file : dialog.selectedFiles()) {
            paths.emplace_back(file.toStdU16String());
        }
    }
    return paths;
}

void WindowView::OpenForm(Form form, Keyboard keyboard) {
    window_->OpenForm(form, keyboard);
}

void WindowView::CloseForm(Form form) {
    window_->CloseForm(form);
}

void WindowView::GiveWay(Form form) {
    window_->GiveWay(form);
}

Bytes WindowView::HintPicture() {
    return window_->HintPicture();
}

// Long functions yield before every search, far more often than anybody can see or click.
void WindowView::Yield() {
    if (!sinceYield_.isValid() || sinceYield_.hasExpired(kYieldMilliseconds)) {
        QCoreApplication::processEvents();
        sinceYield_.start();
    }
}

void WindowView::Pause(int milliseconds, const std::function<bool()>& isOver) {
    QEventLoop loop;
    bool hasRunOut = false;
    // The timer's event ends the last wait.
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, [&hasRunOut] { hasRunOut = true; });
    while (!hasRunOut && !isOver()) {
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void WindowView::Refresh() {
    if (window_ != nullptr) {
        window_->ShowScreen();
    }
}

void WindowView::Beep() {
    QApplication::beep();
}

void WindowView::OpenLink(const std::string& address) {
    QDesktopServices::openUrl(QUrl(ToQString(address)));
}

void WindowView::Close() {
    isClosed_ = true;
    if (window_ != nullptr) {
        window_->CloseUnasked();
    }
}

QWidget* WindowView::Asking() const {
    QWidget* active = QApplication::activeWindow();
    return active != nullptr ? active : window_;
}

void WindowView::ShowWindow() {
    if (!window_->isVisible()) {
        window_->show();
    }
}

}  // namespace vemo
