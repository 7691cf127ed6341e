#pragma once

#include "TavrelStyle.h"

#include <QObject>

/// Light or dark, or as the desktop has it; changes at once all that is on screen, and is remembered.
class LookSwitch : public QObject {
    Q_OBJECT

public:
    using Scheme = TavrelStyle::Scheme;

    explicit LookSwitch(QObject* parent = nullptr) : QObject(parent) {}

    /// The one chosen last; at first the desktop's.
    static Scheme remembered();

    Scheme scheme() const { return m_scheme; }
    void choose(Scheme scheme);

signals:
    void schemeChanged();

private:
    Scheme m_scheme = Scheme::Desktop;
};
