// The window of the solve log.
#include "qt/form_log.h"

#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QScrollBar>

#include "qt/print_run.h"
#include "qt/print_support.h"
#include "qt/print_text.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class FormLogTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        fixture_ = std::make_unique<WindowFixture>();
        fixture_->OpenFirstEasy();
    }
    void cleanup() { fixture_.reset(); }

    void AnEmptyLogSaysWhatToDo() {
        Open();
        QVERIFY(Text().placeholderText().contains(u"Autosolve"_s));
        for (const char* caption : {"Save As...", "Print...", "Copy", "Select All", "Find..."}) {
            QVERIFY2(!Entry(QString::fromLatin1(caption))->isEnabled(), caption);
        }
        Key(Qt::Key_W, Qt::ControlModifier);
        QVERIFY(!Log().isVisible());
        Open();
        QVERIFY(Log().isVisible());
    }

    void AutosolveWritesBeforeTheReadersEyes() {
        Open();
        bool wasSeenGrowing = false;
        QTimer watcher;
        QObject::connect(&watcher, &QTimer::timeout, &watcher, [&] {
            if (!fixture_->game.CurrentSession().IsBusy() || Shown().count(u'\n') < 3) {
                return;
            }
            wasSeenGrowing = true;
            QVERIFY(Written().startsWith(Shown()));
            QVERIFY(!Entry(u"Save As..."_s)->isEnabled());
            QVERIFY(!Entry(u"Print..."_s)->isEnabled());
            fixture_->Find<QPushButton>("CommandStop").click();
        });
        watcher.start(20);
        fixture_->game.mnuSolveAutoSolve();
        watcher.stop();
        QVERIFY(wasSeenGrowing);
        QVERIFY(fixture_->game.CurrentSession().grid.EmptyCount() > 0);
        QVERIFY(Entry(u"Save As..."_s)->isEnabled());
        // What is written while the window is closed is there when it opens again.
        Log().close();
        Solve();
        Open();
        QVERIFY(Shown().endsWith(u"SUDOKU SOLVED\n"_s));
        QCOMPARE(Shown(), Written());
    }

    void AReaderInTheMidstStaysThere() {
        Open();
        QScrollBar& bar = *Text().verticalScrollBar();
        while (bar.maximum() < 5) {
            Solve();
        }
        QCOMPARE(bar.value(), bar.maximum());
        Solve();
        QCOMPARE(bar.value(), bar.maximum());
        bar.setValue(2);
        const int before = bar.maximum();
        Solve();
        QVERIFY(bar.maximum() > before);
        QCOMPARE(bar.value(), 2);
    }

    void IsCopiedAndSaved() {
        Solve();
        Open();
        Key(Qt::Key_A, Qt::ControlModifier);
        Key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), Written());
        const QString path = fixture_->data.filePath(u"mine"_s);
        QTimer::singleShot(100, &Log(), [&path] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            dialog->findChild<QLineEdit*>()->setText(path);
            QMetaObject::invokeMethod(dialog, "accept");
        });
        Key(Qt::Key_S, Qt::ControlModifier);
        QFile file(path + u".txt"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().toStdString(), fixture_->game.SolveLogText());
    }

    void ATextIsFoundFromEitherSide() {
        Solve();
        Solve();
        Open();
        Key(Qt::Key_F, Qt::ControlModifier);
        auto& wanted = fixture_->Find<QLineEdit>("TextFind");
        QVERIFY(wanted.hasFocus());
        QCOMPARE(wanted.grab().toImage().pixelColor(wanted.width() - 8, wanted.height() / 2),
                 wanted.palette().color(QPalette::Base));
        const auto selection = [this] { return Text().textCursor().selectionStart(); };
        const int first = static_cast<int>(Shown().indexOf(u"SOLVED"_s));
        const int second = static_cast<int>(Shown().lastIndexOf(u"SOLVED"_s));
        QVERIFY(first != second);
        QTest::keyClicks(&wanted, u"solved"_s);
        QCOMPARE(selection(), first);
        Key(Qt::Key_Return);
        QCOMPARE(selection(), second);
        Key(Qt::Key_Return);
        QCOMPARE(selection(), first);
        Key(Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(selection(), second);
        QTest::keyClicks(&wanted, u"?"_s);
        QCOMPARE(fixture_->Find<QLabel>("LabelFound").text(), u"Not found"_s);
        // Esc closes the line, then the window.
        Key(Qt::Key_Escape);
        QVERIFY(!fixture_->Find<QWidget>("FindBar").isVisible());
        QVERIFY(Log().isVisible());
        Key(Qt::Key_Escape);
        QVERIFY(!Log().isVisible());
        QVERIFY(fixture_->window.isVisible());
    }

    void APrintHasAsManyPagesAsItNeeds() {
        const QString line = u"Hidden Single 1 in box at cell A1\n"_s;
        const auto printed = [](const QString& text) {
            return TextPrintout(u"Solve log"_s, text, QPageSize(QPageSize::A4));
        };
        QCOMPARE(printed(line).pages, 1);
        const int pages = printed(line.repeated(1000)).pages;
        QVERIFY(pages > 9);
        // A line that is too wide goes on in the next.
        QVERIFY(printed(line.repeated(1000).remove(u'\n')).pages > 3);
    }

    void ThePagesAskedForArePrinted() {
        const QString path = fixture_->data.filePath(u"log.pdf"_s);
        QString text;
        for (int number = 1; number <= 1000; ++number) {
            text += u"line %1\n"_s.arg(number);
        }
        const Printout printout = TextPrintout(u"Solve log"_s, text, QPageSize(QPageSize::A4));
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFileName(path);
        printer->setPrintRange(QPrinter::PageRange);
        printer->setFromTo(2, 4);
        PrintRun run(printout, std::move(printer));
        while (!run.IsOver()) {
            QVERIFY(run.Step());
        }
        QVERIFY(run.End());
        VEMO_NEED_PRINTED_PAGES()
        QCOMPARE(PdfPages(path), 3);
        QVERIFY(PdfText(path).contains(u"Page 2 of %1"_s.arg(printout.pages)));
        QVERIFY(!PdfText(path).contains(u"line 1\n"_s));
    }

    void ItIsPrintedFromItsPreview() {
        VEMO_NEED_PRINTED_PAGES()
        Solve();
        Open();
        const QString path = fixture_->data.filePath(u"mine.pdf"_s);
        const QString said = PrintFromPreview([] { Key(Qt::Key_P, Qt::ControlModifier); }, path);
        QVERIFY(said.startsWith(u"Pages printed: "_s));
        QVERIFY(PdfText(path).contains(u"Solve log"_s));
    }

  private:
    QWidget& Log() const { return fixture_->Find<QWidget>("FormLog"); }
    QPlainTextEdit& Text() const { return fixture_->Find<QPlainTextEdit>("TextLog"); }
    QString Shown() const { return Text().toPlainText(); }
    QString Written() const {
        return QString::fromStdString(fixture_->game.SolveLogText()).remove(u'\r');
    }
    QAction* Entry(const QString& caption) const {
        for (QAction* action : Log().findChildren<QAction*>()) {
            if (action->text().remove(u'&') == caption) {
                return action;
            }
        }
        qFatal("the log has no such entry");
        return nullptr;
    }

    void Open() const {
        fixture_->ClickMenu(CommandId::SolveLog);
        QVERIFY(WindowFixture::WaitForActive(Log()));
    }

    // Autosolves, in no time.
    // The next puzzle; all but one of its cells are filled first.
    void Solve() const {
        Game& game = fixture_->game;
        game.mnuSudokuNext();
        const Digits& solution = fixture_->Solution();
        int left = 0;
        for (int cell = 0; cell < kCells; ++cell) {
            const auto index = static_cast<std::size_t>(cell);
            if (fixture_->Shown().cells[index].digit == 0 && ++left > 1) {
                game.GridMouseUp(cell, solution[index], MouseButton::Left, Released::Inside);
            }
        }
        game.mnuSolveAutoSolve();
    }

    static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::FormLogTest)

#include "form_log_test.moc"
