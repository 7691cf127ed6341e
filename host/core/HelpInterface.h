#pragma once

/// Something that has a page of its own in the user guide. Objects are never deleted through this class.
class HelpInterface {
public:
    /// Number of the page; 0 is the guide's first page.
    virtual int getIdForHelp() const = 0;

protected:
    HelpInterface() = default;
    HelpInterface(const HelpInterface&) = default;
    HelpInterface& operator=(const HelpInterface&) = default;
    ~HelpInterface() = default;
};
