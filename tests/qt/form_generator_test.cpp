// The window of the generator, by mouse and by keyboard.
#include "qt/form_generator.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QWheelEvent>

#include "qt/window_checks.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class FormGeneratorTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        fixture_ = std::make_unique<WindowFixture>();
        Open();
    }
    void cleanup() { fixture_.reset(); }

    void WhatIsMissingOrImpossibleIsSaidAtOnce();
    void ASearchIsStartedWatchedAndPlayedFromTheKeyboard();
    void TheSearchGoesOnWhileTheWindowIsClosed();
    void QuittingBringsTheWindowToTheFront();
    void WhatIsNotStoredCanBeStoredAgain();
    void TheWheelScrollsInsteadOfChangingTheOrder();
    void EverythingCanBeReachedInASmallWindow_data();
    void EverythingCanBeReachedInASmallWindow();

  private:
    void Open() {
        fixture_->ClickMenu(CommandId::SudokuGenerator);
        form_ = &fixture_->Find<FormGenerator>("FormGenerator");
        QVERIFY(WindowFixture::WaitForActive(*form_));
    }
    template <typename Widget>
    Widget& Find(const char* name) const {
        return fixture_->Find<Widget>(name);
    }
    QPushButton& Button(const char* name) const { return Find<QPushButton>(name); }
    QSpinBox& Wanted(int level) const {
        return Find<QSpinBox>(qPrintable(u"SpinWanted%1"_s.arg(level)));
    }
    QTableView& List() const { return Find<QTableView>("ListMade"); }
    QString Text(const char* name) const { return Find<QLabel>(name).text(); }
    void Press(Qt::Key key) const { QTest::keyClick(form_->focusWidget(), key); }
    const GeneratorWindow& State() const { return fixture_->game.CurrentGenerator(); }
    void StartEndless() const {
        Wanted(1).setValue(kMostWanted);
        Button("CommandStart").click();
    }

    std::unique_ptr<WindowFixture> fixture_;
    FormGenerator* form_ = nullptr;
};

void FormGeneratorTest::WhatIsMissingOrImpossibleIsSaidAtOnce() {
    QVERIFY(Text("LabelMessage").contains(u"press Start"_s));
    QVERIFY(!Button("CommandStart").isEnabled());
    QVERIFY(!Button("CommandStore").isVisible());
    QVERIFY(!Button("CommandPlay").isEnabled());
    QVERIFY(!Button("CommandPlay").toolTip().isEmpty());
    auto& error = Find<QLabel>("LabelOrderError");
    Wanted(1).setFocus();
    QTest::keyClicks(&Wanted(1), u"5"_s);
    QVERIFY(!error.isVisible());
    QVERIFY(Button("CommandStart").isEnabled());
    auto& technique = Find<QComboBox>("ComboTechnique");
    QCOMPARE(technique.count(), 1 + kSlots - kFirstTechniqueSlot);
    technique.setCurrentText(u"X-Wing"_s);
    QVERIFY(error.isVisible());
    QVERIFY(error.text().contains(u"X-Wing"_s));
    QVERIFY(!Button("CommandStart").isEnabled());
    technique.setCurrentText(u"Any"_s);
    QVERIFY(!Find<QSpinBox>("SpinFewest").isEnabled());
    Find<QRadioButton>("OptionFromTo").click();
    Find<QSpinBox>("SpinFewest").setValue(60);
    QVERIFY(error.text().contains(u"60"_s));
    Find<QRadioButton>("OptionSuiting").click();
    QTest::keyClicks(&Find<QLineEdit>("EditSeed"), u"seven"_s);
    QVERIFY(error.text().contains(u"seed"_s));
    QVERIFY(!Button("CommandStart").isEnabled());
}

void FormGeneratorTest::ASearchIsStartedWatchedAndPlayedFromTheKeyboard() {
    Wanted(1).setFocus();
    QTest::keyClicks(&Wanted(1), u"12"_s);
    Button("CommandStart").setFocus();
    Press(Qt::Key_Return);
    QVERIFY(State().IsSearching());
    QCOMPARE(form_->focusWidget(), &Button("CommandStopSearch"));
    QVERIFY(!Wanted(1).isEnabled());
    QTRY_VERIFY_WITH_TIMEOUT(!State().IsSearching(), 30000);
    QCOMPARE(Text("LabelMessage"), u"Complete. Sudokus made: 12 of 12."_s);
    QCOMPARE(Text("LabelKept1"), u"12 of 12 made"_s);
    QVERIFY(Text("LabelCounts").endsWith(QString::number(State().Searched().seed)));
    QCOMPARE(List().model()->rowCount(), 12);
    QCOMPARE(form_->focusWidget(), &List());

    const auto described = [this] { return Find<QWidget>("BoardMade").accessibleDescription(); };
    const QString first = described();
    QVERIFY(!first.isEmpty());
    Press(Qt::Key_Down);
    QVERIFY(described() != first);
    Press(Qt::Key_Return);
    QVERIFY(WindowFixture::WaitForActive(fixture_->window));
    QCOMPARE(fixture_->game.CurrentSession().number, State().Made()[1].number);
    const QModelIndex third = List().model()->index(2, 0);
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, List().visualRect(third).center());
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, List().visualRect(third).center());
    QCOMPARE(fixture_->game.CurrentSession().number, State().Made()[2].number);
}

void FormGeneratorTest::TheSearchGoesOnWhileTheWindowIsClosed() {
    Wanted(1).setValue(5);
    Button("CommandStart").click();
    Press(Qt::Key_Escape);
    QVERIFY(!form_->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!State().IsSearching(), 30000);
    Open();
    QCOMPARE(Text("LabelMessage"), u"Complete. Sudokus made: 5 of 5."_s);
    QCOMPARE(List().model()->rowCount(), 5);
}

void FormGeneratorTest::QuittingBringsTheWindowToTheFront() {
    StartEndless();
    form_->close();
    fixture_->window.close();
    QVERIFY(fixture_->window.isVisible());
    QVERIFY(form_->isVisible());
    QVERIFY(Text("LabelMessage").contains(u"cannot end"_s));
    Button("CommandStopSearch").click();
    QVERIFY(!State().IsSearching());
    QVERIFY(Text("LabelMessage").startsWith(u"Stopped. "_s));
}

void FormGeneratorTest::WhatIsNotStoredCanBeStoredAgain() {
    const std::filesystem::path easy =
        fixture_->folders.LocalApplicationData() / kApplicationName / PuzzleFileName(1);
    std::filesystem::remove(easy);
    std::filesystem::create_directories(easy / "in the way");
    StartEndless();
    QTRY_VERIFY_WITH_TIMEOUT(!State().IsSearching(), 30000);
    const QModelIndex number = List().model()->index(0, 1);
    QCOMPARE(number.data().toString(), u"not stored"_s);
    QVERIFY(!Button("CommandPlay").isEnabled());
    std::filesystem::remove_all(easy);
    Button("CommandStore").click();
    QCOMPARE(number.data().toInt(), 1);
    QVERIFY(!Button("CommandStore").isVisible());
    QVERIFY(Button("CommandPlay").isEnabled());
}

void FormGeneratorTest::TheWheelScrollsInsteadOfChangingTheOrder() {
    Wanted(3).setValue(4);
    Wanted(1).setFocus();
    const QPointF middle = QRectF(Wanted(3).rect()).center();
    QWheelEvent wheel(middle, Wanted(3).mapToGlobal(middle), {}, {0, 120}, {}, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&Wanted(3), &wheel);
    QCOMPARE(Wanted(3).value(), 4);
}

void FormGeneratorTest::EverythingCanBeReachedInASmallWindow_data() {
    AddTextSizes();
}

void FormGeneratorTest::EverythingCanBeReachedInASmallWindow() {
    QFETCH(double, text);
    fixture_.reset();
    const TextSize size(text);
    init();
    form_->resize(480, 480);
    QCoreApplication::processEvents();
    QCOMPARE(form_->size(), QSize(480, 480));
    auto& area = *form_->findChild<QScrollArea*>();
    QVERIFY(area.viewport()->height() >= 100);
    for (const char* name : {"CommandStart", "CommandStopSearch", "LabelMessage"}) {
        QVERIFY2(IsWithin(*form_, Find<QWidget>(name)), name);
    }
    QCOMPARE(area.horizontalScrollBar()->maximum(), 0);
    for (const char* name :
         {"SpinWanted9", "SpinMost", "ComboTechnique", "EditSeed", "SpinTries", "CommandPlay"}) {
        const QRect place = Find<QWidget>(name).rect();
        const QPoint middle = Find<QWidget>(name).mapTo(area.widget(), place.center());
        area.ensureVisible(middle.x(), middle.y(), 0, place.height());
        QVERIFY2(IsWithin(*area.viewport(), Find<QWidget>(name)), name);
    }
}

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::FormGeneratorTest)

#include "form_generator_test.moc"
