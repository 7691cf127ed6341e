#pragma once

namespace TechPlot {

class TEditor;

/// Makes editors by their type.
class TEditorLoader {
public:
    enum TypeEditor {
        Matrix = 3 ///< a column of viewers, TEditorMatrix
    };

    /// The caller owns the editor. Throws VKError for a type that isn't one of the above.
    static TEditor* load(TypeEditor type);
};

} // namespace TechPlot
