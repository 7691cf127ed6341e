#include "TViewerTitle.h"

#include "TLineIcon.h"
#include "TPlainTip.h"
#include "TToolButton.h"
#include "TavrelColors.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

namespace TechPlot {

namespace {
constexpr int margin = 8;
constexpr int iconExtent = 16;
} // namespace

TViewerTitle::TViewerTitle(QWidget* parent) : QWidget(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(margin, 2, 4, 2);
    row->setSpacing(2);
    row->addStretch(1);
    m_export = addButton(QStringLiteral("image"));
    m_close = addButton(QStringLiteral("close"));
    row->addWidget(m_export);
    row->addWidget(m_close);
    connect(m_export, &QToolButton::clicked, this, &TViewerTitle::exportClicked);
    connect(m_close, &QToolButton::clicked, this, &TViewerTitle::closeClicked);
    retranslate();
}

QToolButton* TViewerTitle::addButton(const QString& icon) {
    auto* button = new TToolButton(this);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setIconSize(QSize(iconExtent, iconExtent));
    button->setIcon(TLineIcon::icon(icon));
    return button;
}

void TViewerTitle::retranslate() {
    m_export->setToolTip(tr("Save as picture or PDF", "Enregistrer en image ou en PDF"));
    m_close->setToolTip(tr("Close", "Fermer"));
    m_export->setAccessibleName(m_export->toolTip());
    m_close->setAccessibleName(m_close->toolTip());
}

void TViewerTitle::setName(const QString& name) {
    m_name = name.simplified();
    setToolTip(TPlainTip::of(m_name));
    update();
}

void TViewerTitle::setReadout(const QString& readout) {
    if (readout == m_readout)
        return;
    m_readout = readout;
    update();
}

QSize TViewerTitle::sizeHint() const {
    return {120, qMax(fontMetrics().height() + margin, layout()->sizeHint().height())};
}

void TViewerTitle::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void TViewerTitle::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRect room = rect().adjusted(margin + 4, 0, 0, 0);
    room.setRight(m_export->x() - margin);
    painter.setPen(TavrelColors::caption(palette()));
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, m_readout);
    if (!m_readout.isEmpty())
        room.setRight(room.right() - fontMetrics().horizontalAdvance(m_readout) - 2 * margin);

    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    painter.setFont(bold);
    painter.setPen(palette().color(QPalette::WindowText));
    const QString shown = QFontMetrics(bold).elidedText(m_name, Qt::ElideMiddle, qMax(0, room.width()));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

} // namespace TechPlot
