// The big hint window: how it opens and closes, its menu, its picture and its page.
#include "qt/form_hint.h"

#include <QAccessible>
#include <QFile>
#include <QImage>
#include <QInputDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "qt/hint_sheet.h"
#include "qt/print_support.h"
#include "qt/screen_text.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

namespace {

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

}  // namespace

class FormHintTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        fixture_ = std::make_unique<WindowFixture>();
        fixture_->OpenFirstEasy();
        answered_ = 0;
    }
    void cleanup() { fixture_.reset(); }

    void ItOpensWithAHintOrOnDemand() {
        fixture_->ClickMenu(CommandId::OptionsSmallWindow);
        fixture_->Key(Qt::Key_F12);
        QVERIFY(IsOpen());
        QCOMPARE(Form().windowTitle(), ToQString(fixture_->Shown().hintCaption));
        // The keyboard stays with the game.
        QVERIFY(Form().testAttribute(Qt::WA_ShowWithoutActivating));
        fixture_->Key(Qt::Key_F12);
        QCOMPARE(fixture_->game.CurrentSession().history.StepCount(), 1);
        fixture_->ClickMenu(CommandId::OptionsSmallWindow);
        QVERIFY(!IsOpen());

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
        QVERIFY(SmallText().toPlainText() != explanation);
        Form().close();
        QCOMPARE(SmallText().toPlainText(), explanation);
        QWidget& panel = *SmallText().parentWidget();
        QTest::mouseDClick(&panel, Qt::LeftButton, {}, panel.rect().bottomRight() - QPoint(20, 20));
        QVERIFY(IsOpen());
    }

    void TheGameIsPlayedFromItAndItsCopyRefreshed() {
        Open();
        const Session& session = fixture_->game.CurrentSession();
        const std::vector<std::function<void()>> means = {
            [this] { Click("mnuWindowRefresh"); },
            [this] { Press(Qt::Key_F5, Qt::NoModifier); },
        };
        for (const auto& refresh : means) {
            const QString copied = BigText().toPlainText();
            Press(Qt::Key_F12, Qt::NoModifier);  // carries the hint out
            QVERIFY(!session.hint.has_value());
            QCOMPARE(BigText().toPlainText(), copied);
            refresh();
            QVERIFY(BigText().toPlainText() != copied);
            Press(Qt::Key_F12, Qt::NoModifier);  // asks for the next one
            QVERIFY(session.hint.has_value());
        }
        QCOMPARE(session.history.StepCount(), 2);
        Press(Qt::Key_Pause, Qt::NoModifier);
        QVERIFY(fixture_->Shown().isBoardCovered);
    }

    void ItIsClosedByEveryMeans() {
        const std::vector<std::function<void()>> means = {
            [this] { Click("mnuWindowClose"); },
            [this] { Press(Qt::Key_W); },
            [this] { Press(Qt::Key_Escape, Qt::NoModifier); },
            [this] { Form().close(); },
        };
        for (const auto& close : means) {
            Open();
            close();
            QVERIFY(!IsOpen());
            QVERIFY(!fixture_->game.CurrentHintWindow().isOpen);
        }
    }

    void ItsPictureIsSaved() {
        Open();
        // The program's folder is the sources': another one for the pictures of this test.
        const QString folder = fixture_->data.path() + u"/program"_s;
        fixture_->folders =
            TestFolders(folder.toStdU16String(), fixture_->data.path().toStdU16String());
        const auto answer = [this](const QString& name, QDialog::DialogCode code) {
            Answer<QInputDialog>([name, code](QInputDialog& dialog) {
                dialog.setTextValue(name);
                dialog.done(code);
            });
        };
        answer(u"first"_s, QDialog::Accepted);
        Click("mnuWindowsSave");
        answer(u"second"_s, QDialog::Accepted);
        Press(Qt::Key_S);
        answer(u"third"_s, QDialog::Rejected);
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

    void ThePictureIsOfTheWindow() {
        const auto picture = [this] {
            const Bytes bytes = fixture_->view.HintPicture();
            return QImage::fromData(bytes.data(), static_cast<int>(bytes.size()), "BMP");
        };
        for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
            fixture_->game.mnuAppearance(appearance);
            Open();
            const QImage shown = picture();
            const BoardColors& colors = fixture_->window.CurrentColors();
            QVERIFY(ShareOf(shown, colors.theme.board) > 15);
            QVERIFY(ShareOf(shown, colors.theme.window) > 10);
            QVERIFY(ShareOf(shown, colors.Hint(HintColor::HintCell)) > 0.2);
            // Alike but for the smoothing of texts: the same share of the ground stays free.
            const QImage seen = Form().centralWidget()->grab().toImage();
            QCOMPARE(shown.size(), seen.size());
            QVERIFY(std::abs(ShareOf(shown, colors.theme.window) -
                             ShareOf(seen, colors.theme.window)) < 1);
        }
        fixture_->game.CommandPauseClick();
        const BoardColors& colors = fixture_->window.CurrentColors();
        QVERIFY(!picture().isNull());
        QCOMPARE(ShareOf(picture(), colors.Hint(HintColor::HintCell)), 0.0);
        Form().close();
        QVERIFY(fixture_->view.HintPicture().empty());
    }

    void AllOfALongExplanationIsInThePicture() {
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

    void ItIsPrinted() {
        VEMO_NEED_PRINTED_PAGES()
        Open();
        const auto print = [this](const QString& path, QDialog::DialogCode code) {
            return PrintFromPreview([this] { Press(Qt::Key_P); }, path, code);
        };
        const QString mine = fixture_->data.filePath(u"mine.pdf"_s);
        QCOMPARE(print(mine, QDialog::Accepted), u"Pages printed: 1. "_s + mine);
        QCOMPARE(PdfPages(mine), 1);
        const QString refused = fixture_->data.filePath(u"refused.pdf"_s);
        QCOMPARE(print(refused, QDialog::Rejected), QString());
        QVERIFY(!QFile::exists(refused));
        const QString nowhere = fixture_->data.filePath(u"no folder/mine.pdf"_s);
        QCOMPARE(print(nowhere, QDialog::Accepted), u"It cannot be printed there: "_s + nowhere);
    }

    void TheMenuIsOffWhileTheGameIsBusy() {
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

    void EverythingHasItsRoom() {
        FormHint& form = Open();
        struct Case {
            QSize size;
            bool isBeside;
        };
        for (const auto& [size, isBeside] : {Case{{420, 320}, true},
                                             {{760, 520}, true},
                                             {{420, 760}, false},
                                             {{1200, 320}, true},
                                             {{1600, 1200}, true}}) {
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
    }

    void ItCanBeReadByKeyboardAndByEar() {
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
        QVERIFY(
            copy->text(QAccessible::Description).startsWith(ToQString(CellName(cell)) + u", "_s));
        fixture_->game.CommandPauseClick();
        QVERIFY(!copy->text(QAccessible::Description).contains(ToQString(CellName(cell))));
    }

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
    void Click(const char* entry) {
        QMenuBar& bar = *Form().menuBar();
        QAction* title = bar.actions().constFirst();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(title).center());
        QMenu& menu = *title->menu();
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&Entry(entry)).center());
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        Activate(Form());
        QTest::keyClick(&BigText(), key, modifiers);
    }

    // Does it to the next modal dialog of this kind, before anybody waits for it.
    template <typename Dialog>
    void Answer(const std::function<void(Dialog&)>& deed) {
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

    std::unique_ptr<WindowFixture> fixture_;
    int answered_ = 0;
};

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::FormHintTest)

#include "form_hint_test.moc"
