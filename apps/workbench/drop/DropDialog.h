#pragma once

#include "DropChoice.h"
#include "DropGroups.h"
#include "HelpId.h"
#include "HelpInterface.h"

#include <QDialog>
#include <QVector>

class QComboBox;
class QTreeWidget;
class QTreeWidgetItem;

/// Asks what is to become of the files that were dropped: a line for each kind with the proposal, which can
/// be changed, and below it the files' names. Imports and opens nothing itself.
class DropDialog : public QDialog, public HelpInterface {
    Q_OBJECT

public:
    DropDialog(const DropGroups& groups, QWidget* parent);

    int getIdForHelp() const override { return HelpId::importModules; }

    /// As it is chosen now: once each file about which there is something to choose. At most one project is
    /// opened.
    QVector<DropChoice> choices() const;

private:
    void addGroup(const DropGroups::Group& group);
    void addNames(QTreeWidgetItem& row, const DropGroups::Group& group);
    QComboBox* choiceOf(const DropGroups::Group& group);
    static QString textOf(DropChoice::Target target);
    QVector<DropChoice> choicesOf(const DropGroups::Group& group, int line) const;

    DropGroups m_groups;
    QTreeWidget* m_list;
    QVector<QComboBox*> m_boxes; // a line's; null where there is nothing to choose
};
