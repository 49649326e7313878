// What holds for every window.
#include "qt/window_checks.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

namespace vemo::test {

using namespace Qt::StringLiterals;

namespace {

QString NameOf(const QWidget* widget) {
    const QString name = widget->objectName();
    return name.isEmpty() ? QString::fromLatin1(widget->metaObject()->className()) : name;
}

void CollectNameless(QAccessibleInterface* element, QStringList& found) {
    if (element == nullptr || element->state().invisible) {
        return;
    }
    // The toolkit's own layers: windows' clients, viewports and separators hold nothing to name.
    const QAccessible::Role role = element->role();
    const bool isLayer = role == QAccessible::Separator || role == QAccessible::Client ||
                         role == QAccessible::Window || role == QAccessible::ScrollBar;
    // A label without a text says nothing; a table's corner is nobody's control.
    const bool isSilent = role == QAccessible::StaticText ||
                          (role == QAccessible::Pane && element->object() == nullptr);
    if (!isLayer && !isSilent && element->text(QAccessible::Name).isEmpty()) {
        const auto* widget = qobject_cast<const QWidget*>(element->object());
        found << u"role %1: %2"_s.arg(int(role)).arg(widget == nullptr ? QString()
                                                                       : NameOf(widget));
    }
    for (int child = 0; child < element->childCount(); ++child) {
        CollectNameless(element->child(child), found);
    }
}

// Lists and text boxes arrange their own parts.
bool ArrangesItself(const QWidget* widget) {
    return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
}

bool IsCut(const QLabel& label) {
    const bool fits = label.wordWrap() ? label.heightForWidth(label.width()) <= label.height()
                                       : label.sizeHint().width() <= label.width() &&
                                             label.fontMetrics().height() <= label.height();
    return !fits;
}

bool IsCut(const QAbstractButton& button) {
    if (button.text().isEmpty()) {
        return false;
    }
    const QFontMetrics metrics = button.fontMetrics();
    const int width = metrics.horizontalAdvance(QString(button.text()).remove(u'&'));
    return width + 4 > button.width() || metrics.height() > button.height();
}

template <typename Widget>
void CollectCut(QWidget& parent, QStringList& found) {
    for (const Widget* widget : parent.findChildren<Widget*>()) {
        if (widget->isVisible() && widget->window() == parent.window() && IsCut(*widget)) {
            found << NameOf(widget) + u": "_s + widget->text();
        }
    }
}

void CheckLetters(const QList<QAction*>& actions, const QString& path, QStringList& found) {
    QStringList taken;
    for (const QAction* action : actions) {
        if (action->isSeparator()) {
            continue;
        }
        const qsizetype sign = action->text().indexOf(u'&');
        const QString letter = sign < 0 ? QString() : action->text().mid(sign + 1, 1).toLower();
        if (letter.isEmpty() || taken.contains(letter)) {
            found << path + action->text();
        }
        taken << letter;
        if (action->menu() != nullptr) {
            CheckLetters(action->menu()->actions(), path + action->text() + u'/', found);
        }
    }
}

}  // namespace

QStringList Nameless(QWidget& window) {
    QStringList found;
    CollectNameless(QAccessible::queryAccessibleInterface(&window), found);
    return found;
}

QStringList Overlaps(QWidget& parent) {
    QStringList found;
    QList<QWidget*> shown;
    for (QWidget* child : parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        // The level cards lie over the board on purpose.
        if (!child->isVisible() || child->isWindow() || child->objectName() == u"LevelCards"_s) {
            continue;
        }
        if (!parent.rect().contains(child->geometry())) {
            found << NameOf(child) + u" leaves "_s + NameOf(&parent);
        }
        for (QWidget* other : shown) {
            if (other->geometry().intersects(child->geometry())) {
                found << NameOf(child) + u" overlaps "_s + NameOf(other);
            }
        }
        shown << child;
        if (auto* area = qobject_cast<QScrollArea*>(child)) {
            if (area->horizontalScrollBar()->maximum() > 0) {
                found << NameOf(area) + u" scrolls sideways"_s;
            }
            found << Overlaps(*area->widget());
        } else if (!ArrangesItself(child)) {
            found << Overlaps(*child);
        }
    }
    return found;
}

QStringList CutTexts(QWidget& parent) {
    QStringList found;
    CollectCut<QLabel>(parent, found);
    CollectCut<QAbstractButton>(parent, found);
    return found;
}

QStringList OutOfTabsReach(QWidget& window) {
    constexpr int kMostStops = 500;
    QList<QWidget*> reached;
    if (window.focusWidget() == nullptr) {
        QTest::keyClick(&window, Qt::Key_Tab);
    }
    for (int stop = 0; stop < kMostStops; ++stop) {
        QWidget* focus = window.focusWidget();
        // A page keeps the keyboard while Tab goes through its links.
        const bool stays = !reached.isEmpty() && reached.last() == focus;
        if (focus == nullptr || (reached.contains(focus) && !stays)) {
            break;
        }
        if (!stays) {
            reached << focus;
        }
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    QStringList found;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        const bool isStop = control->isVisible() && control->isEnabled() &&
                            control->window() == &window && control->focusProxy() == nullptr &&
                            (control->focusPolicy() & Qt::TabFocus) != 0;
        // The arrow keys go on from the option that is chosen.
        const auto* option = qobject_cast<const QRadioButton*>(control);
        const bool isByArrows = option != nullptr && !option->isChecked();
        if (isStop && !isByArrows && !reached.contains(control)) {
            found << NameOf(control);
        }
    }
    return found;
}

QStringList EntriesWithoutLetter(QWidget& window) {
    QStringList found;
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>(Qt::FindDirectChildrenOnly)) {
        CheckLetters(bar->actions(), QString(), found);
    }
    return found;
}

bool IsWithin(const QWidget& outer, const QWidget& inner) {
    return outer.rect().contains(QRect(inner.mapTo(&outer, QPoint()), inner.size()));
}

void AddTextSizes() {
    QTest::addColumn<double>("text");
    QTest::newRow("usual text") << 1.0;
    QTest::newRow("large text") << 2.0;
}

TextSize::TextSize(double size) : usual_(QApplication::font()) {
    QFont font = usual_;
    font.setPointSizeF(usual_.pointSizeF() * size);
    QApplication::setFont(font);
}

TextSize::~TextSize() {
    QApplication::setFont(usual_);
}

}  // namespace vemo::test
