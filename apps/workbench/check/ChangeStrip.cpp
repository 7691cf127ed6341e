#include "ChangeStrip.h"

#include "TavrelColors.h"

#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QSlider>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr double least = 3.0; // pixels of a column that holds one of many

} // namespace

ChangeStrip::ChangeStrip(const ChangeScan& scan, ChangeScan::Dial dial, const QSlider& slider, int decimals)
    : m_scan(scan), m_dial(dial), m_slider(slider), m_decimals(decimals) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&scan, &ChangeScan::counted, this, [this] { update(); });
    connect(&scan, &ChangeScan::outdated, this, [this] { update(); });
    describe();
}

void ChangeStrip::describe() {
    setAccessibleName(tr("Where analyses change grade along this slider",
                         "Où des analyses changent d'évaluation le long de ce curseur"));
}

/// As far as the middle of the slider's handle gets.
QRectF ChangeStrip::way() const {
    const int handle = m_slider.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &m_slider);
    return QRectF(rect()).adjusted(handle / 2.0, 1, -handle / 2.0, -1);
}

void ChangeStrip::paintEvent(QPaintEvent*) {
    const QRectF room = way();
    const DialColumns& columns = m_scan.columns(m_dial);
    const std::vector<int>& counts = m_scan.counts(m_dial);
    QPainter painter(this);
    painter.fillRect(QRectF(room.left(), room.bottom() - 1, room.width(), 1), TavrelColors::line(palette()));
    const int most = *std::max_element(counts.begin(), counts.end());
    QColor colour = TavrelColors::accent(palette());
    colour.setAlphaF(m_scan.isCurrent() ? 0.85 : 0.35);
    for (int column = 0; column < columns.count(); ++column) {
        const int count = counts[static_cast<std::size_t>(column)];
        if (count == 0) {
            continue;
        }
        const double left = room.left() + columns.start(column) * room.width();
        const double right = room.left() + columns.end(column) * room.width();
        const double height = std::max(least, room.height() * count / most);
        painter.fillRect(QRectF(left, room.bottom() - height, std::max(1.0, right - left), height), colour);
    }
}

QString ChangeStrip::textAt(int x) const {
    const QRectF room = way();
    const double share = std::clamp((x - room.left()) / std::max(1.0, room.width()), 0.0, 1.0);
    const DialColumns& columns = m_scan.columns(m_dial);
    int column = 0;
    while (column + 1 < columns.count() && columns.end(column) <= share) {
        ++column;
    }
    return columnText(column);
}

QString ChangeStrip::columnText(int column) const {
    const DialColumns& columns = m_scan.columns(m_dial);
    const QLocale locale;
    const int count = m_scan.counts(m_dial)[static_cast<std::size_t>(column)];
    const QString place = tr("%1 to %2", "%1 à %2")
                              .arg(locale.toString(columns.lower(column), 'f', m_decimals),
                                   locale.toString(columns.upper(column), 'f', m_decimals));
    if (!m_scan.isCurrent()) {
        return tr("%1: being counted…", "%1 : comptage en cours…").arg(place);
    }
    if (count == 0) {
        return tr("%1: no analysis changes grade here", "%1 : aucune analyse ne change d'évaluation ici")
            .arg(place);
    }
    return count == 1
               ? tr("%1: 1 analysis changes grade here", "%1 : 1 analyse change d'évaluation ici").arg(place)
               : tr("%1: %2 analyses change grade here", "%1 : %2 analyses changent d'évaluation ici")
                     .arg(place, locale.toString(count));
}

bool ChangeStrip::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto& help = static_cast<const QHelpEvent&>(*event);
        QToolTip::showText(help.globalPos(), textAt(help.x()), this);
        return true;
    }
    if (event->type() == QEvent::LanguageChange) {
        describe();
    }
    return QWidget::event(event);
}
