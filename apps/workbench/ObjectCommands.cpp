#include "ObjectCommands.h"

#include "ModuleLauncherInterface.h"
#include "ObjectTable.h"
#include "TExportCommand.h"
#include "VKDataModel.h"
#include "VKError.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QStandardPaths>

namespace {

/// More pages at once than anyone reads were asked for by mistake.
constexpr int manyTables = 20;

} // namespace

ObjectCommands::ObjectCommands(ModuleLauncherInterface& launcher, QWidget& window)
    : m_launcher(launcher), m_window(window) {}

void ObjectCommands::open(const QList<const VKObject2*>& objects) {
    if (objects.size() > manyTables &&
        QMessageBox::question(
            &m_window, tr("Open tables", "Ouvrir des tableaux"),
            tr("Open %1 tables, each in a page of its own?", "Ouvrir %1 tableaux, chacun dans sa page ?")
                .arg(objects.size()),
            QMessageBox::Open | QMessageBox::Cancel, QMessageBox::Cancel) != QMessageBox::Open) {
        return;
    }
    for (const VKObject2* const object : objects) {
        try {
            m_launcher.openDataEditor(ObjectTable::of(*object).release()); // takes it over
        } catch (const VKError& error) {
            VKError::dispatchError(error);
        }
    }
}

void ObjectCommands::exportCsv(const QList<const VKObject2*>& objects) {
    if (objects.isEmpty()) {
        return;
    }
    const QString start = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString title = tr("Export as CSV", "Exporter en CSV");
    const QString path = objects.size() == 1
                             ? QFileDialog::getSaveFileName(
                                   &m_window, title,
                                   start + QLatin1Char('/') +
                                       TechPlot::TExportCommand::fileNameFor(objects.first()->displayName()) +
                                       QStringLiteral(".csv"),
                                   tr("Tables (*.csv)", "Tableaux (*.csv)"))
                             : QFileDialog::getExistingDirectory(&m_window, title, start);
    if (path.isEmpty()) {
        return;
    }
    try {
        ObjectTable::exportCsv(objects, path);
    } catch (const VKError& error) {
        VKError::dispatchError(error);
    }
}
