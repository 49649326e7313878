// The line that explains the shapes of the hint on display.
#include "qt/legend.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStringList>

#include "qt/role_shapes.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// What stands struck through in the legend.
constexpr int kSampleDigit = 3;
constexpr int kRing = 2;  // that a shape may reach beyond its radius

int SampleDigitOf(Role role) {
    return role == Role::Attacked ? kSampleDigit : 0;
}

bool AreAlike(const std::vector<LegendEntry>& a, const std::vector<LegendEntry>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const LegendEntry& x, const LegendEntry& y) {
                          return x.role == y.role && x.text == y.text;
                      });
}

}  // namespace

Legend::Legend(QWidget* parent) : QWidget(parent) {
    setAccessibleName(u"Legend"_s);
}

bool Legend::ShowEntries(const std::vector<LegendEntry>& entries, const BoardColors& colors) {
    if (AreAlike(entries, entries_) && colors == colors_) {
        return false;
    }
    entries_ = entries;
    colors_ = colors;
    QStringList words;
    for (const LegendEntry& entry : entries_) {
        words << ToQString(entry.text);
    }
    setAccessibleName(u"Legend: "_s + words.join(u", "_s));
    update();
    return true;
}

int Legend::heightForWidth(int width) const {
    return entries_.empty() ? 0 : PlacesIn(width).back().y() + LineHeight();
}

QSize Legend::sizeHint() const {
    int width = 0;
    for (const LegendEntry& entry : entries_) {
        width += EntryWidth(entry);
    }
    return {width, entries_.empty() ? 0 : LineHeight()};
}

void Legend::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const std::vector<QPoint> places = PlacesIn(width());
    for (std::size_t index = 0; index < entries_.size(); ++index) {
        const LegendEntry& entry = entries_[index];
        const QPoint middle = places[index] + QPoint(Radius() + kRing, LineHeight() / 2);
        DrawRole(painter, middle, Radius(), entry.role, SampleDigitOf(entry.role), font(), colors_,
                 colors_.theme.panel);
        painter.setFont(font());
        painter.setPen(colors_.theme.softText);
        const QRect room(places[index] + QPoint(3 * Radius() + kRing, 0),
                         QSize(width(), LineHeight()));
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, ToQString(entry.text));
    }
}

std::vector<QPoint> Legend::PlacesIn(int width) const {
    std::vector<QPoint> places;
    QPoint next;
    for (const LegendEntry& entry : entries_) {
        const int needed = EntryWidth(entry);
        if (next.x() > 0 && next.x() + needed > width) {
            next = {0, next.y() + LineHeight()};
        }
        places.push_back(next);
        next.rx() += needed;
    }
    return places;
}

int Legend::EntryWidth(const LegendEntry& entry) const {
    return 5 * Radius() + kRing + fontMetrics().horizontalAdvance(ToQString(entry.text));
}

int Legend::LineHeight() const {
    return fontMetrics().height() + 6;
}

int Legend::Radius() const {
    return fontMetrics().height() / 2;
}

}  // namespace vemo
