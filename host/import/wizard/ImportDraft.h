#pragma once

#include "ColumnContent.h"
#include "ColumnHeader.h"
#include "ColumnMatcher.h"
#include "ColumnNames.h"
#include "IdentifierCheck.h"
#include "ImportMapping.h"
#include "MappingMemory.h"
#include "Workbook.h"

#include <memory>

class AsciiImportWizardStrategy;
class VKDataModelGeneric;

/// A mapping while a person edits it, and all that follows from it. What was chosen for the same headers
/// before is proposed, else what is guessed. Refers to sheets and strategy; there is at least one sheet.
class ImportDraft {
public:
    ImportDraft(const std::vector<Workbook::Sheet>& sheets, int sheet,
                const AsciiImportWizardStrategy& strategy);

    /// Each of these proposes anew what depends on it; a place out of range changes nothing.
    void chooseSheet(int sheet);
    /// Rows count from 0; `TableLayout::none` for no header or no units. What lies below moves along.
    void setHeaderRow(int row);
    void setHeaderRows(int count);
    void setUnitsRow(int row);
    void setFirstDataRow(int row);
    /// Places are those of the mapping's columns.
    void setIdentifier(int place);
    void setTarget(int place, int target);
    void setDecimalComma(int place, bool decimalComma);

    const std::vector<Workbook::Sheet>& sheets() const { return m_sheets; }
    const Workbook::Sheet& sheet() const { return m_sheets[static_cast<std::size_t>(m_mapping.sheet)]; }
    const ImportMapping& mapping() const { return m_mapping; }
    const ColumnMapping& column(int place) const {
        return m_mapping.columns[static_cast<std::size_t>(place)];
    }
    int columnCount() const { return static_cast<int>(m_mapping.columns.size()); }
    /// The place of a column of the sheet, negative for one that is left out since it is empty.
    int placeOf(int sheetColumn) const;
    const ColumnHeader& header(int place) const { return m_headers[static_cast<std::size_t>(place)]; }
    const ColumnContent& content(int place) const { return m_contents[static_cast<std::size_t>(place)]; }
    const ColumnMatcher& matcher() const { return m_matcher; }
    const ColumnNames& names() const { return m_names; }
    const IdentifierCheck& identifiers() const { return m_identifiers; }
    int sampleCount() const { return static_cast<int>(m_rows.size()); }
    int importedCount() const;
    bool isRemembered() const { return m_isRemembered; }
    /// Whether there is something to import: a sample, and a column that says something of it.
    bool isComplete() const { return sampleCount() > 0 && importedCount() > 1; }

    /// A cell of the sheet as it is imported; cells above the samples and of columns that are not imported
    /// stay as they are.
    QVariant importedCell(int row, int sheetColumn) const;
    std::unique_ptr<VKDataModelGeneric> table() const;
    void remember() const;

private:
    static QVector<TKnownProperty> offeredBy(const AsciiImportWizardStrategy& strategy);

    bool contains(int place) const { return place >= 0 && place < columnCount(); }
    void setLayout(TableLayout layout);
    void propose();
    void readColumns();
    void checkIdentifiers();
    void updateNames();

    const std::vector<Workbook::Sheet>& m_sheets;
    const AsciiImportWizardStrategy& m_strategy;
    ColumnMatcher m_matcher;
    MappingMemory m_memory;
    ImportMapping m_mapping;
    bool m_isRemembered = false;
    std::vector<int> m_rows;
    std::vector<ColumnHeader> m_headers;   // by place
    std::vector<ColumnContent> m_contents; // by place
    std::vector<int> m_places;             // by column of the sheet
    ColumnNames m_names;
    IdentifierCheck m_identifiers;
};
