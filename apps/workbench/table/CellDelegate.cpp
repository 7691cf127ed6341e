#include "CellDelegate.h"

#include "CellText.h"
#include "VKDataModel.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QLocale>
#include <QToolTip>

#include <cmath>

namespace {

// What a double always holds; the digits beyond them are those of its binary form.
constexpr int digitsOfDouble = 15;

// More than a screen is wide; laying out a text takes time for each of its characters.
constexpr int longestShown = 1000;
constexpr int longestTip = 4000;

double rounded(double number) {
    const double result = QString::number(number, 'g', digitsOfDouble).toDouble();
    return std::isinf(result) ? number : result; // the largest numbers would be rounded up to none
}

} // namespace

QString CellDelegate::displayText(const QVariant& value, const QLocale& locale) const {
    const QVariant shown = value.userType() == QMetaType::Double ? rounded(value.toDouble()) : value;
    return CellText::of(shown, locale.decimalPoint()).left(longestShown).simplified();
}

void CellDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (VKDataModel::isNumber(index.data())) {
        option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    }
}

bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
    const bool isWhole = sizeHint(option, index).width() <= option.rect.width();
    if (event->type() != QEvent::ToolTip || !index.isValid() || isWhole) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    const QString text = CellText::of(index.data(), option.locale.decimalPoint()).left(longestTip);
    QToolTip::showText(event->globalPos(),
                       QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(text.toHtmlEscaped()),
                       view);
    return true;
}
