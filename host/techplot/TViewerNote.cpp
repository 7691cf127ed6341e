#include "TViewerNote.h"

#include "TPlainTip.h"
#include "TavrelColors.h"

#include <QPainter>
#include <QTextLayout>

namespace TechPlot {

namespace {

constexpr int margin = 12;
constexpr int foot = 6;
constexpr int mostLines = 2;

} // namespace

TViewerNote::TViewerNote(QWidget* parent) : QWidget(parent) {
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    hide();
}

void TViewerNote::setText(const QString& text) {
    if (text == m_text)
        return;
    m_text = text;
    setToolTip(TPlainTip::of(text));
    setAccessibleName(text);
    setVisible(!text.isEmpty());
    updateGeometry();
    update();
}

int TViewerNote::heightForWidth(int width) const {
    return linesIn(width).size() * fontMetrics().lineSpacing() + foot;
}

QStringList TViewerNote::linesIn(int width) const {
    const int room = qMax(1, width - 2 * margin);
    QTextLayout layout(m_text, font());
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(room);
        const bool last = lines.size() + 1 == mostLines;
        lines.append(last ? fontMetrics().elidedText(m_text.mid(line.textStart()), Qt::ElideRight, room)
                          : m_text.mid(line.textStart(), line.textLength()));
        if (last)
            break;
    }
    layout.endLayout();
    return lines;
}

void TViewerNote::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(TavrelColors::caption(palette()));
    const QStringList lines = linesIn(width());
    int top = 0;
    for (const QString& line : lines) {
        painter.drawText(QRect(margin, top, width() - 2 * margin, fontMetrics().lineSpacing()),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, line);
        top += fontMetrics().lineSpacing();
    }
}

} // namespace TechPlot
