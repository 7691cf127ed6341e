#pragma once

#include "VKRibbonBar.h"

#include <QList>
#include <QMap>
#include <QPixmap>
#include <QPointer>

class ModuleObserver;
class QAction;
class QLabel;
class QToolButton;

/// The ribbon bar of a module. From left to right: the description (a picture and a line), what the module
/// puts in between, and the action group. What is triggered here goes to the module's observer.
class VKRibbonModuleBar : public VKRibbonBar {
    Q_OBJECT

public:
    explicit VKRibbonModuleBar(const QString& title);
    ~VKRibbonModuleBar() override;

    /// The picture is shown 64 pixels high at most, the text below it.
    virtual void setModuleDescription(const QPixmap& picture, const QString& text);

protected slots:
    /// What the generic actions of these meanings ask of the observer; without one, nothing.
    virtual void slotSave();
    virtual void slotDataEditor();
    virtual void slotOpenDoc();

public:
    /// Tells the observer.
    void slotEventOccured(int action) override;

    /// The one who hears of the bar's actions, or null. Not owned; it must outlive the bar or be taken back.
    /// The generic actions are attached to it, which rules which of them are enabled, help excepted, which
    /// always is; without an observer none is. If the bar is a HelpInterface, it becomes the observer's page.
    void setObserver(ModuleObserver* observer);
    /// One button per action, in the order of the numbers, in place of those of an earlier call. The actions
    /// stay the caller's; null entries are passed over.
    void setActions(const QMap<int, QAction*>& actions);

    const QPixmap& pixmap() const { return m_pixmap; }
    VKRibbonGroup* actionGroup() const { return m_actionGroup; }

protected:
    /// The description group, first in the bar. Its width in pixels, -9999 for what the content takes.
    void createDescriptionGroup(int width, bool visible);
    /// A heading in the module's name, owned by the bar; longer than the width, it wraps.
    QLabel* createModuleLabel(const QString& title, int width);
    /// Adds the buttons that modules share to the action group: results table and save if asked, and always
    /// the documentation. For once at the end of the set-up.
    void addGenericActions(bool dataEditor, bool save);

    /// The module's picture; the description shows it too.
    QPixmap m_pixmap;
    VKRibbonGroup* m_actionGroup;

private:
    void addGenericAction(int number, const QString& text, const QString& icon);
    void attachGenericActions();

    ModuleObserver* m_observer = nullptr;
    QList<QPointer<QAction>> m_actions;
    QList<QToolButton*> m_actionButtons;
    QMap<int, QAction*> m_genericActions;
    VKRibbonGroup* m_descriptionGroup;
    QLabel* m_picture;
    QLabel* m_description;
};
