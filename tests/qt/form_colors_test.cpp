// The window of the colours, by mouse and by keyboard.
#include "qt/form_colors.h"

#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class FormColorsTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        fixture_ = std::make_unique<WindowFixture>();
        fixture_->OpenFirstEasy();
        Open();
    }
    void cleanup() { fixture_.reset(); }

    void AColorIsTypedSeenAtOnceAndKept();
    void WhatIsNoColorKeepsTheWindowOpen();
    void CancelAndTheQuestionTakeColorsBack();
    void TheBoxOfColorsIsFollowedAndLetGo();
    void WarningsStandInTheListAndBesideTheColor();
    void TheOtherPaletteIsSeenOnItsOwnWindow();

  private:
    void Open() {
        fixture_->ClickMenu(CommandId::OptionsColors);
        form_ = &fixture_->Find<FormColors>("FormColors");
        QVERIFY(WindowFixture::WaitForActive(*form_));
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
    QLineEdit& Edit(const char* name) const { return Find<QLineEdit>(name); }
    QString Text(const char* name) const { return Find<QLabel>(name).text(); }
    QListWidget& List() const { return Find<QListWidget>("ListColors"); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(form_->focusWidget(), key, modifiers);
    }
    void Type(const char* edit, const QString& text) const {
        Edit(edit).setFocus();
        Edit(edit).selectAll();
        QTest::keyClicks(&Edit(edit), text);
    }
    void Click(const char* button) const { QTest::mouseClick(&Button(button), Qt::LeftButton); }
    const Colors& Now() const { return fixture_->game.CurrentColors(); }
    static QColor Middle(QWidget& widget) {
        const QPixmap picture = widget.grab();
        return picture.toImage().pixelColor(picture.width() / 2, picture.height() / 4);
    }

    std::unique_ptr<WindowFixture> fixture_;
    FormColors* form_ = nullptr;
};

void FormColorsTest::AColorIsTypedSeenAtOnceAndKept() {
    QCOMPARE(form_->focusWidget(), &List());
    Press(Qt::Key_Down);
    QCOMPARE(Text("LabelColorName"), u"Color 2"_s);
    Press(Qt::Key_Tab);
    QCOMPARE(form_->focusWidget(), &Edit("EditColor"));
    Type("EditColor", u"ff8800"_s);
    auto& label = fixture_->Find<QAbstractButton>("LabelColor1");
    QCOMPARE(Middle(label), QColor(0xFF, 0x88, 0x00));
    QCOMPARE(Edit("EditColor").text(), u"ff8800"_s);
    Press(Qt::Key_Return);
    QVERIFY(form_->isVisible());
    QCOMPARE(Edit("EditColor").text(), u"#FF8800"_s);
    Press(Qt::Key_D, Qt::AltModifier);
    QCOMPARE(form_->focusWidget(), &Edit("EditDigits"));
    List().setFocus();
    Press(Qt::Key_Return);
    QVERIFY(!form_->isVisible());
    QCOMPARE(fixture_->settings.Get("Colors", "BColor1", ""), "16746496");
}

void FormColorsTest::WhatIsNoColorKeepsTheWindowOpen() {
    Type("EditDigits", u"blue"_s);
    QVERIFY(Find<QLabel>("LabelColorError").isVisible());
    QVERIFY(Text("LabelColorError").contains(u"\"blue\""_s));
    QVERIFY(!Button("CommandOK").isEnabled());
    List().setFocus();
    Press(Qt::Key_Return);
    QVERIFY(form_->isVisible());
    QCOMPARE(Edit("EditDigits").text(), u"blue"_s);
    Edit("EditDigits").setFocus();
    Press(Qt::Key_Escape);
    QVERIFY(form_->isVisible());
    QCOMPARE(Edit("EditDigits").text(), u"#17181D"_s);
    QVERIFY(Button("CommandOK").isEnabled());
    Press(Qt::Key_Escape);
    QVERIFY(!form_->isVisible());
}

void FormColorsTest::CancelAndTheQuestionTakeColorsBack() {
    Type("EditColor", u"#010203"_s);
    QVERIFY(Button("CommandResetColor").isEnabled());
    Click("CommandCancel");
    QVERIFY(!form_->isVisible());
    QCOMPARE(Now(), BuiltInColors());
    Open();
    Type("EditColor", u"#010203"_s);
    fixture_->boxes.Expect({u"Hint Colors"_s, u"Do you want to keep the changed colors ?"_s,
                            QMessageBox::No, QMessageBox::Yes});
    form_->close();
    QCOMPARE(Now(), BuiltInColors());
    Open();
    Type("EditColor", u"#010203"_s);
    Button("CommandResetColor").setFocus();
    Press(Qt::Key_Space);
    QCOMPARE(Now(), BuiltInColors());
    QCOMPARE(form_->focusWidget(), &Edit("EditColor"));
    QVERIFY(!Button("CommandResetColors").isEnabled());
}

void FormColorsTest::TheBoxOfColorsIsFollowedAndLetGo() {
    const auto dialog = [this] { return form_->findChild<QColorDialog*>(); };
    const QRect item = List().visualItemRect(List().currentItem());
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, item.center());
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, item.center());
    QVERIFY(dialog() != nullptr);
    dialog()->setCurrentColor(QColor(0x11, 0x22, 0x33));
    QCOMPARE(Now().light.brush[0], 0x112233U);
    dialog()->reject();
    QCOMPARE(Now(), BuiltInColors());
    QTRY_VERIFY(dialog() == nullptr);
    Click("CommandChooseDigits");
    dialog()->setCurrentColor(QColor(0x11, 0x22, 0x33));
    dialog()->accept();
    QCOMPARE(Now().light.brushText[0], 0x112233U);
    QCOMPARE(Edit("EditDigits").text(), u"#112233"_s);
}

void FormColorsTest::WarningsStandInTheListAndBesideTheColor() {
    QVERIFY(!Find<QLabel>("LabelWarnings").isVisible());
    Type("EditColor", u"#404040"_s);
    Press(Qt::Key_Return);
    QVERIFY(Find<QLabel>("LabelWarnings").isVisible());
    QVERIFY(Text("LabelWarnings").startsWith(u"Digits are hard to read on this color: "_s));
    QCOMPARE(List().currentItem()->text(), u"Color 1: hard to read"_s);
    Click("CommandResetColor");
    QVERIFY(!Find<QLabel>("LabelWarnings").isVisible());
    QCOMPARE(List().currentItem()->text(), u"Color 1"_s);
}

void FormColorsTest::TheOtherPaletteIsSeenOnItsOwnWindow() {
    const auto boardGround = [this] {
        return Find<QWidget>("BoardSample").grab().toImage().pixelColor(1, 1);
    };
    QVERIFY(Find<QRadioButton>("OptionLight").isChecked());
    Find<QRadioButton>("OptionDark").click();
    QCOMPARE(boardGround(), ThemeOf(Tone::Dark).window);
    Type("EditColor", u"#010203"_s);
    QCOMPARE(Now().dark.brush[0], 0x010203U);
    QCOMPARE(Now().light, BuiltInColors().light);
    Click("CommandOK");
    fixture_->game.Run(CommandId::AppearanceDark);
    Open();
    QVERIFY(Find<QRadioButton>("OptionDark").isChecked());
}

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::FormColorsTest)

#include "form_colors_test.moc"
