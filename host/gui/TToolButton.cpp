#include "TToolButton.h"

// What is left out notes that neither the button nor the menu beside it is held down, which the next press
// notes anew.
void TToolButton::mouseReleaseEvent(QMouseEvent* event) {
    QAbstractButton::mouseReleaseEvent(event); // NOLINT(bugprone-parent-virtual-call)
}
