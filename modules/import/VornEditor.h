#pragma once

#include "HelpInterface.h"
#include "ModuleEditorAbstract.h"
#include "VKRibbonModuleBar.h"

#include <QHash>
#include <QIcon>
#include <QString>
#include <QStringList>

class QToolButton;
class QTreeWidgetItem;
class VKRibbonGroupExpandable;
class VKTreeWidget;
class VornCtrl;

/// The ribbon bar of an import module: a drop zone that lists the files with their status, each with a
/// delete icon, and the Import button. Imports nothing itself: it tells what the user did, and shows the
/// controller's file list, of which it keeps no copy. The list outlives the bar and holds no empty path.
class VornEditor : public VKRibbonModuleBar, public HelpInterface, public ModuleEditorAbstract {
    Q_OBJECT

public:
    /// Builds nothing that is seen; `setupEditor` does.
    VornEditor(const QString& title, QHash<QString, int>& files);
    ~VornEditor() override;

    /// Once, before the bar enters the ribbon. `ctrl` may be null: the bar then has no actions but its own.
    void setupEditor(VornCtrl* ctrl);

    /// Shows the file list as it is now, in its own order. Not before `setupEditor`.
    void refreshFileTree();

    int getIdForHelp() const override;

    /// The text in the empty drop zone.
    virtual QString dropText() = 0;

    /// The picture of the module's description.
    virtual QPixmap modulePixmap() = 0;

signals:
    void closeRequested() override;
    void filesDropped(const QStringList&);
    void importAsked();
    /// Before the file's row is gone.
    void fileDelete(const QString& fileName);

protected slots:
    void slotDrop(const QStringList&);
    void slotImportButton();
    void slotItemClicked(QTreeWidgetItem* clickedItem, int column);

private:
    void initRibbon(VornCtrl* ctrl);
    void initFileTree();
    static void reportUnless(const QMetaObject::Connection& connected);
    bool updateStatuses();
    void listFiles();

    VKRibbonGroupExpandable* m_expandGroup = nullptr;
    QToolButton* m_importButton = nullptr;
    VKTreeWidget* m_fileTree = nullptr;
    QHash<QString, int>* m_files;
    QHash<int, QIcon> m_statusIcons;
};
