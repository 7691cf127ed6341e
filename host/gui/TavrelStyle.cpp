#include "TavrelStyle.h"

#include "TLineIcon.h"
#include "TavrelColors.h"
#include "TavrelDrawing.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QTabBar>

#include <algorithm>

namespace {

constexpr int grid = 8;
constexpr int scrollBarWidth = 12;
constexpr int shortestHandle = 24;

} // namespace

TavrelStyle::TavrelStyle(Scheme scheme)
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))), m_scheme(scheme) {}

void TavrelStyle::prepareApplication() {
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

void TavrelStyle::polish(QPalette& palette) {
    const bool dark = m_scheme == Scheme::Desktop ? TavrelColors::isDark(palette) : m_scheme == Scheme::Dark;
    palette = TavrelColors::palette(dark);
}

QPalette TavrelStyle::standardPalette() const {
    return TavrelColors::palette(m_scheme == Scheme::Dark);
}

void TavrelStyle::polish(QWidget* widget) {
    if (qobject_cast<QAbstractButton*>(widget) != nullptr ||
        qobject_cast<QAbstractSlider*>(widget) != nullptr || (qobject_cast<QTabBar*>(widget) != nullptr))
        widget->setAttribute(Qt::WA_Hover);
    QProxyStyle::polish(widget);
}

void TavrelStyle::unpolish(QWidget* widget) {
    widget->setAttribute(Qt::WA_Hover, false);
    QProxyStyle::unpolish(widget);
}

int TavrelStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_HeaderMargin:
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return grid;
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
        return 16;
    case PM_ToolBarIconSize:
    case PM_LargeIconSize:
        return 24;
    case PM_SliderThickness:
    case PM_SliderControlThickness:
        return 3 * grid;
    case PM_SliderLength:
        return TavrelDrawing::sliderHandle;
    case PM_ScrollBarExtent:
        return scrollBarWidth;
    case PM_ScrollBarSliderMin:
        return shortestHandle;
    case PM_TabBarTabHSpace:
        return 3 * grid;
    case PM_TabBarTabVSpace:
        return 2 * grid;
    case PM_TabBarTabShiftVertical:
    case PM_TabBarTabShiftHorizontal:
    case PM_TabBarTabOverlap:
    case PM_TabBarBaseOverlap:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int TavrelStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* data) const {
    switch (hint) {
    case SH_TabBar_Alignment:
        return Qt::AlignLeft;
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
        return 0;
    case SH_Slider_AbsoluteSetButtons:
        return Qt::LeftButton; // a click on the groove goes there at once
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

QSize TavrelStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                    const QWidget* widget) const {
    const QSize needed = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_PushButton:
    case CT_LineEdit:
    case CT_ComboBox:
    case CT_SpinBox:
        return {needed.width(), std::max(needed.height(), 3 * grid + 4)};
    case CT_ItemViewItem:
        return {needed.width(), std::max(needed.height(), 3 * grid)};
    case CT_HeaderSection:
        return {needed.width() + grid, std::max(needed.height(), 3 * grid)};
    case CT_ToolButton:
        return needed + QSize(4, 4);
    default:
        return needed;
    }
}

QRect TavrelStyle::subElementRect(SubElement element, const QStyleOption* option,
                                  const QWidget* widget) const {
    QRect rect = QProxyStyle::subElementRect(element, option, widget);
    if (element == SE_HeaderLabel) { // in a row of usual height the margin would cut the text
        rect.setTop(option->rect.top());
        rect.setBottom(option->rect.bottom());
    }
    return rect;
}

QRect TavrelStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                  const QWidget* widget) const {
    const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control == CC_GroupBox && box != nullptr && !(box->subControls & SC_GroupBoxCheckBox))
        return groupBoxRect(*box, part);
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr)
        return scrollBarRect(*bar, part);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect TavrelStyle::groupBoxRect(const QStyleOptionGroupBox& option, SubControl part) const {
    const QRect& rect = option.rect;
    const int title = option.text.isEmpty() ? 0 : option.fontMetrics.height() + 4;
    switch (part) {
    case SC_GroupBoxLabel:
        return {rect.left() + grid, rect.top(), rect.width() - grid, title};
    case SC_GroupBoxFrame:
    case SC_GroupBoxContents:
        return rect.adjusted(0, title, 0, 0);
    default:
        return {};
    }
}

// A scroll bar without arrow buttons: all of it is groove.
QRect TavrelStyle::scrollBarRect(const QStyleOptionSlider& option, SubControl part) const {
    const QRect& rect = option.rect;
    const bool lying = option.orientation == Qt::Horizontal;
    const int length = lying ? rect.width() : rect.height();
    const qint64 range = std::max<qint64>(0, qint64(option.maximum) - option.minimum);
    const qint64 share =
        option.pageStep > 0 ? length * qint64(option.pageStep) / (range + option.pageStep) : 0;
    const int handle = static_cast<int>(std::clamp<qint64>(share, std::min(shortestHandle, length), length));
    const int start = sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                              length - handle, option.upsideDown);
    const auto along = [&](int from, int size) {
        const QRect there = lying ? QRect(rect.left() + from, rect.top(), size, rect.height())
                                  : QRect(rect.left(), rect.top() + from, rect.width(), size);
        return visualRect(option.direction, rect, there);
    };
    switch (part) {
    case SC_ScrollBarGroove:
        return rect;
    case SC_ScrollBarSlider:
        return along(start, handle);
    case SC_ScrollBarSubPage:
        return along(0, start);
    case SC_ScrollBarAddPage:
        return along(start + handle, length - start - handle);
    default:
        return {};
    }
}

QIcon TavrelStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
    return icon == SP_ToolBarHorizontalExtensionButton ? TLineIcon::icon(QStringLiteral("chevron_down"))
                                                       : QProxyStyle::standardIcon(icon, option, widget);
}

QPixmap TavrelStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                         const QStyleOption* option) const {
    return mode == QIcon::Selected ? pixmap : QProxyStyle::generatedIconPixmap(mode, pixmap, option);
}

void TavrelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    const QRect& rect = option->rect;
    const QColor line = TavrelColors::line(option->palette);
    switch (element) {
    case PE_PanelButtonTool:
        return TavrelDrawing::flatButton(*option, *painter);
    case PE_PanelButtonCommand:
        return TavrelDrawing::pushButton(*option, *painter);
    case PE_PanelItemViewRow: // drawn item by item
        return;
    case PE_PanelItemViewItem:
        return TavrelDrawing::itemPanel(*option, *painter);
    case PE_FrameFocusRect:
        return TavrelDrawing::frame(*painter, rect, TavrelColors::accent(option->palette));
    case PE_FrameLineEdit:
        return TavrelDrawing::field(*option, *painter);
    case PE_Frame:
        return TavrelDrawing::frame(*painter, rect, line);
    case PE_FrameTabWidget:
        return painter->fillRect(QRect(rect.topLeft(), QSize(rect.width(), 1)), line);
    case PE_FrameTabBarBase:
        return painter->fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), line);
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void TavrelStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
    if (element == CE_TabBarTabShape && tab != nullptr)
        return TavrelDrawing::tab(*tab, *painter);
    if (element == CE_HeaderSection || element == CE_HeaderEmptyArea)
        return TavrelDrawing::header(*option, *painter);
    const auto* progress = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
    const bool counts = progress != nullptr && progress->maximum > progress->minimum;
    if (element == CE_ProgressBarContents && counts)
        return TavrelDrawing::progress(*progress, *painter);
    if (element == CE_ProgressBarGroove && counts)
        return;
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element == CE_ItemViewItem && item != nullptr) {
        const QStyleOptionViewItem readable = TavrelDrawing::readable(*item);
        return QProxyStyle::drawControl(element, &readable, painter, widget);
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void TavrelStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    const auto part = [&](SubControl which) {
        return proxy()->subControlRect(control, option, which, widget);
    };
    const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control == CC_GroupBox && box != nullptr && !(box->subControls & SC_GroupBoxCheckBox))
        return drawGroupBox(*box, *painter);
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_Slider && slider != nullptr && slider->orientation == Qt::Horizontal)
        return TavrelDrawing::slider(*slider, part(SC_SliderHandle), *painter);
    if (control == CC_ScrollBar && slider != nullptr)
        return TavrelDrawing::scrollBar(*slider, part(SC_ScrollBarSlider), *painter);
    const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    if (control == CC_SpinBox && spin != nullptr)
        return TavrelDrawing::spinBox(*spin, part(SC_SpinBoxUp), part(SC_SpinBoxDown), *painter);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

// A group is a heading above its widgets; what holds them together is the space around them.
void TavrelStyle::drawGroupBox(const QStyleOptionGroupBox& option, QPainter& painter) const {
    if (option.text.isEmpty())
        return;
    painter.setPen(TavrelColors::caption(option.palette));
    const int flags = static_cast<int>(Qt::AlignLeft | Qt::AlignTop) | Qt::TextShowMnemonic;
    painter.drawText(groupBoxRect(option, SC_GroupBoxLabel), flags, option.text);
}
