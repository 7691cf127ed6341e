#pragma once

#include "VornEditor.h"

/// The drop zone of the import of gas analyses.
class GasDataEditor : public VornEditor {
    Q_OBJECT

public:
    using VornEditor::VornEditor;

    QString dropText() override;
    QPixmap modulePixmap() override;
};
