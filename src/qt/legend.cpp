// The line that explains the shapes and links of the hint on display.
#include "qt/legend.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStringList>

#include "qt/board_links.h"
#include "qt/role_shapes.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// What stands struck through in the legend.
constexpr int kSampleDigit = 3;
// The side of the cell in which a shape of the legend's radius would stand.
constexpr double kRadiiToCell = 6.5;

int SampleDigitOf(Role role) {
    return role == Role::Attacked ? kSampleDigit : 0;
}

// What the words cannot say in so little room; empty without links.
QString MeaningOf(const std::vector<LegendEntry>& entries) {
    QStringList meanings;
    for (const LegendEntry& entry : entries) {
        if (entry.link) {
            meanings << (entry.link->isStrong
                             ? u"Strong link: at least one of the two candidates is true"_s
                             : u"Weak link: at most one of the two candidates is true"_s);
        }
    }
    return meanings.join(u'\n');
}

}  // namespace

Legend::Legend(QWidget* parent) : QWidget(parent) {
    setAccessibleName(u"Legend"_s);
}

bool Legend::ShowEntries(const std::vector<LegendEntry>& entries, const BoardColors& colors) {
    if (entries == entries_ && colors == colors_) {
        return false;
    }
    entries_ = entries;
    colors_ = colors;
    QStringList words;
    for (const LegendEntry& entry : entries_) {
        words << ToQString(entry.text);
    }
    setAccessibleName(u"Legend: "_s + words.join(u", "_s));
    setToolTip(MeaningOf(entries_));
    setAccessibleDescription(toolTip());
    update();
    return true;
}

int Legend::heightForWidth(int width) const {
    return LegendPainter(entries_, font()).HeightFor(width);
}

QSize Legend::sizeHint() const {
    const LegendPainter legend(entries_, font());
    return {legend.WidthOfAll(), legend.HeightFor(legend.WidthOfAll())};
}

void Legend::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    LegendPainter(entries_, font()).Paint(painter, rect(), colors_);
}

int LegendPainter::WidthOfAll() const {
    int width = 0;
    for (const LegendEntry& entry : entries_) {
        width += EntryWidth(entry);
    }
    return width;
}

int LegendPainter::HeightFor(int width) const {
    return entries_.empty() ? 0 : PlacesIn(width).back().y() + LineHeight();
}

void LegendPainter::Paint(QPainter& painter, const QRect& room, const BoardColors& colors) const {
    const std::vector<QPoint> places = PlacesIn(room.width());
    for (std::size_t index = 0; index < entries_.size(); ++index) {
        const LegendEntry& entry = entries_[index];
        const QPoint place = room.topLeft() + places[index];
        PaintSample(painter, place, entry, colors);
        painter.setFont(font_);
        painter.setPen(colors.theme.softText);
        const QRect words(place + QPoint(SampleWidth(entry) + Radius(), 0),
                          QSize(room.width(), LineHeight()));
        painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter, ToQString(entry.text));
    }
}

void LegendPainter::PaintSample(QPainter& painter, const QPoint& place, const LegendEntry& entry,
                                const BoardColors& colors) const {
    const QPoint half(0, LineHeight() / 2);
    if (entry.link) {
        const QPoint along(SampleWidth(entry), 0);
        DrawLinkSample(painter, place + half, place + half + along, *entry.link,
                       kRadiiToCell * Radius(), colors);
        return;
    }
    DrawRole(painter, place + half + QPoint(Radius() + Ring(), 0), Radius(), entry.role,
             SampleDigitOf(entry.role), font_, colors, colors.theme.panel);
}

std::vector<QPoint> LegendPainter::PlacesIn(int width) const {
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

int LegendPainter::EntryWidth(const LegendEntry& entry) const {
    return SampleWidth(entry) + 3 * Radius() + metrics_.horizontalAdvance(ToQString(entry.text));
}

int LegendPainter::SampleWidth(const LegendEntry& entry) const {
    return entry.link ? 4 * Radius() : 2 * Radius() + Ring();
}

}  // namespace vemo
