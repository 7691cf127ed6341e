#include "TActionText.h"

#include <QAction>

void TActionText::set(QAction& action, const QString& text, const QString& tip) {
    const QString keys = action.shortcut().toString(QKeySequence::NativeText);
    action.setText(text);
    action.setToolTip(keys.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, keys));
}
