// The window "Solving Techniques Manager", by mouse and by keyboard.
#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>

#include "qt/solve_tech_window.h"
#include "qt/window_fixture.h"

using namespace Qt::StringLiterals;

namespace vemo::test {

class SolveTechTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        fixture_ = std::make_unique<WindowFixture>();
        Open();
    }
    void cleanup() { fixture_.reset(); }

    void WhatIsFixedIsOff() {
        QCOMPARE(form_->windowTitle(), u"Solving Techniques Manager"_s);
        for (int slot = 0; slot < kSlots; ++slot) {
            QCOMPARE(Box(slot).isEnabled(), slot >= 8);
            QVERIFY(Box(slot).isChecked());
            QCOMPARE(Box(slot + kSlots).isEnabled(), slot >= 3);
            QCOMPARE(Box(slot + kSlots).isChecked(), slot <= 2);
        }
        QVERIFY(form_->findChild<QRadioButton*>(u"OptionOrder_7"_s) == nullptr);
        QVERIFY(form_->findChild<QRadioButton*>(u"OptionOrder_39"_s) == nullptr);
        QCOMPARE(Option(8).text(), u"X-Wing"_s);
        QCOMPARE(Option(8).toolTip(), u"Crazy level"_s);
        QVERIFY(Option(8).isChecked());
        QVERIFY(!Button("KnopUp").isEnabled());
        Click(Option(38));
        QVERIFY(!Button("KnopDown").isEnabled());
        QVERIFY(Button("KnopUp").isEnabled());
    }

    void ClicksChangeTheSlots() {
        ClickBox(Box(12 + kSlots));
        QVERIFY(RowAt(12).isHalting);
        ClickBox(Box(12));
        QVERIFY(!RowAt(12).isIncluded);
        QVERIFY(Box(12 + kSlots).isChecked());
        QVERIFY(!Box(12 + kSlots).isEnabled());
        QCOMPARE(Position(), 8);
        Click(Button("CommandDefaults"));
        QVERIFY(Box(12).isChecked());
        QVERIFY(!Box(12 + kSlots).isChecked());
        QVERIFY(Box(12 + kSlots).isEnabled());
        QVERIFY(!Button("CommandDefaults").isEnabled());
    }

    void ClicksSelectAndMoveARow() {
        QWidget* rows = Option(10).parentWidget();
        const QPoint besideLevel(rows->width() - 12, Option(10).geometry().center().y());
        QTest::mouseClick(rows, Qt::LeftButton, {}, besideLevel);
        QCOMPARE(Position(), 10);
        QCOMPARE(FocusName(), u"OptionOrder_10"_s);

        Click(Option(20));
        const QString caption = Option(20).text();
        const int boxTop = Box(20).geometry().top();
        Click(Button("KnopDown"));
        QCOMPARE(Position(), 21);
        QCOMPARE(Option(21).text(), caption);
        QVERIFY(Option(21).isChecked());
        QTRY_VERIFY(Box(20).geometry().top() > boxTop);
        QCOMPARE(Box(20).geometry().top(), Box(20 + kSlots).geometry().top());
        Click(Button("KnopUp"));
        Click(Button("KnopUp"));
        QCOMPARE(RowAt(19).slot, 20);
        QCOMPARE(Option(19).text(), caption);
        Click(Button("CommandDefaults"));
        QCOMPARE(RowAt(20).slot, 20);
        QVERIFY(Option(20).isChecked());
    }

    void KeysMoveTheSelectedRowAndItKeepsTheKeyboard() {
        QCOMPARE(FocusName(), u"OptionOrder_8"_s);
        Press(Qt::Key_Up);
        QCOMPARE(Position(), 8);
        Press(Qt::Key_Down);
        Press(Qt::Key_Down);
        QCOMPARE(Position(), 10);
        for (int time = 0; time < 3; ++time) {
            Press(Qt::Key_Down, Qt::AltModifier);
        }
        QCOMPARE(RowAt(13).slot, 10);
        QCOMPARE(FocusName(), u"OptionOrder_13"_s);
        Press(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(RowAt(12).slot, 10);
        // A box moves with its row.
        Press(Qt::Key_Right);
        QCOMPARE(FocusName(), u"CheckInclude_10"_s);
        Press(Qt::Key_Space);
        Press(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(RowAt(13).slot, 10);
        QVERIFY(!RowAt(13).isIncluded);
        QCOMPARE(FocusName(), u"CheckInclude_10"_s);
    }

    void ArrowsGoFromControlToControl() {
        const auto go = [this](std::initializer_list<Qt::Key> keys) {
            for (const Qt::Key key : keys) {
                Press(key);
            }
            return FocusName();
        };
        QCOMPARE(go({Qt::Key_Left}), u"OptionOrder_8"_s);
        QCOMPARE(go({Qt::Key_Right}), u"CheckInclude_8"_s);
        QCOMPARE(go({Qt::Key_Up}), u"CheckInclude_8"_s);
        QCOMPARE(go({Qt::Key_Right, Qt::Key_Up}), u"CheckInclude_47"_s);
        QCOMPARE(go({Qt::Key_Left}), u"CheckInclude_47"_s);
        QCOMPARE(go({Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up}),
                 u"CheckInclude_43"_s);
        // A box that is off is passed over.
        fixture_->game.CheckInclude(8);
        QCOMPARE(go({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down}),
                 u"CheckInclude_49"_s);
        QCOMPARE(Position(), 8);
        QCOMPARE(go({Qt::Key_Left, Qt::Key_Left}), u"OptionOrder_9"_s);
        QCOMPARE(Position(), 9);
    }

    void TabGoesThroughTheRowsAsTheyStand() {
        Press(Qt::Key_Down, Qt::AltModifier);
        const QStringList expected = {
            u"OptionOrder_9"_s,   u"CheckInclude_8"_s,  u"CheckInclude_48"_s,
            u"CheckInclude_10"_s, u"CheckInclude_50"_s, u"CheckInclude_11"_s,
        };
        for (const QString& name : expected) {
            QCOMPARE(FocusName(), name);
            Press(Qt::Key_Tab);
        }
        QStringList reached;
        while (FocusName() != u"OptionOrder_9"_s && reached.size() < 200) {
            reached << FocusName();
            Press(Qt::Key_Tab);
        }
        QVERIFY(reached.mid(reached.indexOf(u"CheckInclude_79"_s) + 1, 4) ==
                QStringList({u"KnopUp"_s, u"KnopDown"_s, u"CommandDefaults"_s, u"CommandOK"_s}));
        QVERIFY(reached.endsWith(u"CheckInclude_49"_s));
        QVERIFY(reached.contains(u"CheckInclude_43"_s));
    }

    void AButtonThatGoesOffHandsTheKeyboardToTheRow() {
        Press(Qt::Key_Down);
        Button("KnopUp").setFocus();
        Press(Qt::Key_Space);
        QCOMPARE(Position(), 8);
        QCOMPARE(FocusName(), u"OptionOrder_8"_s);
        Button("KnopDown").setFocus();
        Press(Qt::Key_Space);
        Press(Qt::Key_Return);
        QCOMPARE(Position(), 10);
        QCOMPARE(FocusName(), u"KnopDown"_s);
    }

    void TheSelectedRowStaysInView() {
        form_->resize(form_->width(), form_->minimumSizeHint().height());
        auto* area = form_->findChild<QScrollArea*>();
        const auto isInView = [area](const QWidget& widget) {
            const QRect seen = area->viewport()->rect();
            const QRect place(widget.mapTo(area->widget(), QPoint(0, 0)) + area->widget()->pos(),
                              widget.size());
            return seen.contains(place);
        };
        for (int position = 9; position <= 38; ++position) {
            Press(Qt::Key_Down, Qt::AltModifier);
            QVERIFY(isInView(Option(position)));
        }
        Press(Qt::Key_Right);
        Press(Qt::Key_Down);
        QCOMPARE(FocusName(), u"CheckInclude_39"_s);
        QVERIFY(isInView(Box(39)));
        for (int position = 37; position >= 8; --position) {
            Click(Button("KnopUp"));
            QVERIFY(isInView(Option(position)));
        }
    }

    void EveryWayToCloseStoresTheSettings() {
        const std::vector<std::function<void()>> means = {
            [this] { Click(Button("CommandOK")); },
            [this] { Press(Qt::Key_Return); },
            [this] { Press(Qt::Key_Escape); },
            [this] { form_->close(); },
        };
        for (std::size_t way = 0; way < means.size(); ++way) {
            Click(Button("KnopDown"));
            const int position = Position();
            ClickBox(Box(30));
            means[way]();
            QVERIFY(!form_->isVisible());
            QVERIFY(fixture_->window.isVisible());
            QCOMPARE(Stored("OnOff30"), QString::number(way % 2));
            QCOMPARE(Stored("Order8"), QString::number(position));
            fixture_->window.activateWindow();
            QVERIFY(WindowFixture::WaitForActive(fixture_->window));
            Open();
            QCOMPARE(Box(30).isChecked(), way % 2 == 1);
            QCOMPARE(FocusName(), u"OptionOrder_%1"_s.arg(position));
        }
    }

    void WhileBusyOnlyOKIsOn() {
        fixture_->OpenFirstEasy();
        Click(Option(20));
        ClickBox(Box(30));
        bool wasBusy = false;
        QTimer looking;
        connect(&looking, &QTimer::timeout, this, [&] {
            if (wasBusy || !fixture_->game.CurrentSession().IsBusy()) {
                return;
            }
            wasBusy = true;
            for (const QWidget* control : std::initializer_list<const QWidget*>{
                     &Option(20), &Box(20), &Box(43), &Button("KnopUp"), &Button("KnopDown"),
                     &Button("CommandDefaults")}) {
                QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
            }
            QVERIFY(Button("CommandOK").isEnabled());
            Press(Qt::Key_Down, Qt::AltModifier);
            QCOMPARE(Position(), 20);
            fixture_->game.Run(CommandId::SolveStop);
        });
        looking.start(0);
        fixture_->game.Run(CommandId::SolveAutoSolve);
        QVERIFY(wasBusy);
        QVERIFY(Option(20).isEnabled());
        QVERIFY(Button("KnopUp").isEnabled());
        QCOMPARE(FocusName(), u"CheckInclude_30"_s);
    }

    void EveryControlSaysTechniqueAndMeaning() {
        const auto nameOf = [](QWidget& widget) {
            return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
        };
        QCOMPARE(nameOf(Option(8)), u"Select X-Wing, position 9"_s);
        QCOMPARE(nameOf(Box(8)), u"Include X-Wing"_s);
        QCOMPARE(nameOf(Box(8 + kSlots)), u"Autosolve halt on X-Wing"_s);
        Press(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(nameOf(Option(8)), u"Select Swordfish, position 9"_s);
        QCOMPARE(nameOf(Option(9)), u"Select X-Wing, position 10"_s);
    }

    void CaptionsStandOverTheirColumns() {
        const std::pair<QString, QWidget&> columns[] = {
            {u"Technique"_s, Option(8)},
            {u"Include"_s, Box(8)},
            {u"Autosolve halt on ..."_s, Box(8 + kSlots)}};
        for (const auto& [caption, control] : columns) {
            const QList<QLabel*> labels = form_->findChildren<QLabel*>();
            const auto label = std::ranges::find(labels, caption, &QLabel::text);
            QVERIFY2(label != labels.end(), qPrintable(caption));
            QCOMPARE((*label)->mapTo(form_, QPoint()).x(), control.mapTo(form_, QPoint()).x());
        }
    }

  private:
    void Open() {
        fixture_->ClickMenu(CommandId::SolveManager);
        form_ = &fixture_->Find<SolveTechWindow>("SolveTech");
        QVERIFY(WindowFixture::WaitForActive(*form_));
    }
    QRadioButton& Option(int position) const {
        return fixture_->Find<QRadioButton>(qPrintable(u"OptionOrder_%1"_s.arg(position)));
    }
    // The box that includes a slot, or kSlots after it the one that halts on it.
    QCheckBox& Box(int index) const {
        return fixture_->Find<QCheckBox>(qPrintable(u"CheckInclude_%1"_s.arg(index)));
    }
    QPushButton& Button(const char* name) const { return fixture_->Find<QPushButton>(name); }
    static void Click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }
    static void ClickBox(QCheckBox& box) {
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(box.height() / 2, box.height() / 2));
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(form_->focusWidget(), key, modifiers);
    }
    QString FocusName() const { return form_->focusWidget()->objectName(); }
    int Position() const { return fixture_->game.TechniqueManager().Position(); }
    TechniqueRow RowAt(int position) const {
        return fixture_->game.TechniqueManager().Rows()[static_cast<std::size_t>(position)];
    }
    QString Stored(const char* key) const {
        return QString::fromStdString(fixture_->settings.Get("Technique", key, "none"));
    }

    std::unique_ptr<WindowFixture> fixture_;
    SolveTechWindow* form_ = nullptr;
};

}  // namespace vemo::test

VEMO_WINDOW_TESTS(vemo::test::SolveTechTest)

#include "solve_tech_test.moc"
