#pragma once

#include <Qt>

class Chance;
class QWidget;

/// A mouse and a keyboard in the hands of somebody who does not look.
class Hands {
public:
    explicit Hands(Chance& chance) : m_chance(chance) {}

    /// One thing on any visible, enabled widget of the window: a click, a double click, the wheel, a pull, a
    /// key, a menu. Null if that widget was none.
    void fiddle(QWidget& window);
    void press(QWidget& widget);
    void type(QWidget& widget);

private:
    void click(QWidget& widget, bool twice);
    void pull(QWidget& widget);
    void wheel(QWidget& widget);
    void menu(QWidget& widget);
    Qt::KeyboardModifiers modifiers();

    Chance& m_chance;
};
