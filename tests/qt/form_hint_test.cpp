// The big hint window: how it opens and closes, its menu, its picture and its page.
#include "qt/form_hint.h"

#include <QAccessible>
#include <QFile>
#include <QImage>
#include <QInputDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollBar>

#include "qt/hint_sheet.h"
#include "qt/screen_text.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

namespace {

const QString kPointer = u" DoubleClick this window to pop up the small Hint Window."_s;

// Of the pixels, in percent.
double ShareOf(const QImage& image, const QColor& color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return 100.0 * count / (image.width() * image.height());
}

bool IsPdf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll().startsWith("%PDF");
}

}  // namespace

class FormHintTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        fixture_ = std::make_unique<WindowFixture>(QStringLiteral(VEMO_ASSETS));
        fixture_->OpenFirstEasy();
        answered_ = 0;
    }
    void cleanup() {
        QCOMPARE(fixture_->boxes.TakeFaults(), QString());
        fixture_.reset();
    }

    void AHintOpensItWithTheOption();
    void ADoubleClickOrEnterOpensIt();
    void TheKeysOfTheGameWorkInIt();
    void ItsCopyIsRefreshed();
    void ItIsClosedByEveryMeans();
    void ItsPictureIsSaved();
    void ThePictureIsOfTheWindow();
    void AllOfALongExplanationIsInThePicture();
    void ItIsPrinted();
    void TheMenuIsOffWhileTheGameIsBusy();
    void EverythingHasItsRoom_data();
    void EverythingHasItsRoom();
    void ItCanBeReadByKeyboardAndByEar();

  private:
    // Open, with a hint.
    FormHint& Open() {
        fixture_->game.mnuSolveHint();
        fixture_->game.TextHintDblClick();
        return Form();
    }
    FormHint& Form() const { return fixture_->Find<FormHint>("FormHint"); }
    bool IsOpen() const {
        const auto* form = fixture_->window.findChild<FormHint*>();
        return form != nullptr && form->isVisible();
    }
    QPlainTextEdit& SmallText() const { return fixture_->Find<QPlainTextEdit>("TextHint"); }
    QPlainTextEdit& BigText() const { return fixture_->Find<QPlainTextEdit>("TextHintCopy"); }
    QAction& Entry(const char* name) const { return fixture_->Find<QAction>(name); }
    // A window counts as active while its parent is: the application knows which it is.
    static void Activate(QWidget& window) {
        window.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &window);
    }
    void Click(const char* entry);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier);
    // Does it to the next modal dialog of this kind, before anybody waits for it.
    template <typename Dialog>
    void Answer(const std::function<void(Dialog&)>& deed);

    std::unique_ptr<WindowFixture> fixture_;
    int answered_ = 0;
};

void FormHintTest::Click(const char* entry) {
    QMenuBar& bar = *Form().menuBar();
    QAction* title = bar.actions().constFirst();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(title).center());
    QMenu& menu = *title->menu();
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&Entry(entry)).center());
}

void FormHintTest::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    Activate(Form());
    QTest::keyClick(&BigText(), key, modifiers);
}

template <typename Dialog>
void FormHintTest::Answer(const std::function<void(Dialog&)>& deed) {
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this, timer, deed] {
        if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            ++answered_;
            deed(*dialog);
        }
    });
    timer->start(5);
}

void FormHintTest::AHintOpensItWithTheOption() {
    fixture_->ClickMenu(CommandId::OptionsSmallWindow);
    QVERIFY(!IsOpen());
    fixture_->Key(Qt::Key_F12);
    QVERIFY(IsOpen());
    QCOMPARE(Form().windowTitle(), ToQString(fixture_->Shown().hintCaption));
    QVERIFY(BigText().toPlainText().startsWith(u"HIDDEN SINGLE: "_s));
    QCOMPARE(SmallText().toPlainText(), kPointer);
    // The game goes on beside it.
    QVERIFY(Form().testAttribute(Qt::WA_ShowWithoutActivating));
    fixture_->Key(Qt::Key_F12);
    QCOMPARE(fixture_->game.CurrentSession().history.StepCount(), 1);
    fixture_->ClickMenu(CommandId::OptionsSmallWindow);
    QVERIFY(!IsOpen());
}

void FormHintTest::ADoubleClickOrEnterOpensIt() {
    QTest::mouseDClick(SmallText().viewport(), Qt::LeftButton, {}, QPoint(10, 5));
    QVERIFY(IsOpen());
    QCOMPARE(Form().windowTitle(), u"Hint - "_s);
    QVERIFY(BigText().toPlainText().contains(u"Press Hint (F12)"_s));
    Form().close();

    Activate(fixture_->window);
    fixture_->Key(Qt::Key_F12);
    const QString explanation = SmallText().toPlainText();
    SmallText().setFocus();
    fixture_->Key(Qt::Key_Return);
    QVERIFY(IsOpen());
    QCOMPARE(BigText().toPlainText(), explanation);
    QCOMPARE(SmallText().toPlainText(), kPointer);
    Form().close();
    QCOMPARE(SmallText().toPlainText(), explanation);
    QWidget& panel = *SmallText().parentWidget();
    QTest::mouseDClick(&panel, Qt::LeftButton, {}, panel.rect().bottomRight() - QPoint(20, 20));
    QVERIFY(IsOpen());
}

void FormHintTest::TheKeysOfTheGameWorkInIt() {
    Open();
    const int steps = fixture_->game.CurrentSession().history.StepCount();
    Press(Qt::Key_F12, Qt::NoModifier);  // carries the hint out
    QCOMPARE(fixture_->game.CurrentSession().history.StepCount(), steps + 1);
    Press(Qt::Key_F12, Qt::NoModifier);  // asks for the next one
    QVERIFY(fixture_->game.CurrentSession().hint.has_value());
    Press(Qt::Key_Pause, Qt::NoModifier);
    QVERIFY(fixture_->Shown().isBoardCovered);
}

void FormHintTest::ItsCopyIsRefreshed() {
    Open();
    const QString first = BigText().toPlainText();
    fixture_->game.CommandApplyClick();
    QCOMPARE(BigText().toPlainText(), first);
    Click("mnuWindowRefresh");
    QVERIFY(BigText().toPlainText() != first);
    fixture_->game.mnuSolveHint();
    const QString second = BigText().toPlainText();
    fixture_->game.CommandApplyClick();
    Press(Qt::Key_F5, Qt::NoModifier);
    QVERIFY(BigText().toPlainText() != second);
}

void FormHintTest::ItIsClosedByEveryMeans() {
    const std::vector<std::function<void()>> means = {
        [this] { Click("mnuWindowClose"); },
        [this] { Press(Qt::Key_W); },
        [this] { Press(Qt::Key_Escape, Qt::NoModifier); },
        [this] { Form().close(); },
    };
    for (const auto& close : means) {
        Open();
        QVERIFY(IsOpen());
        close();
        QVERIFY(!IsOpen());
        QVERIFY(!fixture_->game.CurrentHintWindow().isOpen);
    }
}

void FormHintTest::ItsPictureIsSaved() {
    Open();
    // The program's folder is the sources': another one for the pictures of this test.
    const QString folder = fixture_->data.path() + u"/program"_s;
    fixture_->folders =
        TestFolders(folder.toStdU16String(), fixture_->data.path().toStdU16String());
    const auto answer = [this](const QString& name) {
        Answer<QInputDialog>([name](QInputDialog& dialog) {
            dialog.setTextValue(name);
            dialog.accept();
        });
    };
    answer(u"first"_s);
    Click("mnuWindowsSave");
    answer(u"second"_s);
    Press(Qt::Key_S);
    Answer<QInputDialog>([](QInputDialog& dialog) { dialog.reject(); });
    Press(Qt::Key_S);
    QCOMPARE(answered_, 3);
    const QDir pictures(folder + u"/Screenshots"_s);
    QCOMPARE(pictures.entryList(QDir::Files), QStringList({u"first.bmp"_s, u"second.bmp"_s}));
    QCOMPARE(QImage(pictures.filePath(u"first.bmp"_s)).size(),
             Form().centralWidget()->size() * Form().devicePixelRatioF());
    const auto& note = fixture_->Find<QPlainTextEdit>("LabelNote");
    QVERIFY(note.isVisible());
    QVERIFY(note.toPlainText().endsWith(u"second.bmp"_s));
}

void FormHintTest::ThePictureIsOfTheWindow() {
    for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
        fixture_->game.mnuAppearance(appearance);
        Open();
        const Bytes bytes = fixture_->view.HintPicture();
        QImage picture;
        QVERIFY(picture.loadFromData(bytes.data(), static_cast<int>(bytes.size()), "BMP"));
        const BoardColors& colors = fixture_->window.CurrentColors();
        QVERIFY(ShareOf(picture, colors.theme.board) > 15);
        QVERIFY(ShareOf(picture, colors.theme.window) > 10);
        QVERIFY(ShareOf(picture, colors.Hint(HintColor::HintCell)) > 0.2);
        // Alike but for the smoothing of texts: the same share of the ground stays free.
        const QImage seen = Form().centralWidget()->grab().toImage();
        QCOMPARE(picture.size(), seen.size());
        QVERIFY(std::abs(ShareOf(picture, colors.theme.window) -
                         ShareOf(seen, colors.theme.window)) < 1);
    }
    fixture_->game.CommandPauseClick();
    const Bytes bytes = fixture_->view.HintPicture();
    QImage covered;
    QVERIFY(covered.loadFromData(bytes.data(), static_cast<int>(bytes.size()), "BMP"));
    const BoardColors& colors = fixture_->window.CurrentColors();
    QCOMPARE(ShareOf(covered, colors.Hint(HintColor::HintCell)), 0.0);
    Form().close();
    QVERIFY(fixture_->view.HintPicture().empty());
}

void FormHintTest::AllOfALongExplanationIsInThePicture() {
    HintWindow window;
    const BoardColors& colors = fixture_->window.CurrentColors();
    QFont font = QApplication::font();
    font.setPixelSize(14);
    const auto heightOf = [&] {
        return HintSheet(window, colors, font, 1).SizeFor({420, 320}).height();
    };
    QCOMPARE(heightOf(), 320);
    for (int line = 0; line < 100; ++line) {
        window.text += "A1 cannot be 5\n";
    }
    QVERIFY(heightOf() > 100 * QFontMetrics(font).height());
}

void FormHintTest::ItIsPrinted() {
    Open();
    const auto printTo = [this](const QString& path) {
        Answer<QPrintDialog>([path](QPrintDialog& dialog) {
            dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
            dialog.printer()->setOutputFileName(path);
            dialog.done(QDialog::Accepted);
        });
    };
    const QString mine = fixture_->data.filePath(u"mine.pdf"_s);
    printTo(mine);
    Click("mnuWindowPrint");
    QVERIFY(IsPdf(mine));

    const QString refused = fixture_->data.filePath(u"refused.pdf"_s);
    Answer<QPrintDialog>([refused](QPrintDialog& dialog) {
        dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
        dialog.printer()->setOutputFileName(refused);
        dialog.reject();
    });
    Press(Qt::Key_P);
    QVERIFY(!QFile::exists(refused));

    const QString nowhere = fixture_->data.filePath(u"no folder/mine.pdf"_s);
    printTo(nowhere);
    fixture_->boxes.Expect(
        {u"Print"_s, nowhere + u": the hint cannot be printed there."_s, QMessageBox::Ok});
    Press(Qt::Key_P);
    QCOMPARE(answered_, 3);
}

void FormHintTest::TheMenuIsOffWhileTheGameIsBusy() {
    Open();
    QList<bool> enabled;
    // Scans that follow each other at once yield once.
    QTest::qWait(50);
    QTimer::singleShot(0, &Form(), [&] {
        QVERIFY(fixture_->game.CurrentSession().IsBusy());
        for (const char* name : {"mnuWindowRefresh", "mnuWindowsSave", "mnuWindowPrint"}) {
            enabled << Entry(name).isEnabled();
        }
    });
    fixture_->game.mnuSolveHint();
    QCOMPARE(enabled, QList<bool>(3, false));
    QVERIFY(Entry("mnuWindowsSave").isEnabled());
}

void FormHintTest::EverythingHasItsRoom_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isBeside");
    QTest::newRow("smallest") << QSize(420, 320) << true;
    QTest::newRow("usual") << QSize(760, 520) << true;
    QTest::newRow("tall") << QSize(420, 760) << false;
    QTest::newRow("flat") << QSize(1200, 320) << true;
    QTest::newRow("large") << QSize(1600, 1200) << true;
}

void FormHintTest::EverythingHasItsRoom() {
    QFETCH(QSize, size);
    QFETCH(bool, isBeside);
    FormHint& form = Open();
    form.resize(size);
    QCOMPARE(form.size(), size);
    QWidget& content = *form.centralWidget();
    const QRect board = fixture_->Find<QWidget>("GridCopy").geometry();
    const QRect card = BigText().parentWidget()->geometry();
    QVERIFY(content.rect().contains(board));
    QVERIFY(content.rect().contains(card));
    QVERIFY(isBeside ? board.right() < card.left() : board.bottom() < card.top());
    QCOMPARE(board.width(), board.height());
    QVERIFY(board.width() * 2 > std::min(content.width(), content.height()));
    QVERIFY(card.translated(-card.topLeft()).contains(BigText().geometry()));
    QVERIFY(!BigText().verticalScrollBar()->isVisible());
}

void FormHintTest::ItCanBeReadByKeyboardAndByEar() {
    FormHint& form = Open();
    Activate(form);
    form.centralWidget()->setFocus();
    QTest::keyClick(&form, Qt::Key_Tab);
    QVERIFY(BigText().hasFocus());
    const QAccessibleInterface* text = QAccessible::queryAccessibleInterface(&BigText());
    QCOMPARE(text->text(QAccessible::Name), u"Explanation"_s);
    const QAccessibleInterface* copy =
        QAccessible::queryAccessibleInterface(&fixture_->Find<QWidget>("GridCopy"));
    QCOMPARE(copy->text(QAccessible::Name), u"Copy of the sudoku grid"_s);
    const int cell = fixture_->game.CurrentSession().hint->placements.begin()->cell;
    QVERIFY(copy->text(QAccessible::Description).startsWith(ToQString(CellName(cell)) + u", "_s));
    fixture_->game.CommandPauseClick();
    QVERIFY(!copy->text(QAccessible::Description).contains(ToQString(CellName(cell))));
}

}  // namespace vemo::test

int main(int argc, char** argv) {
    return vemo::test::RunWindowTests<vemo::test::FormHintTest>(argc, argv);
}

#include "form_hint_test.moc"
