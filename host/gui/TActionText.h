#pragma once

#include <QString>

class QAction;

/// What an action says of itself.
namespace TActionText {

/// The text on its button and in menus, and a tool tip that names the keys too, if there are any.
void set(QAction& action, const QString& text, const QString& tip);

} // namespace TActionText
