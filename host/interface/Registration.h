#pragma once

#include <QtDebug>

/// How the implementations of this library's interfaces make themselves known; for this library's own
/// sources only, as the place of registration has to be one in the process.
///
/// The first object of an interface is the registered one until it is destroyed. A further one is refused,
/// with a warning on Qt's log: two windows cannot both be the application.
template <class Interface>
class Registration {
public:
    explicit Registration(const char* name) : m_name(name) {}

    Interface* registered() const { return m_registered; }

    void enter(Interface* candidate) {
        if (m_registered != nullptr) {
            qWarning("A second %s was made and is not used; destroy the first one before", m_name);
            return;
        }
        m_registered = candidate;
    }

    void leave(const Interface* leaving) {
        if (m_registered == leaving) {
            m_registered = nullptr;
        }
    }

private:
    const char* m_name;
    Interface* m_registered = nullptr;
};
