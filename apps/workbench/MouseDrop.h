#pragma once

class QMimeData;
class QWidget;

/// What a mouse does at the end of a drag, without a mouse.
namespace MouseDrop {

/// Enters the widget in its middle and drops the data there; what comes of it is the widget's.
void on(QWidget& target, const QMimeData& data);

} // namespace MouseDrop
