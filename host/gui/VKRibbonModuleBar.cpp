#include "VKRibbonModuleBar.h"

#include "HelpInterface.h"
#include "ModuleObserver.h"
#include "TLineIcon.h"
#include "VKRibbonGroup.h"

#include <QAction>
#include <QBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace {

constexpr int noWidth = -9999;
constexpr int pictureHeight = 64;

} // namespace

VKRibbonModuleBar::VKRibbonModuleBar(const QString& title)
    : VKRibbonBar(title), m_actionGroup(new VKRibbonGroup({}, this)),
      m_descriptionGroup(new VKRibbonGroup({}, this)), m_picture(new QLabel), m_description(new QLabel) {
    auto* column = new QVBoxLayout;
    for (auto* label : {m_picture, m_description}) {
        label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        column->addWidget(label);
    }
    column->addStretch(1);
    m_description->setTextFormat(Qt::PlainText);
    m_description->setForegroundRole(QPalette::PlaceholderText);
    m_descriptionGroup->layout()->addLayout(column);
    m_descriptionGroup->setVisible(false);
    mainLayout()->addWidget(m_actionGroup);
}

VKRibbonModuleBar::~VKRibbonModuleBar() {
    if (m_observer != nullptr)
        m_observer->attachHelp(nullptr);
}

void VKRibbonModuleBar::setModuleDescription(const QPixmap& picture, const QString& text) {
    m_pixmap = picture;
    m_description->setText(text);
    if (picture.isNull())
        return m_picture->clear();
    const qreal ratio = devicePixelRatioF();
    QPixmap shown = picture.scaledToHeight(qRound(pictureHeight * ratio), Qt::SmoothTransformation);
    shown.setDevicePixelRatio(ratio);
    m_picture->setPixmap(shown);
}

void VKRibbonModuleBar::slotSave() {
    if (m_observer != nullptr)
        m_observer->genericSave();
}

void VKRibbonModuleBar::slotDataEditor() {
    if (m_observer != nullptr)
        m_observer->showDataEditor();
}

void VKRibbonModuleBar::slotOpenDoc() {
    if (m_observer != nullptr)
        m_observer->help();
}

void VKRibbonModuleBar::slotEventOccured(int action) {
    if (m_observer != nullptr)
        m_observer->actionTriggered(action);
}

void VKRibbonModuleBar::setObserver(ModuleObserver* observer) {
    if (m_observer == observer)
        return;
    if (m_observer != nullptr) {
        m_observer->attachHelp(nullptr);
        for (auto entry = m_genericActions.cbegin(); entry != m_genericActions.cend(); ++entry) {
            m_observer->attachAction(entry.key(), nullptr);
            entry.value()->setEnabled(false);
        }
    }
    m_observer = observer;
    attachGenericActions();
}

void VKRibbonModuleBar::setActions(const QMap<int, QAction*>& actions) {
    for (const auto& action : qAsConst(m_actions)) {
        if (action != nullptr)
            action->disconnect(this);
    }
    qDeleteAll(m_actionButtons);
    m_actionButtons.clear();
    m_actions.clear();
    for (auto entry = actions.cbegin(); entry != actions.cend(); ++entry) {
        QAction* action = entry.value();
        if (action == nullptr)
            continue;
        connect(action, &QAction::triggered, this,
                [this, number = entry.key()] { slotEventOccured(number); });
        m_actions.append(action);
        m_actionButtons.append(m_actionGroup->addActionButton(action));
    }
}

void VKRibbonModuleBar::createDescriptionGroup(int width, bool visible) {
    if (width != noWidth)
        m_descriptionGroup->setFixedWidth(width);
    mainLayout()->insertWidget(0, m_descriptionGroup);
    m_descriptionGroup->setVisible(visible);
}

QLabel* VKRibbonModuleBar::createModuleLabel(const QString& title, int width) {
    auto* label = new QLabel(title, this);
    QFont heading = label->font();
    heading.setBold(true);
    label->setFont(heading);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(label->sizeHint().width() > width);
    label->setMaximumWidth(width);
    return label;
}

void VKRibbonModuleBar::addGenericActions(bool dataEditor, bool save) {
    if (dataEditor) {
        addGenericAction(ModuleObserver::dataEditorAction, tr("Results", "Résultats"),
                         QStringLiteral("table"));
    }
    if (save)
        addGenericAction(ModuleObserver::saveAction, tr("Save", "Enregistrer"), QStringLiteral("save"));
    addGenericAction(ModuleObserver::helpAction, tr("Help", "Aide"), QStringLiteral("help"));
    attachGenericActions();
}

void VKRibbonModuleBar::addGenericAction(int number, const QString& text, const QString& icon) {
    if (m_genericActions.contains(number))
        return;
    auto* action = new QAction(TLineIcon::icon(icon), text, this);
    action->setEnabled(false);
    m_actionGroup->addActionButton(action);
    m_genericActions.insert(number, action);
}

void VKRibbonModuleBar::attachGenericActions() {
    if (m_observer == nullptr)
        return;
    m_observer->attachHelp(dynamic_cast<const HelpInterface*>(this));
    for (auto entry = m_genericActions.cbegin(); entry != m_genericActions.cend(); ++entry)
        m_observer->attachAction(entry.key(), entry.value());
    m_observer->setActionEnabled(ModuleObserver::helpAction, true);
}
