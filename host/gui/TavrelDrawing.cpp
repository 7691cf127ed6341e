#include "TavrelDrawing.h"

#include "TavrelColors.h"

#include <QPainter>
#include <QStyle>
#include <QTabBar>

#include <algorithm>

namespace {

constexpr qreal radius = 4;

bool enabled(const QStyleOption& option) {
    return option.state.testFlag(QStyle::State_Enabled);
}
bool hovered(const QStyleOption& option) {
    return enabled(option) && option.state.testFlag(QStyle::State_MouseOver);
}
bool selected(const QStyleOption& option) {
    return option.state.testFlag(QStyle::State_Selected);
}

void rounded(QPainter& painter, const QRectF& rect, qreal corner, const QBrush& fill,
             const QPen& line = Qt::NoPen) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line);
    painter.setBrush(fill);
    painter.drawRoundedRect(rect, corner, corner);
    painter.restore();
}

QColor readableOn(const QColor& behind) {
    return qGray(behind.rgb()) > 80 ? Qt::black : Qt::white;
}

void arrow(QPainter& painter, const QRect& rect, bool up, const QColor& colour) {
    const QPointF centre = QRectF(rect).center();
    const qreal rise = up ? -1.5 : 1.5;
    const QPointF points[] = {centre + QPointF(-3, -rise), centre + QPointF(0, rise),
                              centre + QPointF(3, -rise)};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(points, 3);
    painter.restore();
}

} // namespace

// A frame lies on half pixels, so that it is as thin as a line.
void TavrelDrawing::frame(QPainter& painter, const QRect& rect, const QColor& line, const QBrush& fill) {
    rounded(painter, QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, fill, QPen(line, 1));
}

void TavrelDrawing::field(const QStyleOption& option, QPainter& painter) {
    const bool focus = enabled(option) && option.state.testFlag(QStyle::State_HasFocus);
    const QColor line = focus ? TavrelColors::accent(option.palette) : option.palette.color(QPalette::Dark);
    frame(painter, option.rect, line);
}

void TavrelDrawing::flatButton(const QStyleOption& option, QPainter& painter) {
    const bool down = (option.state & (QStyle::State_Sunken | QStyle::State_On)) != 0;
    if ((enabled(option) && down) || hovered(option))
        rounded(painter, option.rect, radius, TavrelColors::tint(option.palette, down ? 0.22 : 0.12));
}

void TavrelDrawing::pushButton(const QStyleOption& option, QPainter& painter) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool isDefault =
        enabled(option) && button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
    const QColor line =
        isDefault ? TavrelColors::accent(option.palette) : option.palette.color(QPalette::Dark);
    frame(painter, option.rect, line, option.palette.button());
    flatButton(option, painter);
}

void TavrelDrawing::tab(const QStyleOptionTab& option, QPainter& painter) {
    const QRect& rect = option.rect;
    if (hovered(option) && !selected(option))
        painter.fillRect(rect, TavrelColors::tint(option.palette, 0.08));
    if (!selected(option))
        return;
    const bool below = option.shape == QTabBar::RoundedSouth || option.shape == QTabBar::TriangularSouth;
    painter.fillRect(QRect(rect.left(), below ? rect.top() : rect.bottom() - 1, rect.width(), 2),
                     TavrelColors::accent(option.palette));
}

void TavrelDrawing::header(const QStyleOption& option, QPainter& painter) {
    const QRect& rect = option.rect;
    const QColor line = TavrelColors::line(option.palette);
    painter.fillRect(rect, option.palette.window());
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), line);
    painter.fillRect(QRect(rect.right(), rect.top() + 4, 1, std::max(0, rect.height() - 9)), line);
}

// An item's own background says something and stays as it is when the item is selected: a frame says that.
void TavrelDrawing::itemPanel(const QStyleOption& option, QPainter& painter) {
    const QRect& rect = option.rect;
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(&option);
    if (item != nullptr && item->backgroundBrush.style() != Qt::NoBrush) {
        painter.fillRect(rect, item->backgroundBrush);
        if (selected(option)) {
            painter.save();
            painter.setPen(QPen(readableOn(item->backgroundBrush.color()), 2));
            painter.drawRect(rect.adjusted(1, 1, -1, -1));
            painter.restore();
        }
        return;
    }
    if (selected(option) || hovered(option))
        painter.fillRect(rect, TavrelColors::tint(option.palette, selected(option) ? 0.28 : 0.08));
    const bool first = item != nullptr && (item->viewItemPosition == QStyleOptionViewItem::Beginning ||
                                           item->viewItemPosition == QStyleOptionViewItem::OnlyOne);
    if (selected(option) && first) {
        painter.fillRect(QRect(rect.left(), rect.top(), 3, rect.height()),
                         TavrelColors::accent(option.palette));
    }
}

QStyleOptionViewItem TavrelDrawing::readable(const QStyleOptionViewItem& option) {
    QStyleOptionViewItem item(option);
    QColor text = item.palette.color(QPalette::Text);
    const QBrush& behind = item.backgroundBrush;
    if (behind.style() == Qt::SolidPattern && behind.color().alpha() > 127)
        text = readableOn(behind.color());
    item.palette.setColor(QPalette::Text, text);
    item.palette.setColor(QPalette::HighlightedText, text);
    return item;
}

void TavrelDrawing::progress(const QStyleOptionProgressBar& option, QPainter& painter) {
    const QRectF whole(option.rect);
    rounded(painter, whole, radius, TavrelColors::line(option.palette));
    const double range = std::max(1.0, static_cast<double>(option.maximum) - option.minimum);
    const double share =
        std::clamp((static_cast<double>(option.progress) - option.minimum) / range, 0.0, 1.0);
    painter.save();
    painter.setClipRect(QRectF(whole.topLeft(), QSizeF(whole.width() * share, whole.height())));
    rounded(painter, whole, radius, option.palette.highlight());
    painter.restore();
}

void TavrelDrawing::slider(const QStyleOptionSlider& option, const QRect& handle, QPainter& painter) {
    const QPointF centre = QRectF(handle).center();
    const QRectF groove(option.rect.left() + sliderHandle / 2.0 - 2, centre.y() - 2,
                        option.rect.width() - sliderHandle + 4.0, 4);
    QRectF filled = groove;
    option.upsideDown ? filled.setLeft(centre.x()) : filled.setRight(centre.x());
    const QColor accent = option.palette.color(enabled(option) ? QPalette::Highlight : QPalette::Dark);
    rounded(painter, groove, 2, TavrelColors::line(option.palette));
    rounded(painter, filled, 2, accent);

    const auto circle = [&centre](qreal reach) {
        return QRectF(centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach);
    };
    if (hovered(option) || option.state.testFlag(QStyle::State_HasFocus))
        rounded(painter, circle(11), 11, TavrelColors::tint(option.palette, 0.28));
    rounded(painter, circle(7), 7, option.palette.base(), QPen(accent, 2));
}

void TavrelDrawing::scrollBar(const QStyleOptionSlider& option, const QRect& handle, QPainter& painter) {
    painter.fillRect(option.rect, option.palette.window());
    if (option.maximum <= option.minimum)
        return;
    const bool held = hovered(option) || option.state.testFlag(QStyle::State_Sunken);
    rounded(painter, QRectF(handle).adjusted(3, 3, -3, -3), 3,
            option.palette.color(held ? QPalette::Shadow : QPalette::Dark));
}

void TavrelDrawing::spinBox(const QStyleOptionSpinBox& option, const QRect& up, const QRect& down,
                            QPainter& painter) {
    rounded(painter, option.rect, radius, option.palette.base());
    if (option.frame)
        field(option, painter);
    if (option.buttonSymbols == QAbstractSpinBox::NoButtons)
        return;
    const auto colour = [&option](QAbstractSpinBox::StepEnabledFlag step) {
        const bool open = enabled(option) && option.stepEnabled.testFlag(step);
        return open ? option.palette.color(QPalette::Text) : option.palette.color(QPalette::Mid);
    };
    arrow(painter, up, true, colour(QAbstractSpinBox::StepUpEnabled));
    arrow(painter, down, false, colour(QAbstractSpinBox::StepDownEnabled));
}
