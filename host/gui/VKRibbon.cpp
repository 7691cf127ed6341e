#include "VKRibbon.h"

#include "RibbonPage.h"
#include "TLineIcon.h"
#include "TToolButton.h"
#include "TavrelColors.h"
#include "VKRibbonBar.h"

#include <QEvent>
#include <QPainter>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

VKRibbon::VKRibbon(QWidget* parent) : QWidget(parent), m_tabs(new QTabBar), m_pages(new QStackedWidget) {
    m_tabs->setExpanding(false);
    m_tabs->setDrawBase(false);
    m_tabs->setElideMode(Qt::ElideNone);
    m_tabs->setUsesScrollButtons(true);
    m_tabs->setSelectionBehaviorOnRemove(QTabBar::SelectPreviousTab);
    m_tabs->setIconSize({16, 16});

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 1);
    layout->setSpacing(0);
    auto* tabRow = new QHBoxLayout;
    tabRow->setContentsMargins(4, 0, 4, 0); // the first tab's text stands above the first group
    tabRow->addWidget(m_tabs);
    layout->addLayout(tabRow);
    layout->addWidget(m_pages);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    connect(m_tabs, &QTabBar::currentChanged, this, &VKRibbon::slotTabChanged);
    const auto shortcut = [this](const QString& keys, auto&& action) {
        connect(new QShortcut(QKeySequence(keys), this), &QShortcut::activated, this, action);
    };
    shortcut(QStringLiteral("Ctrl+PgUp"), [this] { step(-1); });
    shortcut(QStringLiteral("Ctrl+PgDown"), [this] { step(1); });
    shortcut(QStringLiteral("Ctrl+W"), [this] { closeCurrentBar(); });

    addBar(new VKRibbonBar, false, true);
    translate();
}

VKRibbon::~VKRibbon() {
    // The bars go with the pages; by then nobody may hear of it.
    m_tabs->disconnect(this);
    for (auto* bar : bars())
        bar->disconnect(this);
}

VKRibbonBar* VKRibbon::startBar() const {
    return page(0)->bar();
}

void VKRibbon::addBar(VKRibbonBar* bar, bool closable, bool toFront) {
    if (bar == nullptr)
        return;
    if (indexOf(bar) < 0) {
        auto* added = new RibbonPage(bar);
        bar->setVisible(true);
        m_pages->addWidget(added);
        m_tabs->addTab({});
        showTitle(bar);
        if (closable)
            addCloseButton(bar);
        connect(bar, &QWidget::windowTitleChanged, this, [this, bar] { showTitle(bar); });
        connect(bar, &QObject::destroyed, this, [this, bar] { dropPage(indexOf(bar)); });
        slotTabChanged(m_tabs->currentIndex());
    }
    if (toFront)
        setCurrentBar(bar);
}

void VKRibbon::removeBar(VKRibbonBar* bar) {
    const int index = indexOf(bar);
    if (index <= 0)
        return;
    bar->disconnect(this);
    bar->slotCurrentBarHasChanged(nullptr);
    page(index)->takeBar();
    dropPage(index);
}

void VKRibbon::dropPage(int index) {
    if (index < 0)
        return;
    RibbonPage* dropped = page(index);
    m_pages->removeWidget(dropped);
    // The tab last: its going may bring another to the front, and both lists must agree by then.
    m_tabs->removeTab(index);
    slotTabChanged(m_tabs->currentIndex());
    dropped->deleteLater();
}

QList<VKRibbonBar*> VKRibbon::bars() const {
    QList<VKRibbonBar*> bars;
    for (int i = 0; i < m_pages->count(); ++i)
        bars.append(page(i)->bar());
    return bars;
}

VKRibbonBar* VKRibbon::currentBar() const {
    return page(m_pages->currentIndex())->bar();
}

void VKRibbon::setCurrentBar(VKRibbonBar* bar) {
    const int index = indexOf(bar);
    if (index >= 0)
        m_tabs->setCurrentIndex(index);
}

void VKRibbon::closeCurrentBar() {
    if (m_tabs->tabButton(m_tabs->currentIndex(), QTabBar::RightSide) != nullptr)
        currentBar()->closeRequested();
}

RibbonPage* VKRibbon::page(int index) const {
    return qobject_cast<RibbonPage*>(m_pages->widget(index));
}

int VKRibbon::indexOf(const VKRibbonBar* bar) const {
    for (int i = 0; i < m_pages->count(); ++i) {
        if (page(i)->bar() == bar)
            return i;
    }
    return -1;
}

void VKRibbon::addCloseButton(VKRibbonBar* bar) {
    auto* button = new TToolButton(m_tabs);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setIcon(TLineIcon::icon(QStringLiteral("close")));
    button->setIconSize({16, 16});
    button->setFixedSize(20, 20);
    connect(button, &QToolButton::clicked, bar, &VKRibbonBar::closeRequested);
    m_tabs->setTabButton(indexOf(bar), QTabBar::RightSide, button);
    translate();
}

void VKRibbon::showTitle(const VKRibbonBar* bar) {
    m_tabs->setTabText(indexOf(bar), bar->title().trimmed().replace('&', QStringLiteral("&&")));
}

void VKRibbon::slotTabChanged(int index) {
    if (index < 0 || index >= m_pages->count() || m_tabs->count() != m_pages->count())
        return;
    m_pages->setCurrentIndex(index);
    for (int i = 0; i < m_pages->count(); ++i)
        page(i)->setInFront(i == index);
    VKRibbonBar* current = currentBar();
    for (auto* bar : bars())
        bar->slotCurrentBarHasChanged(current);
    if (current != m_current) {
        m_current = current;
        emit currentBarChanged(current);
    }
}

void VKRibbon::step(int by) {
    const int target = m_tabs->currentIndex() + by;
    if (target >= 0 && target < m_tabs->count())
        m_tabs->setCurrentIndex(target);
}

void VKRibbon::translate() {
    startBar()->setTitle(tr("Start", "Accueil"));
    for (int i = 1; i < m_tabs->count(); ++i) {
        if (auto* button = qobject_cast<QToolButton*>(m_tabs->tabButton(i, QTabBar::RightSide)))
            button->setToolTip(tr("Close this module (Ctrl+W)", "Fermer ce module (Ctrl+W)"));
    }
}

void VKRibbon::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        translate();
}

void VKRibbon::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(0, height() - 1, width(), 1, TavrelColors::line(palette()));
}
