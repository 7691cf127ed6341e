#pragma once

namespace TechPlot {

class TViewer;

/// What an editor offers to those who fill it: the second half of adding a viewer.
class TEditorLayout {
public:
    virtual ~TEditorLayout() = default;

    /// Called with a viewer that has just been inserted: it joins what the viewers of the editor have in
    /// common (grid, linked time axis, export of all). A viewer that isn't in the editor is ignored, and so
    /// is one that has joined.
    virtual void viewerAdded(TViewer* viewer) = 0;
};

} // namespace TechPlot
