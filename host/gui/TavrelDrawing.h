#pragma once

#include <QStyleOption>

class QPainter;

/// How the single parts of the application's look are drawn, each from a style option and its palette alone.
namespace TavrelDrawing {

constexpr int sliderHandle = 16;

void frame(QPainter& painter, const QRect& rect, const QColor& line, const QBrush& fill = Qt::NoBrush);
void field(const QStyleOption& option, QPainter& painter);
void flatButton(const QStyleOption& option, QPainter& painter);
void pushButton(const QStyleOption& option, QPainter& painter);
void tab(const QStyleOptionTab& option, QPainter& painter);
void header(const QStyleOption& option, QPainter& painter);
void itemPanel(const QStyleOption& option, QPainter& painter);
void progress(const QStyleOptionProgressBar& option, QPainter& painter);
void slider(const QStyleOptionSlider& option, const QRect& handle, QPainter& painter);
void scrollBar(const QStyleOptionSlider& option, const QRect& handle, QPainter& painter);
void spinBox(const QStyleOptionSpinBox& option, const QRect& up, const QRect& down, QPainter& painter);

/// The item with text that can be read: on a background of the item's own, black or white, whichever differs
/// more from it.
QStyleOptionViewItem readable(const QStyleOptionViewItem& option);

} // namespace TavrelDrawing
