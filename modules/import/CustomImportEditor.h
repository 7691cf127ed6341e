#pragma once

#include "VornEditor.h"

/// The drop zone of the import of tables of any columns.
class CustomImportEditor : public VornEditor {
    Q_OBJECT

public:
    using VornEditor::VornEditor;

    QString dropText() override;
    QPixmap modulePixmap() override;
};
