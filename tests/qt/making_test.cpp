// Making a puzzle of one's own in the window: by keys, typing, paste and drop; validated and
// played.
#include <QClipboard>
#include <QMimeData>
#include <QPushButton>

#include "qt/sud_tekst.h"
#include "qt/window_fixture.h"
#include "support/own_puzzle.h"
#include "support/puzzles.h"
#include "tools/puzzle_line.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

const QString kLine = QString::fromStdString(kEasy);
const QString kDrop = u"Drag 'N' Drop Error"_s;

class MakingTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { fixture_ = std::make_unique<WindowFixture>(); }
    void cleanup() { fixture_.reset(); }

    void TheTextBoxTakesThePlaceOfTheButtonsOfPlay() {
        QVERIFY(!Box().isVisible());
        Make();
        QCOMPARE(Box().toPlainText(), QString::fromStdString(fixture_->Shown().sudTekst));
        QVERIFY(Button("CommandValidate").isVisible());
        QVERIFY(Button("CommandCancel").isVisible());
        for (const char* name : {"CommandHint", "CommandUndo", "CommandStop", "Command1_5"}) {
            QVERIFY2(!Button(name).isVisible(), name);
        }
        // The order of the Tab key.
        QWidget* const order[] = {&fixture_->Find<QWidget>("TextHint"), &Box(),
                                  &Button("CommandValidate"), &Button("CommandCancel")};
        fixture_->window.Board().setFocus();
        for (const QWidget* next : order) {
            fixture_->Key(Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), next);
        }
        QTest::mouseClick(&Button("CommandCancel"), Qt::LeftButton);
        QVERIFY(!Box().isVisible());
        QVERIFY(!Button("CommandValidate").isVisible());
        QVERIFY(Button("CommandHint").isVisible());
    }

    void CluesAreTypedOnTheBoardAndStandInTheText() {
        Make();
        fixture_->Key(Qt::Key_5);
        fixture_->Key(Qt::Key_Right);
        fixture_->Key(Qt::Key_3);
        fixture_->ClickMark(4, 7);
        const QString line = u"53..7"_s + QString(76, u'.');
        QCOMPARE(Box().toPlainText(), line);
        // An edit of the text stays an edit: the cursor stands where it stood.
        QTextCursor cursor = Box().textCursor();
        cursor.setPosition(9);
        Box().setTextCursor(cursor);
        fixture_->ClickMark(9, 6);
        QCOMPARE(Box().textCursor().position(), 9);
        Box().undo();
        QCoreApplication::processEvents();
        QCOMPARE(Clues(), line);
    }

    void ALineIsTypedIntoTheBox() {
        Make();
        QTest::mouseClick(Box().viewport(), Qt::LeftButton);
        for (const QChar character : kLine) {
            QTest::keyClick(&Box(), character.toLatin1());
            QCoreApplication::processEvents();
        }
        QCOMPARE(Box().toPlainText(), kLine);
        QCOMPARE(Clues(), kLine);
        fixture_->Key(Qt::Key_Escape);
        QVERIFY(fixture_->window.Board().hasFocus());
    }

    void APasteReplacesTheInvitation() {
        Make();
        QGuiApplication::clipboard()->setText(u"\t"_s + kLine);
        QTest::mouseClick(Box().viewport(), Qt::LeftButton);
        fixture_->Key(Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE(Clues(), u'.' + kLine.left(80));
        QCOMPARE(Box().toPlainText(), u"\t"_s + kLine);
        // A paste on the board replaces all of the text.
        Paste(kLine);
        QTRY_COMPARE(Clues(), kLine);
    }

    void AGridPastedOnTheBoardIsAskedAbout() {
        const QString rows = QString::fromStdString(InNineLines(kEasy));
        const QString question = QString::fromStdString(kReadRows);
        Make();
        fixture_->boxes.Expect({u"Text of a sudoku"_s, question, QMessageBox::Yes});
        Paste(rows);
        QTRY_COMPARE(Box().toPlainText(), kLine);
        QCOMPARE(Clues(), kLine);
        fixture_->boxes.Expect({u"Text of a sudoku"_s, question, QMessageBox::No});
        Paste(rows);
        QTRY_COMPARE(Box().toPlainText(), rows);
        // Typing in the refused text asks no more.
        Box().moveCursor(QTextCursor::End);
        QTest::keyClick(&Box(), ' ');
        QTRY_COMPARE(fixture_->Shown().sudTekst, rows.toStdString() + " ");
    }

    void APasteWithoutEndFreezesNothing() {
        Make();
        Paste(kLine + QString(20'000'000, u'1'));
        QTRY_COMPARE(Clues(), kLine);
        QVERIFY(Box().toPlainText().size() < 2'000'000);
        QVERIFY(fixture_->Shown().textHint.starts_with("The text is too long"));
    }

    void FilesAreDroppedAnywhere() {
        const QUrl text = QUrl::fromLocalFile(FileOf(u"easy.txt"_s, kLine + u"\r\n"_s));
        Make();
        for (QWidget* target : {Box().viewport(), static_cast<QWidget*>(&fixture_->window)}) {
            QMimeData one;
            one.setUrls({text});
            Drop(*target, one);
            QCOMPARE(Clues(), kLine);
            QCOMPARE(Box().toPlainText(), kLine + u'\n');
            QMimeData two;
            two.setUrls({text, text});
            fixture_->boxes.Expect(
                {kDrop, u"Vemo Sudoku only allows 1 file at a time to drop!"_s, QMessageBox::Ok});
            Drop(*target, two);
            QCOMPARE(Clues(), kLine);
            Box().clear();
            QTRY_COMPARE(Clues(), QString(81, u'.'));
        }
    }

    void WhatIsNoFileHereIsRefusedAndNothingIsLost() {
        QMimeData plain;
        plain.setText(kLine);
        QDragEnterEvent early({}, Qt::CopyAction, &plain, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&fixture_->window, &early);
        QVERIFY(!early.isAccepted());
        Make();
        Drop(*Box().viewport(), plain);
        QCOMPARE(Clues(), kLine);
        QMimeData address;
        address.setUrls({QUrl(u"https://vemo.example/easy.txt"_s)});
        fixture_->boxes.Expect(
            {kDrop, u"This is no file on this computer: https://vemo.example/easy.txt"_s,
             QMessageBox::Ok});
        Drop(*Box().viewport(), address);
        QCOMPARE(Box().toPlainText(), kLine);
    }

    void AValidPuzzleIsPlayed() {
        MakeOf(kLine);
        fixture_->boxes.Expect(
            {u"Sudoku solved"_s, u"Sudoku solved and rated as Easy"_s, QMessageBox::Ok});
        QTest::mouseClick(&Button("CommandValidate"), Qt::LeftButton);
        QVERIFY(!Box().isVisible());
        QVERIFY(fixture_->Shown().isBoardEnabled);
        QVERIFY(Button("CommandHint").isEnabled());
        fixture_->ClickMark(2, 4);
        QCOMPARE(fixture_->Shown().cells[2].digit, 4);
    }

    void ALongValidationCanBeStopped() {
        MakeOf(QString::fromLatin1(kOutlawed));
        // The ladder fails at this puzzle before Stop appears: it is held up.
        QTimer watcher;
        bool wasStopped = false;
        QObject::connect(&watcher, &QTimer::timeout, &watcher, [&] {
            if (!fixture_->game.CurrentSession().IsBusy() || std::exchange(wasStopped, true)) {
                return;
            }
            QVERIFY(!Box().isEnabled());
            QTRY_VERIFY(Button("CommandStop").isVisible());
            QVERIFY(!Button("CommandValidate").isVisible());
            fixture_->Key(Qt::Key_Escape);
        });
        watcher.start(0);
        QTest::mouseClick(&Button("CommandValidate"), Qt::LeftButton);
        QVERIFY(wasStopped);
        QVERIFY(Box().isVisible());
        QVERIFY(Box().isEnabled());
        QCOMPARE(Box().toPlainText(), QString::fromLatin1(kOutlawed));
        QVERIFY(Button("CommandValidate").isVisible());
        QVERIFY(!Button("CommandStop").isVisible());
    }

    void CancelGivesUp() {
        MakeOf(kLine);
        const QString question = u"Do you want to abort the making of this sudoku ?"_s;
        fixture_->boxes.Expect({u"Make"_s, question, QMessageBox::No, QMessageBox::No});
        QTest::mouseClick(&Button("CommandCancel"), Qt::LeftButton);
        QVERIFY(Box().isVisible());
        fixture_->boxes.Expect({u"Make"_s, question, QMessageBox::Yes});
        QTest::mouseClick(&Button("CommandCancel"), Qt::LeftButton);
        QVERIFY(!Box().isVisible());
        // The next making begins anew.
        Make();
        QVERIFY(Box().toPlainText().startsWith(u"You can now paste"_s));
        QVERIFY(!Box().document()->isUndoAvailable());
    }

  private:
    SudTekst& Box() const {
        return static_cast<SudTekst&>(fixture_->Find<QPlainTextEdit>("SudTekst"));
    }
    QPushButton& Button(const char* name) const { return fixture_->Find<QPushButton>(name); }
    void Make() const { fixture_->ClickMenu(CommandId::SudokuMake); }
    void MakeOf(const QString& text) const {
        Make();
        Paste(text);
        QCoreApplication::processEvents();
    }
    // By the keyboard, with the board in focus.
    void Paste(const QString& text) const {
        QGuiApplication::clipboard()->setText(text);
        fixture_->window.Board().setFocus();
        fixture_->Key(Qt::Key_V, Qt::ControlModifier);
    }
    void Drop(QWidget& target, const QMimeData& data) const {
        const QPoint at = target.rect().center();
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&target, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&target, &drop);
        QVERIFY(drop.isAccepted());
        QTest::qWait(50);
    }

    QString FileOf(const QString& name, const QString& content) const {
        QFile file(fixture_->data.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content.toUtf8()) < 0) {
            qFatal("a test's file cannot be written");
        }
        return file.fileName();
    }

    // The clues in the grid, as a line.
    QString Clues() const {
        return QString::fromStdString(
            WriteGrid81(fixture_->game.CurrentSession().grid.AllDigits()));
    }

    std::unique_ptr<WindowFixture> fixture_;
};

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::MakingTest)

#include "making_test.moc"
