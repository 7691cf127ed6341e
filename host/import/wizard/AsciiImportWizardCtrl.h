#pragma once

#include <memory>

class AsciiImportWizardStrategy;
class QAbstractItemModel;

/// The column wizard: shows a table as it was read, lets a person say what it holds, and gives the table of
/// samples. One run: `initExec`, then `createModel`.
class AsciiImportWizardCtrl {
public:
    AsciiImportWizardCtrl();
    ~AsciiImportWizardCtrl();
    AsciiImportWizardCtrl(const AsciiImportWizardCtrl&) = delete;
    AsciiImportWizardCtrl& operator=(const AsciiImportWizardCtrl&) = delete;

    /// Shows the wizard over the active window and returns when it is closed. A `WorkbookModel` brings all
    /// sheets of its book; any other model is the only sheet. Takes the strategy over, keeps nothing of the
    /// table, and ends what the run before gave. Without a table or a strategy it shows nothing. Throws
    /// VKError if the table is too large to be imported.
    void initExec(QAbstractItemModel* table, AsciiImportWizardStrategy* strategy);

    /// The table that the person confirmed, a `VKDataModelGeneric`: samples by imported columns, named by the
    /// horizontal header, with the identifying column first and its name in section 0 of the vertical header
    /// under `AsciiImportWizardStrategy::idNameRole`. Owned by this object until the next run or its end.
    /// Null if the wizard was cancelled.
    QAbstractItemModel* createModel();

private:
    std::unique_ptr<AsciiImportWizardStrategy> m_strategy;
    std::unique_ptr<QAbstractItemModel> m_model;
};
