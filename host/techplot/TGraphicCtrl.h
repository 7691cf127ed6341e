#pragma once

#include "TEditorLoader.h"
#include <QPointer>

class QWidget;

namespace TechPlot {

class TEditor;

/// The plot area of one module: one editor at a time, shown in the workspace.
///
/// What an editor holds goes with it: its viewers with their plotters, viewers that were extracted and not
/// inserted elsewhere, and plotters that were never inserted (see TNode). It goes later than the running
/// event, so that a slot of a viewer may close the editor.
class TGraphicCtrl {
public:
    TGraphicCtrl() = default;
    ~TGraphicCtrl();
    TGraphicCtrl(const TGraphicCtrl&) = delete;
    TGraphicCtrl& operator=(const TGraphicCtrl&) = delete;

    /// Makes the editor; one that is still open is closed first. Throws VKError for an unknown type.
    void createEditor(TEditorLoader::TypeEditor type);

    /// Null before `createEditor`, after `closeEditor`, and when the editor was deleted by someone else.
    TEditor* getEditor() const;

    /// Takes the editor out of the workspace and disposes of it: with `immediately` before the call
    /// returns, otherwise later than the running event. Without an editor it does nothing.
    void closeEditor(bool immediately);

    /// Shows the editor in the workspace. Without a workspace it is shown nowhere.
    void showEditor();

    /// Fits the editor's viewers to its width and height.
    void adjustViewerHV();

private:
    QPointer<TEditor> m_editor;
};

} // namespace TechPlot
