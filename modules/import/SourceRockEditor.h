#pragma once

#include "VornEditor.h"

/// The drop zone of the import of source-rock data.
class SourceRockEditor : public VornEditor {
    Q_OBJECT

public:
    using VornEditor::VornEditor;

    QString dropText() override;
    QPixmap modulePixmap() override;
};
