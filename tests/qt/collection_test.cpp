// The window "Check and Import" with ten thousand sudokus, by mouse and by keyboard.
#include <algorithm>
#include <fstream>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDropEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTableWidget>
#include <QTimer>

#include "qt/collection_table.h"
#include "qt/form_collection.h"
#include "qt/layout_dialog.h"
#include "qt/window_checks.h"
#include "qt/window_fixture.h"
#include "support/puzzles.h"
#include "tools/dig.h"
#include "tools/puzzle_line.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

namespace {

constexpr int kMany = 10'000;
constexpr int kPatience = 60'000;  // milliseconds

// The corpus again and again, each time with other digits: puzzles from the 401st on are
// equivalent to earlier ones, and from the 3601st on the same.
std::vector<Digits> ManyPuzzles(int count) {
    const std::vector<Digits> corpus = Corpus();
    std::vector<Digits> puzzles;
    for (int number = 0; number < count; ++number) {
        const auto at = static_cast<std::size_t>(number);
        Digits clues = corpus[at % corpus.size()];
        const auto turn = static_cast<int>(at / corpus.size());
        for (std::uint8_t& digit : clues) {
            digit = digit == 0 ? digit : static_cast<std::uint8_t>((digit - 1 + turn) % 9 + 1);
        }
        puzzles.push_back(clues);
    }
    return puzzles;
}

std::string LinesOf(const std::vector<Digits>& puzzles) {
    std::string text;
    for (const Digits& clues : puzzles) {
        text += WriteGrid81(clues) + '\n';
    }
    return text;
}

}  // namespace

class CollectionWindowTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        fixture_ = std::make_unique<WindowFixture>();
        fixture_->ClickMenu(CommandId::SudokuCheck);
        form_ = &fixture_->Find<FormCollection>("FormCollection");
        QVERIFY(WindowFixture::WaitForActive(*form_));
    }
    void cleanup() { fixture_.reset(); }

    void ADroppedFileIsReadAndWhatIsRejectedIsReported();
    void RowsAreSelectedAndCopiedFromTheKeyboard();
    void AClickOnAHeadSortsAndKeepsWhatIsSelected();
    void FiltersLeaveTheRowsTheyLetPass();
    void ACancelledJobGoesOn();
    void DuplicatesAreTakenOffAndPutBack();
    void SolveShowsStepsOrTheReport();
    void ALayoutIsTriedOutBeforeItIsUsed();
    void ASudokuOfALevelIsPlayedInSight();
    void NothingIsLoadedBeneathABox();
    void EverythingCanBeReachedInASmallWindow_data();
    void EverythingCanBeReachedInASmallWindow();

  private:
    template <typename Widget>
    Widget& Find(const char* name) const {
        return fixture_->Find<Widget>(name);
    }
    QPushButton& Button(const char* name) const { return Find<QPushButton>(name); }
    CollectionTable& Table() const { return Find<CollectionTable>("ListCollection"); }
    QAbstractItemModel& Rows() const { return *Table().model(); }
    QString Cell(int row, TableColumn column) const {
        return Rows().index(row, static_cast<int>(column)).data().toString();
    }
    QString Text(const char* name) const { return Find<QLabel>(name).text(); }
    QString LogText() const { return Find<QPlainTextEdit>("TextCollectionLog").toPlainText(); }
    const CollectionWindow& State() const { return fixture_->game.Collection().Window(); }
    void WaitForEnd() const { QTRY_VERIFY_WITH_TIMEOUT(!State().IsBusy(), kPatience); }

    void Drop(const std::string& name, const std::string& text) const {
        const std::filesystem::path path =
            std::filesystem::path(fixture_->data.path().toStdU16String()) / name;
        std::ofstream(path, std::ios::binary) << text;
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdU16String(path.u16string()))});
        const QPoint place = form_->rect().center();
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(form_, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(form_, &drop);
        QTRY_COMPARE(State().Name(), name);
        WaitForEnd();
    }
    void DropMany() const { Drop("many.txt", LinesOf(ManyPuzzles(kMany))); }
    void Choose(const char* button, int entry) const {
        QMenu& menu = *Button(button).menu();
        // The click waits until the menu is closed.
        QTimer keys;
        connect(&keys, &QTimer::timeout, &menu, [&menu, &keys, entry] {
            if (!menu.isVisible()) {
                return;
            }
            keys.stop();
            for (int at = 0; at <= entry; ++at) {
                QTest::keyClick(&menu, Qt::Key_Down);
            }
            QTest::keyClick(&menu, Qt::Key_Return);
        });
        keys.start(5);
        QTest::mouseClick(&Button(button), Qt::LeftButton);
        QTRY_VERIFY(!keys.isActive());
    }
    void ClickHead(TableColumn column) const {
        QHeaderView& header = *Table().horizontalHeader();
        const int left = header.sectionViewportPosition(static_cast<int>(column));
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          QPoint(left + 20, header.height() / 2));
    }
    void SelectRow(int row) const {
        Table().setFocus();
        Table().setCurrentIndex(Rows().index(row, 0));
    }

    std::unique_ptr<WindowFixture> fixture_;
    FormCollection* form_ = nullptr;
};

void CollectionWindowTest::ADroppedFileIsReadAndWhatIsRejectedIsReported() {
    QVERIFY(Text("LabelCollectionMessage").startsWith(u"Open a file"_s));
    QVERIFY(!Button("CommandCheck").isEnabled());
    std::string text = LinesOf(ManyPuzzles(kMany));
    text.insert(82 * 6, "neither digits nor points\n");
    Drop("many.txt", text);
    QCOMPARE(Rows().rowCount(), kMany);
    QCOMPARE(Text("LabelOpen"), u"many.txt: 10,000 sudokus"_s);
    QVERIFY(LogText().contains(u"many.txt, line 7: "_s));
    QVERIFY(LogText().contains(u"rejected: 1"_s));
    QCOMPARE(Table().currentIndex().row(), 0);
    QVERIFY(Find<QWidget>("BoardSelected").accessibleDescription().startsWith(u"row A:"_s));
    Drop("two.txt", LinesOf(ManyPuzzles(2)));
    QCOMPARE(Rows().rowCount(), 2);
    QVERIFY(!LogText().contains(u"many.txt"_s));
}

void CollectionWindowTest::RowsAreSelectedAndCopiedFromTheKeyboard() {
    DropMany();
    QCOMPARE(Text("LabelWhatFor"), u"For all 10,000 shown:"_s);
    SelectRow(0);
    QTest::keyClick(&Table(), Qt::Key_End);
    QCOMPARE(State().Current(), std::uint32_t{kMany - 1});
    QTest::keyClick(&Table(), Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(Text("LabelWhatFor"), u"For the 2 selected:"_s);
    QTest::keyClick(&Table(), Qt::Key_C, Qt::ControlModifier);
    const std::vector<Digits> puzzles = ManyPuzzles(kMany);
    QCOMPARE(QApplication::clipboard()->text().toStdString(),
             LinesOf({puzzles[kMany - 2], puzzles[kMany - 1]}));
    QTest::keyClick(&Table(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(Text("LabelWhatFor"), u"For the 10,000 selected:"_s);
    QTest::keyClick(&Table(), Qt::Key_Home);
    QCOMPARE(State().Current(), 0U);
    QCOMPARE(Text("LabelWhatFor"), u"For all 10,000 shown:"_s);
}

void CollectionWindowTest::AClickOnAHeadSortsAndKeepsWhatIsSelected() {
    DropMany();
    SelectRow(123);
    ClickHead(TableColumn::Clues);
    const auto clues = [this](int row) { return Cell(row, TableColumn::Clues).toInt(); };
    QVERIFY(clues(0) < clues(kMany - 1));
    QCOMPARE(State().Current(), 123U);
    const QModelIndex current = Table().currentIndex();
    QCOMPARE(Cell(current.row(), TableColumn::Number), u"124"_s);
    QVERIFY(Table().viewport()->rect().intersects(Table().visualRect(current)));
    ClickHead(TableColumn::Clues);
    QVERIFY(clues(0) > clues(kMany - 1));
    QCOMPARE(Table().horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    QVERIFY(Find<QCheckBox>("CheckDescending").isChecked());
    Find<QComboBox>("ComboOrder").setCurrentText(u"Number"_s);
    Find<QCheckBox>("CheckDescending").click();
    QCOMPARE(Cell(0, TableColumn::Number), u"1"_s);
    SelectRow(4);
    QTest::keyClick(&Table(), Qt::Key_Down, Qt::ShiftModifier);
    ClickHead(TableColumn::Number);
    QCOMPARE(State().ChosenCount(), 2U);
    for (const int row : {kMany - 5, kMany - 6}) {
        QVERIFY(Table().selectionModel()->isRowSelected(row));
    }
    QCOMPARE(Cell(kMany - 6, TableColumn::Number), u"6"_s);
    QCOMPARE(Table().currentIndex().row(), kMany - 6);
}

void CollectionWindowTest::FiltersLeaveTheRowsTheyLetPass() {
    DropMany();
    const std::vector<Digits> puzzles = ManyPuzzles(kMany);
    const auto fewer =
        std::ranges::count_if(puzzles, [](const Digits& clues) { return ClueCount(clues) <= 26; });
    auto& most = Find<QSpinBox>("SpinMostClues");
    most.setFocus();
    most.selectAll();
    QTest::keyClicks(&most, u"26"_s);
    QCOMPARE(Rows().rowCount(), kMany);
    QTest::keyClick(&most, Qt::Key_Return);
    QCOMPARE(Rows().rowCount(), int(fewer));
    QVERIFY(fewer > 0 && fewer < kMany);
    QCOMPARE(Find<QSpinBox>("SpinLeastClues").value(), 0);
    Find<QSpinBox>("SpinLeastClues").setValue(30);
    QCOMPARE(most.value(), 30);
    Button("CommandShowAll").click();
    QCOMPARE(Rows().rowCount(), kMany);
    Find<QCheckBox>("CheckLevel3").click();
    QCOMPARE(Rows().rowCount(), 0);
    Find<QCheckBox>("CheckLevel0").click();
    QCOMPARE(Rows().rowCount(), kMany);
    Button("CommandShowAll").click();
    QVERIFY(!Find<QCheckBox>("CheckLevel0").isChecked());
    QVERIFY(!Button("CommandShowAll").isEnabled());
}

void CollectionWindowTest::ACancelledJobGoesOn() {
    DropMany();
    Button("CommandRate").setFocus();
    QTest::keyClick(&Button("CommandRate"), Qt::Key_Space);
    QVERIFY(State().IsBusy());
    auto& cancel = Button("CommandCancelJob");
    QCOMPARE(form_->focusWidget(), &cancel);
    QVERIFY(!Button("CommandRate").isEnabled());
    QTRY_VERIFY_WITH_TIMEOUT(!Cell(0, TableColumn::Level).isEmpty(), kPatience);
    QVERIFY(Find<QProgressBar>("ProgressCollection").isVisible());
    QVERIFY(Text("LabelStatus").contains(u"per second"_s));
    QTest::keyClick(&cancel, Qt::Key_Space);
    WaitForEnd();
    QCOMPARE(form_->focusWidget(), &Table());
    QVERIFY(Text("LabelCollectionMessage").startsWith(u"Stopped."_s));
    const auto isRated = [this](int row) { return !Cell(row, TableColumn::Level).isEmpty(); };
    QVERIFY(isRated(0) && !isRated(kMany - 1));
    // The last ones alone, the others are not asked for.
    SelectRow(kMany - 1);
    QTest::keyClick(&Table(), Qt::Key_Up, Qt::ShiftModifier);
    Button("CommandRate").click();
    WaitForEnd();
    QVERIFY(isRated(kMany - 1) && isRated(kMany - 2) && !isRated(kMany - 3));
    QVERIFY(!Cell(kMany - 1, TableColumn::Hardest).isEmpty());
    QCOMPARE(Cell(kMany - 1, TableColumn::State), u"solved"_s);
}

void CollectionWindowTest::DuplicatesAreTakenOffAndPutBack() {
    const std::vector<Digits> puzzles = ManyPuzzles(402);
    std::vector<Digits> list = puzzles;
    list.push_back(puzzles[7]);
    Drop("twins.txt", LinesOf(list));
    Button("CommandFindTwins").click();
    WaitForEnd();
    QCOMPARE(Cell(400, TableColumn::State), u"equivalent to 1"_s);
    QCOMPARE(Cell(402, TableColumn::State), u"same as 8"_s);
    Choose("CommandRemoveTwins", 0);
    QCOMPARE(Rows().rowCount(), 402);
    Choose("CommandRemoveTwins", 1);
    QCOMPARE(Rows().rowCount(), 400);
    QCOMPARE(Text("LabelOpen"), u"twins.txt: 403 sudokus, 3 taken off"_s);
    Button("CommandPutBack").click();
    QCOMPARE(Rows().rowCount(), 403);
    QVERIFY(!Button("CommandPutBack").isEnabled());
}

void CollectionWindowTest::SolveShowsStepsOrTheReport() {
    Drop("two.txt", LinesOf(ManyPuzzles(2)));
    auto& solve = Button("CommandSolve");
    QTest::mousePress(&solve, Qt::RightButton);
    QTest::mouseRelease(&solve, Qt::RightButton, {}, solve.rect().bottomRight() + QPoint(9, 9));
    QVERIFY(!State().IsBusy());
    fixture_->boxes.Expect(
        {u"Valid Sudoku"_s, u"This Sudoku has one unique solution"_s, QMessageBox::Ok});
    QTest::mouseClick(&solve, Qt::RightButton);
    QVERIFY(State().IsBusy());
    WaitForEnd();
    const auto described = [this] {
        return Find<QWidget>("BoardSelected").accessibleDescription();
    };
    QTRY_VERIFY(!described().contains(u"empty"_s));
    SelectRow(1);
    QVERIFY(described().contains(u"empty"_s));
    QTest::mouseClick(&solve, Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(LogText().contains(u"Solving Sudoku 2\n"_s), kPatience);
    QTRY_VERIFY_WITH_TIMEOUT(described().count(u"empty"_s) < kCells - ClueCount(ManyPuzzles(2)[1]),
                             kPatience);
    Button("CommandCancelJob").click();
    WaitForEnd();
}

void CollectionWindowTest::ALayoutIsTriedOutBeforeItIsUsed() {
    const Digits clues = ManyPuzzles(1)[0];
    const std::string cells(clues.begin(), clues.end());
    Drop("foreign.dat", "HEADER" + ("N1" + cells + "\xFF") + ("N2" + cells + "\xFF"));
    QCOMPARE(Rows().rowCount(), 0);
    Button("CommandLayout").click();
    auto* dialog = form_->findChild<LayoutDialog*>();
    QVERIFY(dialog != nullptr && QTest::qWaitForWindowExposed(dialog));
    const auto set = [this](const char* name, int value) { Find<QSpinBox>(name).setValue(value); };
    auto& read = Button("CommandReadRecords");
    auto& fault = Find<QLabel>("LabelLayoutFault");
    set("SpinHeaderLength", 6);
    set("SpinRecordLength", 84);
    set("SpinCluesOffset", 4);
    QVERIFY(!read.isEnabled() && fault.text().contains(u"do not fit"_s));
    set("SpinCluesOffset", 2);
    Find<QComboBox>("ComboRecordDigits").setCurrentIndex(1);
    Find<QComboBox>("ComboEmptyKind").setCurrentText(u"A character"_s);
    Find<QLineEdit>("EditEmptyCharacter").clear();
    QVERIFY(!read.isEnabled() && !fault.text().isEmpty());
    Find<QComboBox>("ComboEmptyKind").setCurrentText(u"A byte"_s);
    set("SpinEmptyByte", 0);
    auto& records = Find<QTableWidget>("ListRecords");
    QCOMPARE(records.item(1, 2)->text().toStdString(), WriteGrid81(clues));
    QVERIFY(records.item(2, 0)->text().isEmpty());
    QVERIFY(read.isEnabled() && fault.text().isEmpty());
    read.click();
    WaitForEnd();
    QCOMPARE(Rows().rowCount(), 2);
    QCOMPARE(Cell(1, TableColumn::Clues).toInt(), ClueCount(clues));
}

void CollectionWindowTest::ASudokuOfALevelIsPlayedInSight() {
    const BoardWidget& widget = fixture_->window.Board();
    const QRect board(widget.mapToGlobal(QPoint()), widget.size());
    Choose("CommandLevel", 0);
    QCOMPARE(State().Level(), 1);
    QVERIFY(Rows().rowCount() > 3);
    SelectRow(2);
    form_->move(board.center());
    QTest::keyClick(&Table(), Qt::Key_Return);
    QCOMPARE(fixture_->game.CurrentSession().number, 3);
    QVERIFY(WindowFixture::WaitForActive(fixture_->window));
    QVERIFY(!form_->isVisible());

    fixture_->ClickMenu(CommandId::SudokuCheck);
    QVERIFY(WindowFixture::WaitForActive(*form_));
    QCOMPARE(Table().currentIndex().row(), 2);
    form_->move(board.right() + 100, board.top());
    const QModelIndex second = Rows().index(1, 0);
    const QPoint place = Table().visualRect(second).center();
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(Table().viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(fixture_->game.CurrentSession().number, 2);
    QVERIFY(WindowFixture::WaitForActive(fixture_->window));
    QVERIFY(form_->isVisible());
}

void CollectionWindowTest::NothingIsLoadedBeneathABox() {
    for (int level = 1; level <= kLevels; ++level) {  // without any the import takes no time
        std::filesystem::remove(fixture_->folders.LocalApplicationData() / kApplicationName /
                                PuzzleFileName(level));
    }
    Drop("one.txt", LinesOf(ManyPuzzles(1)));
    QDialog box(&fixture_->window);
    box.setModal(true);
    QTest::keyClick(&Table(), Qt::Key_Return);
    QVERIFY(State().IsBusy());
    box.show();
    QTest::qWait(300);
    QCOMPARE(fixture_->game.CurrentSession().phase, PlayPhase::NoPuzzle);
    box.close();
    QTRY_COMPARE_WITH_TIMEOUT(fixture_->game.CurrentSession().phase, PlayPhase::Playing, kPatience);
}

void CollectionWindowTest::EverythingCanBeReachedInASmallWindow_data() {
    AddTextSizes();
}

void CollectionWindowTest::EverythingCanBeReachedInASmallWindow() {
    QFETCH(double, text);
    fixture_.reset();
    const TextSize size(text);
    init();
    form_->resize(480, 480);
    QCoreApplication::processEvents();
    QCOMPARE(form_->size(), QSize(480, 480));
    Button("CommandFilters").click();
    QCoreApplication::processEvents();
    auto& area = *form_->findChild<QScrollArea*>();
    QCOMPARE(area.horizontalScrollBar()->maximum(), 0);
    QVERIFY(IsWithin(*form_, Button("CommandCancelJob")));
    for (const char* name : {"CommandOpenFile", "ComboKind", "CheckLevel9", "SpinMostClues",
                             "CommandExport", "CommandSolve"}) {
        const QRect place = Find<QWidget>(name).rect();
        const QPoint middle = Find<QWidget>(name).mapTo(area.widget(), place.center());
        area.ensureVisible(middle.x(), middle.y(), 0, place.height());
        QVERIFY2(IsWithin(*area.viewport(), Find<QWidget>(name)), name);
    }
}

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::CollectionWindowTest)

#include "collection_test.moc"
