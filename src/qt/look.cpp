// The look of the toolkit's own widgets.
#include "qt/look.h"

#include <algorithm>
#include <array>

#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>

#include "qt/theme.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr double kRadius = 6;
constexpr double kSpinRadius = 2;
constexpr double kThin = 1;
constexpr double kHeavy = 2;
// Between the ring of the focus and a button that is filled with the accent colour.
constexpr double kRingGap = 2;

constexpr double kHoverShare = 0.07;
constexpr double kPressedShare = 0.16;
constexpr double kDisabledShare = 0.5;  // how much of the border of a box that is off remains

bool HasVisibleFocus(const QStyleOption& option) {
    constexpr QStyle::State kBoth = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    return (option.state & kBoth) == kBoth;
}

bool IsDefault(const QStyleOption& option) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton) &&
           button->state.testFlag(QStyle::State_Enabled);
}

// A rounded box whose border lies inside `rect`.
void DrawBox(QPainter& painter, const QRectF& rect, const QBrush& fill, const QColor& border,
             double width) {
    const double inset = width / 2;
    painter.setPen(QPen(border, width));
    painter.setBrush(fill);
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), kRadius, kRadius);
}

QColor ButtonFill(const QStyleOption& option) {
    const QPalette& palette = option.palette;
    const bool isDefault = IsDefault(option);
    const bool isOn = option.state.testFlag(QStyle::State_On);
    const QColor fill = isDefault ? palette.highlight().color()
                        : isOn    ? palette.midlight().color()
                                  : palette.button().color();
    if (!option.state.testFlag(QStyle::State_Enabled)) {
        return fill;
    }
    const QColor over =
        isDefault ? palette.highlightedText().color() : palette.buttonText().color();
    if (option.state.testFlag(QStyle::State_Sunken)) {
        return Mixed(fill, over, kPressedShare);
    }
    return option.state.testFlag(QStyle::State_MouseOver) ? Mixed(fill, over, kHoverShare) : fill;
}

void DrawButton(QPainter& painter, const QStyleOption& option) {
    const QColor fill = ButtonFill(option);
    const QColor accent = option.palette.highlight().color();
    const bool isDefault = IsDefault(option);
    const bool isOn = option.state.testFlag(QStyle::State_On);
    QRectF rect = option.rect;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (HasVisibleFocus(option)) {
        DrawBox(painter, rect, Qt::NoBrush, accent, kHeavy);
        if (isDefault || isOn) {
            const double inset = kHeavy + kRingGap;
            rect.adjust(inset, inset, -inset, -inset);
        }
    }
    if (isDefault) {
        DrawBox(painter, rect, fill, fill, kThin);
    } else if (isOn) {
        DrawBox(painter, rect, fill, accent, kHeavy);
    } else if (HasVisibleFocus(option)) {
        DrawBox(painter, rect, fill, accent, kHeavy);
    } else {
        DrawBox(painter, rect, fill, option.palette.mid().color(), kThin);
    }
    painter.restore();
}

void DrawMenuBar(QPainter& painter, const QStyleOption& option) {
    painter.fillRect(option.rect, option.palette.base());
}

void DrawMenuBarItem(QPainter& painter, const QStyleOptionMenuItem& item, const QStyle& style) {
    DrawMenuBar(painter, item);
    if (item.state.testFlag(QStyle::State_Selected)) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(item.palette.midlight());
        painter.drawRoundedRect(QRectF(item.rect).adjusted(1, 3, -1, -3), kRadius, kRadius);
        painter.restore();
    }
    const int flags = Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine;
    style.drawItemText(&painter, item.rect, flags, item.palette,
                       item.state.testFlag(QStyle::State_Enabled), item.text, QPalette::WindowText);
}

// The line of a spin box has none: the box draws its own.
bool HasFrame(const QStyleOption& option) {
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
    return frame == nullptr || frame->lineWidth > 0;
}

void DrawLineEdit(QPainter& painter, const QStyleOption& option) {
    const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus);
    const QPalette& palette = option.palette;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    DrawBox(painter, option.rect, palette.base(),
            hasFocus ? palette.highlight().color() : palette.mid().color(),
            hasFocus ? kHeavy : kThin);
    painter.restore();
}

// Over the one of the style below, which is lost on a dark window.
void DrawSpinFrame(QPainter& painter, const QStyleOption& option) {
    const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasFocus ? option.palette.highlight().color() : option.palette.mid().color());
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), kSpinRadius,
                            kSpinRadius);
    painter.restore();
}

// The largest square in the middle; the pen and the brush are set for its border and ground.
QRectF BeginIndicator(QPainter& painter, const QStyleOption& option) {
    const QPalette& palette = option.palette;
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const QColor border = palette.color(QPalette::PlaceholderText);
    const QColor window = palette.color(QPalette::Window);
    const double side = std::min(option.rect.width(), option.rect.height());
    QRectF box(0, 0, side, side);
    box.moveCenter(QRectF(option.rect).center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isEnabled ? border : Mixed(window, border, kDisabledShare), kThin));
    painter.setBrush(isEnabled ? palette.color(QPalette::Base) : window);
    return box;
}

void DrawCheckBox(QPainter& painter, const QStyleOption& option) {
    painter.save();
    const QRectF box = BeginIndicator(painter, option);
    const double side = box.width();
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), side / 5, side / 5);
    if (option.state.testFlag(QStyle::State_On)) {
        painter.setPen(QPen(option.palette.color(QPalette::Text), kHeavy));
        const std::array<QPointF, 3> tick = {box.topLeft() + QPointF(0.25, 0.52) * side,
                                             box.topLeft() + QPointF(0.43, 0.70) * side,
                                             box.topLeft() + QPointF(0.76, 0.30) * side};
        painter.drawPolyline(tick.data(), static_cast<int>(tick.size()));
    }
    painter.restore();
}

void DrawRadioButton(QPainter& painter, const QStyleOption& option) {
    painter.save();
    const QRectF box = BeginIndicator(painter, option);
    painter.drawEllipse(box.adjusted(0.5, 0.5, -0.5, -0.5));
    if (option.state.testFlag(QStyle::State_On)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(option.palette.color(QPalette::Text));
        painter.drawEllipse(box.center(), box.width() / 4, box.width() / 4);
    }
    painter.restore();
}

// Around a box or a text that has the keyboard.
void DrawFocus(QPainter& painter, const QStyleOption& option) {
    if (!option.state.testFlag(QStyle::State_KeyboardFocusChange)) {
        return;
    }
    const QRectF rect = option.rect;
    const double inset = kHeavy / 2;
    const double radius = std::min(kRadius, rect.height() / 5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(option.palette.highlight().color(), kHeavy));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

}  // namespace

Look::Look() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

void Look::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                         const QWidget* widget) const {
    switch (element) {
    case PE_PanelButtonCommand:
        DrawButton(*painter, *option);
        return;
    case PE_FrameDefaultButton:
    case PE_PanelMenuBar:
        return;
    case PE_FrameFocusRect:
        // Buttons show the focus as a ring of their own.
        if (qobject_cast<const QPushButton*>(widget) == nullptr) {
            DrawFocus(*painter, *option);
        }
        return;
    case PE_IndicatorCheckBox:
        DrawCheckBox(*painter, *option);
        return;
    case PE_IndicatorRadioButton:
        DrawRadioButton(*painter, *option);
        return;
    case PE_PanelLineEdit:
        if (HasFrame(*option)) {
            DrawLineEdit(*painter, *option);
        }
        return;
    case PE_PanelTipLabel:
        painter->fillRect(option->rect, option->palette.mid());
        painter->fillRect(option->rect.adjusted(1, 1, -1, -1), option->palette.toolTipBase());
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Look::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const {
    if (element == CE_MenuBarEmptyArea) {
        DrawMenuBar(*painter, *option);
        return;
    }
    if (element == CE_MenuBarItem) {
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
            DrawMenuBarItem(*painter, *item, *this);
            return;
        }
    }
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_PushButtonLabel && button != nullptr && IsDefault(*button)) {
        QStyleOptionButton accented = *button;
        accented.palette.setBrush(QPalette::ButtonText, button->palette.highlightedText());
        painter->save();
        QFont font = painter->font();
        font.setWeight(QFont::DemiBold);
        painter->setFont(font);
        QProxyStyle::drawControl(element, &accented, painter, widget);
        painter->restore();
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void Look::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                              QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_SpinBox) {
        DrawSpinFrame(*painter, *option);
    }
}

int Look::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_ButtonMargin:
        return 12;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_MenuBarPanelWidth:
    case PM_MenuBarVMargin:
    case PM_MenuBarItemSpacing:
        return 0;
    case PM_MenuBarHMargin:
        return 8;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize Look::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                             const QWidget* widget) const {
    const QSize plain = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_PushButton:
        return {plain.width() + 12, std::max(plain.height(), 32)};
    case CT_MenuBarItem:
        return {size.width() + 18, size.height() + 12};
    case CT_LineEdit:
        return {plain.width(), plain.height() + 8};
    default:
        return plain;
    }
}

int Look::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                    QStyleHintReturn* data) const {
    switch (hint) {
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_ToolTipLabel_Opacity:
        return 255;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

}  // namespace vemo
