#include "VKRibbonGroupExpandable.h"

#include "TLineIcon.h"
#include "TToolButton.h"
#include "VKRibbonBar.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

// The group's whole layout: a heading with room for widgets at the left, the content below it.
QBoxLayout* headedLayout(QBoxLayout* row) {
    auto* whole = new QVBoxLayout;
    whole->setAlignment(Qt::AlignTop);
    auto* heading = new QHBoxLayout;
    heading->addLayout(row);
    whole->addLayout(heading);
    return whole;
}

} // namespace

VKRibbonGroupExpandable::VKRibbonGroupExpandable(const QString& title, VKRibbonBar* bar)
    : VKRibbonGroupExpandable(title, bar, new QHBoxLayout) {}

VKRibbonGroupExpandable::VKRibbonGroupExpandable(const QString& title, VKRibbonBar* bar, QBoxLayout* row)
    : VKRibbonGroup(headedLayout(row), row, bar), m_openButton(headingButton(QStringLiteral("chevron_down"))),
      m_pinButton(headingButton(QStringLiteral("pin"))) {
    setAccessibleName(title.trimmed());
    m_openButton->setText(tr("Open", "Ouvrir"));
    m_openButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_openButton->setToolTip(
        tr("Show %1 over the workspace", "Afficher %1 sur l'espace de travail").arg(title.trimmed()));
    m_pinButton->setToolTip(tr("Keep in the ribbon", "Garder dans le ruban"));
    connect(m_openButton, &QToolButton::clicked, this,
            [this](bool open) { open ? openPopup() : closePopup(); });
    connect(m_pinButton, &QToolButton::clicked, this, &VKRibbonGroupExpandable::setPinState);
    qobject_cast<QBoxLayout*>(layout()->itemAt(0)->layout())->addStretch(1);
    showState();
}

VKRibbonGroupExpandable::~VKRibbonGroupExpandable() {
    // The overlay, with the content if it is there, belongs to the window, which may outlive the group.
    delete m_popup;
}

QToolButton* VKRibbonGroupExpandable::headingButton(const QString& icon) {
    auto* button = new TToolButton(this);
    button->setAutoRaise(true);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setIcon(TLineIcon::icon(icon));
    button->setIconSize({16, 16});
    layout()->itemAt(0)->layout()->addWidget(button);
    return button;
}

void VKRibbonGroupExpandable::setPinState(bool pinned) {
    if (m_pinned == pinned)
        return;
    closePopup();
    m_pinned = pinned;
    showState();
    emit pinStateChanged(pinned);
}

void VKRibbonGroupExpandable::canBeExpanded(bool expandable) {
    m_expandable = expandable;
    if (!expandable)
        closePopup();
    showState();
}

void VKRibbonGroupExpandable::setContent(QWidget* content) {
    closePopup();
    if (m_content != content)
        delete m_content;
    m_content = content;
    if (content != nullptr)
        layout()->addWidget(content, 1);
    showState();
}

void VKRibbonGroupExpandable::openPopup() {
    if (isOpen() || m_pinned || !m_expandable || m_content == nullptr)
        return;
    if (m_popup == nullptr) {
        m_popup = new RibbonPopup(window());
        m_popup->setAccessibleName(accessibleName());
        connect(m_popup, &RibbonPopup::escaped, this, [this] {
            closePopup();
            m_openButton->setFocus();
        });
    }
    m_content->setVisible(true);
    m_popup->open(m_content, this, parentWidget());
    showState();
}

void VKRibbonGroupExpandable::closePopup() {
    if (m_popup != nullptr) {
        m_popup->giveBack();
        RibbonPopup* const popup = m_popup;
        m_popup.clear();
        delete popup;
        if (m_content != nullptr)
            layout()->addWidget(m_content, 1);
    }
    showState();
}

void VKRibbonGroupExpandable::hideEvent(QHideEvent* event) {
    // The content stays in the overlay: the window may be on its way out, when nothing can move any more.
    if (m_popup != nullptr)
        m_popup->setVisible(false);
    showState();
    VKRibbonGroup::hideEvent(event);
}

void VKRibbonGroupExpandable::showState() {
    const bool wasOpen = isOpen();
    if (m_content != nullptr && !wasOpen)
        m_content->setVisible(m_pinned);
    m_openButton->setVisible(!m_pinned);
    m_openButton->setEnabled(m_expandable && m_content != nullptr);
    m_openButton->setChecked(wasOpen);
    m_pinButton->setVisible(m_expandable);
    m_pinButton->setChecked(m_pinned);
    const bool wide = m_pinned && m_content != nullptr;
    setSizePolicy(wide ? QSizePolicy::Expanding : QSizePolicy::Maximum, QSizePolicy::Preferred);
}
