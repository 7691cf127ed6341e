#include "Hands.h"

#include "Chance.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>

namespace {

constexpr Qt::Key keys[] = {
    Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Left,   Qt::Key_Right, Qt::Key_Return,
    Qt::Key_Escape, Qt::Key_Delete,    Qt::Key_F2,     Qt::Key_Tab,   Qt::Key_Backtab,
    Qt::Key_Space,  Qt::Key_Home,      Qt::Key_End,    Qt::Key_A,     Qt::Key_C,
    Qt::Key_F,      Qt::Key_PageDown,  Qt::Key_PageUp, Qt::Key_F4,    Qt::Key_Plus,
    Qt::Key_Minus,  Qt::Key_Backspace, Qt::Key_W,      Qt::Key_V,     Qt::Key_Asterisk};

/// A real drag waits for the mouse of the platform, which has none.
bool startsDrags(const QWidget& widget) {
    const auto* const view = qobject_cast<const QAbstractItemView*>(widget.parentWidget());
    return view != nullptr && view->dragEnabled();
}

} // namespace

Qt::KeyboardModifiers Hands::modifiers() {
    return m_chance.oneOf<Qt::KeyboardModifiers>(
        {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier});
}

void Hands::fiddle(QWidget& window) {
    QList<QWidget*> widgets;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->isEnabled() && widget->window() == &window &&
            !widget->size().isEmpty()) {
            widgets.append(widget);
        }
    }
    if (widgets.isEmpty()) {
        return;
    }
    QWidget& widget = *m_chance.oneOf(widgets);
    switch (m_chance.below(8)) {
    case 0:
        return wheel(widget);
    case 1:
        return pull(widget);
    case 2:
        return menu(widget);
    case 3:
        return type(widget);
    case 4:
        return press(widget);
    default:
        return click(widget, m_chance.oneIn(6));
    }
}

void Hands::press(QWidget& widget) {
    QTest::keyClick(&widget, m_chance.oneOf(std::vector<Qt::Key>(std::begin(keys), std::end(keys))),
                    modifiers());
}

void Hands::type(QWidget& widget) {
    const QPointer<QWidget> there(&widget);
    for (const QChar letter : m_chance.text().left(12)) {
        if (there != nullptr) {
            QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(letter));
            QApplication::sendEvent(there, &event);
        }
    }
}

void Hands::click(QWidget& widget, bool twice) {
    const QPoint place(m_chance.below(widget.width()), m_chance.below(widget.height()));
    if (twice) {
        QTest::mouseDClick(&widget, Qt::LeftButton, modifiers(), place);
    } else {
        QTest::mouseClick(&widget, Qt::LeftButton, modifiers(), place);
    }
}

void Hands::pull(QWidget& widget) {
    if (startsDrags(widget)) {
        return click(widget, false);
    }
    const QPointer<QWidget> there(&widget);
    const auto place = [this, &widget] {
        return QPoint(m_chance.below(widget.width()), m_chance.below(widget.height()));
    };
    const auto button = m_chance.oneOf({Qt::LeftButton, Qt::LeftButton, Qt::MiddleButton, Qt::RightButton});
    QTest::mousePress(&widget, button, modifiers(), place());
    for (int step = 0; step < 3 && there != nullptr; ++step) {
        QMouseEvent move(QEvent::MouseMove, place(), button, button, Qt::NoModifier);
        QApplication::sendEvent(&widget, &move);
    }
    if (there != nullptr) {
        QTest::mouseRelease(&widget, button, Qt::NoModifier, place());
    }
}

void Hands::wheel(QWidget& widget) {
    const QPoint turn(0, m_chance.oneOf({-120, 120, 360, -1200}));
    QWheelEvent event(widget.rect().center(), widget.mapToGlobal(widget.rect().center()), {}, turn,
                      Qt::NoButton, modifiers(), Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

void Hands::menu(QWidget& widget) {
    const QPoint place = widget.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
}
