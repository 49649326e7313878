// The window of the help.
#include "qt/form_help.h"

#include <QDesktopServices>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTreeWidget>

#include "qt/help_browser.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class FormHelpTest final : public QObject {
    Q_OBJECT

  public Q_SLOTS:
    void TakeLink(const QUrl& url) { link_ = url.toString(); }

  private Q_SLOTS:
    void init() { fixture_ = std::make_unique<WindowFixture>(); }
    void cleanup() { fixture_.reset(); }

    void TheMenuOpensTheFirstPageAndF1TheOneForWhatIsInFront() {
        fixture_->OpenFirstEasy();
        fixture_->ClickMenu(CommandId::HelpContents);
        QVERIFY(WindowFixture::WaitForActive(Help()));
        QCOMPARE(Text().Page(), u"index.html"_s);
        QVERIFY(Text().toPlainText().contains(u"If you have never solved a sudoku"_s));
        Key(Qt::Key_Escape);
        QVERIFY(!Help().isVisible());
        fixture_->Key(Qt::Key_F12);
        fixture_->Key(Qt::Key_F1);
        QVERIFY(Help().isVisible());
        QCOMPARE(Text().Page(), u"techniques/hidden-single.html"_s);
        QCOMPARE(Contents().currentItem()->text(0), u"Hidden Single"_s);
        QCOMPARE(Help().windowTitle(), u"Hidden Single - Help"_s);
        fixture_->game.CommandApplyClick();
        fixture_->game.mnuHelpContents();
        fixture_->game.mnuSolveHint();
        fixture_->window.resize(MainWindow::kSize);  // the smallest one has no room for it
        auto& more = fixture_->Find<QPushButton>("CommandMore");
        QVERIFY(more.isVisible());
        QTest::mouseClick(&more, Qt::LeftButton);
        QCOMPARE(Text().Page(), u"techniques/hidden-single.html"_s);
    }

    void F1InAnotherWindowOpensThatWindowsPage() {
        fixture_->game.mnuSolveManager();
        auto& manager = fixture_->Find<QWidget>("SolveTech");
        QVERIFY(WindowFixture::WaitForActive(manager));
        QTest::keyClick(&manager, Qt::Key_F1);
        QCOMPARE(Text().Page(), u"technique-manager.html"_s);
    }

    void LinksContentsAndHistoryLeadFromPageToPage() {
        Open("index.html");
        auto& back = fixture_->Find<QPushButton>("CommandBack");
        QVERIFY(!back.isEnabled());
        // By keyboard: the second link of the page.
        Text().setFocus();
        Key(Qt::Key_Tab);
        Key(Qt::Key_Tab);
        Key(Qt::Key_Return);
        QCOMPARE(Text().Page(), u"first-sudoku.html"_s);
        Contents().setCurrentItem(Contents().findItems(u"X-Wing"_s, kExact).constFirst());
        QCOMPARE(Text().Page(), u"techniques/x-wing.html"_s);
        Text().setFocus();
        Key(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(Text().Page(), u"first-sudoku.html"_s);
        QCOMPARE(Contents().currentItem()->text(0), u"Your first sudoku"_s);
        Key(Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(Text().Page(), u"techniques/x-wing.html"_s);
        QTest::mouseClick(&back, Qt::LeftButton);
        QCOMPARE(Text().Page(), u"first-sudoku.html"_s);
        Key(Qt::Key_Home, Qt::AltModifier);
        QCOMPARE(Text().Page(), u"index.html"_s);
    }

    void ALinkOutOfTheHelpGoesToTheBrowserOfTheSystem() {
        QDesktopServices::setUrlHandler(u"https"_s, this, "TakeLink");
        Open("index.html");
        Q_EMIT Text().anchorClicked(QUrl(u"https://vemo.example/sudoku"_s));
        QDesktopServices::unsetUrlHandler(u"https"_s);
        QCOMPARE(link_, u"https://vemo.example/sudoku"_s);
        Q_EMIT Text().anchorClicked(QUrl(u"../../Sudoku_Easy.sds"_s));
        QCOMPARE(Text().Page(), u"index.html"_s);
    }

    void ASearchLeavesThePagesThatHaveTheWordsAndGoesThroughThem() {
        Open("index.html");
        Key(Qt::Key_F, Qt::ControlModifier);
        auto& search = fixture_->Find<QLineEdit>("TextSearch");
        QVERIFY(search.hasFocus());
        QTest::keyClicks(&search, u"TWO-STRING kite"_s);
        QVERIFY(!Entry(u"Two-String Kite"_s)->isHidden());
        QVERIFY(Entry(u"Printing"_s)->isHidden());
        QCOMPARE(Text().extraSelections().size(), 0);
        Key(Qt::Key_Return);
        QCOMPARE(Text().Page(), u"techniques/two-string-kite.html"_s);
        QVERIFY(Text().extraSelections().size() > 2);
        QCOMPARE(Text().textCursor().selectedText(), u"Two-String"_s);
        const int first = Text().textCursor().position();
        Key(Qt::Key_F3);
        QVERIFY(Text().textCursor().position() > first);
        Key(Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(Text().textCursor().position(), first);
        Key(Qt::Key_F3, Qt::ShiftModifier);
        QVERIFY(Text().Page() != u"techniques/two-string-kite.html"_s);
        QTest::keyClicks(&search, u" zzz"_s);
        QCOMPARE(fixture_->Find<QLabel>("LabelFound").text(), u"Not found"_s);
        // Esc ends the search, then closes the window.
        Key(Qt::Key_Escape);
        QVERIFY(!Entry(u"Printing"_s)->isHidden());
        QVERIFY(Text().extraSelections().isEmpty());
        Key(Qt::Key_Escape);
        QVERIFY(!Help().isVisible());
    }

    void APageIsWholeOnceWhateverChangesItsLook() {
        Open("techniques/unique-rectangle.html");
        const QString plain = Text().toPlainText();
        const double small = HeadingSize();
        Key(Qt::Key_Plus, Qt::ControlModifier);
        QVERIFY(HeadingSize() > small);
        Key(Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(HeadingSize(), small);
        fixture_->game.mnuAppearance(Appearance::Dark);
        QVERIFY(BoardGround().lightness() < 100);
        fixture_->game.mnuAppearance(Appearance::Light);
        QVERIFY(BoardGround().lightness() > 200);
        Help().resize(420, 400);
        QTest::qWait(50);
        QVERIFY(Text().document()->size().width() <= Text().viewport()->width());
        QCOMPARE(Text().toPlainText(), plain);
    }

    void APageThatIsMissingIsNamed() {
        Open("no-such-page.html");
        QVERIFY(Text().toPlainText().contains(u"no-such-page.html"_s));
    }

  private:
    static constexpr Qt::MatchFlags kExact = Qt::MatchExactly | Qt::MatchRecursive;

    QWidget& Help() const { return fixture_->Find<QWidget>("FormHelp"); }
    HelpBrowser& Text() const {
        return static_cast<HelpBrowser&>(fixture_->Find<QTextBrowser>("TextHelp"));
    }
    QTreeWidget& Contents() const { return fixture_->Find<QTreeWidget>("Contents"); }
    QTreeWidgetItem* Entry(const QString& title) const {
        return Contents().findItems(title, kExact).constLast();
    }
    double HeadingSize() const {
        QTextBlock block = Text().document()->begin();
        while (block.blockFormat().headingLevel() == 0) {
            block = block.next();
        }
        return block.begin().fragment().charFormat().fontPointSize();
    }
    // Within a picture, where the page's first one has no line or digit.
    QColor BoardGround() const {
        const QVariant picture = Text().document()->resource(QTextDocument::ImageResource,
                                                             QUrl(u"unique-rectangle-1.png"_s));
        return picture.value<QImage>().pixelColor(2, 2);
    }

    void Open(const std::string& page) const {
        fixture_->game.mnuHelpContents();
        auto& help = static_cast<FormHelp&>(Help());
        help.ShowPage(page);
        QVERIFY(WindowFixture::WaitForActive(help));
        Text().setFocus();
    }
    static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    std::unique_ptr<WindowFixture> fixture_;
    QString link_;
};

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::FormHelpTest)

#include "form_help_test.moc"
