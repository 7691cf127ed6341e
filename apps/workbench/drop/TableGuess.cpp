#include "TableGuess.h"

#include "AsciiImportWizardStrategyCustom.h"
#include "AsciiImportWizardStrategyGas.h"
#include "AsciiImportWizardStrategySR.h"
#include "ImportDraft.h"
#include "TFileBuffer.h"
#include "VKError.h"
#include "WorkbookModel.h"
#include "WorkbookReader.h"

#include <QFileInfo>

#include <algorithm>
#include <new>

namespace {

/// How many columns a wizard of this kind knows; all of them if a person mapped these headers there before.
int knownColumns(const WorkbookModel& workbook, const AsciiImportWizardStrategy& strategy) {
    const ImportDraft draft(workbook.book().sheets, workbook.proposedSheet(), strategy);
    if (draft.isRemembered()) {
        return draft.columnCount() + 1;
    }
    const std::vector<ColumnMapping>& columns = draft.mapping().columns;
    return static_cast<int>(std::count_if(columns.begin(), columns.end(), [](const ColumnMapping& column) {
        return column.target >= ColumnMapping::firstProperty;
    }));
}

FileKind guess(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    const WorkbookModel workbook(WorkbookReader::read(TFileBuffer(path, true).data(), name), name);
    const AsciiImportWizardStrategyCustom custom;
    if (ImportDraft(workbook.book().sheets, workbook.proposedSheet(), custom).isRemembered()) {
        return FileKind::OtherTable;
    }
    const int ofRocks = knownColumns(workbook, AsciiImportWizardStrategySR());
    const int ofGases = knownColumns(workbook, AsciiImportWizardStrategyGas());
    if (ofRocks == ofGases) {
        return FileKind::OtherTable; // columns that both know say nothing
    }
    return ofRocks > ofGases ? FileKind::SourceRockTable : FileKind::GasTable;
}

} // namespace

FileKind TableGuess::of(const QString& path) {
    if (QFileInfo(path).size() > largestFile) {
        return FileKind::OtherTable;
    }
    try {
        return guess(path);
    } catch (const VKError&) { // told when it is imported
        return FileKind::OtherTable;
    } catch (const std::bad_alloc&) {
        return FileKind::OtherTable;
    }
}
