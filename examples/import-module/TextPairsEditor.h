#pragma once

#include "VornEditor.h"

/// The drop zone of the import of two-column text.
class TextPairsEditor : public VornEditor {
    Q_OBJECT

public:
    using VornEditor::VornEditor;

    QString dropText() override;
    QPixmap modulePixmap() override;
};
