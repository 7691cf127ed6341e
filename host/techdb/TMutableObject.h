#pragma once

namespace TechDB {

/// What may be changed before it is stored, and knows whether it was.
class TMutableObject {
public:
    virtual ~TMutableObject();

    bool isModified() const { return m_modified; }
    void setModified(bool modified) { m_modified = modified; }

protected:
    TMutableObject() = default;
    TMutableObject(const TMutableObject&) = default;
    TMutableObject& operator=(const TMutableObject&) = default;

private:
    bool m_modified = false;
};

} // namespace TechDB
