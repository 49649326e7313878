// The window "Print", by mouse and by keyboard, and printing from the command line.
#include "qt/form_print.h"

#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>

#include "qt/page_view.h"
#include "qt/print_command.h"
#include "qt/print_support.h"
#include "qt/window_checks.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class FormPrintTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { fixture_ = std::make_unique<WindowFixture>(); }
    void cleanup() { fixture_.reset(); }

    void TheSudokuInPlayIsSeenAndSaved();
    void ARunIsOrderedWithTheKeyboardAndLeafedThrough();
    void ThePageIsSeenAsLargeAsWanted();
    void ALongRunIsWatchedAndStopped();
    void WhatCannotBePrintedIsSaid();
    void ThePagesAreInkOnWhitePaper();
    void TheCommandLineWritesTheSamePages();
    void TheCommandLineLosesNothing();
    void EverythingCanBeReachedInASmallWindow_data();
    void EverythingCanBeReachedInASmallWindow();

  private:
    void Open() {
        fixture_->Key(Qt::Key_P, Qt::ControlModifier);
        form_ = &fixture_->Find<FormPrint>("FormPrint");
        // Qt counts it as active as soon as its main window is.
        QTRY_COMPARE(QApplication::activeWindow(), form_);
    }
    template <typename Widget>
    Widget& Find(const char* name) const {
        auto* widget = form_->findChild<Widget*>(QLatin1String(name));
        if (widget == nullptr) {
            qFatal("there is no %s", name);
        }
        return *widget;
    }
    QPushButton& Button(const char* name) const { return Find<QPushButton>(name); }
    PageView& View() const { return Find<PageView>("PageView"); }
    QString Said() const { return Find<QLabel>("LabelPrintMessage").text(); }
    void Choose(const char* combo, int index) const {
        Find<QComboBox>(combo).setCurrentIndex(index);
    }
    void OrderRun(int level, int first, int last) const {
        Find<QRadioButton>("OptionRun").click();
        Choose("ComboLevel", level - 1);
        Find<QSpinBox>("SpinLast").setValue(last);
        Find<QSpinBox>("SpinFirst").setValue(first);
    }
    QString In(const QString& name) const { return fixture_->data.filePath(name); }
    // Presses Ctrl+S and answers with a file.
    void SaveAs(const QString& path) const {
        WhenAsked<QFileDialog>([path](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>()->setText(path);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        QTest::keyClick(form_, Qt::Key_S, Qt::ControlModifier);
    }
    PrintOutcome PrintByCommand(const QStringList& given) {
        const Arguments arguments = ReadArguments(given);
        return arguments.error.isEmpty() ? PrintToFile(arguments.print, fixture_->settings,
                                                       fixture_->folders, fixture_->files)
                                         : PrintOutcome{0, {}, arguments.error};
    }

    std::unique_ptr<WindowFixture> fixture_;
    FormPrint* form_ = nullptr;
};

void FormPrintTest::TheSudokuInPlayIsSeenAndSaved() {
    fixture_->OpenFirstEasy();
    Open();
    QCOMPARE(form_->windowTitle(), u"Print - Easy 1"_s);
    QVERIFY(Find<QRadioButton>("OptionCurrent").isChecked());
    QVERIFY(!Find<QComboBox>("ComboLevel").isEnabled());
    QVERIFY(!Find<QRadioButton>("OptionSelection").isVisible());
    const QString path = In(u"mine"_s);
    SaveAs(path);
    QTRY_COMPARE(Said(), u"Saved: %1.pdf"_s.arg(QDir::toNativeSeparators(path)));
    QTest::keyClick(form_, Qt::Key_Escape);
    QVERIFY(!form_->isVisible());
    VEMO_NEED_PRINTED_PAGES()
    QCOMPARE(PdfPages(path + u".pdf"_s), 1);
    QVERIFY(PdfText(path + u".pdf"_s).contains(u"Easy 1"_s));
}

void FormPrintTest::ARunIsOrderedWithTheKeyboardAndLeafedThrough() {
    fixture_->OpenFirstEasy();
    Open();
    Find<QRadioButton>("OptionRun").setFocus();
    QTest::keyClick(form_->focusWidget(), Qt::Key_Space);
    auto& last = Find<QSpinBox>("SpinLast");
    last.setFocus();
    last.selectAll();
    QTest::keyClicks(&last, u"9"_s);
    Choose("ComboPerPage", 1);
    Choose("ComboSolutions", static_cast<int>(SolutionPlace::LastPages));
    QCOMPARE(form_->windowTitle(), u"Print - Easy 1-9"_s);
    QCOMPARE(Find<QSpinBox>("SpinPage").text(), u"Page 1 of 6"_s);
    QVERIFY(!Button("CommandPrevious").isEnabled());

    View().setFocus();
    QTest::keyClick(&View(), Qt::Key_PageDown);
    QCOMPARE(View().PageNumber(), 1);
    QTest::keyClick(&View(), Qt::Key_End);
    QCOMPARE(Find<QSpinBox>("SpinPage").value(), 6);
    QVERIFY(!Button("CommandNext").isEnabled());
    Button("CommandPrevious").click();
    QCOMPARE(View().accessibleDescription(), u"Page 5 of 6"_s);
    QTest::keyClick(&View(), Qt::Key_Home);
    Find<QSpinBox>("SpinPage").setValue(3);
    QCOMPARE(View().PageNumber(), 2);
    // A shorter order ends earlier.
    Choose("ComboPerPage", 2);
    QCOMPARE(Find<QSpinBox>("SpinPage").text(), u"Page 3 of 4"_s);
    Choose("ComboContent", static_cast<int>(PrintContent::Solution));
    QVERIFY(!Find<QComboBox>("ComboSolutions").isEnabled());
    QCOMPARE(Find<QSpinBox>("SpinPage").text(), u"Page 3 of 3"_s);
}

void FormPrintTest::ThePageIsSeenAsLargeAsWanted() {
    fixture_->OpenFirstEasy();
    Open();
    QScrollBar& bar = *View().verticalScrollBar();
    QCOMPARE(bar.maximum(), 0);
    const double whole = View().Percent();
    QTest::keyClick(form_, Qt::Key_Plus, Qt::ControlModifier);
    QVERIFY(View().Percent() > whole);
    Choose("ComboZoom", Find<QComboBox>("ComboZoom").findData(200));
    QCOMPARE(View().Percent(), 200.0);
    QVERIFY(bar.maximum() > 0);
    // Within the page first.
    View().setFocus();
    OrderRun(1, 1, 8);
    QTest::keyClick(&View(), Qt::Key_PageDown);
    QVERIFY(bar.value() > 0);
    QCOMPARE(View().PageNumber(), 0);
    bar.setValue(bar.maximum());
    QTest::keyClick(&View(), Qt::Key_PageDown);
    QCOMPARE(View().PageNumber(), 1);
    QCOMPARE(bar.value(), 0);
    QTest::keyClick(form_, Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(View().Percent(), whole);
}

void FormPrintTest::ALongRunIsWatchedAndStopped() {
    Open();
    OrderRun(1, 1, 1000);
    const QString path = In(u"long.pdf"_s);
    QFile old(path);
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    fixture_->boxes.Expect({u"Save as PDF"_s,
                            u"long.pdf already exists.\nDo you want to replace it?"_s,
                            QMessageBox::Yes});
    SaveAs(path);
    QTRY_VERIFY(Find<QProgressBar>("ProgressPrint").value() > 0);
    QVERIFY(Said().endsWith(u"of 250..."_s));
    QVERIFY(!Button("CommandPrint").isEnabled());
    QCOMPARE(form_->focusWidget(), &Button("CommandStopPrint"));
    QTest::keyClick(form_->focusWidget(), Qt::Key_Space);
    QCOMPARE(Said(), u"Stopped: nothing was saved."_s);
    QVERIFY(Button("CommandPrint").isEnabled());
    QVERIFY(!Button("CommandStopPrint").isVisible());
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), "old");

    VEMO_NEED_PRINTED_PAGES()
    const QString whole = In(u"whole.pdf"_s);
    ChoosePrinterFile(whole, QDialog::Accepted);
    Button("CommandPrint").click();
    QTRY_COMPARE_WITH_TIMEOUT(Said(), u"Pages printed: 250. %1"_s.arg(whole), 60000);
    QCOMPARE(PdfPages(whole), 250);
}

void FormPrintTest::WhatCannotBePrintedIsSaid() {
    Open();
    Find<QRadioButton>("OptionCurrent").click();
    QVERIFY(Said().startsWith(u"No sudoku is open"_s));
    for (const char* name : {"CommandPrint", "CommandSavePdf", "CommandNext", "CommandPrevious"}) {
        QVERIFY2(!Button(name).isEnabled(), name);
    }
    OrderRun(1, 3, 2);
    QVERIFY(Said().startsWith(u"The first number"_s));
    Find<QSpinBox>("SpinLast").setValue(3);
    QCOMPARE(Said(), QString());
    VEMO_NEED_PRINTED_PAGES()
    const QString nowhere = In(u"no folder/mine.pdf"_s);
    ChoosePrinterFile(nowhere, QDialog::Accepted);
    Button("CommandPrint").click();
    QTRY_COMPARE(Said(), u"It cannot be printed there: %1"_s.arg(nowhere));
    QVERIFY(Button("CommandPrint").isEnabled());
    ChoosePrinterFile(In(u"refused.pdf"_s), QDialog::Rejected);
    Button("CommandPrint").click();
    QVERIFY(!QFile::exists(In(u"refused.pdf"_s)));
}

// Dark windows or light ones.
void FormPrintTest::ThePagesAreInkOnWhitePaper() {
    fixture_->OpenFirstEasy();
    fixture_->game.mnuAppearance(Appearance::Dark);
    Open();
    Choose("ComboZoom", Find<QComboBox>("ComboZoom").findData(200));
    for (QScrollBar* bar : {View().verticalScrollBar(), View().horizontalScrollBar()}) {
        bar->setValue(bar->maximum() / 2);
    }
    const QImage seen = View().viewport()->grab().toImage();
    int white = 0;
    int ink = 0;
    int colored = 0;
    for (int y = seen.height() / 4; y < seen.height() * 3 / 4; ++y) {
        for (int x = seen.width() / 3; x < seen.width() * 2 / 3; ++x) {
            const QColor color = seen.pixelColor(x, y);
            white += color == Qt::white ? 1 : 0;
            ink += color.lightness() < 100 ? 1 : 0;
            colored += color.hslSaturation() > 0 ? 1 : 0;
        }
    }
    QVERIFY(white > 5 * ink);
    QVERIFY(ink > 0);
    QCOMPARE(colored, 0);
}

void FormPrintTest::TheCommandLineWritesTheSamePages() {
    const QString path = In(u"four.pdf"_s);
    const PrintOutcome outcome = PrintByCommand({u"--print"_s, u"Easy:1-4"_s, u"--per-page"_s,
                                                 u"4"_s, u"--solutions"_s, u"--output"_s, path});
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.pages, 1);
    VEMO_NEED_PRINTED_PAGES()
    QCOMPARE(PdfPages(path), 1);
    const QString text = PdfText(path);
    for (const char* caption : {"Easy 1", "Easy 4"}) {
        QCOMPARE(text.count(QLatin1String(caption)), 2);
    }
    QVERIFY(ToolOutput("pdfinfo", {path}).contains(u"(A4)"_s));

    Open();
    OrderRun(1, 1, 4);
    Choose("ComboSolutions", static_cast<int>(SolutionPlace::Foot));
    const QString window = In(u"window.pdf"_s);
    SaveAs(window);
    QTRY_VERIFY(Said().startsWith(u"Saved"_s));
    QCOMPARE(PdfText(window), text);

    const QString letter = In(u"letter.pdf"_s);
    QCOMPARE(PrintByCommand({u"--print"_s, u"outlaw"_s, u"--paper"_s, u"letter"_s, u"--content"_s,
                             u"marks"_s, u"--solutions-last"_s, u"--output"_s, letter})
                 .pages,
             55 + 19);
    QVERIFY(ToolOutput("pdfinfo", {letter}).contains(u"(letter)"_s));
}

void FormPrintTest::TheCommandLineLosesNothing() {
    const QString path = In(u"kept.pdf"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("kept");
    file.close();
    const std::pair<QStringList, const char*> bad[] = {
        {{u"--print"_s, u"Esay:1"_s, u"--output"_s, path}, "Esay"},
        {{u"--print"_s, u"Easy:1-1001"_s, u"--output"_s, path}, "1001"},
        {{u"--print"_s, u"Easy:4-1"_s, u"--output"_s, path}, "behind"},
        {{u"--print"_s, u"Easy:1"_s, u"--output"_s, In(u"no/where.pdf"_s)}, "where.pdf"},
        {{u"--print"_s, u"Easy:1"_s}, "--output"},
        {{u"--output"_s, path}, "--print"},
        {{u"--solutions"_s}, "--print"},
        {{u"--print"_s, u"Easy:1"_s, u"--per-page"_s, u"3"_s, u"--output"_s, path}, "'3'"},
        {{u"--print"_s, u"Easy:1"_s, u"--content"_s, u"all"_s, u"--output"_s, path}, "'all'"},
        {{u"--print"_s, u"Easy:1"_s, u"--paper"_s, u"A5"_s, u"--output"_s, path}, "'A5'"},
        {{u"--print"_s}, "--print"},
    };
    for (const auto& [given, named] : bad) {
        QVERIFY2(PrintByCommand(given).error.contains(QLatin1String(named)), named);
    }
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "kept");
    file.close();

    // A damaged sudoku is named, the others are printed.
    const std::filesystem::path easy =
        fixture_->folders.LocalApplicationData() / kApplicationName / PuzzleFileName(1);
    fixture_->files.WriteAt(easy, kPuzzleRecordSize, Bytes(9, 12));
    const PrintOutcome outcome = PrintByCommand({u"--print"_s, u"Easy:1-3"_s, u"--output"_s, path});
    QCOMPARE(outcome.notice, u"Left out, because damaged: Easy 2."_s);
    // Whoever has no such level yet prints the shipped one.
    std::filesystem::remove(easy);
    const QString second = In(u"second.pdf"_s);
    QCOMPARE(PrintByCommand({u"--print"_s, u"Easy:2"_s, u"--output"_s, second}).notice, QString());
    VEMO_NEED_PRINTED_PAGES()
    QVERIFY(!PdfText(path).contains(u"Easy 2"_s));
    QVERIFY(PdfText(second).contains(u"Easy 2"_s));
}

void FormPrintTest::EverythingCanBeReachedInASmallWindow_data() {
    AddTextSizes();
}

void FormPrintTest::EverythingCanBeReachedInASmallWindow() {
    QFETCH(double, text);
    fixture_.reset();
    const TextSize size(text);
    init();
    Open();
    form_->resize(480, 560);
    QCoreApplication::processEvents();
    for (const char* name : {"CommandPrint", "CommandSavePdf", "CommandNext", "ComboZoom"}) {
        QVERIFY2(IsWithin(*form_, Find<QWidget>(name)), name);
    }
    auto& area = *form_->findChild<QScrollArea*>();
    for (const char* name : {"OptionCurrent", "SpinLast", "ComboContent", "ComboPaper"}) {
        area.ensureWidgetVisible(&Find<QWidget>(name));
        QVERIFY2(IsWithin(*area.viewport(), Find<QWidget>(name)), name);
    }
}

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::FormPrintTest)

#include "form_print_test.moc"
