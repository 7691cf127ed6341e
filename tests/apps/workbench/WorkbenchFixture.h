#pragma once

#include "MessageLogModel.h"
#include "ServerDatabase.h"
#include "Workbench.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

/// The whole workbench without a project, as at its very first start, and a folder for one.
class WorkbenchFixture : public testing::Test {
protected:
    WorkbenchFixture() {
        QSettings().clear();
        start();
    }

    /// Again, with what was remembered.
    void start() {
        workbench.reset();
        workbench = std::make_unique<Workbench>();
        workbench->look().choose(LookSwitch::Scheme::Light);
        workbench->window().show();
    }

    QString path(const QString& name) const { return folder.filePath(name); }
    /// Where the road's project is: a file, or the tests' server if there is one.
    QString place() const { return server ? server->address() : path("lab.vornproj"); }
    TechDB::TDatabase& project() { return *workbench->projects().projectDatabase(); }
    Workspace& workspace() { return workbench->window().workspace(); }
    ProjectTree& tree() { return workbench->window().tree(); }

    QStringList messages(MessageLevel level) const {
        QStringList texts;
        const MessageLogModel& log = workbench->log();
        for (int row = 0; row < log.rowCount(); ++row) {
            const QModelIndex index = log.index(row, MessageLogModel::TextColumn);
            if (index.data(MessageLogModel::LevelRole).toInt() == static_cast<int>(level)) {
                texts.append(index.data().toString());
            }
        }
        return texts;
    }
    QStringList errors() const { return messages(MessageLevel::Error); }

    static void settle() {
        for (int pass = 0; pass < 3; ++pass) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
        }
    }

    const QTemporaryDir folder;
    const std::unique_ptr<ServerDatabase> server =
        ServerDatabase::isThere() ? std::make_unique<ServerDatabase>() : nullptr;
    std::unique_ptr<Workbench> workbench;
};
