#pragma once

#include <QString>

class QWidget;

/// The text that stands in a view while there is nothing else in it.
namespace TEmptyHint {

/// Paints plain text into the view's viewport, wrapped to its width within the margin; for its paint event.
void paint(QWidget* viewport, const QString& text, int margin = 24,
           Qt::Alignment alignment = Qt::AlignCenter);

} // namespace TEmptyHint
