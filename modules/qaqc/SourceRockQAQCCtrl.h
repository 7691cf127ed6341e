#pragma once

#include "Engine.h"
#include "VKModuleCtrl.h"
#include "VornExport.h"

#include <QColor>
#include <QObject>

#include <memory>
#include <string>
#include <vector>

class VKObject2Analysis;

namespace Vorn::SourceRockQAQC {

class SourceRockQAQCEditor;
class SourceRockQAQCViewer;

/// The spine of the quality check: turns stored analyses into engine input and grades into colours.
///
/// Enters the ribbon when it is constructed and leaves it when it is destroyed. Holds no result of its
/// own: analyses live in the engine's manager and are found by their display name, the first of several.
/// What the engine raises passes through every operation here.
class VORN_EXPORT SourceRockQAQCCtrl : public QObject, public VKModuleCtrl {
    Q_OBJECT

public:
    SourceRockQAQCCtrl();
    ~SourceRockQAQCCtrl() override;

    /// Grades all analyses with the present settings and shows the results.
    void update();

    /// Shows the analyses of these names, and no others; an unknown name is left out.
    void display(std::vector<std::string> names);

    /// Green for 1, orange for 2, red for any other code. Raises for an unknown name.
    QColor getColor(const std::string& name) const;

    /// Ends the module. The flag is taken for the sake of the slots that call this and is not read.
    void close(bool);
    using VKModuleCtrl::close;

    void exportMachineLearning();

protected slots:
    /// The only way in: grades the analysis and gives it a viewer. The host delivers good curves only.
    void slotAnalysisAdded(const VKObject2Analysis* signalDB);

    /// Opens the grades of all analyses as a table.
    void showDataEditor() override;

private:
    SourceRockQAQCEditor* m_editor;
    SourceRockQAQCViewer* m_viewer;
    std::shared_ptr<SourceRockQAQCMgr> m_manager;
};

} // namespace Vorn::SourceRockQAQC
